// What stands around the screens in the tests of the shell: the application object, and boxes that
// say on the error stream what they would have shown, before the process is gone.
#pragma once

#include <iostream>

#include "app/Application.h"
#include "app/Screens.h"
#include "screens/Handlers.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/support/HandClock.h"

// How a failed test shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace lensbench {

class SpokenDialogs : public FakeDialogs {
 public:
  void Critical(const QString& /*title*/, const QString& text,
                const QString& informative) override {
    std::cerr << text.toStdString() << '\n' << informative.toStdString() << '\n';
    if (whileOpen) whileOpen();
  }
};

// Made by main(), before the first test.
struct Shell {
  Shell(int& argc, char** argv) : application(argc, argv, boxes, actions) { instance = this; }

  SpokenDialogs boxes;
  Actions actions;
  Application application;

  static inline Shell* instance = nullptr;
};

// The program with its screens, made but not started.
struct Program {
  HandClock clock;
  Screens screens{Shell::instance->boxes, clock, Shell::instance->actions};
};

}  // namespace lensbench
