// What a press takes, in which order and within which margins, and where a released thing goes.
#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>

#include "screens/kelmo/Drag.h"

namespace lensbench {

void PrintTo(Grab grab, std::ostream* out) { *out << "Grab " << static_cast<int>(grab); }

namespace {

using light::Edges;
using poreiaaktinon::Diafragma;
using poreiaaktinon::Fakos;

// 480 x 240 units: the margins of the blades are 4 units to each side and 2 beyond their ends.
constexpr Edges edges{-240.0, 240.0, -120.0, 120.0};
constexpr Fakos lens{-50.0, 100.0, 20.0, 90.0};  // edges at -150, 50 and at -70, 110
constexpr Diafragma far{-200.0, 30.0, -30.0};

Grab at(double x, double y, const Diafragma& d = far, const Fakos& f = lens) {
  return grabAt({x, y}, d, f, edges);
}

TEST(GrabTest, ABladeIsHitStrictlyWithinItsBand) {
  for (const auto& [y, blade] : {std::pair(100.0, Grab::UpperBlade), {-100.0, Grab::LowerBlade}}) {
    EXPECT_EQ(at(-200.0, y), blade);
    EXPECT_EQ(at(-203.9, y), blade);
    EXPECT_EQ(at(-196.1, y), blade);
    EXPECT_EQ(at(-204.0, y), Grab::None);
    EXPECT_EQ(at(-196.0, y), Grab::None);
  }
}

TEST(GrabTest, ABladeReachesTwoUnitsBeyondItsEnds) {
  EXPECT_EQ(at(-200.0, 28.1), Grab::UpperBlade);
  EXPECT_EQ(at(-200.0, 28.0), Grab::Diaphragm);
  EXPECT_EQ(at(-200.0, 121.9), Grab::UpperBlade);
  EXPECT_EQ(at(-200.0, 122.0), Grab::None);
  EXPECT_EQ(at(-200.0, -28.1), Grab::LowerBlade);
  EXPECT_EQ(at(-200.0, -28.0), Grab::Diaphragm);
  EXPECT_EQ(at(-200.0, -121.9), Grab::LowerBlade);
  EXPECT_EQ(at(-200.0, -122.0), Grab::None);
}

TEST(GrabTest, TheUpperBladeComesBeforeTheLowerOne) {
  const Diafragma closed{-200.0, 0.0, 0.0};
  EXPECT_EQ(at(-200.0, 0.0, closed), Grab::UpperBlade);
  EXPECT_EQ(at(-200.0, -1.9, closed), Grab::UpperBlade);
  EXPECT_EQ(at(-200.0, -2.0, closed), Grab::LowerBlade);
}

TEST(GrabTest, TheWholeDiaphragmIsTakenInItsGapWithinTheBandOfTheBlades) {
  EXPECT_EQ(at(-200.0, 0.0), Grab::Diaphragm);
  EXPECT_EQ(at(-196.1, 10.0), Grab::Diaphragm);
  EXPECT_EQ(at(-196.0, 10.0), Grab::None);
}

TEST(GrabTest, BladesComeBeforeCentresAndCentresBeforeEdges) {
  const Diafragma overCentre{-50.0, 30.0, -30.0};
  EXPECT_EQ(at(-50.0, 0.0, overCentre), Grab::Diaphragm);
  EXPECT_EQ(at(-45.0, 0.0, overCentre), Grab::LeftCentre);
  const Diafragma overEdge{110.0, 0.0, 0.0};
  EXPECT_EQ(at(110.0, 0.0, overEdge), Grab::UpperBlade);
  const Fakos edgeOnCentre{-50.0, 70.0, 20.0, 90.0};  // circle 1 runs through (20, 0)
  EXPECT_EQ(at(20.0, 0.0, far, edgeOnCentre), Grab::RightCentre);
}

TEST(GrabTest, ACentreIsTakenWithinEightUnits) {
  for (const auto& [x, centre] : {std::pair(-50.0, Grab::LeftCentre), {20.0, Grab::RightCentre}}) {
    EXPECT_EQ(at(x, 0.0), centre);
    EXPECT_EQ(at(x + 8.0, 0.0), centre);
    EXPECT_EQ(at(x, -8.0), centre);
    EXPECT_EQ(at(x + 8.1, 0.0), Grab::None);
    EXPECT_EQ(at(x + 6.0, 6.0), Grab::None);
  }
}

TEST(GrabTest, OfTwoCentresInReachTheNearerIsTaken) {
  const Fakos close{-2.0, 100.0, 2.0, 90.0};
  EXPECT_EQ(at(2.0, 0.0, far, close), Grab::RightCentre);
  EXPECT_EQ(at(0.1, 3.0, far, close), Grab::RightCentre);
  EXPECT_EQ(at(-0.1, 3.0, far, close), Grab::LeftCentre);
  EXPECT_EQ(at(-9.0, 0.0, far, close), Grab::LeftCentre);
}

TEST(GrabTest, OfACentreAndAnEdgeTheNearerIsTaken) {
  const Fakos small{-50.0, 100.0, 20.0, 10.0};
  EXPECT_EQ(at(24.0, 0.0, far, small), Grab::RightCentre);
  EXPECT_EQ(at(26.0, 0.0, far, small), Grab::RightEdge);
  EXPECT_EQ(at(15.5, 0.0, far, small), Grab::RightCentre);
  EXPECT_EQ(at(14.0, 0.0, far, small), Grab::RightEdge);
  const Fakos edgeByCentre{-50.0, 73.0, 20.0, 90.0};  // circle 1 runs through (23, 0)
  EXPECT_EQ(at(21.0, 0.0, far, edgeByCentre), Grab::RightCentre);
  EXPECT_EQ(at(22.0, 0.0, far, edgeByCentre), Grab::LeftEdge);
}

TEST(GrabTest, TheSmallestCirclesCanBeMovedAndEnlarged) {
  for (const double radius : {0.0, 1.0, 2.0}) {
    const Fakos small{-50.0, 100.0, 20.0, radius};
    EXPECT_EQ(at(20.0, 0.0, far, small), Grab::RightCentre) << radius;
    EXPECT_EQ(at(25.0, 0.0, far, small), Grab::RightEdge) << radius;
    EXPECT_EQ(at(15.0, 0.0, far, small), Grab::RightEdge) << radius;
  }
}

TEST(GrabTest, CentresThatCoincideAreToldApartByTheSideOfThePress) {
  const Fakos both{0.0, 100.0, 0.0, 90.0};
  EXPECT_EQ(at(-0.5, 3.0, far, both), Grab::LeftCentre);
  EXPECT_EQ(at(0.0, 0.0, far, both), Grab::RightCentre);
  EXPECT_EQ(at(0.5, 3.0, far, both), Grab::RightCentre);
}

TEST(GrabTest, AnEdgeIsTakenWhereItsCircleCrossesTheAxis) {
  for (const double x : {-150.0, 50.0}) {
    EXPECT_EQ(at(x, 0.0), Grab::LeftEdge);
    EXPECT_EQ(at(x + 6.0, 0.0), Grab::LeftEdge);
    EXPECT_EQ(at(x - 6.0, 0.0), Grab::LeftEdge);
    EXPECT_EQ(at(x + 6.1, 0.0), Grab::None);
    EXPECT_EQ(at(x - 6.1, 0.0), Grab::None);
  }
  for (const double x : {-70.0, 110.0}) {
    EXPECT_EQ(at(x, 0.0), Grab::RightEdge);
    EXPECT_EQ(at(x + 6.0, 0.0), Grab::RightEdge);
    EXPECT_EQ(at(x - 6.1, 0.0), Grab::None);
  }
}

TEST(GrabTest, TheRestOfACircleIsNoEdge) {
  EXPECT_EQ(at(-50.0, 100.0), Grab::None);
  const double y = std::sqrt(100.0 * 100.0 - 93.0 * 93.0);
  EXPECT_EQ(at(-50.0 + 93.0, y), Grab::None) << "on the circle, 7 units from its crossing";
  EXPECT_EQ(at(50.0, 36.0), Grab::None) << "above the crossing, 6.3 units from the circle";
  EXPECT_EQ(at(50.0, 34.0), Grab::LeftEdge);
}

TEST(GrabTest, TheNearerOfTwoEdgesIsTaken) {
  const Fakos close{-50.0, 100.0, 20.0, 34.0};  // right edges at 50 and at 54
  EXPECT_EQ(at(51.0, 0.0, far, close), Grab::LeftEdge);
  EXPECT_EQ(at(53.0, 0.0, far, close), Grab::RightEdge);
}

TEST(GrabTest, TheLensIsTheCommonPartOfTheDiscsWithItsFaces) {
  EXPECT_TRUE(insideLens({0.0, 0.0}, lens));
  EXPECT_TRUE(insideLens({-70.0, 0.0}, lens));
  EXPECT_TRUE(insideLens({50.0, 0.0}, lens));
  EXPECT_FALSE(insideLens({-70.1, 0.0}, lens));
  EXPECT_FALSE(insideLens({50.1, 0.0}, lens));
  EXPECT_FALSE(insideLens({0.0, 95.0}, lens));
}

TEST(GrabTest, AReleasedCentreIsTheNearestWholeNumberHalvesToEven) {
  EXPECT_EQ(releasedCentre(-30.4, -500, 0), -30);
  EXPECT_EQ(releasedCentre(-30.5, -500, 0), -30);
  EXPECT_EQ(releasedCentre(-31.5, -500, 0), -32);
  EXPECT_EQ(releasedCentre(30.5, 0, 500), 30);
  EXPECT_EQ(releasedCentre(31.5, 0, 500), 32);
  EXPECT_EQ(releasedCentre(-0.4, -500, 0), 0);
}

TEST(GrabTest, AReleasedCentreStaysOnItsSideAndInItsRange) {
  EXPECT_EQ(releasedCentre(30.0, -500, 0), 0);
  EXPECT_EQ(releasedCentre(-30.0, 0, 500), 0);
  EXPECT_EQ(releasedCentre(0.0, -500, 0), 0);
  EXPECT_EQ(releasedCentre(0.0, 0, 500), 0);
  EXPECT_EQ(releasedCentre(-1e12, -500, 0), -500);
  EXPECT_EQ(releasedCentre(1e12, 0, 500), 500);
}

TEST(GrabTest, AReleasedRadiusIsClampedThenCutToAWholeNumber) {
  const auto released = [](double x) { return releasedRadius(90, 20.0, 110.0, x, 0, 500); };
  EXPECT_EQ(released(150.0), 130);
  EXPECT_EQ(released(-110.0), 130);
  EXPECT_EQ(released(150.9), 130);
  EXPECT_EQ(released(20.0), 0);
  EXPECT_EQ(released(1e12), 500);
  EXPECT_EQ(releasedRadius(100, -50.0, 50.0, -50.0 + 49.99, 50, 500), 50);
}

TEST(GrabTest, AnEdgeKeepsTheDistanceAtWhichItWasTaken) {
  for (const double beside : {-6.0, -0.3, 0.0, 4.7}) {
    const double taken = 110.0 + beside;
    EXPECT_EQ(releasedRadius(90, 20.0, taken, taken, 0, 500), 90) << beside;
    EXPECT_EQ(releasedRadius(90, 20.0, taken, taken + 10.25, 0, 500), 100) << beside;
    EXPECT_EQ(releasedRadius(90, 20.0, taken, taken - 10.0, 0, 500), 80) << beside;
  }
  EXPECT_EQ(releasedRadius(0, 20.0, 25.0, 45.5, 0, 500), 20);
}

// An area of 480 x 240 units with bars along its lower and its right edge and boxes at the top.
const Room room{edges,
                {{-240.0, 240.0, -120.0, -111.0},
                 {231.0, 240.0, 0.0, 120.0},
                 {231.0, 240.0, -111.0, 0.0},
                 {-230.0, -150.0, 100.0, 115.0},
                 {-230.0, -150.0, 80.0, 95.0}}};

TEST(ReachTest, LeavesThreeUnitsToEdgesAndControls) {
  const Edges middle = reachAt(0.0, room);
  EXPECT_EQ(middle, (Edges{-237.0, 228.0, -108.0, 117.0}));
  EXPECT_EQ(reachAt(-200.0, room).upper, 77.0);
  EXPECT_EQ(reachAt(-152.0, room).upper, 77.0);
  EXPECT_EQ(reachAt(-147.5, room).upper, 77.0) << "a blade has a width";
  EXPECT_EQ(reachAt(-146.0, room).upper, 117.0);
  EXPECT_EQ(reachAt(1e6, room), middle) << "as far as the diaphragm goes";
}

TEST(ReachTest, AReleasedDiaphragmStaysWithinIt) {
  const Diafragma open{0.0, 50.0, -50.0};
  const auto let = [&](Grab grab, Point p) { return releasedDiaphragm(grab, p, open, room); };
  EXPECT_EQ(let(Grab::LowerBlade, {0.0, -500.0}), (Diafragma{0.0, 50.0, -108.0}));
  EXPECT_EQ(let(Grab::UpperBlade, {0.0, 500.0}), (Diafragma{0.0, 117.0, -50.0}));
  EXPECT_EQ(let(Grab::UpperBlade, {-200.0, 90.0}), (Diafragma{-200.0, 77.0, -50.0}));
  EXPECT_EQ(let(Grab::UpperBlade, {500.0, 60.0}), (Diafragma{228.0, 60.0, -50.0}));
  EXPECT_EQ(let(Grab::LowerBlade, {-500.0, 60.0}), (Diafragma{-237.0, 50.0, 50.0}));
  EXPECT_EQ(let(Grab::Diaphragm, {10.0, -500.0}), (Diafragma{10.0, -8.0, -108.0}));
  EXPECT_EQ(let(Grab::Diaphragm, {10.0, -51.0}), (Diafragma{10.0, 26.0, -74.0}));
}

TEST(ReachTest, AReleasedSourceStaysWithinIt) {
  const Point p = releasedSource({-200.0, 300.0}, room);
  EXPECT_EQ(p.x, -200.0);
  EXPECT_EQ(p.y, 77.0);
}

}  // namespace
}  // namespace lensbench
