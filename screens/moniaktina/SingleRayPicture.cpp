#include "screens/moniaktina/SingleRayPicture.h"

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Intersection.h"

namespace lensbench {
namespace {

constexpr Rgb faceColour = RGB(0, 255, 0);
constexpr Rgb markColour = RGB(255, 0, 0);
constexpr int faceWidth = 5;          // pixels
constexpr double focalMark = 3.0;     // radius
constexpr double rimMark = 6.0;       // radius
constexpr double rimLineEnd = 200.0;  // the lines along the lens reach from -200 to 200

[[noreturn]] void divisionByZero(const char* sentence) {
  throw RuntimeError(RuntimeError::Code::DivisionByZero, sentence);
}

// Leaves DrawWidth at 1.
void drawFaces(Canvas& canvas, const LensOutline& outline, const Variant& R1, const Variant& R2,
               const Variant& xc1, const Variant& xc2) {
  const double pi = 4.0 * Atn(1).value();
  canvas.DrawWidth(faceWidth);
  canvas.Circle(xc1.value(), 0.0, R1.value(), faceColour, 2.0 * pi - outline.alpha1,
                outline.alpha1);
  canvas.Circle(xc2.value(), 0.0, R2.value(), faceColour, pi - outline.alpha2, pi + outline.alpha2);
  canvas.DrawWidth(1);
}

// An Empty focal length, that of an index of 1, puts both marks on the chord.
void drawFocalMarks(Canvas& canvas, const LensOutline& outline, const Variant& f) {
  for (const double side : {-1.0, 1.0}) {
    canvas.Circle(outline.x0 + side * f.value(), 0.0, focalMark, markColour);
  }
}

}  // namespace

LensOutline outlineOf(const Variant& R1, const Variant& R2, const Variant& xc2) {
  if (R1 == 0 || R2 == 0) {
    divisionByZero(
        "Με ακτίνα 0 ο κύκλος γίνεται σημείο και ο φακός δεν έχει όψη. "
        "With a radius of 0 the circle is a point, and the lens has no face.");
  }
  if (xc2 == 0 && R1 == R2) {
    divisionByZero(
        "Οι δύο κύκλοι συμπίπτουν και δεν τέμνονται σε δύο σημεία. "
        "The two circles are one and the same, and do not cross at two points.");
  }
  const auto rim = poreiaaktinon::tomikyklonapostasis(xc2, R1, R2);
  const bool upperFirst = rim.y1 > 0.0;
  LensOutline outline;
  outline.x0 = rim.x1;
  outline.h = upperFirst ? rim.y1 : rim.y2;
  outline.h2 = upperFirst ? rim.y2 : rim.y1;
  outline.alpha1 = poreiaaktinon::toxoimitonou(outline.h / R1).value();
  outline.alpha2 = poreiaaktinon::toxoimitonou(outline.h / R2).value();
  return outline;
}

void drawLensAlone(Canvas& canvas, const Variant& R1, const Variant& R2, const Variant& xc1,
                   const Variant& xc2, const Variant& deiktis) {
  canvas.Cls();
  const LensOutline outline = outlineOf(R1, R2, xc2);
  drawFaces(canvas, outline, R1, R2, xc1, xc2);
  drawFocalMarks(canvas, outline, poreiaaktinon::estiakiapostasi(R1, R2, deiktis));
}

void drawLensUnderRay(Canvas& canvas, const Variant& R1, const Variant& R2, const Variant& kentro2,
                      const Variant& deiktis) {
  const LensOutline outline = outlineOf(R1, R2, kentro2);
  const Variant f = poreiaaktinon::estiakiapostasi(R1, R2, deiktis);
  for (const bool withRimMarks : {false, true}) {
    if (withRimMarks) {
      canvas.Circle(outline.x0, outline.h, rimMark, markColour);
      canvas.Circle(outline.x0, -outline.h, rimMark, markColour);
    }
    drawFocalMarks(canvas, outline, f);
    drawFaces(canvas, outline, R1, R2, 0, kentro2);
    canvas.Line(-rimLineEnd, outline.h, rimLineEnd, outline.h);
    canvas.Line(-rimLineEnd, outline.h2, rimLineEnd, outline.h2);
  }
}

poreiaaktinon::SinglePair aimedDirection(float xs, float ys, float xa, float ya) {
  const float dx = xa - xs;
  const float dy = ya - ys;
  if (dx == 0.0f) {
    divisionByZero(
        "Η ακτίνα σημαδεύτηκε ακριβώς πάνω ή κάτω από την πηγή, όπου η κλίση της δεν ορίζεται. "
        "The ray was aimed exactly above or below the source, where its slope is not defined.");
  }
  // So steep that the arc tangent cannot tell it from the vertical.
  if (Atn(Variant(dy) / Variant(dx)) == 2 * Atn(1)) return {0.0f, 50.0f};
  return {dx, dy};
}

}  // namespace lensbench
