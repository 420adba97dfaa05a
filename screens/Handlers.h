// Joins the events of controls to the handlers of a screen, and remembers which action is running.
#pragma once

#include <exception>

#include <QObject>
#include <QString>

namespace lensbench {

class Actions {
 public:
  // The action that is being carried out, or, after an error, the one that met it: the bilingual
  // accessible name of the control, menu entry or form that the event came from. Empty at start.
  [[nodiscard]] const QString& current() const noexcept { return current_; }

 private:
  friend class ActionScope;
  QString current_;
};

// Marks the sender's action as the current one while it lives; an error leaves the mark standing,
// so that the error boundary can say where it happened.
class ActionScope {
 public:
  ActionScope(Actions& actions, const QObject& sender);
  ~ActionScope();
  ActionScope(const ActionScope&) = delete;
  ActionScope& operator=(const ActionScope&) = delete;

 private:
  Actions& actions_;
  QString outer_;
  int errorsBefore_ = std::uncaught_exceptions();
};

// One line of a screen's list of handlers: on(actions, aktina1, &ScrollBar::Change, *this,
// &kelmo::aktina1_Change).
template <typename Sender, typename Owner, typename... Args, typename Screen>
void on(Actions& actions, Sender& sender, void (Owner::*signal)(Args...), Screen& screen,
        void (Screen::*handler)(Args...)) {
  QObject::connect(&sender, signal, &screen, [&actions, &sender, &screen, handler](Args... args) {
    const ActionScope scope(actions, sender);
    (screen.*handler)(args...);
  });
}

}  // namespace lensbench
