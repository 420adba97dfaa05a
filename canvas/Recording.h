// A canvas that keeps the drawing operations it was given, in order, and plays them on any other.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "canvas/Canvas.h"

namespace lensbench {

// One operation with the pen it was drawn with. Only the fields of its kind are meaningful.
struct Operation {
  enum class Kind { Cls, Line, Circle, Arc, PSet, Print, FloodFill, Scale };
  Kind kind = Kind::Cls;
  double x1 = 0.0, y1 = 0.0;  // first point, centre, or pixel of a fill
  double x2 = 0.0, y2 = 0.0;  // second point; start and end angle of an arc
  double radius = 0.0;
  Rgb colour;  // of the pen, the text, or the border of a fill
  int width = 1;
  DrawStyle style = DrawStyle::Solid;
  std::optional<Rgb> fill;  // of a closed circle or a flood fill
  Body body;                // of a flood fill that has been told what it fills
  std::string text;
  Font font;
};
std::ostream& operator<<(std::ostream& out, const Operation& operation);

class Recording final : public Canvas {
 public:
  // Client area in logical pixels.
  explicit Recording(double width = 1200.0, double height = 600.0)
      : width_(width), height_(height) {}

  const std::vector<Operation>& operations() const { return operations_; }
  // The operations of one kind, in order.
  std::vector<Operation> operations(Operation::Kind kind) const;
  void forget() { operations_.clear(); }
  // Repeats the operations on another canvas, whose client area may have another size. A picture in
  // twips stays at the upper left, one with a scale spreads over the new area. The other canvas is
  // left with the properties of the last operations.
  void playOn(Canvas& canvas) const;

 protected:
  double clientWidth() const override { return width_; }
  double clientHeight() const override { return height_; }
  void clear(Rgb colour) override;
  void strokeLine(Point from, Point to, const Pen& pen) override;
  void strokeCircle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void strokeArc(Point centre, double radius, const Pen& pen, double start, double end) override;
  void paintDot(Point centre, const Pen& pen) override;
  double paintText(Point upperLeft, std::string_view text, const Font& font, Rgb colour) override;
  bool fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) override;
  bool fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body& body) override;
  void scaleChanged() override;

 private:
  double width_;
  double height_;
  std::vector<Operation> operations_;
};

}  // namespace lensbench
