// The application object with the one error boundary of the program.
#pragma once

#include <functional>

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
  // Shows the error and ends the program with exit status 1.
  [[noreturn]] void endWith(const RuntimeError& error);

  Dialogs& dialogs_;
  const Actions& actions_;
};

// The texts of the error box: what happened, and one plain sentence that says which action met it.
QString errorHeadline(const RuntimeError& error);
QString errorSentence(const RuntimeError& error, const QString& action);

// Ends the process at once, without unloading screens one by one.
[[noreturn]] void endProcess(int status);

}  // namespace lensbench
