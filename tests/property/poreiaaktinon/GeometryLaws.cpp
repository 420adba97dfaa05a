// Properties of the plane geometry.
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Named.h"

namespace lensbench::poreiaaktinon {
namespace {

RC_GTEST_PROP(GeometryLaws, TheArcSineIsInvertedByTheSine, ()) {
  const double s = *rc::gen::inRange(-1000000, 1000001) / 1e6;
  RC_ASSERT(std::fabs(std::sin(toxoimitonou(s).value()) - s) < 1e-15);
}

RC_GTEST_PROP(GeometryLaws, TheRimLiesOnBothCircles, ()) {
  const int xc1 = *rc::gen::inRange(-500, 1);
  const int xc2 = *rc::gen::inRange(0, 501);
  const int R1 = *rc::gen::inRange(50, 501);
  const int R2 = *rc::gen::inRange(0, 501);
  const SimeiaTomis rim = tomikyklonaxona(xc1, xc2, R1, R2);
  const int distance = xc2 - xc1;
  const bool cross = distance != 0 && std::abs(R1 - R2) <= distance && distance <= R1 + R2;
  // Circles that touch in a whole number may be lost or found by a rounding.
  const bool touch = distance == std::abs(R1 - R2) || distance == R1 + R2;
  if (!touch) RC_ASSERT((rim.found != 0) == cross);
  if (rim.found == 0) return;
  RC_ASSERT(std::fabs(apostasi(rim.x1, rim.y1, xc1, 0) - R1) < 1e-9);
  RC_ASSERT(std::fabs(apostasi(rim.x2, rim.y2, xc2, 0) - R2) < 1e-5);
  RC_ASSERT(rim.y1 >= 0.0);
  RC_ASSERT(rim.y2 == -rim.y1);
}

RC_GTEST_PROP(GeometryLaws, BothCircleRoutinesAgree, ()) {
  const int d = *rc::gen::inRange(1, 1001);
  const int r1 = *rc::gen::inRange(50, 501);
  const int r2 = *rc::gen::inRange(1, 501);
  const SimeiaTomis a = tomikyklonapostasis(d, r1, r2);
  const SimeiaTomis b = tomikyklonaxona(0, d, r1, r2);
  if (d == std::abs(r1 - r2) || d == r1 + r2) return;  // touching: one may be lost by a rounding
  RC_ASSERT(a.found == b.found);
  RC_ASSERT(std::fabs(a.x1 - b.x1) < 1e-9);
  RC_ASSERT(std::fabs(a.y1 - b.y1) < 1e-6);
}

RC_GTEST_PROP(GeometryLaws, ALineMeetsACircleOnBoth, ()) {
  const double cx = *rc::gen::inRange(-500, 501);
  const double r = *rc::gen::inRange(50, 501);
  const double px = *rc::gen::inRange(-400, 401);
  const double py = *rc::gen::inRange(-200, 201);
  const double dx = *rc::gen::suchThat(rc::gen::inRange(-100, 101), [](int v) { return v != 0; });
  const double dy = *rc::gen::inRange(-100, 101);
  const SimeiaTomis s = tomieytheiaskyklou(cx, 0, r, dx, dy, px, py);
  const double distance = std::fabs((px - cx) * dy - py * dx) / std::hypot(dx, dy);
  if (std::fabs(distance - r) < 1e-6) return;
  RC_ASSERT((s.found != 0) == (distance < r));
  if (s.found == 0) return;
  RC_ASSERT(s.x1 > s.x2);
  RC_ASSERT(std::fabs(apostasi(s.x1, s.y1, cx, 0) - r) < 1e-6);
  RC_ASSERT(std::fabs(apostasi(s.x2, s.y2, cx, 0) - r) < 1e-6);
  RC_ASSERT(std::fabs((s.x1 - px) * dy - (s.y1 - py) * dx) < 1e-6);
}

RC_GTEST_PROP(GeometryLaws, ARayFromWithinLeavesOnTheFrame, ()) {
  Recording canvas;
  canvas.Scale(-400.0, 200.0, 400.0, -200.0);
  const double x0 = *rc::gen::inRange(-399, 400);
  const double y0 = *rc::gen::inRange(-199, 200);
  const double dx = *rc::gen::inRange(-50, 51);
  const double dy = *rc::gen::inRange(-50, 51);
  RC_PRE(dx != 0.0 || dy != 0.0);
  const SinglePair p = orioothonis(canvas, x0, y0, dx, dy);
  const Point q = light::leavingPoint(light::edgesOf(canvas), {x0, y0}, {dx, dy});
  RC_ASSERT(std::fabs(p.x - q.x) < 1e-4);
  RC_ASSERT(std::fabs(p.y - q.y) < 1e-4);
  RC_ASSERT(std::fabs(q.x) <= 400.0 + 1e-9);
  RC_ASSERT(std::fabs(q.y) <= 200.0 + 1e-9);
  RC_ASSERT(std::fabs(q.x) == 400.0 || std::fabs(q.y) == 200.0);
  RC_ASSERT((q.x - x0) * dx + (q.y - y0) * dy > 0.0);
}

RC_GTEST_PROP(GeometryLaws, BothFacesEndAtTheRim, ()) {
  const double xc1 = *rc::gen::inRange(-500, 1);
  const double xc2 = *rc::gen::inRange(0, 501);
  const double R1 = *rc::gen::inRange(50, 501);
  const double R2 = *rc::gen::inRange(0, 501);
  const auto arcs = faceArcs({xc1, R1, xc2, R2});
  if (!arcs) return;
  RC_ASSERT(std::fabs(R1 * std::sin(arcs->rightEnd) - R2 * std::sin(arcs->leftStart)) < 1e-6);
  RC_ASSERT(std::fabs(xc1 + R1 * std::cos(arcs->rightEnd) - xc2 - R2 * std::cos(arcs->leftStart)) <
            1e-5);
  RC_ASSERT(arcs->rightEnd >= 0.0);
  RC_ASSERT(arcs->leftEnd >= arcs->leftStart);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
