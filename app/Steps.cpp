#include "app/Steps.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "app/Screens.h"

namespace lensbench {

namespace {

bool movesWavesOnly(ProgramState before, ProgramState after) {
  for (ProgramState* state : {&before, &after}) {
    auto& values = state->kelmo.values;
    if (values) values = withoutFronts(std::move(*values));
  }
  return before == after;
}

}  // namespace

Steps::Steps(Screens& screens, Actions& actions) : screens_(screens), actions_(actions) {
  actions_.watchBy([this](By by) { ended(by); });
  QCoreApplication::instance()->installEventFilter(this);
}

Steps::~Steps() { actions_.watchBy({}); }

bool Steps::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto* press = static_cast<QMouseEvent*>(event);
      if (press->buttons() == Qt::MouseButtons(press->button())) {
        hold();
        pressed_ = true;
      }
      break;
    }
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      // Also of a release that was told to nobody.
      if (pressed_ && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) {
        pressed_ = false;
        letGo();
      }
      break;
    case QEvent::KeyPress:
      if (!pressed_ && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) hold();
      break;
    case QEvent::KeyRelease:
      if (!pressed_ && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) letGo();
      break;
    default:
      break;
  }
  return false;
}

void Steps::start() { history_.emplace(screens_.state()); }

void Steps::hold() {
  // In a box that an action has opened.
  if (actions_.running()) return;
  end();
  held_ = true;
}

void Steps::letGo() {
  held_ = false;
  // Once the release has done what it does.
  QMetaObject::invokeMethod(
      this, [this] { ended(By::Hand); }, Qt::QueuedConnection);
}

void Steps::ended(By by) {
  if (by == By::Hand) {
    unended_ = true;
    if (!held_ && !actions_.running()) end();
  } else if (history_ && !unended_) {
    history_->amend(screens_.state());
  }
}

void Steps::end() {
  unended_ = false;
  if (!history_) return;
  ProgramState now = screens_.state();
  if (now == history_->present()) return;
  if (movesWavesOnly(history_->present(), now)) {
    history_->amend(std::move(now));
  } else {
    history_->push(std::move(now));
  }
}

void Steps::undo() { go(&History<ProgramState>::back); }

void Steps::redo() { go(&History<ProgramState>::forth); }

void Steps::go(bool (History<ProgramState>::*step)()) {
  end();
  if (!history_ || !((*history_).*step)()) return;
  screens_.restore(history_->present());
  // Fitted to windows of another size, it is the same step.
  history_->amend(screens_.state());
}

}  // namespace lensbench
