// Push button whose caption wraps onto as many lines as it needs.
#pragma once

#include <QPushButton>

#include "canvas/qt/Control.h"

namespace lensbench {

class CommandButton : public Control<QPushButton> {
  Q_OBJECT

 public:
  CommandButton(Form& form, const QString& name, const Place& place);

  QString Caption() const { return caption_; }
  // The width at which the longest word of the caption is whole, pixels.
  int leastWidth() const;
  // The button grows downwards where the caption would be clipped.
  void Caption(const QString& caption);

 signals:
  void Click();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void wrap();

  QString caption_;
};

}  // namespace lensbench
