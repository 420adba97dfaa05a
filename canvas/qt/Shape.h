// A circular marker above the picture.
#pragma once

#include "canvas/qt/Control.h"
#include "canvas/qt/Overlay.h"

namespace lensbench {

// Left and Top are the user coordinates of its upper-left corner on the screen; Width and Height
// are lengths, so where y grows upward its centre is (Left + Width/2, Top - Height/2).
class Shape : public Overlay {
  Q_OBJECT

 public:
  Shape(Form& form, const QString& name, const Place& place);

  double Left() const noexcept { return left_; }
  void Left(double x);
  double Top() const noexcept { return top_; }
  void Top(double y);
  double Width() const noexcept { return width_; }
  void Width(double width);
  double Height() const noexcept { return height_; }
  void Height(double height);
  Rgb FillColor() const noexcept { return fillColor_; }
  void FillColor(Rgb colour);
  lensbench::FillStyle FillStyle() const noexcept { return fillStyle_; }
  void FillStyle(lensbench::FillStyle style);

  QRectF bounds() const override;
  void paint(QPainter& painter) const override;
  void convert(const UserMapping& from, const UserMapping& to) override;

 private:
  QRectF rectangle() const;

  double left_ = 0.0;
  double top_ = 0.0;
  double width_ = 0.0;
  double height_ = 0.0;
  Rgb fillColor_ = black;
  lensbench::FillStyle fillStyle_ = FillStyle::Transparent;
};

}  // namespace lensbench
