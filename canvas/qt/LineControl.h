// A straight stroke above the picture, such as the blade of a diaphragm.
#pragma once

#include "canvas/qt/Overlay.h"

namespace lensbench {

// The ends of a line as designed, in twips of the client area.
struct Ends {
  double x1, y1, x2, y2;
};

class LineControl : public Overlay {
  Q_OBJECT

 public:
  LineControl(Form& form, const QString& name, const Ends& ends);

  // User units.
  double X1() const noexcept { return from_.x; }
  void X1(double x);
  double Y1() const noexcept { return from_.y; }
  void Y1(double y);
  double X2() const noexcept { return to_.x; }
  void X2(double x);
  double Y2() const noexcept { return to_.y; }
  void Y2(double y);
  // Both ends at once: from is (X1, Y1), to is (X2, Y2).
  void between(Point from, Point to);
  // Pixels.
  int BorderWidth() const noexcept { return width_; }
  void BorderWidth(int pixels);

  QRectF bounds() const override;
  void paint(QPainter& painter) const override;
  void convert(const UserMapping& from, const UserMapping& to) override;

 protected:
  // What is painted, logical pixels.
  virtual QLineF onScreen() const;

 private:
  Point from_;
  Point to_;
  int width_ = 1;
};

}  // namespace lensbench
