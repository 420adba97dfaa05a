// The drawing surface of a screen: user coordinates, drawing properties and drawing operations.
#pragma once

#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "canvas/Rgb.h"

namespace lensbench {

enum class DrawStyle { Solid = 0, Dotted = 2 };
enum class FillStyle { Solid = 0, Transparent = 1 };
enum class ScaleUnit { User, Twip, Pixel };

constexpr double twipsPerPixel = 15.0;

struct Point {
  double x = 0.0;
  double y = 0.0;
};
inline bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// How a figure is stroked; width in (logical) pixels. A dotted pen dots only at width 1.
struct Pen {
  Rgb colour;
  int width = 1;
  DrawStyle style = DrawStyle::Solid;
};

struct Font {
  std::string name = "Arial";
  double size = 10.0;  // points
};

// An arc from start to end, counter-clockwise.
struct CircleArc {
  Point centre;
  double radius = 0.0;
  double start = 0.0;
  double end = 0.0;
};

// The figure that a fill is meant for, of arcs joined each to the next and the last to the first;
// borderWidth is the pen its border is drawn with.
struct Body {
  std::vector<CircleArc> outline;
  int borderWidth = 1;
};

// Coordinates and lengths are in user units, angles in radians, counter-clockwise from positive x.
// Until Scale is called the unit is the twip, origin at the upper left, y downward. A coordinate
// that is not finite is Overflow (6). What is drawn stays until it is drawn over or cleared.
//
// The class keeps the state and checks the numbers; a surface implements the protected hooks, which
// see finite user coordinates and settled colours only.
class Canvas {
 public:
  virtual ~Canvas() = default;

  // Fills the client area with BackColor; CurrentX and CurrentY become 0.
  void Cls();
  // Both end points are painted; without a colour ForeColor is used. CurrentX, CurrentY = (x2, y2).
  void Line(double x1, double y1, double x2, double y2, std::optional<Rgb> colour = {});
  // A whole circle, filled with FillColor while FillStyle is solid. Radius in horizontal units.
  void Circle(double x, double y, double radius, std::optional<Rgb> colour = {});
  // An arc drawn counter-clockwise from start to end, through angle 0 when start > end.
  void Circle(double x, double y, double radius, std::optional<Rgb> colour, double start,
              double end);
  // A filled round dot of diameter DrawWidth.
  void PSet(double x, double y, std::optional<Rgb> colour = {});
  // The same as PSet of each in order, at less cost; not one is painted when one is not finite.
  void PSets(std::span<const Point> points, std::optional<Rgb> colour = {});
  // UTF-8 text in ForeColor, its upper-left corner at (CurrentX, CurrentY); CurrentY then moves one
  // line of text down the screen.
  void Print(std::string_view text);
  // Fills the 4-connected area around a pixel of the client area with FillColor, up to pixels of
  // the border colour. False when nothing was filled: FillStyle transparent, or a start outside or
  // on the border colour.
  bool FloodFill(int pixelX, int pixelY, Rgb border);
  // A flood fill that is told what it fills: a surface without pixels fills the body itself.
  bool FillBody(int pixelX, int pixelY, Rgb border, const Body& body);

  // Upper-left corner (x1, y1), lower-right corner (x2, y2) of the client area in user units.
  // Raises Division by zero (11) when a side would have no length.
  void Scale(double x1, double y1, double x2, double y2);
  bool hasUserScale() const noexcept { return userScale_; }
  double ScaleLeft() const { return scale().left; }
  double ScaleTop() const { return scale().top; }
  double ScaleWidth() const { return scale().width; }
  // Negative where y grows upward.
  double ScaleHeight() const { return scale().height; }
  // Lengths between units; a user length keeps its sign against the scale, so that
  // ScaleY(y - ScaleTop, User, Pixel) is the pixel row of y.
  double ScaleX(double value, ScaleUnit from, ScaleUnit to) const;
  double ScaleY(double value, ScaleUnit from, ScaleUnit to) const;

  int DrawWidth() const noexcept { return drawWidth_; }
  void DrawWidth(int pixels) noexcept { drawWidth_ = pixels < 1 ? 1 : pixels; }
  lensbench::DrawStyle DrawStyle() const noexcept { return drawStyle_; }
  void DrawStyle(lensbench::DrawStyle style) noexcept { drawStyle_ = style; }
  lensbench::FillStyle FillStyle() const noexcept { return fillStyle_; }
  void FillStyle(lensbench::FillStyle style) noexcept { fillStyle_ = style; }
  Rgb FillColor() const noexcept { return fillColor_; }
  void FillColor(Rgb colour) noexcept { fillColor_ = colour; }
  Rgb ForeColor() const noexcept { return foreColor_; }
  void ForeColor(Rgb colour) noexcept { foreColor_ = colour; }
  Rgb BackColor() const noexcept { return backColor_; }
  void BackColor(Rgb colour) noexcept { backColor_ = colour; }
  const std::string& FontName() const noexcept { return font_.name; }
  void FontName(std::string name) { font_.name = std::move(name); }
  double FontSize() const noexcept { return font_.size; }
  void FontSize(double points) noexcept { font_.size = points; }
  double CurrentX() const noexcept { return currentX_; }
  void CurrentX(double x);
  double CurrentY() const noexcept { return currentY_; }
  void CurrentY(double y);

 protected:
  Canvas() = default;
  Canvas(const Canvas&) = default;
  Canvas& operator=(const Canvas&) = default;

  // Size of the client area in logical pixels, at least 1 x 1.
  virtual double clientWidth() const = 0;
  virtual double clientHeight() const = 0;

  virtual void clear(Rgb colour) = 0;
  virtual void strokeLine(Point from, Point to, const Pen& pen) = 0;
  virtual void strokeCircle(Point centre, double radius, const Pen& pen,
                            std::optional<Rgb> fill) = 0;
  // end > start after normalisation; end - start is at most 2 pi.
  virtual void strokeArc(Point centre, double radius, const Pen& pen, double start, double end) = 0;
  virtual void paintDot(Point centre, const Pen& pen) = 0;
  virtual void paintDots(std::span<const Point> centres, const Pen& pen);
  // Returns the height of a line of text in logical pixels.
  virtual double paintText(Point upperLeft, std::string_view text, const Font& font,
                           Rgb colour) = 0;
  virtual bool fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) = 0;
  virtual bool fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body& body);
  // Called after the scale has changed.
  virtual void scaleChanged() {}

  // Keeps pixels per unit and what stands at the upper-left corner when the client area has been
  // resized from the given size; without a user scale there is nothing to keep.
  void keepScaleAfterResize(double oldWidth, double oldHeight);

 private:
  struct UserScale {
    double left, top, width, height;
  };
  UserScale scale() const;
  Pen pen(std::optional<Rgb> colour) const;

  UserScale user_{};
  bool userScale_ = false;
  int drawWidth_ = 1;
  lensbench::DrawStyle drawStyle_ = lensbench::DrawStyle::Solid;
  lensbench::FillStyle fillStyle_ = lensbench::FillStyle::Transparent;
  Rgb fillColor_ = black;
  Rgb foreColor_ = black;
  Rgb backColor_ = white;
  Font font_;
  double currentX_ = 0.0;
  double currentY_ = 0.0;
};

}  // namespace lensbench
