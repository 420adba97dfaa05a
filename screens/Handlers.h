// Joins the events of controls to the handlers of a screen, and remembers which action is running.
#pragma once

#include <exception>
#include <functional>
#include <utility>

#include <QObject>
#include <QString>

namespace lensbench {

// Who carries an action out: a person, or the program by itself, as a timer or a new size of a
// window does.
enum class By { Hand, Itself };

class Actions {
 public:
  // Is told when an action has ended without an error, of actions within others the outermost
  // alone; its own errors are those of that action.
  void watchBy(std::function<void(By)> ended) { ended_ = std::move(ended); }
  // Whether an action is being carried out.
  [[nodiscard]] bool running() const noexcept { return depth_ > 0; }

  // The action that is being carried out, or, after an error, the one that met it: the bilingual
  // accessible name of the control, menu entry or form that the event came from. Empty at start.
  [[nodiscard]] const QString& current() const noexcept { return current_; }

 private:
  friend class ActionScope;
  QString current_;
  std::function<void(By)> ended_;
  int depth_ = 0;  // actions within actions
};

// Marks the sender's action as the current one while it lives; an error leaves the mark standing,
// so that the error boundary can say where it happened.
class ActionScope {
 public:
  ActionScope(Actions& actions, const QObject& sender, By by = By::Hand);
  ~ActionScope() noexcept(false);
  ActionScope(const ActionScope&) = delete;
  ActionScope& operator=(const ActionScope&) = delete;

 private:
  Actions& actions_;
  QString outer_;
  By by_;
  int errorsBefore_ = std::uncaught_exceptions();
};

// One line of a screen's list of handlers: on(actions, aktina1, &ScrollBar::Change, *this,
// &kelmo::aktina1_Change).
template <typename Sender, typename Owner, typename... Args, typename Screen>
void on(Actions& actions, Sender& sender, void (Owner::*signal)(Args...), Screen& screen,
        void (Screen::*handler)(Args...), By by = By::Hand) {
  QObject::connect(&sender, signal, &screen,
                   [&actions, &sender, &screen, handler, by](Args... args) {
                     const ActionScope scope(actions, sender, by);
                     (screen.*handler)(args...);
                   });
}

}  // namespace lensbench
