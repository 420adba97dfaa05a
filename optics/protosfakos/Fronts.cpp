#include "optics/protosfakos/Fronts.h"

#include <cmath>

#include "optics/light/Vector.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/SahlScreen.h"
#include "optics/protosfakos/SahlState.h"

namespace lensbench::protosfakos {
namespace {

// Optical path from one front to the next, which is their distance in air, user units.
constexpr double frontSpacing = 4.0;

int rayIndex(const Variant& k) {
  constexpr double indexLimit = 1e6;
  if (std::fabs(k.value()) > indexLimit) {
    throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
  }
  return static_cast<int>(std::lrint(k.value()));
}

// The pieces of a recorded ray.
struct RecordedRay {
  Point start, entry, exit;
  Point direction;  // behind the lens, of length 1
};

RecordedRay recordedRay(const SahlState& s, Point start, int k) {
  const Point negated{s.directionX[k], s.directionY[k]};
  const double norm = length(negated);
  return {start,
          {s.entryX[k].value(), s.entryY[k].value()},
          {s.exitX[k].value(), s.exitY[k].value()},
          norm > 0.0 ? (-1.0 / norm) * negated : Point{}};
}

double distance(Point p, Point q) { return apostasiSahl(p.x, p.y, q.x, q.y).value(); }

// The point at an optical path from the start; before and inside are the lengths of the first two
// pieces, step is the length in the glass of one unit of optical path.
Point pointAt(const RecordedRay& ray, double before, double inside, double step, double path) {
  if (path == 0.0) return ray.start;
  if (path <= before) return ray.start + (path / before) * (ray.entry - ray.start);
  const double rest = path - before;
  if (rest <= inside / step) return ray.entry + (rest * step / inside) * (ray.exit - ray.entry);
  return ray.exit + (rest - inside / step) * ray.direction;
}

void layFronts(Point start, const Variant& k) {
  SahlState& s = state();
  const double step = (1 / s.deiktisSahl).value();
  const int index = rayIndex(k);
  const RecordedRay ray = recordedRay(s, start, index);
  const double before = distance(ray.start, ray.entry);
  const double inside = distance(ray.entry, ray.exit);
  if (inside / step < 0.0 && !s.negativeShown) {
    s.negativeShown = true;
    sahlScreen().message("  ARNHTIKO");
  }
  WavePoints& xs = s.kymataX[index];
  WavePoints& ys = s.kymataY[index];
  xs[0] = start.x;
  ys[0] = start.y;
  for (int j = 1; j <= lastFront; ++j) {
    const Point p = pointAt(ray, before, inside, step, frontSpacing * (j - 1));
    xs[j] = p.x;
    ys[j] = p.y;
  }
}

}  // namespace

void kymatapigis(const Variant& k) { layFronts({state().pigiX.value(), state().pigiY.value()}, k); }

void kymatadesmis(const Variant& x, const Variant& y, const Variant& k) {
  layFronts({x.value(), y.value()}, k);
}

void drawFronts(Canvas& canvas, std::optional<Rgb> colour) {
  const SahlState& s = state();
  const int rays = rayIndex(s.plithosaktinon);
  for (int j = 1; j <= lastFront; ++j) {
    for (int i = 1; i < rays; ++i) {
      canvas.Line(s.kymataX[i - 1][j].value(), s.kymataY[i - 1][j].value(), s.kymataX[i][j].value(),
                  s.kymataY[i][j].value(), colour);
    }
  }
}

}  // namespace lensbench::protosfakos
