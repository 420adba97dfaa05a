// Which changes of the program are steps of its history, and going back and forth among them.
#pragma once

#include <optional>

#include <QObject>

#include "app/ProgramState.h"
#include "screens/Handlers.h"
#include "screens/History.h"

namespace lensbench {

class Screens;

// What a person changes between a press and its release is one step: a drag with the mouse, a key
// that is held. What the program changes by itself, such as waves that run or a window of another
// size, is no step.
class Steps : public QObject {
 public:
  // Watches the actions of the screens while it lives.
  Steps(Screens& screens, Actions& actions);
  ~Steps() override;
  Steps(const Steps&) = delete;
  Steps& operator=(const Steps&) = delete;

  // Forgets all steps; from here on there are new ones.
  void start();
  // Nothing where there is no step to take back, or none that was taken back.
  void undo();
  void redo();

 protected:
  // Of every object of the program: the presses and releases of mouse and keys.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ended(By by);
  // What is held now begins a step.
  void hold();
  void letGo();
  // Ends a step, if anything has changed since the last one.
  void end();
  void go(bool (History<ProgramState>::*step)());

  Screens& screens_;
  Actions& actions_;
  std::optional<History<ProgramState>> history_;  // from the start on
  bool pressed_ = false;  // a mouse button is held: keys neither begin nor end a step meanwhile
  bool held_ = false;     // a button or a key
  bool unended_ = false;  // a person has done something since the last step
};

}  // namespace lensbench
