#include "optics/protosfakos/Scenes.h"

#include <cmath>
#include <limits>
#include <string_view>

#include "optics/protosfakos/Fronts.h"
#include "optics/protosfakos/Outline.h"
#include "optics/protosfakos/RayDrawing.h"
#include "optics/protosfakos/SahlState.h"

namespace lensbench::protosfakos {
namespace {

constexpr std::string_view planoConvexFan = "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ";
constexpr std::string_view planoConvexBundle = "IBN SAHL'S PLANECONVEX LENS";
constexpr std::string_view biconvexLens = "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές";

constexpr double bundleX = 130.0;  // where the rays of a bundle start, user units
constexpr double bundleTop = 100.0;

void drawLens(SahlScreen& screen, std::string_view caption, const Glass& glass) {
  screen.caption(caption);
  state().clearRays();
  drawOutline(screen.canvas(), glass);
  if (!screen.onlyWaves()) drawIdealBundle(screen.canvas(), glass);
}

// Keeps what the wave routines need of a ray that leaves the lens.
void record(const RayPath& path, int k) {
  SahlState& s = state();
  s.entryX[k] = path.entry.x;
  s.entryY[k] = path.entry.y;
  s.exitX[k] = path.exit.x;
  s.exitY[k] = path.exit.y;
  s.directionX[k] = static_cast<float>(-path.emerging.x);
  s.directionY[k] = static_cast<float>(-path.emerging.y);
}

// Traces and draws one ray; one that leaves the lens is recorded and given its wave points by
// layFronts, which takes the index of the ray.
template <class LayFronts>
void castRay(SahlScreen& screen, const Glass& glass, const Ray& ray, LayFronts layFronts) {
  const RayPath path = trace(glass, ray, screen.diafragma());
  drawPath(screen.canvas(), path, !screen.onlyWaves());
  if (path.ending != Ending::Emerged) return;
  Variant& count = state().plithosaktinon;
  record(path, static_cast<int>(count.value()));
  layFronts(count);
  count = count + 1;
}

void finishScene(SahlScreen& screen) {
  if (!screen.onlyRays()) drawFronts(screen.canvas(), RGB(0, 0, 255));
}

void fan(std::string_view caption, const Glass& glass, Point source) {
  SahlScreen& screen = sahlScreen();
  drawLens(screen, caption, glass);
  drawMark(screen.canvas(), source);
  drawMark(screen.canvas(), {glass.a, 0.0});
  const Travel travel = source.x < glass.a ? Travel::Right : Travel::Left;
  // Slopes 0.9, 0.87 .. -0.9, from whole hundredths so that the middle one is exactly 0.
  for (int hundredths = 90; hundredths >= -90; hundredths -= 3) {
    castRay(screen, glass, rayWithSlope(source, hundredths / 100.0, travel), kymatapigis);
  }
  finishScene(screen);
}

// The foot of the ray on the plane through (130, 0) square to it.
Point phaseStart(const Ray& ray) {
  return ray.start - dot(ray.start - Point{bundleX, 0.0}, ray.direction) * ray.direction;
}

void bundle(std::string_view caption, const Glass& glass, double slope, int rays) {
  SahlScreen& screen = sahlScreen();
  drawLens(screen, caption, glass);
  drawMark(screen.canvas(), {glass.a, 0.0});
  for (int i = 0; i < rays; ++i) {
    const double y = bundleTop - 2.0 * bundleTop * i / (rays - 1);
    const Ray ray = rayWithSlope({bundleX, y}, slope, Travel::Left);
    const Point start = phaseStart(ray);
    castRay(screen, glass, ray, [&](const Variant& k) { kymatadesmis(start.x, start.y, k); });
  }
  finishScene(screen);
}

}  // namespace

void sxediasiepipedokyrtou(const Variant& a, const Variant& b, const Variant& x0,
                           const Variant& y0) {
  fan(planoConvexFan, planoConvex(a, b, state().deiktisSahl), {x0.value(), y0.value()});
}

void sxediasiamfikyrtou(const Variant& a, const Variant& b, const Variant& x0, const Variant& y0) {
  fan(biconvexLens, biconvex(a, b, state().deiktisSahl), {x0.value(), y0.value()});
}

void desmiepipedokyrtou(const Variant& a, const Variant& b, const Variant& m) {
  bundle(planoConvexBundle, planoConvex(a, b, state().deiktisSahl), m.value(), 101);
}

void desmiamfikyrtou(const Variant& a, const Variant& b, const Variant& m) {
  bundle(biconvexLens, biconvex(a, b, state().deiktisSahl), m.value(), 201);
}

void poreiaamfikyrtou(const Variant& a, const Variant& b, const Variant& m, const Variant& q,
                      Variant& exitX, Variant& exitY) {
  const Glass glass = biconvex(a, b, state().deiktisSahl);
  constexpr double everywhere = std::numeric_limits<double>::max();
  const Variant startX = 2 * glass.rimX();
  const Ray ray = rayWithSlope({startX.value(), (m * startX + q).value()}, m.value(), Travel::Left);
  const RayPath path = trace(glass, ray, {startX.value(), everywhere, -everywhere});
  const bool emerged = path.ending == Ending::Emerged;
  exitX = emerged ? Variant(path.exit.x) : Variant();
  exitY = emerged ? Variant(path.exit.y) : Variant();
}

}  // namespace lensbench::protosfakos
