#include "optics/poreiaaktinon/Named.h"

#include <limits>
#include <utility>

#include "optics/light/Edges.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Palette.h"
#include "optics/poreiaaktinon/RayDrawing.h"

namespace lensbench::poreiaaktinon {
namespace {

ConnectedWorkbench& workbench() {
  static ConnectedWorkbench connected;
  return connected;
}

Variant square(Variant v) { return v * v; }

SinglePair pair(Variant x, Variant y) { return {toSingle(x.value()), toSingle(y.value())}; }

Point point(Variant x, Variant y) { return {x.value(), y.value()}; }

Fakos fakosOf(Variant xc1, Variant xc2, Variant R1, Variant R2) {
  return {xc1.value(), R1.value(), xc2.value(), R2.value()};
}

SimeiaTomis verticalLine(Variant cx, Variant cy, Variant r, Variant px) {
  const Variant q = square(r) - square(px - cx);
  if (q <= 0) return {};
  const Variant upper = cy + Sqr(q);
  const Variant lower = cy - Sqr(q);
  const bool found = apostasi(px, upper, cx, cy) <= r && apostasi(px, lower, cx, cy) <= r;
  return {px.value(), upper.value(), px.value(), lower.value(), boolean(found)};
}

bool circlesCross(const Fakos& fakos) {
  return tomikyklonaxona(fakos.xc1, fakos.xc2, fakos.R1, fakos.R2).found != 0;
}

light::Circle circle1(const Fakos& fakos) { return {{fakos.xc1, 0.0}, fakos.R1}; }
light::Circle circle2(const Fakos& fakos) { return {{fakos.xc2, 0.0}, fakos.R2}; }

// What both named searches find: the end of the first piece of the ray's path, when a face ends it.
DiadromiApotelesma search(const Fakos& fakos, Point start, Point direction) {
  const DiadromiApotelesma none{start.x, start.y, boolean(false), 0};
  if (isZero(direction) || !circlesCross(fakos)) return none;
  const light::RayPath path = light::trace({circle2(fakos), circle1(fakos)},
                                           {start, unit(direction)}, conditionsOf({}, {}));
  const Point end = path.pieces[0].to;
  if (path.meetings[0].face == light::Side::None || isZero(end)) return none;
  return {end.x, end.y, boolean(true), 0};
}

// True when the whole line meets both circles, behind the start too.
bool lineMeetsBoth(const Fakos& fakos, Point start, Point direction) {
  if (isZero(direction)) return false;
  const light::Ray ray{start, unit(direction)};
  return !glassSide(circle1(fakos), ray).empty() && !glassSide(circle2(fakos), ray).empty();
}

// One ray to the edges of the canvas, with the diaphragm of the workbench.
light::RayPath oneRay(const Canvas& canvas, const Fakos& fakos, Variant n, Point start,
                      Point direction) {
  const Bench bench{fakos, n.value(), workbench().bench().diafragma};
  return send(bench, SingleRay{start, direction}, light::edgesOf(canvas)).paths->front();
}

Rgb colourOf(Variant xroma) {
  constexpr double largest = std::numeric_limits<std::uint32_t>::max();
  if (xroma < 0 || xroma > largest) throwOverflow();
  return {static_cast<std::uint32_t>(xroma.value())};
}

}  // namespace

void connectWorkbench(ConnectedWorkbench connected) { workbench() = std::move(connected); }

double apostasi(Variant x1, Variant y1, Variant x2, Variant y2) {
  return Sqr(square(x1 - x2) + square(y1 - y2)).value();
}

SinglePair kathetos(Variant px, Variant py, Variant cx, Variant cy, Variant r) {
  return pair((px - cx) / r, (py - cy) / r);
}

Variant prosimo(Variant v) { return Sgn(v); }

Variant gonia(Variant ax, Variant ay, Variant bx, Variant by) {
  const Variant lengths = Sqr(ax * ax + ay * ay) * Sqr(bx * bx + by * by);
  return toxoimitonou((ax * bx + ay * by) / lengths);
}

bool nearCircle(Variant first, Variant second, Variant r) {
  return first <= r * 1.00005 && second <= r * 1.000005;
}

SimeiaTomis tomieytheiaskyklou(Variant cx, Variant cy, Variant r, Variant dx, Variant dy,
                               Variant px, Variant py) {
  if (dx == 0) return verticalLine(cx, cy, r, px);

  const Variant m = dy / dx;
  const Variant b = py - m * px;
  const Variant A = square(m) + 1;
  const Variant B = 2 * m * b - 2 * m * cy - 2 * cx;
  const Variant C = square(cx) + square(cy) + square(b) - 2 * b * cy - square(r);
  const Variant discriminant = square(B) - 4 * A * C;
  if (discriminant <= 0) return {px.value(), py.value(), px.value(), py.value(), 0};

  const Variant root = Sqr(discriminant);
  const Variant x1 = (-B + root) / (2 * A);
  const Variant x2 = (-B - root) / (2 * A);
  const Variant y1 = m * x1 + b;
  const Variant y2 = m * x2 + b;
  const bool found = nearCircle(apostasi(x1, y1, cx, cy), apostasi(x2, y2, cx, cy), r);
  return {x1.value(), y1.value(), x2.value(), y2.value(), boolean(found)};
}

SinglePair klasmaothonis(const Canvas& canvas, Variant x, Variant y) {
  const Variant height = canvas.ScaleHeight();
  return pair((x - canvas.ScaleLeft()) / canvas.ScaleWidth(),
              ((y - canvas.ScaleTop()) - height) / -height);
}

SinglePair orioothonis(const Canvas& canvas, Variant x0, Variant y0, Variant dx, Variant dy) {
  if (dx == 0 && dy == 0) return {};
  const double left = canvas.ScaleLeft();
  const double top = canvas.ScaleTop();
  const light::Edges edges{left, left + canvas.ScaleWidth(), top + canvas.ScaleHeight(), top};
  const Point p = light::nearerEdge(edges, point(x0, y0), point(dx, dy)).point;
  return {toSingle(p.x), toSingle(p.y)};
}

Variant sxetikosdeiktis(Variant dx, Variant dy, Variant px, Variant py, Variant cx, Variant cy,
                        Variant r, Variant n) {
  const SinglePair u = kathetos(px, py, cx, cy, r);
  if (dx * u.x + dy * u.y < 0) return n;
  return 1 / n;
}

DiathlasiApotelesma diathlasi(Variant dx, Variant dy, Variant px, Variant py, Variant cx,
                              Variant cy, Variant r, Variant n) {
  const Variant tx = (py - cy) / r;
  const Variant ty = (cx - px) / r;
  const Variant T0 = dx * tx + dy * ty;
  const Variant N0 = dy * tx - dx * ty;
  const Variant a1 = gonia(dx, dy, tx, ty);
  const Variant v = sxetikosdeiktis(dx, dy, px, py, cx, cy, r, n);
  const Variant s = Sin(a1);
  if (Abs(s / v) > 1) return {};

  const Variant a2 = toxoimitonou(s / v);
  const Variant T = prosimo(T0) * Abs(Sin(a2));
  const Variant N = prosimo(N0) * Abs(Cos(a2));
  return {toSingle((T * tx - N * ty).value()), toSingle((T * ty + N * tx).value()), boolean(true)};
}

DiafragmaApotelesma elegxosdiafragmatos(Variant X, Variant yA, Variant yB, Variant x0, Variant y0,
                                        Variant dx, Variant dy) {
  if (dx != 0) static_cast<void>(dy / dx);  // raises where the slope is no number
  const Diafragma diafragma{X.value(), yA.value(), yB.value()};
  const double y = light::heightAt(diafragma, point(x0, y0), point(dx, dy));
  if (!light::onBlade(diafragma, y)) return {toSingle(x0.value()), toSingle(y0.value()), 0};
  return {toSingle(diafragma.X), toSingle(y), boolean(true)};
}

void diadromiaktinas(DiadromiApotelesma& result, Variant xc1, Variant xc2, Variant R1, Variant R2,
                     Variant dx, Variant dy, Variant px, Variant py, Variant tag) {
  const Fakos fakos = fakosOf(xc1, xc2, R1, R2);
  result = search(fakos, point(px, py), point(dx, dy));
  if (!circlesCross(fakos)) return;
  result.tag = toInteger(tag.value());
  if (!workbench().canvas || !lineMeetsBoth(fakos, point(px, py), point(dx, dy))) return;
  workbench().canvas().DrawWidth(1);
}

void diadromiaktinas2(DiadromiApotelesma& result, Variant xc1, Variant xc2, Variant R1, Variant R2,
                      Variant dx, Variant dy, Variant px, Variant py) {
  result = search(fakosOf(xc1, xc2, R1, R2), point(px, py), point(dx, dy));
}

void sxediasidesmis(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy, Variant xc1,
                    Variant xc2, Variant R1, Variant R2, Variant n) {
  drawPath(canvas, oneRay(canvas, fakosOf(xc1, xc2, R1, R2), n, point(px, py), point(dx, dy)));
}

void sxediasikymaton(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy, Variant xc1,
                     Variant xc2, Variant R1, Variant R2, Variant n, Variant phase) {
  light::RayPath path = oneRay(canvas, fakosOf(xc1, xc2, R1, R2), n, point(px, py), point(dx, dy));
  path.phase = phase.value();
  drawWavePoints(canvas, path);
}

Sent bentaliaaktinon(Variant xc1, Variant xc2, Variant R1, Variant R2, Variant xs, Variant ys) {
  Canvas& canvas = workbench().canvas();
  Bench bench = workbench().bench();
  bench.fakos = fakosOf(xc1, xc2, R1, R2);
  Sent sent = send(bench, Fan{point(xs, ys), workbench().vima()}, light::edgesOf(canvas));
  drawLight(canvas, {sent, workbench().provoli()});
  return sent;
}

void poreiamiasaktinas(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy,
                       Variant /*mode*/, Variant xc2, Variant R1, Variant R2, Variant n) {
  drawPath(canvas, oneRay(canvas, fakosOf(0, xc2, R1, R2), n, point(px, py), point(dx, dy)),
           palette::airRay, palette::airRay);
}

void sxediasitoxou1(Variant xc1, Variant R1, Variant xc2, Variant R2, Variant /*X2*/,
                    Variant /*Y2*/) {
  drawRightFace(workbench().canvas(), fakosOf(xc1, xc2, R1, R2), palette::face);
}

void sxediasitoxou2(Variant xc1, Variant R1, Variant xc2, Variant R2, Variant /*X2*/,
                    Variant /*Y2*/, Variant xroma) {
  const Fakos fakos = fakosOf(xc1, xc2, R1, R2);
  if (!hasLens(fakos)) return;
  drawLeftFace(workbench().canvas(), fakos, colourOf(xroma));
}

void xaraktiristikasimeia() {
  Canvas& canvas = workbench().canvas();
  const Bench bench = workbench().bench();
  const CardinalPoints points = cardinalPoints(bench.fakos, bench.n);
  drawCardinalMarks(canvas, points);
  drawConstruction(canvas, points, workbench().pigi(), Travel::Right);
  drawCardinalLabels(canvas, points);
}

}  // namespace lensbench::poreiaaktinon
