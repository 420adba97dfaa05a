#include "optics/poreiaaktinon/SingleRayPicture.h"

#include "canvas/Layers.h"
#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Palette.h"
#include "optics/poreiaaktinon/RayDrawing.h"

namespace lensbench::poreiaaktinon::single {
namespace {

constexpr double rimMark = 6.0;  // radius

[[noreturn]] void divisionByZero(const char* sentence) {
  throw RuntimeError(RuntimeError::Code::DivisionByZero, sentence);
}

// Leaves DrawWidth at 1.
void drawFaces(Canvas& canvas, const Outline& o) {
  canvas.DrawWidth(palette::outlineWidth);
  canvas.Circle(o.xc1, 0.0, o.R1, palette::outlineFace, 2.0 * pi - o.alpha1, o.alpha1);
  canvas.Circle(o.xc2, 0.0, o.R2, palette::outlineFace, pi - o.alpha2, pi + o.alpha2);
  canvas.DrawWidth(1);
}

// An Empty focal length, that of an index of 1, puts both marks on the chord.
void drawFocalMarks(Canvas& canvas, const Outline& o) {
  for (const double side : {-1.0, 1.0}) {
    canvas.Circle(o.x0 + side * o.f.value(), 0.0, palette::markRadius, palette::outlineMark);
  }
}

}  // namespace

// Found by the layers that they draw.
void drawLayer(Canvas& canvas, const AimLine& aim) {
  canvas.Line(aim.from.x, aim.from.y, aim.to.x, aim.to.y);
}

void drawLayer(Canvas& canvas, const LensAlone& lens) {
  drawFaces(canvas, lens.outline);
  drawFocalMarks(canvas, lens.outline);
}

void drawLayer(Canvas& canvas, const LensUnderRay& lens) {
  const Outline& o = lens.outline;
  // Kept on purpose: the second pass draws over the first, with the same values.
  for (const bool withRimMarks : {false, true}) {
    if (withRimMarks) {
      canvas.Circle(o.x0, o.h, rimMark, palette::outlineMark);
      canvas.Circle(o.x0, -o.h, rimMark, palette::outlineMark);
    }
    drawFocalMarks(canvas, o);
    drawFaces(canvas, o);
    canvas.Line(-palette::rimLineEnd, o.h, palette::rimLineEnd, o.h);
    canvas.Line(-palette::rimLineEnd, o.h2, palette::rimLineEnd, o.h2);
  }
}

void drawLayer(Canvas& canvas, const Ray& ray) {
  for (const light::RayPath& path : *ray.sent.paths) {
    drawPath(canvas, path, palette::airRay, palette::airRay);
  }
}

NoOutline noOutline(Variant R1, Variant R2, Variant xc2) {
  if (R1 == 0 || R2 == 0) return NoOutline::PointCircle;
  return xc2 == 0 && R1 == R2 ? NoOutline::SameCircle : NoOutline::None;
}

Outline outlineOf(Variant R1, Variant R2, Variant xc1, Variant xc2, Variant deiktis) {
  const NoOutline reason = noOutline(R1, R2, xc2);
  if (reason == NoOutline::PointCircle) {
    divisionByZero(
        "Με ακτίνα 0 ο κύκλος γίνεται σημείο και ο φακός δεν έχει όψη. "
        "With a radius of 0 the circle is a point, and the lens has no face.");
  }
  if (reason == NoOutline::SameCircle) {
    divisionByZero(
        "Οι δύο κύκλοι συμπίπτουν και δεν τέμνονται σε δύο σημεία. "
        "The two circles are one and the same, and do not cross at two points.");
  }
  const SimeiaTomis rim = tomikyklonapostasis(xc2, R1, R2);
  const bool upperFirst = rim.y1 > 0.0;
  Outline outline{R1.value(), R2.value(), xc1.value(), xc2.value(), {}};
  outline.f = estiakiapostasi(R1, R2, deiktis);
  outline.x0 = rim.x1;
  outline.h = upperFirst ? rim.y1 : rim.y2;
  outline.h2 = upperFirst ? rim.y2 : rim.y1;
  outline.alpha1 = toxoimitonou(outline.h / R1).value();
  outline.alpha2 = toxoimitonou(outline.h / R2).value();
  return outline;
}

Point aimedDirection(float xs, float ys, float xa, float ya) {
  const float dx = xa - xs;
  const float dy = ya - ys;
  if (dx == 0.0f) {
    divisionByZero(
        "Η ακτίνα σημαδεύτηκε ακριβώς πάνω ή κάτω από την πηγή, όπου η κλίση της δεν ορίζεται. "
        "The ray was aimed exactly above or below the source, where its slope is not defined.");
  }
  // So steep that the arc tangent cannot tell it from the vertical. Kept on purpose: only where the
  // slope is positive, and upwards also when the ray was aimed down.
  if (Atn(Variant(dy) / Variant(dx)) == 2 * Atn(1)) return {0.0, 50.0};
  return {dx, dy};
}

void draw(Canvas& canvas, const Shown& shown) {
  canvas.Cls();
  drawAdded(canvas, {}, shown.layers);
}

void redraw(Canvas& canvas, const Shown& from, const Shown& to) {
  if (!drawAdded(canvas, from.layers, to.layers)) draw(canvas, to);
}

}  // namespace lensbench::poreiaaktinon::single
