#include "screens/Handlers.h"

#include <QAction>
#include <QWidget>

namespace lensbench {
namespace {

QString nameOf(const QObject& sender) {
  if (const auto* widget = qobject_cast<const QWidget*>(&sender)) {
    return widget->accessibleName().isEmpty() ? widget->windowTitle() : widget->accessibleName();
  }
  if (const auto* entry = qobject_cast<const QAction*>(&sender)) {
    return entry->statusTip().isEmpty() ? entry->text() : entry->statusTip();
  }
  return sender.objectName();
}

}  // namespace

ActionScope::ActionScope(Actions& actions, const QObject& sender, By by)
    : actions_(actions), outer_(actions.current_), by_(by) {
  ++actions_.depth_;
  actions_.current_ = nameOf(sender);
}

ActionScope::~ActionScope() noexcept(false) {
  --actions_.depth_;
  if (std::uncaught_exceptions() != errorsBefore_) return;
  if (!actions_.running() && actions_.ended_) actions_.ended_(by_);
  actions_.current_ = outer_;
}

}  // namespace lensbench
