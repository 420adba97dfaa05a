#include "canvas/qt/MenuEntry.h"

#include "canvas/qt/Form.h"

namespace lensbench {

MenuEntry::MenuEntry(Form& form, const QString& name, const QString& caption)
    : QAction(&form), caption_(caption) {
  setObjectName(name);
  showCaption();
  form.addMenuEntry(this);
  connect(this, &QAction::triggered, this, [this] {
    // The toolkit has turned the mark over already.
    if (isCheckable()) setChecked(checked_);
    emit Click();
  });
}

void MenuEntry::Caption(const QString& caption) {
  caption_ = caption;
  showCaption();
}

void MenuEntry::Checked(bool checked) {
  checked_ = checked;
  setCheckable(true);
  setChecked(checked);
  showCaption();
}

// A menu bar draws no check marks of its own, so the mark is part of the text.
void MenuEntry::showCaption() {
  setText((checked_ ? QStringLiteral("\u2713 ") : QString()) +
          QString(caption_).replace('&', "&&"));
}

}  // namespace lensbench
