// The rays of a fan and of a parallel bundle.
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/Rays.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::RayPath;

const Bench bench{{-50.0, 100.0, 20.0, 90.0}, 1.5, std::nullopt};

std::vector<RayPath> fanPaths(Point source, double vima) {
  return *send(bench, Fan{source, vima}, testEdges).paths;
}
std::vector<RayPath> bundlePaths(double gonia, int desmi1) {
  return *send(bench, Desmi{gonia, desmi1}, testEdges).paths;
}

TEST(RayCount, IsTheWholePartOf360OverTheStep) {
  EXPECT_EQ(rayCount(pi * 30.0 / 20.0), 76);
  EXPECT_EQ(rayCount(pi * 30.0 / 140.0), 534);
  EXPECT_EQ(rayCount(pi * 5.0 / 150.0), 3437);
  EXPECT_EQ(rayCount(pi * 150.0 / 2.0), 1);
}

TEST(Fan, RayKLeavesAtKSteps) {
  const double vima = pi * 30.0 / 20.0;
  const auto paths = fanPaths({-200.0, 30.0}, vima);
  ASSERT_EQ(paths.size(), 76u);
  for (std::size_t k = 0; k < paths.size(); ++k) {
    const double angle = static_cast<double>(k) * vima * pi / 180.0;
    EXPECT_NEAR(paths[k].pieces[0].direction.x, std::cos(angle), 1e-15);
    EXPECT_NEAR(paths[k].pieces[0].direction.y, std::sin(angle), 1e-15);
    EXPECT_EQ(paths[k].pieces[0].from.x, -200.0);
    EXPECT_EQ(paths[k].pieces[0].from.y, 30.0);
    EXPECT_EQ(paths[k].phase, 0.0);
  }
}

TEST(Desmi, HasOneRayMoreThanItsDivisor) {
  for (const int desmi1 : {2, 3, 20, 149, 150}) {
    const auto paths = bundlePaths(0.0, desmi1);
    ASSERT_EQ(paths.size(), static_cast<std::size_t>(desmi1) + 1);
    EXPECT_EQ(paths.front().pieces[0].from.y, 200.0);
    EXPECT_NEAR(paths.back().pieces[0].from.y, -200.0, 1e-12);
  }
}

TEST(Desmi, StartsAndPhasesAtAnAngle) {
  const double angle = 0.4;
  const auto paths = bundlePaths(angle, 20);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const double k = 200.0 - 20.0 * static_cast<double>(i);
    EXPECT_NEAR(paths[i].pieces[0].from.x, -200.0 - k * std::tan(angle), 1e-12);
    EXPECT_NEAR(paths[i].pieces[0].from.y, k / std::cos(angle), 1e-12);
    EXPECT_NEAR(paths[i].phase, k * std::sin(angle) * (1.0 / std::cos(angle) - 1.0), 1e-10);
    EXPECT_NEAR(length(paths[i].pieces[0].direction), 1.0, 1e-15);
  }
}

TEST(Desmi, StaysFiniteAtEveryAngle) {
  for (const double degrees : {90.0, -90.0, 120.0, 180.0, 270.0, 89.999999, 1e6}) {
    for (const RayPath& path : bundlePaths(degrees * pi / 180.0, 20)) {
      EXPECT_TRUE(std::isfinite(path.phase));
      for (const light::Piece& piece : path.way()) {
        EXPECT_TRUE(std::isfinite(piece.from.x) && std::isfinite(piece.from.y));
        EXPECT_TRUE(std::isfinite(piece.to.x) && std::isfinite(piece.to.y));
      }
    }
  }
}

TEST(Desmi, MiddleRayAt90DegreesRunsUpFromItsStart) {
  const RayPath middle = bundlePaths(pi / 2.0, 20)[10];
  EXPECT_EQ(middle.pieces[0].from.x, -200.0);
  EXPECT_NEAR(middle.end().x, -200.0, 1e-9);
  EXPECT_EQ(middle.end().y, 200.0);
}

TEST(Send, EqualsWhatIsSentAlikeThroughTheSameBenchToTheSameEdges) {
  const Sent fan = send(bench, Fan{{-200.0, 30.0}, 30.0}, testEdges);
  EXPECT_EQ(fan, send(bench, Fan{{-200.0, 30.0}, 30.0}, testEdges));
  EXPECT_FALSE(fan == send(bench, Fan{{-200.0, 31.0}, 30.0}, testEdges));
  EXPECT_FALSE(fan == send(bench, Fan{{-199.0, 30.0}, 30.0}, testEdges));
  EXPECT_FALSE(fan == send(bench, Fan{{-200.0, 30.0}, 31.0}, testEdges));
  EXPECT_FALSE(fan == send(bench, Desmi{30.0, 20}, testEdges));
  EXPECT_FALSE(fan == send({bench.fakos, 1.6, {}}, Fan{{-200.0, 30.0}, 30.0}, testEdges));
  EXPECT_FALSE(fan == send({bench.fakos, 1.5, Diafragma{}}, Fan{{-200.0, 30.0}, 30.0}, testEdges));
  EXPECT_FALSE(fan == send(bench, Fan{{-200.0, 30.0}, 30.0}, {-400.0, 400.0, -200.0, 201.0}));
  const Sent ray = send(bench, SingleRay{{0.0, 1.0}, {1.0, 0.5}}, testEdges);
  EXPECT_EQ(ray, send(bench, SingleRay{{0.0, 1.0}, {1.0, 0.5}}, testEdges));
  EXPECT_FALSE(ray == send(bench, SingleRay{{0.0, 1.0}, {1.0, 0.6}}, testEdges));
  EXPECT_FALSE(ray == send(bench, SingleRay{{0.0, 2.0}, {1.0, 0.5}}, testEdges));
}

TEST(Send, IsClosedAllAroundAFanAlone) {
  EXPECT_TRUE(send(bench, Fan{{-200.0, 30.0}, 30.0}, testEdges).closed());
  EXPECT_FALSE(send(bench, Desmi{0.0, 20}, testEdges).closed());
  EXPECT_FALSE(send(bench, SingleRay{{-200.0, 30.0}, {1.0, 0.0}}, testEdges).closed());
}

TEST(Resent, IsTheVerySameValueWhenNothingDiffers) {
  const Sent sent = send(bench, Desmi{0.3, 20}, testEdges);
  EXPECT_EQ(resent(sent, bench, testEdges).paths, sent.paths);
}

TEST(Resent, TakesWhatIsKnownWhereThatIsWhatWouldBeTraced) {
  const light::Edges wide{-500.0, 500.0, -200.0, 200.0};
  const Sent sent = send(bench, Desmi{0.3, 20}, testEdges);
  const Sent known = send(bench, Desmi{0.3, 20}, wide);
  EXPECT_EQ(resent(sent, bench, wide, known).paths, known.paths);
  const Sent others = send(bench, Desmi{0.2, 20}, wide);
  const Sent traced = resent(sent, bench, wide, others);
  EXPECT_EQ(traced, known);
  EXPECT_NE(traced.paths, others.paths);
}

TEST(Resent, TracesTheSameRaysThroughAnotherBenchOrToOtherEdges) {
  const Sent sent = send(bench, Desmi{0.0, 20}, testEdges);
  const Bench denser{bench.fakos, 2.0, std::nullopt};
  const Sent through = resent(sent, denser, testEdges);
  EXPECT_EQ(through, send(denser, Desmi{0.0, 20}, testEdges));
  EXPECT_EQ(through.paths->at(9).n, 2.0);
  const Sent wider = resent(sent, bench, {-500.0, 500.0, -200.0, 200.0});
  EXPECT_EQ(wider.paths->front().end().x, 500.0);
  EXPECT_EQ(sent.paths->front().end().x, 400.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
