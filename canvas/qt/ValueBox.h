// Lets a box that shows a value change it too: by the wheel, by the arrow and Page keys, and by a
// number that is typed into a field over it. The box itself stays read-only.
#pragma once

#include <functional>

#include <QObject>
#include <QPointer>
#include <QString>

#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/ValueField.h"

class QKeyEvent;
class QWheelEvent;

namespace lensbench {

struct ValueRange {
  double least;
  double most;
};

// A box and what stands behind it. Values are in the units that the box shows.
struct Settable {
  QWidget& box;
  ScrollBar& bar;                 // whose steps the wheel and the keys take
  std::function<void(int)> move;  // by so many steps, upwards for more
  std::function<ValueRange()> range;
  std::function<void(double)> set;  // takes a value within the range
  // In Greek and English, a line each, why the program does not outlive a value; empty where it
  // does.
  std::function<QString(double)> end = [](double) { return QString(); };
  double unit = 1.0;  // value of a step of the bar
};

// A box that shows the value of one bar, whose step is worth a unit.
Settable valueOfBar(QWidget& box, ScrollBar& bar, double unit = 1.0);

class ValueBox : public QObject {
  Q_OBJECT

 public:
  // Lives as long as the box. A box that cannot have the keyboard, as a label cannot, is typed into
  // through its bar.
  explicit ValueBox(Settable what);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool keyPressed(const QKeyEvent& event);
  void turn(const QWheelEvent& event);
  void move(int steps);
  void open(const QString& typed);
  void take();
  QWidget& typedIn() const;
  int largeStep() const { return what_.bar.LargeChange(); }

  const Settable what_;
  QPointer<ValueField> field_;
  int turned_ = 0;  // by the wheel since the last step, eighths of a degree
};

}  // namespace lensbench
