#include "canvas/qt/CheckBox.h"

namespace lensbench {

CheckBox::CheckBox(Form& form, const QString& name, const Place& place)
    : PlainControl(form, name, place) {
  connect(this, &QCheckBox::clicked, this, &CheckBox::Click);
}

void CheckBox::Caption(const QString& caption) {
  caption_ = caption;
  setText(QString(caption).replace('&', "&&"));
}

}  // namespace lensbench
