// Fixed or computed text, wrapped into its width.
#pragma once

#include <QLabel>

#include "canvas/qt/Control.h"

namespace lensbench {

class Label : public PlainControl<QLabel> {
  Q_OBJECT

 public:
  Label(Form& form, const QString& name, const Place& place);

  QString Caption() const { return text(); }
  void Caption(const QString& caption) { setText(caption); }
};

}  // namespace lensbench
