// What rays and wave points are drawn as, and the named routines that trace and draw them.
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "optics/poreiaaktinon/RayDrawing.h"
#include "tests/support/OpticalLength.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using Kind = Operation::Kind;
constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb blue = RGB(0, 0, 255);
constexpr Rgb magenta = RGB(255, 0, 255);

void expectLine(const Operation& op, double x1, double y1, double x2, double y2, Rgb colour) {
  EXPECT_EQ(op.kind, Kind::Line);
  EXPECT_NEAR(op.x1, x1, 1e-9);
  EXPECT_NEAR(op.y1, y1, 1e-9);
  EXPECT_NEAR(op.x2, x2, 1e-9);
  EXPECT_NEAR(op.y2, y2, 1e-9);
  EXPECT_EQ(op.colour, colour);
  EXPECT_EQ(op.width, 1);
}

void expectStop(const Operation& op, double x, double y) {
  EXPECT_EQ(op.kind, Kind::PSet);
  EXPECT_NEAR(op.x1, x, 1e-9);
  EXPECT_NEAR(op.y1, y, 1e-9);
  EXPECT_EQ(op.colour, magenta);
  EXPECT_EQ(op.width, 4);
}

TEST(Sxediasidesmis, DrawsAirInRedAndGlassInBlue) {
  FakeWorkbench bench;
  sxediasidesmis(bench.surface, -200, 0, 1, 0, -50, 20, 100, 90, 1.5);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 3u);
  expectLine(drawn[0], -200, 0, -70, 0, red);
  expectLine(drawn[1], -70, 0, 50, 0, blue);
  expectLine(drawn[2], 50, 0, 400, 0, red);
}

TEST(Sxediasidesmis, EndsOnTheBladeInADot) {
  FakeWorkbench bench;
  bench.opening = {-100.0, 10.0, -10.0};
  sxediasidesmis(bench.surface, -200, 20, 1, 0, -50, 20, 100, 90, 1.5);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 2u);
  expectLine(drawn[0], -200, 20, -100, 20, red);
  expectStop(drawn[1], -100, 20);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
}

TEST(Sxediasidesmis, MissIsOneLine) {
  FakeWorkbench bench;
  sxediasidesmis(bench.surface, -200, 150, 1, 0, -50, 20, 100, 90, 1.5);
  ASSERT_EQ(bench.surface.operations().size(), 1u);
  expectLine(bench.surface.operations()[0], -200, 150, 400, 150, red);
}

TEST(Sxediasikymaton, LaysDotsAtWholeTensOfTheOpticalPath) {
  FakeWorkbench bench;
  sxediasikymaton(bench.surface, -200, 0, 1, 0, -50, 20, 100, 90, 1.5);
  // 130 units before the lens, 120 in it (180 of optical path), 350 behind it.
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 14u + 18u + 35u);
  for (std::size_t k = 0; k < drawn.size(); ++k) {
    const double L = 10.0 * static_cast<double>(k);
    const double x = L <= 130.0 ? L - 200.0 : L <= 310.0 ? (L - 130.0) / 1.5 - 70.0 : L - 260.0;
    EXPECT_EQ(drawn[k].kind, Kind::PSet);
    EXPECT_EQ(drawn[k].width, 2);
    EXPECT_NEAR(drawn[k].x1, x, 1e-9);
    EXPECT_NEAR(drawn[k].y1, 0.0, 1e-9);
  }
  EXPECT_EQ(drawn[5].colour, RGB(5, 0, 250));
  EXPECT_EQ(drawn[20].colour, RGB(0, 155, 0));
  EXPECT_EQ(drawn[40].colour, RGB(150, 0, 150));
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
}

TEST(Sxediasikymaton, CountsFromThePhase) {
  FakeWorkbench bench;
  sxediasikymaton(bench.surface, -200, 150, 1, 0, -50, 20, 100, 90, 1.5, 3);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 60u);
  EXPECT_NEAR(drawn[0].x1, -193.0, 1e-9);
  EXPECT_NEAR(drawn[59].x1, 397.0, 1e-9);
}

TEST(Sxediasikymaton, WalksOnlyWhatTheAreaShows) {
  FakeWorkbench bench;
  for (const double far : {1e6, 1e12, 1e16, 1e18}) {
    bench.surface.forget();
    sxediasikymaton(bench.surface, -far, 0, 1, 0, -50, 20, 100, 90, 1.5, -far);
    // 330 units before the lens, 180 of optical path in it, 350 behind it; digits are lost far out.
    EXPECT_NEAR(static_cast<double>(bench.surface.operations().size()), 87.0,
                1.0 + 20.0 * far * 2.3e-16)
        << far;
  }
  bench.surface.forget();
  sxediasikymaton(bench.surface, -1e9, 250, 1, 0, -50, 20, 100, 90, 1.5, -1e9);
  EXPECT_TRUE(bench.surface.operations().empty());
}

TEST(DrawLight, DrawsWhatIsShown) {
  FakeWorkbench bench;
  const Sent sent = send(bench.bench(), Desmi{0.0, 2}, testEdges);
  drawLight(bench.surface, {sent, {true, false}});
  EXPECT_TRUE(bench.surface.operations(Kind::PSet).empty());
  EXPECT_EQ(bench.surface.operations(Kind::Line).size(), 5u);
  bench.surface.forget();
  drawLight(bench.surface, {sent, {false, true}});
  EXPECT_TRUE(bench.surface.operations(Kind::Line).empty());
  EXPECT_FALSE(bench.surface.operations(Kind::PSet).empty());
  bench.surface.forget();
  drawLight(bench.surface, {sent, {true, true}});
  EXPECT_EQ(bench.surface.operations()[0].kind, Kind::Line);
  EXPECT_EQ(bench.surface.operations()[1].kind, Kind::PSet);
}

TEST(Bentaliaaktinon, SendsItsRaysAllAround) {
  FakeWorkbench bench;
  bench.lens = {0.0, 0.0, 0.0, 0.0};
  bench.opening.X = 1000.0;
  bench.step = 90.0;
  bentaliaaktinon(-50, 20, 100, 90, 10, 180);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 6u);
  expectLine(drawn[0], 10, 180, 400, 180, red);
  expectLine(drawn[1], 10, 180, 10, 200, red);
  expectLine(drawn[2], 10, 180, -400, 180, red);
  const double upper = std::sqrt(100.0 * 100.0 - 60.0 * 60.0);
  expectLine(drawn[3], 10, 180, 10, upper, red);
  EXPECT_EQ(drawn[4].colour, blue);
  EXPECT_EQ(drawn[5].colour, red);
}

TEST(Bentaliaaktinon, DrawsWavesOnlyWhenOnlyWavesAreShown) {
  FakeWorkbench bench;
  bench.shown = {false, true};
  bentaliaaktinon(-50, 20, 100, 90, -200, 0);
  EXPECT_TRUE(bench.surface.operations(Kind::Line).empty());
  EXPECT_GT(bench.surface.operations(Kind::PSet).size(), 200u);
}

TEST(Poreiamiasaktinas, DrawsEveryPieceInRedOnTheGivenCanvas) {
  FakeWorkbench bench;
  Recording own(800.0, 400.0);
  own.Scale(-300.0, 150.0, 300.0, -150.0);
  own.forget();
  own.DrawWidth(5);
  poreiamiasaktinas(own, -100, 0, 50, 0, 0, 100, 90, 100, 1.5);
  EXPECT_TRUE(bench.surface.operations().empty());
  ASSERT_EQ(own.operations().size(), 3u);
  expectLine(own.operations()[0], -100, 0, 0, 0, red);
  expectLine(own.operations()[1], 0, 0, 90, 0, red);
  expectLine(own.operations()[2], 90, 0, 300, 0, red);
}

TEST(Poreiamiasaktinas, IsStoppedByTheDiaphragmOfTheWorkbench) {
  FakeWorkbench bench;
  bench.opening = {-50.0, 10.0, -10.0};
  Recording own(800.0, 400.0);
  own.Scale(-300.0, 150.0, 300.0, -150.0);
  own.forget();
  poreiamiasaktinas(own, -100, 40, 1, 0, 0, 100, 90, 100, 1.5);
  ASSERT_EQ(own.operations().size(), 2u);
  expectLine(own.operations()[0], -100, 40, -50, 40, red);
  expectStop(own.operations()[1], -50, 40);
}

TEST(ConnectedWorkbench, IsAskedForOnlyWhenNeeded) {
  FakeWorkbench bench;
  int asked = 0;
  connectWorkbench({[&]() -> Canvas& {
                      ++asked;
                      return bench.surface;
                    },
                    [&] { return bench.bench(); }, [] { return 30.0; }, [] { return Provoli{}; },
                    [] { return Point{}; }});
  EXPECT_EQ(asked, 0);
  sxediasitoxou1(-50, 100, 20, 90, 0, 0);
  EXPECT_EQ(asked, 1);
}

TEST(WavePoints, TakeTheColourOfTheStretchOfTheWay) {
  FakeWorkbench bench;
  const auto colours = [&](Point start, Point direction) {
    bench.surface.forget();
    drawWavePoints(bench.surface, tracePath(bench.bench(), start, direction));
    std::vector<Rgb> seen;
    for (const Operation& op : bench.surface.operations()) {
      if (seen.empty() || seen.back() != op.colour) seen.push_back(op.colour);
    }
    return seen;
  };
  constexpr Rgb before = RGB(5, 0, 250);
  constexpr Rgb glass = RGB(0, 155, 0);
  constexpr Rgb behind = RGB(150, 0, 150);
  EXPECT_EQ(colours({-200.0, 0.0}, {1.0, 0.0}), (std::vector<Rgb>{before, glass, behind}));
  EXPECT_EQ(colours({-200.0, 150.0}, {1.0, 0.0}), (std::vector<Rgb>{before}));
  // From within the glass there is no way before the lens.
  EXPECT_EQ(colours({0.0, 0.0}, {1.0, 0.0}), (std::vector<Rgb>{glass, behind}));
}

TEST(WavePoints, NeverRestartTheirCountAtAFace) {
  FakeWorkbench bench;
  const light::RayPath path = tracePath(bench.bench(), {-203.0, 20.0}, {1.0, 0.02});
  ASSERT_EQ(path.count, 3);
  drawWavePoints(bench.surface, path);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), static_cast<std::size_t>(light::opticalLength(path) / 10.0) + 1);
  for (std::size_t k = 0; k < drawn.size(); ++k) {
    const auto place = light::pointAtOpticalPath(path, 10.0 * static_cast<double>(k));
    ASSERT_TRUE(place);
    EXPECT_NEAR(drawn[k].x1, place->position.x, 1e-9) << k;
    EXPECT_NEAR(drawn[k].y1, place->position.y, 1e-9) << k;
  }
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
