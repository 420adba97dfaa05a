// Option button: one of a form's options is selected, or none.
#pragma once

#include <QRadioButton>

#include "canvas/qt/Control.h"

namespace lensbench {

class OptionButton : public PlainControl<QRadioButton> {
  Q_OBJECT

 public:
  OptionButton(Form& form, const QString& name, const Place& place);

  QString Caption() const { return caption_; }
  void Caption(const QString& caption);
  bool Value() const { return isChecked(); }
  // Selecting takes the selection from the form's other options.
  void Value(bool selected);

 signals:
  // By hand only: writing Value does not fire it.
  void Click();

 private:
  QString caption_;
};

}  // namespace lensbench
