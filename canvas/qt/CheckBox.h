// Check box.
#pragma once

#include <QCheckBox>

#include "canvas/qt/Control.h"

namespace lensbench {

class CheckBox : public PlainControl<QCheckBox> {
  Q_OBJECT

 public:
  CheckBox(Form& form, const QString& name, const Place& place);

  QString Caption() const { return caption_; }
  void Caption(const QString& caption);
  bool Value() const { return isChecked(); }
  void Value(bool on) { setChecked(on); }

 signals:
  // By hand only: writing Value does not fire it.
  void Click();

 private:
  QString caption_;
};

}  // namespace lensbench
