// Points of one front have equal optical path, found by a second tracer.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

#include "canvas/Recording.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "tests/property/poreiaaktinon/IndependentTrace.h"
#include "tests/property/poreiaaktinon/RandomBench.h"
#include "tests/support/OpticalLength.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::Ending;
using light::opticalLength;
using light::pointAtOpticalPath;
using light::RayPath;
using light::Side;

bool sameFaces(const RayPath& one, const RayPath& other) {
  return one.count == other.count && one.meetings[0].face == other.meetings[0].face &&
         one.meetings[1].face == other.meetings[1].face;
}

bool wellConditioned(const IndependentTrace& trace) { return trace.smallestCosine > 1e-3L; }

TEST(FrontLaws, PointAtAnOpticalPathAgreesWithASecondTracer) {
  RandomBench random(21);
  int throughGlass = 0;
  for (int ray = 0; throughGlass < lawRays && ray < 60 * lawRays; ++ray) {
    const Bench setup = random.bench();
    const Point source = random.source();
    if (!inAir(setup.fakos, source)) continue;
    const double angle = random.real(-3.2, 3.2);
    const RayPath path = traced(setup, source, {std::cos(angle), std::sin(angle)});
    if (path.meetings[0].face == Side::None) continue;
    const IndependentTrace trace = traceIndependently(setup.fakos, setup.n, source, angle);
    if (!wellConditioned(trace)) continue;
    ++throughGlass;
    ASSERT_EQ(trace.totallyReflected, path.ending == Ending::TotalReflection);
    const double L = random.real(0.0, opticalLength(path));
    const auto front = pointAtOpticalPath(path, L);
    ASSERT_TRUE(front);
    const Point expected = pointOn(trace, L);
    ASSERT_LT(length(front->position - expected), 1e-8) << ray;
  }
  EXPECT_EQ(throughGlass, lawRays);
}

TEST(FrontLaws, DrawnDotsOfAFanStandAtWholeTensFromTheSource) {
  RandomBench random(22);
  Recording canvas(768.0, 432.0);
  canvas.Scale(-384.0, 216.0, 384.0, -216.0);
  int dots = 0;
  for (int fan = 0; fan < 300; ++fan) {
    const Bench setup = random.bench();
    const Point source = random.source();
    if (!inAir(setup.fakos, source)) continue;
    for (int k = 0; k < 72; ++k) {
      const double angle = k * std::numbers::pi / 36.0 + 1e-3;
      const IndependentTrace trace = traceIndependently(setup.fakos, setup.n, source, angle);
      if (!wellConditioned(trace)) continue;
      canvas.forget();
      drawWavePoints(canvas, traced(setup, source, {std::cos(angle), std::sin(angle)}));
      // Rays may leave the drawing area and come back, so the count is found from the dot.
      std::vector<Point> tens;
      for (int step = 0; step < 400; ++step) tens.push_back(pointOn(trace, 10.0L * step));
      for (const Operation& op : canvas.operations()) {
        double nearest = 1e9;
        for (const Point& ten : tens)
          nearest = std::min(nearest, length(ten - Point{op.x1, op.y1}));
        ASSERT_LT(nearest, 1e-6);
        ++dots;
      }
    }
  }
  EXPECT_GT(dots, lawRays);
}

TEST(FrontLaws, FrontsOfABundleAreSquareToItsRaysBeforeTheLens) {
  RandomBench random(23);
  int points = 0;
  for (int bundle = 0; bundle < 2000; ++bundle) {
    const Bench setup = random.bench();
    const double angle = random.real(-1.4, 1.4);
    const Point direction{std::cos(angle), std::sin(angle)};
    const double L = random.real(0.0, 500.0);
    const Sent sent = send(setup, Desmi{angle, 100}, RandomBench::edges);
    for (const RayPath& path : *sent.paths) {
      const auto front = pointAtOpticalPath(path, L);
      if (!front || path.pieces[0].medium != light::Medium::Air ||
          front->crossed != light::FacesCrossed{}) {
        continue;
      }
      ASSERT_NEAR(dot(front->position - Point{-200.0, 0.0}, direction), L, 1e-9);
      ++points;
    }
  }
  EXPECT_GT(points, lawRays / 2);
}

TEST(FrontLaws, FrontsAreSquareToTheirRaysBehindTheLens) {
  // The front through a ray's two neighbours is square to the ray between them.
  RandomBench random(24);
  constexpr double apart = 1e-6;
  int pairs = 0;
  for (int i = 0; pairs < lawRays / 2 && i < 40 * lawRays; ++i) {
    const Bench setup = random.bench();
    const Point source = random.source();
    const double angle = random.real(-3.2, 3.2);
    const auto ray = [&](double a) { return traced(setup, source, {std::cos(a), std::sin(a)}); };
    const RayPath middle = ray(angle);
    const RayPath one = ray(angle - apart);
    const RayPath two = ray(angle + apart);
    if (middle.count != 3 || !sameFaces(one, middle) || !sameFaces(two, middle)) continue;
    if (traceIndependently(setup.fakos, setup.n, source, angle).smallestCosine < 0.1L) continue;
    const double L =
        opticalLength(middle, middle.pieces[0]) + opticalLength(middle, middle.pieces[1]) + 20.0;
    const auto a = pointAtOpticalPath(one, L);
    const auto b = pointAtOpticalPath(two, L);
    if (!a || !b || a->crossed[1] == Side::None || b->crossed[1] == Side::None) continue;
    ++pairs;
    const Point piece = b->position - a->position;
    ASSERT_LT(std::fabs(dot(piece, middle.pieces[2].direction)), 1e-12 + 1e-5 * length(piece));
  }
  EXPECT_EQ(pairs, lawRays / 2);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
