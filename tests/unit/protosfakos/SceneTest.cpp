// The four scenes: what is drawn, in which order, with which colours and widths.
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>
#include <optional>
#include <variant>

#include "optics/protosfakos/Outline.h"
#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

using Kind = Operation::Kind;

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb blue = RGB(0, 0, 255);
constexpr Rgb cyan = RGB(0, 255, 255);
constexpr Rgb green = RGB(0, 255, 0);
constexpr Rgb magenta = RGB(255, 0, 255);

void expectLine(const Operation& op, double x1, double y1, double x2, double y2, Rgb colour,
                int width) {
  EXPECT_EQ(op.kind, Kind::Line);
  EXPECT_NEAR(op.x1, x1, 1e-9);
  EXPECT_NEAR(op.y1, y1, 1e-9);
  EXPECT_NEAR(op.x2, x2, 1e-9);
  EXPECT_NEAR(op.y2, y2, 1e-9);
  EXPECT_EQ(op.colour, colour);
  EXPECT_EQ(op.width, width);
}

void expectMark(const Operation& op, double x, double y, Rgb colour) {
  EXPECT_EQ(op.kind, Kind::Circle);
  EXPECT_EQ(op.x1, x);
  EXPECT_EQ(op.y1, y);
  EXPECT_EQ(op.radius, 1.0);
  EXPECT_EQ(op.colour, colour);
  EXPECT_EQ(op.width, 1);
  EXPECT_FALSE(op.fill);
}

long count(const std::vector<Operation>& ops, Kind kind, Rgb colour, int width) {
  return std::count_if(ops.begin(), ops.end(), [&](const Operation& op) {
    return op.kind == kind && op.colour == colour && op.width == width;
  });
}

double lengthOf(const Operation& op) { return std::hypot(op.x2 - op.x1, op.y2 - op.y1); }

constexpr std::size_t faceLines = 302;  // 151 points, upper and lower

TEST(Outline, PlanoConvexIsTheCurveThenThePlane) {
  const SahlBench bench(1.5);
  Recording canvas;
  drawOutline(canvas, bench.lens.a, bench.lens.b, false);
  const auto& ops = canvas.operations();
  ASSERT_EQ(ops.size(), faceLines + 1);
  const double b = bench.lens.b;
  expectLine(ops[0], 12, 0, 0, 0, red, 3);
  expectLine(ops[1], 12, 0, 0, 0, red, 3);
  const double y1 = b * std::sqrt(1.02 * 1.02 - 1.0);
  expectLine(ops[2], 12.24, y1, 12, 0, red, 3);
  expectLine(ops[3], 12.24, -y1, 12, 0, red, 3);
  for (std::size_t i = 2; i < faceLines; ++i) {
    EXPECT_EQ(ops[i].x2, ops[i - 2].x1);
    EXPECT_EQ(ops[i].y2, ops[i - 2].y1);
    EXPECT_NEAR((ops[i].x1 / 12) * (ops[i].x1 / 12) - (ops[i].y1 / b) * (ops[i].y1 / b), 1, 1e-12);
  }
  EXPECT_EQ(ops[300].x1, 48.0);
  const double rim = b * std::sqrt(15.0);
  expectLine(ops[302], 48, rim, 48, -rim, red, 3);
  EXPECT_EQ(canvas.DrawWidth(), 1);
}

TEST(Outline, BiconvexHasTheMirroredCurveWithItsStroke) {
  const SahlBench bench(1.5);
  Recording canvas;
  drawOutline(canvas, bench.lens.a, bench.lens.b, true);
  const auto& ops = canvas.operations();
  ASSERT_EQ(ops.size(), 2 * faceLines);
  expectLine(ops[faceLines], 84, 0, 96, 0, red, 3);
  expectLine(ops[faceLines + 1], 84, 0, 96, 0, red, 3);
  for (std::size_t i = 0; i < faceLines; ++i) {
    const Operation& mirrored = ops[faceLines + i];
    expectLine(mirrored, 96 - ops[i].x1, ops[i].y1, 96 - ops[i].x2, ops[i].y2, red, 3);
  }
  EXPECT_EQ(ops[faceLines + 300].x1, 48.0);
}

TEST(Outline, IndexOneLiesOnTheAxis) {
  Recording canvas;
  drawOutline(canvas, 12, 0, false);
  ASSERT_EQ(canvas.operations().size(), faceLines + 1);
  for (const Operation& op : canvas.operations()) {
    EXPECT_EQ(op.y1, 0.0);
    EXPECT_EQ(op.y2, 0.0);
  }
}

TEST(IdealBundle, NineRaysMeetInTheFarFocus) {
  const double b = deriveLens(1.5)->b;
  Recording canvas;
  canvas.ForeColor(RGB(1, 2, 3));
  drawIdealBundle(canvas, 12, b);
  const auto& ops = canvas.operations();
  ASSERT_EQ(ops.size(), 18u);
  const double h = b * std::sqrt(15.0) / 5.0;
  EXPECT_NEAR(h, 10.39, 0.005);
  for (int k = -4; k <= 4; ++k) {
    const auto i = static_cast<std::size_t>(2 * (k + 4));
    const double y = k * h;
    const double x = 12 * std::sqrt(1 + y * y / (b * b));
    expectLine(ops[i], 120, y, x, y, RGB(1, 2, 3), 1);
    expectLine(ops[i + 1], x, y, -18, 0, RGB(1, 2, 3), 1);
    EXPECT_NEAR(lengthOf(ops[i + 1]), 1.5 * x + 12, 1e-12);
  }
}

TEST(Scene, Captions) {
  const auto caption = [](bool amfikyrtos, const Rays& rays) {
    return captionOf({.amfikyrtos = amfikyrtos, .rays = rays});
  };
  EXPECT_EQ(caption(false, Fan{}), "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ");
  EXPECT_EQ(caption(true, Fan{}), "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές");
  EXPECT_EQ(caption(false, Desmi{}), "IBN SAHL'S PLANECONVEX LENS");
  EXPECT_EQ(caption(true, Desmi{}), "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές");
}

TEST(Scene, OrderIsOutlineIdealBundleMarksRaysFronts) {
  SahlBench bench;
  bench.recording.ForeColor(RGB(7, 7, 7));
  bench.fan(false, 108, 25);
  const auto& ops = bench.operations();
  std::size_t i = 303;
  for (std::size_t k = 0; k < 18; ++k, ++i) EXPECT_EQ(ops[i].colour, RGB(7, 7, 7));
  expectMark(ops[i++], 108, 25, RGB(7, 7, 7));
  expectMark(ops[i++], 12, 0, RGB(7, 7, 7));
  // The steepest ray, slope 0.9: through the plane at y = -29, then on.
  expectLine(ops[i++], 108, 25, 48, -29, blue, 1);
  expectLine(ops[i++], 48, -29, 73, -29, red, 1);
  expectLine(ops[i++], 48, -29, 23, -29, red, 1);
  EXPECT_EQ(ops[i].colour, cyan);
  ASSERT_GT(bench.recorded(), 1);
  const auto fronts = static_cast<std::size_t>(30 * (bench.recorded() - 1));
  for (std::size_t k = ops.size() - fronts; k < ops.size(); ++k) {
    EXPECT_EQ(ops[k].kind, Kind::Line);
    EXPECT_EQ(ops[k].colour, blue);
    EXPECT_EQ(ops[k].width, 1);
  }
  EXPECT_EQ(ops.back().x2, bench.kymata(bench.recorded() - 1, 30).x);
}

TEST(Scene, ABundleMarksTheVertexOnly) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.recording.ForeColor(RGB(7, 7, 7));
    bench.bundle(amfikyrtos, 0.3);
    const auto marks = bench.recording.operations(Kind::Circle);
    ASSERT_EQ(marks.size(), 1u);
    expectMark(marks[0], 12, 0, RGB(7, 7, 7));
    // After the outline and the ideal bundle, before the rays.
    const std::size_t at = (amfikyrtos ? 2 * faceLines : faceLines + 1) + 18;
    expectMark(bench.operations()[at], 12, 0, RGB(7, 7, 7));
  }
}

TEST(Scene, OneRayInAllItsPieces) {
  // A source on the axis; the ray of slope 0.3 is the 21st of the fan.
  SahlBench bench;
  bench.asked.onlyRays = true;
  bench.fan(false, 108, 0);
  const auto& ops = bench.operations();
  const auto at = std::find_if(ops.begin(), ops.end(), [](const Operation& op) {
    return op.colour == blue && std::fabs(op.y2 + 0.3 * 60) < 1e-9;
  });
  ASSERT_NE(at, ops.end());
  const double slope = 0.3 / 1.5 / std::sqrt(1.0 + 0.09 - 0.09 / 2.25);
  expectLine(at[0], 108, 0, 48, -18, blue, 1);
  expectLine(at[1], 48, -18, 73, -18, red, 1);
  expectLine(at[2], 48, -18, 23, -18, red, 1);
  EXPECT_EQ(at[3].colour, cyan);
  EXPECT_NEAR((at[3].y2 - at[3].y1) / (at[3].x2 - at[3].x1), slope, 1e-12);
  const double x = at[3].x2, y = at[3].y2, b = bench.lens.b;
  const double normal = -144 * y / (b * b * x);
  for (int side = 4; side <= 5; ++side) {
    EXPECT_EQ(at[side].colour, red);
    EXPECT_NEAR(lengthOf(at[side]), 25.0, 1e-12);
    EXPECT_NEAR((at[side].y2 - y) / (at[side].x2 - x), normal, 1e-11);
  }
  EXPECT_NEAR(at[4].x2 + at[5].x2, 2 * x, 1e-12);
  EXPECT_EQ(at[6].colour, green);
  EXPECT_NEAR(lengthOf(at[6]), 530.0, 1e-10);
  EXPECT_LT(at[6].x2, at[6].x1);
}

TEST(Scene, ATrappedRayEndsAtTheEdgeOfTheGlass) {
  // The steepest ray meets the flat curve of n = 1.1 from above and comes back to that same curve.
  SahlBench bench(1.1);
  bench.asked.onlyRays = true;
  const double b = bench.lens.b;
  const double y = b * std::sqrt(20.0 * 20.0 / 144.0 - 1.0);
  bench.fan(false, 40, y + 0.9 * 20);
  const auto& ops = bench.operations();
  constexpr std::size_t first = faceLines + 1 + 18 + 2;
  expectLine(ops[first], 40, y + 18, 20, y, blue, 1);
  for (std::size_t side = first + 1; side <= first + 2; ++side) {
    EXPECT_EQ(ops[side].colour, red);
    EXPECT_NEAR(ops[side].x1, 20, 1e-9);
    EXPECT_NEAR(lengthOf(ops[side]), 25.0, 1e-12);
  }
  const Operation& inside = ops[first + 3];
  EXPECT_EQ(inside.colour, cyan);
  EXPECT_NEAR(inside.x1, 20, 1e-9);
  EXPECT_NEAR((inside.x2 / 12) * (inside.x2 / 12) - (inside.y2 / b) * (inside.y2 / b), 1, 1e-12);
  // Nothing more of it: the next line starts at the source.
  const Operation& next = ops[first + 4];
  EXPECT_EQ(next.colour, blue);
  EXPECT_EQ(next.x1, 40);
  // All others of this fan are trapped too or miss.
  EXPECT_GT(count(ops, Kind::Line, cyan, 1), 1);
  EXPECT_EQ(count(ops, Kind::Line, green, 1), 0);
  EXPECT_EQ(bench.recorded(), 0);
}

TEST(Scene, MissingRaysAreHundredLongAlongTheirWay) {
  SahlBench bench(1.05);
  bench.asked.onlyRays = true;
  bench.fan(false, 108, 25);
  const auto lines = bench.recording.operations(Kind::Line);
  long missing = 0;
  for (const Operation& op : lines) {
    if (op.colour == blue && std::fabs(lengthOf(op) - 100.0) < 1e-9) {
      ++missing;
      EXPECT_EQ(op.x1, 108.0);
      EXPECT_EQ(op.y1, 25.0);
      EXPECT_LT(op.x2, 108.0);
    }
  }
  EXPECT_GT(missing, 30);
}

TEST(Scene, FanTravelsRightwardsOnlyFromTheLeftOfTheLens) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.asked.onlyRays = true;
    bench.fan(amfikyrtos, -18, 0);
    for (const Operation& op : bench.recording.operations(Kind::Line)) {
      if (op.colour == blue) {
        EXPECT_GT(op.x2, -18.0);
      }
      if (op.colour == green) {
        EXPECT_GT(op.x2, op.x1);
      }
    }
    EXPECT_GT(bench.recorded(), 20);
    bench.recording.forget();
    bench.fan(amfikyrtos, 12, 100);
    bench.fan(amfikyrtos, 30, 100);
    for (const Operation& op : bench.recording.operations(Kind::Line)) {
      if (op.colour == blue) {
        EXPECT_LT(op.x2, op.x1);
      }
    }
  }
}

TEST(Scene, SourceInTheGlassHasNoIncidentPiece) {
  SahlBench bench;
  bench.asked.onlyRays = true;
  bench.fan(false, 30, 2);
  EXPECT_EQ(count(bench.operations(), Kind::Line, blue, 1), 0);
  EXPECT_EQ(count(bench.operations(), Kind::Line, cyan, 1), 61);
  const long emerged = count(bench.operations(), Kind::Line, green, 1);
  EXPECT_EQ(emerged, bench.recorded());
  // No entry normals: two lines for each exit.
  EXPECT_EQ(count(bench.operations(), Kind::Line, red, 1), 2 * emerged);
}

TEST(Scene, ClosedDiaphragmDrawsOnlyMagentaRaysAndDots) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.asked.diafragma = {100.0, 0.0, 0.0};
    bench.fan(amfikyrtos, 108, 25);
    EXPECT_EQ(bench.recorded(), 0);
    EXPECT_EQ(count(bench.operations(), Kind::PSet, magenta, 4), 61);
    EXPECT_EQ(count(bench.operations(), Kind::Line, magenta, 1), 61);
    EXPECT_EQ(count(bench.operations(), Kind::Line, blue, 1), 0);
    EXPECT_EQ(count(bench.operations(), Kind::Line, cyan, 1), 0);
    // Each dot comes before its line, and the line ends on it.
    const auto& ops = bench.operations();
    for (std::size_t i = 0; i + 1 < ops.size(); ++i) {
      if (ops[i].kind != Kind::PSet) continue;
      EXPECT_EQ(ops[i].x1, 100.0);
      expectLine(ops[i + 1], 108, 25, 100, ops[i].y1, magenta, 1);
    }
    EXPECT_EQ(bench.recording.DrawWidth(), 1);
  }
}

TEST(Scene, ClosedDiaphragmStopsTheAxialRayToo) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.asked.diafragma = {100.0, 0.0, 0.0};
    bench.fan(amfikyrtos, 108, 0);
    EXPECT_EQ(bench.recorded(), 0);
    EXPECT_EQ(count(bench.operations(), Kind::PSet, magenta, 4), 61);
    bench.recording.forget();
    bench.bundle(amfikyrtos, 0);
    EXPECT_EQ(bench.recorded(), 0);
    EXPECT_EQ(count(bench.operations(), Kind::PSet, magenta, 4), amfikyrtos ? 201 : 101);
    EXPECT_EQ(count(bench.operations(), Kind::Line, cyan, 1), 0);
  }
}

TEST(Scene, OnlyWavesLeavesOutRaysButNotDotsNorFronts) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.asked.onlyWaves = true;
    bench.asked.diafragma = {100.0, 30.0, 18.0};
    bench.fan(amfikyrtos, 108, 25);
    const auto& ops = bench.operations();
    EXPECT_GT(bench.recorded(), 1);
    const long fronts = 30 * (bench.recorded() - 1);
    EXPECT_EQ(count(ops, Kind::Line, blue, 1), fronts);
    EXPECT_EQ(count(ops, Kind::Line, red, 1), 0);
    EXPECT_EQ(count(ops, Kind::Line, black, 1), 0);
    EXPECT_EQ(count(ops, Kind::Line, magenta, 1), 0);
    EXPECT_GT(count(ops, Kind::PSet, magenta, 4), 0);
    EXPECT_EQ(count(ops, Kind::Circle, black, 1), 2);
    EXPECT_EQ(count(ops, Kind::Line, red, 3), amfikyrtos ? 604 : 303);
  }
}

TEST(Scene, OnlyRaysLeavesOutTheFronts) {
  SahlBench bench;
  bench.asked.onlyRays = true;
  bench.bundle(false, 0);
  EXPECT_GT(bench.recorded(), 1);
  // At slope 0 every start is 82 before the plane, and what misses is 100 long: no blue line
  // slants.
  for (const Operation& op : bench.recording.operations(Kind::Line)) {
    if (op.colour == blue) {
      EXPECT_EQ(op.y1, op.y2);
    }
  }
}

TEST(Scene, BundlesHave101And201RaysFromX130) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench;
    bench.asked.onlyRays = true;
    bench.bundle(amfikyrtos, 0);
    const long rays = amfikyrtos ? 201 : 101;
    double y = 100.0;
    long seen = 0;
    for (const Operation& op : bench.recording.operations(Kind::Line)) {
      if (op.colour != blue) continue;
      EXPECT_EQ(op.x1, 130.0);
      EXPECT_NEAR(op.y1, y, 1e-12);
      y -= amfikyrtos ? 1.0 : 2.0;
      ++seen;
    }
    EXPECT_EQ(seen, rays);
    EXPECT_EQ(count(bench.operations(), Kind::Circle, black, 1), 1);
    EXPECT_EQ(bench.recorded(), count(bench.operations(), Kind::Line, green, 1));
  }
}

TEST(Scene, DiaphragmAtTheStartOfTheBundleStopsNothing) {
  SahlBench bench;
  bench.asked.diafragma = {130.0, 10.0, -10.0};
  bench.bundle(false, 0.2);
  EXPECT_TRUE(bench.recording.operations(Kind::PSet).empty());
}

TEST(Scene, IndexOne) {
  for (const bool amfikyrtos : {false, true}) {
    SahlBench bench(1.0);
    bench.fan(amfikyrtos, 108, 0);
    EXPECT_EQ(bench.recorded(), 1);
    EXPECT_EQ(count(bench.operations(), Kind::Line, green, 1), 1);
    EXPECT_EQ(count(bench.operations(), Kind::Line, blue, 1), 61);
    EXPECT_EQ(count(bench.operations(), Kind::Line, black, 1), 0);  // no ideal bundle
    bench.fan(amfikyrtos, 108, 25);
    EXPECT_EQ(bench.recorded(), 0);
    bench.bundle(amfikyrtos, 0);
    EXPECT_EQ(bench.recorded(), 1);
    bench.bundle(amfikyrtos, std::tan(std::numbers::pi / 2));
    EXPECT_EQ(bench.recorded(), 0);
  }
}

TEST(Scene, DoesNotClearTheScreen) {
  SahlBench bench;
  bench.fan(false, 108, 25);
  bench.bundle(true, 0);
  EXPECT_TRUE(bench.recording.operations(Kind::Cls).empty());
}

}  // namespace
}  // namespace lensbench::protosfakos
