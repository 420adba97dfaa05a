// Joins the events of controls to the handlers of a screen, and remembers which action is running.
#pragma once

#include <exception>

#include <QObject>
#include <QString>

namespace lensbench {

// The action that is being carried out, or, after an error, the one that met it: the bilingual
// accessible name of the control, menu entry or form that the event came from. Empty at start.
QString currentAction();

// Marks the sender's action as the current one while it lives; an error leaves the mark standing,
// so that the error boundary can say where it happened.
class ActionScope {
 public:
  explicit ActionScope(const QObject& sender);
  ~ActionScope();
  ActionScope(const ActionScope&) = delete;
  ActionScope& operator=(const ActionScope&) = delete;

 private:
  QString outer_;
  int errorsBefore_ = std::uncaught_exceptions();
};

// One line of a screen's list of handlers: on(aktina1, &ScrollBar::Change, *this,
// &kelmo::aktina1_Change).
template <typename Sender, typename Owner, typename... Args, typename Screen>
void on(Sender& sender, void (Owner::*signal)(Args...), Screen& screen,
        void (Screen::*handler)(Args...)) {
  QObject::connect(&sender, signal, &screen, [&sender, &screen, handler](Args... args) {
    const ActionScope scope(sender);
    (screen.*handler)(args...);
  });
}

}  // namespace lensbench
