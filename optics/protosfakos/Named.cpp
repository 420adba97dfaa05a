#include "optics/protosfakos/Named.h"

#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "optics/protosfakos/Lens.h"
#include "optics/protosfakos/Picture.h"

namespace lensbench::protosfakos {
namespace {

constexpr int lastRecordedRay = 500;  // of the arrays by ray

// What the routines share that are not handed all they need.
struct Room {
  SahlScreen screen;
  std::vector<Recorded> rays = std::vector<Recorded>(lastRecordedRay + 1);
  int plithosaktinon = 0;
  bool arnhtikoShown = false;
};
Room& room() {
  static Room theRoom;
  return theRoom;
}

Point pigiOf(const Asked& asked) {
  const auto* fan = std::get_if<Fan>(&asked.rays);
  return fan ? fan->source : Point{};
}

void tellArnhtiko() {
  if (std::exchange(room().arnhtikoShown, true)) return;
  room().screen.message("  ARNHTIKO");
}

void drawScene(Variant a, Variant b, bool amfikyrtos, const Rays& rays) {
  Room& here = room();
  Asked asked = here.screen.asked();
  const Point pigi = pigiOf(asked);
  asked.amfikyrtos = amfikyrtos;
  asked.rays = rays;
  here.screen.caption(captionOf(asked));

  Traced traced = *sceneOf(a.value(), b.value(), asked).traced;
  if (std::holds_alternative<Fan>(rays)) {
    for (Recorded& ray : traced.recorded) layFronts(ray, pigi, asked.deiktisSahl);
  }
  here.plithosaktinon = traced.plithosaktinon();
  here.arnhtikoShown = false;
  here.rays = traced.recorded;
  here.rays.resize(lastRecordedRay + 1);
  drawOver(here.screen.canvas(), {asked, std::make_shared<const Traced>(traced)});
  if (traced.arnhtiko) tellArnhtiko();
}

void layFrontsOf(Variant k, Point start, double n) {
  if (!(std::fabs(k.value()) <= lastRecordedRay)) {
    throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
  }
  const long index = std::lrint(k.value());
  if (index < 0) throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
  Recorded& ray = room().rays[static_cast<std::size_t>(index)];
  layFronts(ray, start, n);
  if (arnhtiko(ray, n)) tellArnhtiko();
}

enum class Root { Plus, Minus };

// root is the sign of √D for a line steeper than the asymptotes; it is the other one below that.
Variant abscissa(Root root, Variant m, Variant q, Variant b, Variant a) {
  const Variant asymptote = b / a;
  const Variant A = m * m - asymptote * asymptote;
  if (A == 0) return -(q * q + b * b) / (2 * m * q);
  const Variant D = b * b * ((q * q + b * b) / (a * a) - m * m);
  if (D < 0) return {};
  const bool plus = (root == Root::Plus) == (A > 0);
  return (plus ? -m * q + Sqr(D) : -m * q - Sqr(D)) / A;
}

}  // namespace

void connectSahlScreen(SahlScreen screen) {
  room() = {};
  room().screen = std::move(screen);
}

std::span<const Recorded> recordedRays() { return room().rays; }

Variant plithosaktinon() { return room().plithosaktinon; }

Variant toxoimitonoSahl(Variant s) { return Atn(s / Sqr(1 - s * s)); }

Variant apostasiSahl(Variant x1, Variant y1, Variant x2, Variant y2) {
  return Sqr((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
}

Variant tomiyperbolis1(Variant m, Variant q, Variant b, Variant a) {
  return abscissa(Root::Plus, m, q, b, a);
}

Variant tomiyperbolis2(Variant m, Variant q, Variant b, Variant a) {
  return abscissa(Root::Minus, m, q, b, a);
}

void poreiaamfikyrtou(Variant a, Variant b, Variant m, Variant q, Variant& exitX, Variant& exitY) {
  const light::Lens lens = biconvex(a.value(), b.value(), room().screen.asked().deiktisSahl);
  const Variant x = 8 * a;
  const light::Ray ray = rayWithSlope({x.value(), (m * x + q).value()}, m.value(), Travel::Left);
  const light::RayPath path = trace(lens, ray, std::nullopt);
  exitX = emerged(path) ? Variant(record(path).exit.x) : Variant();
  exitY = emerged(path) ? Variant(record(path).exit.y) : Variant();
}

void sxediasiepipedokyrtou(Variant a, Variant b, Variant x0, Variant y0) {
  drawScene(a, b, false, Fan{{x0.value(), y0.value()}});
}

void sxediasiamfikyrtou(Variant a, Variant b, Variant x0, Variant y0) {
  drawScene(a, b, true, Fan{{x0.value(), y0.value()}});
}

void desmiepipedokyrtou(Variant a, Variant b, Variant m) {
  drawScene(a, b, false, Desmi{m.value()});
}

void desmiamfikyrtou(Variant a, Variant b, Variant m) { drawScene(a, b, true, Desmi{m.value()}); }

void kymatapigis(Variant k) {
  const Asked asked = room().screen.asked();
  layFrontsOf(k, pigiOf(asked), asked.deiktisSahl);
}

void kymatadesmis(Variant x, Variant y, Variant k) {
  layFrontsOf(k, {x.value(), y.value()}, room().screen.asked().deiktisSahl);
}

}  // namespace lensbench::protosfakos
