#include "canvas/qt/CheckBox.h"

namespace lensbench {

CheckBox::CheckBox(Form& form, const QString& name, const Place& place)
    : Control(form, name, place) {
  setAutoFillBackground(true);
  connect(this, &QCheckBox::clicked, this, &CheckBox::Click);
}

void CheckBox::Caption(const QString& caption) {
  caption_ = caption;
  setText(QString(caption).replace('&', "&&"));
}

}  // namespace lensbench
