// Moving fronts against rays traced by school geometry: equal optical path, speed in and out of the
// glass, and fronts square to their rays.
#include <cmath>
#include <vector>

#include "optics/light/OpticalPath.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "tests/screens/kelmo/KelmoTest.h"
#include "tests/screens/kelmo/SnellTracer.h"

namespace lensbench {
namespace {

using poreiaaktinon::pi;

constexpr double tolerance = 1e-6;
constexpr double stepLength = 2.5;  // of optical path

class AnimationFrontTest : public KelmoTest {
 protected:
  AnimationFrontTest() { openDiaphragm(); }

  poreiaaktinon::Front front(int step) {
    return poreiaaktinon::frontAt(*screen.set(), stepLength * step);
  }
  static bool beforeTheLens(const light::FrontPoint& p) {
    return p.crossed[0] == light::Side::None;
  }

  // Each point of the fronts of a run stands on its ray at the optical path of its step.
  void expectFrontsOnTheirRays() {
    std::vector<snell::Ray> rays;
    for (const auto& path : set()) {
      rays.push_back(
          snell::trace(screen.fakos(), screen.n(), path.start(), path.pieces[0].direction));
    }
    std::size_t compared = 0;
    for (const int step : {1, 20, 52, 60, 80, 100, 140, 180, 220, 240}) {
      for (std::size_t i = 0; i < rays.size(); ++i) {
        const auto& path = set()[i];
        const auto point = light::pointAtOpticalPath(path, stepLength * step);
        if (!point) continue;
        const auto expected = snell::at(rays[i], stepLength * step - path.phase);
        ASSERT_TRUE(expected);
        EXPECT_NEAR(point->position.x, expected->x, tolerance);
        EXPECT_NEAR(point->position.y, expected->y, tolerance);
        ++compared;
      }
    }
    EXPECT_GT(compared, 3 * rays.size());
  }

  // The abscissa of the wave on the axis: the middle of the red pixels of that row that hang
  // together at its right end.
  double redOnAxis() {
    const QImage shown = picture();
    const int row = shown.height() / 2;
    int right = shown.width() - 1;
    while (right >= 0 && shown.pixel(right, row) != qRgb(255, 0, 0)) --right;
    int left = right;
    while (left > 0 && shown.pixel(left - 1, row) == qRgb(255, 0, 0)) --left;
    return screen.canvas().mapping().toUser({(left + right) / 2.0, 0.0}).x;
  }
};

TEST_F(AnimationFrontTest, FrontsOfPlaneWavesHaveEqualOpticalPaths) {
  c.desmi1.Value(60);
  for (const int index : {40, 100, 150, 250}) {
    for (const char* degrees : {"0", "20", "-35"}) {
      SCOPED_TRACE(::testing::Message() << index << " at " << degrees);
      sendBundle(degrees);
      c.deiktisdiathlasis.Value(index);
      c.parallilakymata.trigger();
      expectFrontsOnTheirRays();
    }
  }
}

TEST_F(AnimationFrontTest, FrontsOfAPointSourceHaveEqualOpticalPaths) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  for (const int index : {40, 100, 150, 250}) {
    SCOPED_TRACE(index);
    c.deiktisdiathlasis.Value(index);
    c.kymatachronika.trigger();
    expectFrontsOnTheirRays();
  }
}

TEST_F(AnimationFrontTest, TheWaveOnTheAxisIsSlowerInTheGlassByTheIndex) {
  for (const double n : {0.4, 1.0, 1.5, 2.5}) {
    SCOPED_TRACE(n);
    c.deiktisdiathlasis.Value(static_cast<int>(std::lround(100.0 * n)));
    c.desmi1.Value(2);
    c.parallilakymata.trigger();
    const auto& axial = set()[1];
    ASSERT_NEAR(axial.start().y, 0.0, 1e-9);
    const auto x = [&](int step) {
      return light::pointAtOpticalPath(axial, stepLength * step)->position.x;
    };
    // The lens reaches from -70 to 50 on the axis; the wave enters it after 52 steps.
    const double outside = x(31) - x(30);
    const double inside = x(54) - x(53);
    const int behind = 52 + static_cast<int>(std::ceil(120.0 * n / stepLength)) + 1;
    const double after = x(behind + 1) - x(behind);
    EXPECT_NEAR(outside, 2.5, 1e-9);
    EXPECT_NEAR(after, 2.5, 1e-9);
    EXPECT_NEAR(outside / inside, n, 1e-9);
  }
}

TEST_F(AnimationFrontTest, TheDrawnWaveStandsWhereItsSpeedsTakeIt) {
  for (const double n : {0.4, 1.0, 1.5, 2.5}) {
    SCOPED_TRACE(n);
    c.deiktisdiathlasis.Value(static_cast<int>(std::lround(100.0 * n)));
    c.desmi1.Value(2);
    c.parallilakymata.trigger();
    for (int step = 1; step <= 200; ++step) {
      ASSERT_TRUE(tick(c.Timer2));
      const double path = stepLength * step;
      const double inGlass = (path - 130.0) / n;
      const double expected = path <= 130.0      ? -200.0 + path
                              : inGlass <= 120.0 ? -70.0 + inGlass
                                                 : 50.0 + path - 130.0 - 120.0 * n;
      if (expected > 390.0) break;
      ASSERT_NEAR(redOnAxis(), expected, 0.8) << "step " << step;  // pixels of half a unit
    }
  }
}

TEST_F(AnimationFrontTest, PlaneFrontsAreSquareToTheirRaysBeforeTheLens) {
  for (const char* degrees : {"0", "20", "-35", "60"}) {
    sendBundle(degrees);
    c.parallilakymata.trigger();
    const double angle = QString(degrees).toDouble() * pi / 180.0;
    for (const int step : {1, 10, 20, 30}) {
      for (const auto& path : set()) {
        const auto p = light::pointAtOpticalPath(path, stepLength * step);
        if (!p || !beforeTheLens(*p)) continue;
        const double advance =
            (p->position.x + 200.0) * std::cos(angle) + p->position.y * std::sin(angle);
        EXPECT_NEAR(advance, stepLength * step, tolerance);
      }
    }
  }
}

TEST_F(AnimationFrontTest, FrontsStaySquareToTheirRaysInAndBehindTheLens) {
  c.desmi1.Value(150);
  sendBundle("10");
  c.parallilakymata.trigger();
  std::size_t compared = 0;
  for (const int step : {60, 80, 100, 120, 140}) {
    for (std::size_t i = 1; i < set().size(); ++i) {
      const auto& one = set()[i - 1];
      const auto& two = set()[i];
      const auto a = light::pointAtOpticalPath(one, stepLength * step);
      const auto b = light::pointAtOpticalPath(two, stepLength * step);
      if (!a || !b || a->crossed != b->crossed || beforeTheLens(*a)) {
        continue;
      }
      const std::size_t piece = a->crossed[1] == light::Side::None ? 1 : 2;
      const Point da = one.pieces[piece].direction;
      const Point db = two.pieces[piece].direction;
      const Point join{b->position.x - a->position.x, b->position.y - a->position.y};
      const double length = std::hypot(join.x, join.y);
      if (length < 0.5) continue;  // at the focus
      // The mean direction of the two rays against the piece of front between them: the piece is a
      // chord, so it may lean by a small part of the angle between the rays.
      const double lean =
          std::asin((join.x * (da.x + db.x) + join.y * (da.y + db.y)) / (2.0 * length));
      const double turn = std::fabs(da.x * db.y - da.y * db.x);
      EXPECT_LT(std::fabs(lean), 0.2 * turn + 1e-6) << "step " << step << ", ray " << i;
      ++compared;
    }
  }
  EXPECT_GT(compared, 150U);
}

TEST_F(AnimationFrontTest, CircularFrontsAreCirclesAboutTheSourceBeforeTheLens) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  c.kymatachronika.trigger();
  for (const int step : {1, 20, 60}) {
    const poreiaaktinon::Front f = front(step);
    EXPECT_GT(f.points.size(), 0U);
    for (const auto& path : set()) {
      const auto p = light::pointAtOpticalPath(path, stepLength * step);
      if (!p || !beforeTheLens(*p)) continue;
      EXPECT_NEAR(std::hypot(p->position.x + 260.0, p->position.y - 70.0), stepLength * step,
                  tolerance);
    }
  }
}

TEST_F(AnimationFrontTest, ARingOfRaysIsAClosedFrontAndABundleAnOpenOne) {
  press(-260.0, 20.0, Qt::ShiftModifier);
  release(-260.0, 20.0);
  c.kymatachronika.trigger();
  const poreiaaktinon::Front ring = front(10);
  EXPECT_EQ(ring.points.size(), 76U);
  EXPECT_EQ(ring.pieces.size(), 76U);
  c.parallilakymata.trigger();
  const poreiaaktinon::Front open = front(10);
  EXPECT_EQ(open.points.size(), 21U);
  EXPECT_EQ(open.pieces.size(), 20U);
}

TEST_F(AnimationFrontTest, NeighboursOnDifferentSidesOfAFaceAreNotJoined) {
  c.desmi1.Value(150);
  c.parallilakymata.trigger();
  const poreiaaktinon::Front entering =
      front(58);  // the axis is in the glass, the rim is not reached yet
  EXPECT_EQ(entering.points.size(), 151U);
  EXPECT_EQ(entering.pieces.size(), 148U);
}

TEST_F(AnimationFrontTest, AWaveThatReachedTheEndOfItsRayIsGone) {
  c.VScroll1.Value(-20);
  c.VScroll2.Value(20);
  c.HScroll1.Value(-40);  // blades at x = -160 stop all rays beyond 40 units from the axis
  c.parallilakymata.trigger();
  EXPECT_EQ(front(16).points.size(), 21U);  // on the blades
  EXPECT_EQ(front(17).points.size(), 5U);
}

}  // namespace
}  // namespace lensbench
