// Read-only text box.
#pragma once

#include <QLineEdit>

#include "canvas/qt/Control.h"

namespace lensbench {

class TextBox : public Control<QLineEdit> {
  Q_OBJECT

 public:
  TextBox(Form& form, const QString& name, const Place& place);

  QString Text() const { return text(); }
  // The beginning of the text is what is seen where there is no room for all of it.
  void Text(const QString& text);
  // The width that shows the whole of a text, in pixels.
  int widthForText(const QString& text) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace lensbench
