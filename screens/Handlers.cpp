#include "screens/Handlers.h"

#include <QAction>
#include <QWidget>

namespace lensbench {
namespace {

QString& action() {
  static QString name;
  return name;
}

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

QString currentAction() { return action(); }

ActionScope::ActionScope(const QObject& sender) : outer_(action()) { action() = nameOf(sender); }

ActionScope::~ActionScope() {
  if (std::uncaught_exceptions() == errorsBefore_) action() = outer_;
}

}  // namespace lensbench
