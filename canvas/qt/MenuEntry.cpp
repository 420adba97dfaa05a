#include "canvas/qt/MenuEntry.h"

#include <QAccessible>

#include "canvas/qt/Form.h"

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

}  // namespace lensbench
