#include "canvas/qt/Accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QMenuBar>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/MenuEntry.h"

namespace lensbench {
namespace {

class SpokenArea : public QAccessibleWidget {
 public:
  explicit SpokenArea(DrawingArea& area)
      : QAccessibleWidget(&area, QAccessible::Client), area_(area) {}

  // One that draws nothing only holds controls.
  QAccessible::Role role() const override {
    return area_.hasWords() ? QAccessible::Canvas : QAccessibleWidget::role();
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? area_.words() : QAccessibleWidget::text(kind);
  }

 private:
  const DrawingArea& area_;
};

// Its name says what it is, so that its text, often a number, would be lost.
class SpokenLabel : public QAccessibleWidget {
 public:
  explicit SpokenLabel(Label& label)
      : QAccessibleWidget(&label, QAccessible::StaticText), label_(label) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return label_.Caption();
    const QString said = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description ? label_.Caption() + '\n' + said : said;
  }

 private:
  const Label& label_;
};

// An entry that stands in the bar itself; the toolkit's own has its caption alone.
class SpokenEntry : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit SpokenEntry(MenuEntry& entry) : QAccessibleObject(&entry), entry_(entry) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(bar());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QWindow* window() const override { return parent()->window(); }
  QRect rect() const override {
    const QRect inBar = bar()->actionGeometry(&entry_);
    return {bar()->mapToGlobal(inBar.topLeft()), inBar.size()};
  }
  QAccessible::Role role() const override { return QAccessible::MenuItem; }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return entry_.statusTip();
    return kind == QAccessible::Description ? entry_.toolTip() : QString();
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    const bool active = bar()->activeAction() == &entry_;
    state.focusable = true;
    state.focused = active && bar()->hasFocus();
    state.hotTracked = active;
    state.disabled = !entry_.isEnabled();
    state.invisible = !entry_.isVisible() || !bar()->isVisible();
    state.checkable = entry_.isCheckable();
    state.checked = entry_.isChecked();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    // Later, for a box that it opens would keep the one waiting who asks for this.
    if (name == pressAction()) {
      QMetaObject::invokeMethod(&entry_, &QAction::trigger, Qt::QueuedConnection);
    }
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QMenuBar* bar() const { return static_cast<Form*>(entry_.parent())->menuBar(); }

  MenuEntry& entry_;
};

QAccessibleInterface* spoken(const QString&, QObject* object) {
  if (auto* area = qobject_cast<DrawingArea*>(object)) return new SpokenArea(*area);
  if (auto* label = qobject_cast<Label*>(object)) return new SpokenLabel(*label);
  if (auto* entry = qobject_cast<MenuEntry*>(object)) return new SpokenEntry(*entry);
  return nullptr;
}

}  // namespace

void speakOfForms() { QAccessible::installFactory(spoken); }

}  // namespace lensbench
