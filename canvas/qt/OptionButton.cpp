#include "canvas/qt/OptionButton.h"

namespace lensbench {

OptionButton::OptionButton(Form& form, const QString& name, const Place& place)
    : Control(form, name, place) {
  // On the form's own background, not on a button's.
  setBackgroundRole(QPalette::Window);
  setForegroundRole(QPalette::WindowText);
  setAutoFillBackground(true);
  connect(this, &QRadioButton::clicked, this, &OptionButton::Click);
}

void OptionButton::Caption(const QString& caption) {
  caption_ = caption;
  setText(QString(caption).replace('&', "&&"));
}

void OptionButton::Value(bool selected) {
  // The toolkit does not let the selected one of a group be cleared.
  if (!selected) setAutoExclusive(false);
  setChecked(selected);
  setAutoExclusive(true);
}

}  // namespace lensbench
