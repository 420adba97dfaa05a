// Wave points of fans and bundles against rays traced by school geometry: they lie on their rays,
// at whole tens of the optical path, and the points of one number form a true front.
#include <cmath>
#include <cstdint>
#include <map>
#include <vector>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "tests/screens/kelmo/KelmoTest.h"
#include "tests/screens/kelmo/SnellTracer.h"

namespace lensbench {
namespace {

using poreiaaktinon::pi;

constexpr double tolerance = 1e-6;

class WavePointsTest : public KelmoTest {
 protected:
  struct Dot {
    Point at;
    Rgb colour;
  };
  struct Wave {
    snell::Ray ray;
    double phase;  // optical path at its start
    std::vector<Dot> dots;
  };

  WavePointsTest() { openDiaphragm(); }

  // What the screen draws for each ray of its set, beside the same ray by school geometry.
  std::vector<Wave> waves() {
    const UserMapping m = screen.canvas().mapping();
    Recording recorder(usualSize.width(), usualSize.height());
    recorder.Scale(m.left, m.top, -m.left, -m.top);
    std::vector<Wave> all;
    for (const auto& path : set()) {
      recorder.forget();
      poreiaaktinon::drawWavePoints(recorder, path);
      Wave wave;
      wave.ray = snell::trace(screen.fakos(), screen.n(), path.start(), path.pieces[0].direction);
      wave.phase = path.phase;
      for (const Operation& op : recorder.operations()) {
        EXPECT_EQ(op.kind, Operation::Kind::PSet);
        EXPECT_EQ(op.width, 2);
        wave.dots.push_back({{op.x1, op.y1}, op.colour});
      }
      all.push_back(std::move(wave));
    }
    return all;
  }

  // Every dot lies on its ray, at a whole ten, in the colour of its piece; inside the area none is
  // missing between the first and the last. Returns how many there are.
  static std::size_t expectTensOnTheirRays(const std::vector<Wave>& all) {
    std::size_t count = 0;
    for (const Wave& wave : all) {
      double previous = 0.0;
      for (std::size_t i = 0; i < wave.dots.size(); ++i) {
        const auto [distance, path] = snell::footing(wave.ray, wave.dots[i].at);
        EXPECT_LT(distance, tolerance);
        const double total = wave.phase + path;
        EXPECT_NEAR(total, 10.0 * std::round(total / 10.0), tolerance);
        if (i > 0) {
          EXPECT_NEAR(total - previous, 10.0, 2.0 * tolerance);
        }
        previous = total;
        ++count;
      }
    }
    return count;
  }
};

TEST_F(WavePointsTest, FrontsOfABundleAreSquareToItBeforeTheLensAtEveryAngle) {
  c.desmi1.Value(40);
  for (const double degrees : {0.0, 20.0, -35.0, 60.0, 75.0}) {
    SCOPED_TRACE(degrees);
    sendBundle(QString::number(degrees));
    const Point along{std::cos(degrees * pi / 180.0), std::sin(degrees * pi / 180.0)};
    std::size_t before = 0;
    for (const Wave& wave : waves()) {
      EXPECT_NEAR(wave.phase, (wave.ray[0].from.x + 200.0) * along.x + wave.ray[0].from.y * along.y,
                  tolerance);
      for (const Dot& dot : wave.dots) {
        if (dot.colour != RGB(5, 0, 250)) continue;
        const double advance = (dot.at.x + 200.0) * along.x + dot.at.y * along.y;
        EXPECT_NEAR(advance, 10.0 * std::round(advance / 10.0), tolerance);
        ++before;
      }
    }
    EXPECT_GT(before, 50U);
  }
}

TEST_F(WavePointsTest, PointsOfABundleLieOnTheirRaysAtEqualOpticalPaths) {
  c.desmi1.Value(40);
  for (const int index : {40, 100, 150, 250}) {
    c.deiktisdiathlasis.Value(index);
    for (const double degrees : {0.0, 20.0, -35.0}) {
      SCOPED_TRACE(::testing::Message() << index << " " << degrees);
      sendBundle(QString::number(degrees));
      EXPECT_GT(expectTensOnTheirRays(waves()), 500U);
    }
  }
}

TEST_F(WavePointsTest, PointsOfAFanAreCountedFromItsSource) {
  c.desmi1.Value(60);
  for (const Point source : {Point{-260.0, 70.0}, Point{-300.0, 0.0}, Point{150.0, -40.0}}) {
    press(source.x, source.y, Qt::ShiftModifier);
    release(source.x, source.y);
    const std::vector<Wave> all = waves();
    EXPECT_EQ(all.size(), 229U);
    EXPECT_GT(expectTensOnTheirRays(all), 2000U);
    for (const Wave& wave : all) {
      EXPECT_EQ(wave.phase, 0.0);
      ASSERT_FALSE(wave.dots.empty());
      EXPECT_NEAR(wave.dots[0].at.x, source.x, tolerance);
      EXPECT_NEAR(wave.dots[0].at.y, source.y, tolerance);
    }
  }
}

TEST_F(WavePointsTest, ColoursTellBeforeInAndBehindTheGlass) {
  c.desmi1.Value(40);
  sendBundle("15");
  for (const Wave& wave : waves()) {
    double glassFrom = snell::farAway;
    double glassTo = snell::farAway;
    if (wave.ray.size() > 1) {
      glassFrom = wave.ray[0].length;
      glassTo = glassFrom + wave.ray[1].length * wave.ray[1].index;
    }
    for (const Dot& dot : wave.dots) {
      const double path = snell::footing(wave.ray, dot.at).opticalPath;
      if (std::fabs(path - glassFrom) < 1e-3 || std::fabs(path - glassTo) < 1e-3) continue;
      EXPECT_EQ(dot.colour, path < glassFrom ? RGB(5, 0, 250)
                            : path < glassTo ? RGB(0, 155, 0)
                                             : RGB(150, 0, 150));
    }
  }
}

TEST_F(WavePointsTest, NeighbouringPointsInTheGlassAreCloserByTheIndex) {
  c.desmi1.Value(2);  // the middle ray runs along the axis
  for (const int index : {40, 100, 150, 250}) {
    c.deiktisdiathlasis.Value(index);
    sendBundle("0");
    std::map<std::uint32_t, std::vector<double>> byColour;
    const std::vector<Wave> all = waves();
    for (const Dot& dot : all[1].dots) byColour[dot.colour.value].push_back(dot.at.x);
    for (const auto& [colour, x] : byColour) {
      const double step = colour == RGB(0, 155, 0).value ? 10.0 / (index / 100.0) : 10.0;
      for (std::size_t i = 1; i < x.size(); ++i) EXPECT_NEAR(x[i] - x[i - 1], step, tolerance);
    }
  }
}

TEST_F(WavePointsTest, NoPointIsMissingInTheDrawingArea) {
  c.desmi1.Value(40);
  sendBundle("20");
  const light::Edges e = edges();
  const auto& paths = set();
  const std::vector<Wave> all = waves();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (paths[i].ending != light::Ending::Open) continue;
    std::size_t expected = 0;
    for (double path = 10.0 * std::ceil(all[i].phase / 10.0) - all[i].phase; path < 2000.0;
         path += 10.0) {
      const auto p = snell::at(all[i].ray, path);
      ASSERT_TRUE(p);
      if (p->x > e.left && p->x < e.right && p->y > e.lower && p->y < e.upper) ++expected;
    }
    std::size_t inside = 0;
    for (const Dot& dot : all[i].dots) {
      const Point p = dot.at;
      if (p.x > e.left && p.x < e.right && p.y > e.lower && p.y < e.upper) ++inside;
    }
    EXPECT_EQ(inside, expected) << "ray " << i;
  }
}

TEST_F(WavePointsTest, TheLargestFanHasTrueFronts) {
  c.arvimaton.Value(5);
  c.desmi1.Value(150);
  // Too many rays for a set, so they are traced here as the fan traces them.
  const Point source{-260.0, 70.0};
  const poreiaaktinon::Sent fan =
      poreiaaktinon::send(screen.bench(), poreiaaktinon::Fan{source, screen.vima()}, edges());
  const auto& paths = *fan.paths;
  ASSERT_EQ(paths.size(), 3437U);
  Recording recorder(usualSize.width(), usualSize.height());
  recorder.Scale(edges().left, edges().upper, edges().right, edges().lower);
  std::vector<Wave> all;
  for (std::size_t k = 0; k < paths.size(); ++k) {
    const double angle = static_cast<double>(k) * screen.vima() * pi / 180.0;
    recorder.forget();
    poreiaaktinon::drawWavePoints(recorder, paths[k]);
    Wave wave{snell::trace(screen.fakos(), screen.n(), source, {std::cos(angle), std::sin(angle)}),
              0.0,
              {}};
    for (const Operation& op : recorder.operations()) {
      wave.dots.push_back({{op.x1, op.y1}, op.colour});
    }
    all.push_back(std::move(wave));
  }
  EXPECT_GT(expectTensOnTheirRays(all), 50000U);
}

}  // namespace
}  // namespace lensbench
