// No source, index, slope or diaphragm makes a scene fail or draw at no place.
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <rapidcheck.h>
#include <vector>

#include "tests/property/protosfakos/RandomRays.h"
#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

bool finite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

bool finite(const Way& path) {
  return finite(path.incident.direction) && finite(path.stop) && finite(path.entry) &&
         finite(path.inside) && finite(path.exit) && finite(path.emerging) &&
         finite(path.entryNormal.value_or(Point{})) && finite(path.exitNormal.value_or(Point{}));
}

// A recording canvas refuses what is not finite, so drawing a scene is the test.
void drawEverything(double n, Point source, const Diafragma& opening) {
  SahlBench bench(n);
  bench.asked.diafragma = opening;
  for (const bool amfikyrtos : {false, true}) {
    ASSERT_NO_THROW(bench.fan(amfikyrtos, source.x, source.y))
        << n << ' ' << source.x << ' ' << source.y;
    bench.recording.forget();
  }
}

const std::vector<double> indices{
    1.0, std::nextafter(1.0, 2.0), 1.0 + 1e-12, 1.0 + 1e-6, 1.01, 1.05, 1.33, 1.5, 2.0, 2.5, 100.0};

TEST(Robustness, SourcesAtEveryOddPlace) {
  for (const double n : indices) {
    const auto [a, b, c] = *deriveLens(n);
    const double rim = rimHalfHeight(b);
    const std::vector<double> xs{-120,
                                 -c,
                                 -a,
                                 0,
                                 a,
                                 std::nextafter(a, 0.0),
                                 std::nextafter(a, 99.0),
                                 13,
                                 4 * a,
                                 4 * a + 1e-12,
                                 c,
                                 7 * a,
                                 8 * a - c,
                                 8 * a,
                                 8 * a + c,
                                 108,
                                 130,
                                 150};
    const std::vector<double> ys{0,
                                 1e-300,
                                 -1e-12,
                                 b,
                                 -b,
                                 rim,
                                 -rim,
                                 std::nextafter(rim, 999.0),
                                 25,
                                 120,
                                 -120,
                                 b * std::hypot(1.0, 0.5),
                                 b * std::sqrt(3.0)};
    for (const double x : xs) {
      for (const double y : ys) {
        drawEverything(n, {x, y}, {130, 10, -10});
        drawEverything(n, {x, y}, {x, y, y});
      }
    }
  }
}

TEST(Robustness, BundlesAtEveryAngle) {
  for (const double n : indices) {
    SahlBench bench(n);
    for (const double degrees : {-720.0, -270.0, -180.0, -135.0, -90.0, -89.9, -60.0, -45.0, -7.5,
                                 0.0, 1e-9, 15.0, 30.0, 48.2, 75.0, 89.999, 90.0, 120.0, 450.0}) {
      const double slope = std::tan(std::numbers::pi * degrees / 180);
      for (const Diafragma& opening : {Diafragma{130, 10, -10}, Diafragma{100, 0, 0},
                                       Diafragma{-50, 3, -3}, Diafragma{140, 3, -3}}) {
        bench.asked.diafragma = opening;
        for (const bool amfikyrtos : {false, true}) {
          ASSERT_NO_THROW(bench.bundle(amfikyrtos, slope)) << n << ' ' << degrees;
          bench.recording.forget();
        }
      }
    }
  }
}

TEST(Robustness, SlopesOfEverySize) {
  SahlBench bench(1.5);
  bench.asked.diafragma = {100, 10, -10};
  for (const double slope : {1e-300, 1e16, -1.633123935319537e16, 1e100, -1e200, 1e300}) {
    for (const bool amfikyrtos : {false, true}) {
      EXPECT_NO_THROW(bench.bundle(amfikyrtos, slope)) << slope;
    }
  }
  for (const double n : indices) {
    const double asymptote = deriveLens(n)->b / 12.0;
    SahlBench other(n);
    for (const double slope : {asymptote, -asymptote, std::nextafter(asymptote, 9.0)}) {
      EXPECT_NO_THROW(other.bundle(false, slope));
      EXPECT_NO_THROW(other.bundle(true, slope));
    }
  }
}

TEST(Robustness, EveryPathIsFinite) {
  EXPECT_TRUE(rc::check("paths from anywhere in any direction", [] {
    const auto hundredths = [](int low, int high) {
      return 0.01 * *rc::gen::inRange(low * 100, high * 100 + 1);
    };
    const double n = hundredths(1, 3);
    const double b = deriveLens(n)->b;
    const light::Lens glass =
        *rc::gen::arbitrary<bool>() ? biconvex(12, b, n) : planoConvex(12, b, n);
    const Point start{hundredths(-120, 150), hundredths(-120, 120)};
    const double slope = *rc::gen::element(hundredths(-5, 5), 1.6e16, -1.6e16, b / 12, -b / 12);
    const Travel travel = *rc::gen::element(Travel::Left, Travel::Right);
    const Diafragma opening{hundredths(-120, 150), hundredths(0, 120), -hundredths(0, 120)};
    const Way path = wayThrough(glass, rayWithSlope(start, slope, travel), opening);
    RC_ASSERT(finite(path));
    // What a ray meets is on the lens.
    if (path.ending != End::Missed && path.ending != End::Stopped) {
      for (const Point p : {path.entry, path.exit}) {
        RC_ASSERT(p.x > 12 - 1e-9 && p.x < 84 + 1e-9);
        RC_ASSERT(std::fabs(p.y) < rimHalfHeight(b) + 1e-9);
      }
    }
  }));
}

// Rounding puts such a source on either side of the face; what its rays do must not depend on it.
TEST(Robustness, SourcesOnAFaceEnterThereOrMiss) {
  RandomRays random(42);
  int entering = 0;
  for (int i = 0; i < lawRays; ++i) {
    const double n = random.index();
    const double b = deriveLens(n)->b;
    const light::Lens glass = biconvex(12, b, n);
    const double y = random.between(-0.9, 0.9) * rimHalfHeight(b);
    const bool right = i % 2 == 0;
    const double curve = 12 * std::hypot(1.0, y / b);
    const Point start{right ? 96 - curve : curve, y};
    const auto normal = normalAt(right ? glass.right : glass.left, start);
    const double angle = random.between(0, 2 * std::numbers::pi);
    const Point direction{std::cos(angle), std::sin(angle)};
    const double outwards = dot(direction, normal.value_or(Point{1, 0}));
    if (!normal || std::fabs(outwards) < 0.01) continue;
    const Way path = wayThrough(glass, {start, direction}, wideOpen);
    if (outwards > 0) {
      ASSERT_EQ(path.ending, End::Missed);
    } else {
      ++entering;
      ASSERT_NE(path.ending, End::Missed);
      ASSERT_FALSE(path.startsInGlass);
      ASSERT_TRUE(path.entryNormal);
      ASSERT_LT(length(path.entry - start), 1e-9);
    }
  }
  EXPECT_GT(entering, lawRays / 3);
}

// So far away rounding puts some entries beside or behind the glass.
TEST(Robustness, ARayWithNoGlassAheadOfItsEntryEndsThere) {
  RandomRays random(43);
  int entered = 0, without = 0;
  for (int i = 0; i < lawRays; ++i) {
    const light::Lens glass = random.glass(random.index());
    const light::Ray near = random.ray(glass);
    const light::Ray ray{near.start - 1e16 * near.direction, near.direction};
    const Way path = wayThrough(glass, ray, wideOpen);
    ASSERT_TRUE(finite(path));
    if (path.ending == End::Missed) continue;
    ++entered;
    // Never back from the entry.
    ASSERT_GE(dot(path.exit - path.entry, path.inside), 0.0);
    if (path.ending == End::Trapped && length(path.exit - path.entry) == 0.0) ++without;
  }
  EXPECT_GT(entered, lawRays / 3);
  EXPECT_GT(without, 100);
}

TEST(Robustness, PointsMetAreOnTheirFaces) {
  RandomRays random(41);
  Largest error;
  for (int i = 0; i < lawRays; ++i) {
    const light::Lens glass = random.glass(random.index());
    const Way path = wayThrough(glass, random.ray(glass), wideOpen);
    if (path.ending == End::Missed) continue;
    const auto fromFace = [&](Point p) {
      const double curve = semiAxis * std::hypot(1.0, p.y / bOf(glass));
      const bool mirrored = isBiconvex(glass);
      const double right = mirrored ? 8 * semiAxis - curve : rimX(semiAxis);
      return std::min(std::fabs(p.x - curve), std::fabs(p.x - right));
    };
    if (!path.startsInGlass) error.meet(fromFace(path.entry));
    error.meet(fromFace(path.exit));
  }
  EXPECT_LT(error.value, 1e-9);
  RecordProperty("largest", std::to_string(error.value * 1e12) + "e-12");
}

}  // namespace
}  // namespace lensbench::protosfakos
