#include "canvas/qt/MenuEntry.h"

#include <QAccessible>

#include "canvas/qt/Control.h"

namespace lensbench {

MenuEntry::MenuEntry(Form& form, const QString& name, const QString& caption)
    : QAction(&form), caption_(caption) {
  setObjectName(name);
  setText(QString(caption).replace('&', "&&"));
  form.addMenuEntry(this);
  connect(this, &QAction::triggered, this, [this] {
    // The toolkit has turned the mark over already.
    if (isCheckable()) setChecked(checked_);
    emit Click();
  });
}

void MenuEntry::Checked(bool checked) {
  checked_ = checked;
  setCheckable(true);
  if (checked == isChecked()) return;
  setChecked(checked);
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void MenuEntry::Warning(const QString& words) {
  if (words.isEmpty() && !warned_) return;
  if (!warned_) calm_ = toolTip();
  warned_ = !words.isEmpty();
  const QString tip = warned_ ? withWarning(calm_, words) : calm_;
  setToolTip(tip);
  setWhatsThis(tip);
}

}  // namespace lensbench
