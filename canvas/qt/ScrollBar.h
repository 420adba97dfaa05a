// Scroll bar.
#pragma once

#include <QScrollBar>

#include "canvas/qt/Control.h"

namespace lensbench {

class ScrollBar : public Control<QScrollBar> {
  Q_OBJECT

 public:
  ScrollBar(Form& form, const QString& name, Qt::Orientation orientation, const Place& place);

  int Value() const { return value(); }
  // Kept within Min and Max; fires Change when the value is a new one.
  void Value(int value) { setValue(value); }
  int Min() const { return minimum(); }
  void Min(int least) { setMinimum(least); }
  int Max() const { return maximum(); }
  void Max(int most) { setMaximum(most); }
  // Step of a click beside the thumb, and of an arrow.
  int LargeChange() const { return pageStep(); }
  void LargeChange(int step) { setPageStep(step); }
  int SmallChange() const { return singleStep(); }
  void SmallChange(int step) { setSingleStep(step); }
  // The design data of a bar at once; an arrow steps by 1.
  void range(int least, int most, int largeStep, int value);
  // What moving it can bring about, Greek line and English line, said below the tool tip; nothing
  // is said of an empty one. One step away from it the bar has an edge in the colour of warnings.
  void Warning(const QString& words, bool oneStepAway);
  bool oneStepAway() const { return oneStepAway_; }

 signals:
  // A new value, by hand (also while dragging) or from code.
  void Change();

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override;
  // A bar paints all of itself, so that the picture under it need not be painted, nor the bar with
  // the picture.
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void takeColours();

  // What the styles are given. They keep pictures of arrows by palette, forever: one made anew at
  // each painting would add to them each time.
  QPalette colours_;
  QString calm_;  // the tool tip without the warning
  bool warned_ = false;
  bool oneStepAway_ = false;
};

}  // namespace lensbench
