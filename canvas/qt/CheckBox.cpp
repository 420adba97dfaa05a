#include "canvas/qt/CheckBox.h"

namespace lensbench {

CheckBox::CheckBox(Form& form, const QString& name, const Place& place)
    : Control(form, name, place) {
  // On the form's own background, not on a button's.
  setBackgroundRole(QPalette::Window);
  setForegroundRole(QPalette::WindowText);
  setAutoFillBackground(true);
  connect(this, &QCheckBox::clicked, this, &CheckBox::Click);
}

void CheckBox::Caption(const QString& caption) {
  caption_ = caption;
  setText(QString(caption).replace('&', "&&"));
}

}  // namespace lensbench
