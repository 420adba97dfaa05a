#include "canvas/qt/OptionButton.h"

namespace lensbench {

OptionButton::OptionButton(Form& form, const QString& name, const Place& place)
    : PlainControl(form, name, place) {
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
