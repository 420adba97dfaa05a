// The application object with the one error boundary of the program.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include <QApplication>

#include "canvas/RuntimeError.h"

namespace lensbench {

class Actions;
class Dialogs;

class Application : public QApplication {
 public:
  // The boxes that the boundary speaks through, and the action that it names.
  Application(int& argc, char** argv, Dialogs& dialogs, const Actions& actions);

  // Inside each event delivery, so that nothing unwinds through the toolkit's event loop.
  bool notify(QObject* receiver, QEvent* event) override;
  // The same boundary around work that no event carries, such as start-up.
  void run(const std::function<void()>& work);

 private:
  template <typename Work>
  auto guarded(Work work) -> decltype(work());
  // Shows the error and ends the program with exit status 1. Where there is no memory even for the
  // box the terminate handler has the last word.
  [[noreturn]] void endWith(const RuntimeError& error) noexcept;

  Dialogs& dialogs_;
  const Actions& actions_;
  std::unique_ptr<std::byte[]> reserve_;  // what it takes to show a box once memory has run out
  bool ending_ = false;                   // the box of an error stands open
};

// How the wish for memory that there is not is told.
RuntimeError outOfMemory();

// The texts of the error box: what happened, and one plain sentence that says which action met it.
QString errorHeadline(const RuntimeError& error);
QString errorSentence(const RuntimeError& error, const QString& action);

// Ends the process at once, without unloading screens one by one.
[[noreturn]] void endProcess(int status);

}  // namespace lensbench
