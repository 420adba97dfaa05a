#include "optics/poreiaaktinon/CardinalPoints.h"

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Palette.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr double raysEnd = 500.0;  // how far out on the axis the constructed rays end

double thickness(const Fakos& fakos) { return (fakos.R1 + fakos.xc1) - (fakos.xc2 - fakos.R2); }

// 1/f of the thick lens.
Variant power(const Fakos& fakos, Variant n) {
  const Variant R1 = fakos.R1;
  const Variant R2 = fakos.R2;
  const Variant P = (n - 1) / R1 + (n - 1) / R2;
  const Variant Q = (n - 1) * (n - 1) * thickness(fakos) / n;
  return P - Q / (R2 * R1);
}

// The principal points placed with a radius each.
CardinalPoints placed(const Fakos& fakos, double n, double radius1, double radius2) {
  const double d = thickness(fakos);
  const Variant f = 1 / power(fakos, n);
  const double left = fakos.xc2 - fakos.R2;
  const double right = fakos.R1 + fakos.xc1;
  const double H1 = (left + d * f * (n - 1) / (n * Variant(radius1))).value();
  const double H2 = (right - d * f * (n - 1) / (n * Variant(radius2))).value();
  return {d, f.value(), H1, H2, H1, H2, (H1 - f).value(), (H2 + f).value()};
}

// The points in the order in which light meets them.
CardinalPoints inOrder(const CardinalPoints& p, Travel travel) {
  if (travel == Travel::Right) return p;
  return {p.d, p.f, p.H2, p.H1, p.N2, p.N1, p.F2, p.F1};
}

}  // namespace

CardinalPoints cardinalPoints(const Fakos& fakos, double n) {
  return placed(fakos, n, fakos.R2, fakos.R1);
}

CardinalPoints paraxialPoints(const Fakos& fakos, double n) {
  return placed(fakos, n, fakos.R1, fakos.R2);
}

bool hasCardinalPoints(const Fakos& fakos, double n) {
  return hasLens(fakos) && n != 0.0 && n != 1.0 && power(fakos, n) != 0;
}

Travel travelFrom(Point source, const Fakos& fakos) {
  return source.x > rightVertex(fakos) ? Travel::Left : Travel::Right;
}

bool canConstruct(const CardinalPoints& points, Point source, Travel travel) {
  const CardinalPoints p = inOrder(points, travel);
  if (p.F2 == p.H2 || source.x == p.F1 || source.x == p.N1) return false;
  // So near the axis that nothing is left of the slope is on it.
  return source.y / (p.F2 - p.H2) != 0.0;
}

Point imageOf(const CardinalPoints& points, Point source, Travel travel) {
  const CardinalPoints p = inOrder(points, travel);
  const Variant yS = source.y;
  const Variant y = yS + (p.H1 - Variant(source.x)) * (-yS / (p.F1 - Variant(source.x)));
  const Variant slope = -yS / Variant(p.F2 - p.H2);
  return {(p.H2 + (y - yS) / slope).value(), y.value()};
}

bool isReal(Point image, const Fakos& fakos, Travel travel) {
  return travel == Travel::Right ? image.x >= rightVertex(fakos) : image.x <= leftVertex(fakos);
}

void drawCardinalMarks(Canvas& canvas, const CardinalPoints& points) {
  canvas.DrawWidth(1);  // a wider pen would not dot
  canvas.DrawStyle(DrawStyle::Dotted);
  canvas.Line(points.H1, -planeHalfHeight, points.H1, planeHalfHeight);
  canvas.Line(points.H2, -planeHalfHeight, points.H2, planeHalfHeight);
  canvas.DrawStyle(DrawStyle::Solid);

  canvas.DrawWidth(palette::cardinalWidth);
  canvas.PSet(points.F1, 0.0, palette::focus);
  canvas.PSet(points.F2, 0.0, palette::focus);
  canvas.PSet(points.N1, 0.0, palette::node);
  canvas.PSet(points.N2, 0.0, palette::node);
  canvas.DrawWidth(1);
}

void drawConstruction(Canvas& canvas, const CardinalPoints& points, Point source, Travel travel) {
  const CardinalPoints p = inOrder(points, travel);
  const double end = static_cast<double>(travel) * raysEnd;
  const Variant xS = source.x;
  const Variant yS = source.y;
  const auto line = [&](Variant x1, Variant y1, Variant x2, Variant y2) {
    canvas.Line(x1.value(), y1.value(), x2.value(), y2.value(), palette::construction);
  };
  canvas.DrawWidth(palette::constructionWidth);

  const Variant s1 = -yS / (p.F1 - xS);
  const Variant y1 = yS + (p.H1 - xS) * s1;
  line(xS, yS, p.H2, yS);
  line(xS, yS, p.H1, y1);
  line(p.H1, y1, end, y1);

  const Variant s2 = -yS / Variant(p.F2 - p.H2);
  line(p.H2, yS, end, yS + (end - p.H2) * s2);

  const Variant s3 = -yS / (p.N1 - xS);
  line(xS, yS, p.N1, 0);
  line(p.N2, 0, end, (end - p.N2) * s3);

  const Point image = imageOf(points, source, travel);
  canvas.DrawWidth(palette::cardinalWidth);
  canvas.PSet(image.x, image.y, palette::construction);
  canvas.DrawWidth(1);
}

void drawCardinalLabels(Canvas& canvas, const CardinalPoints& points) {
  const auto label = [&](double x, double y, const char* text) {
    canvas.CurrentX(x);
    canvas.CurrentY(y);
    canvas.Print(text);
  };
  canvas.FontName("Arial");
  canvas.FontSize(13.0);
  label(points.H1, 150.0, "H1");
  label(points.H2, 150.0, "H2");
  label(points.F1, -2.0, "F1");
  label(points.F2, -2.0, "F2");
  label(points.N1, -2.0, "N1");
  label(points.N2, -2.0, "N2");
  canvas.FontSize(10.0);
}

void drawCardinalPoints(Canvas& canvas, const Fakos& fakos, double n, Point source) {
  if (!hasCardinalPoints(fakos, n)) return;
  const CardinalPoints points = cardinalPoints(fakos, n);
  const Travel travel = travelFrom(source, fakos);
  drawCardinalMarks(canvas, points);
  if (canConstruct(points, source, travel)) drawConstruction(canvas, points, source, travel);
  drawCardinalLabels(canvas, points);
}

}  // namespace lensbench::poreiaaktinon
