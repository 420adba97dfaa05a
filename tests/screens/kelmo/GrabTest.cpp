// What a press takes, in which order and within which margins, and where a released thing goes.
#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>

#include "screens/kelmo/Drag.h"

namespace lensbench {

void PrintTo(Grab grab, std::ostream* out) { *out << "Grab " << static_cast<int>(grab); }

namespace {

using poreiaaktinon::Diafragma;
using poreiaaktinon::Edges;
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

TEST(GrabTest, WhereBothCentresAreInReachTheLeftOneIsTaken) {
  EXPECT_EQ(at(2.0, 0.0, far, {-2.0, 100.0, 2.0, 90.0}), Grab::LeftCentre);
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
  EXPECT_EQ(releasedRadius(150.0, 20.0, 0, 500), 130);
  EXPECT_EQ(releasedRadius(-110.0, 20.0, 0, 500), 130);
  EXPECT_EQ(releasedRadius(150.9, 20.0, 0, 500), 130);
  EXPECT_EQ(releasedRadius(20.0, 20.0, 0, 500), 0);
  EXPECT_EQ(releasedRadius(-50.0 + 49.99, -50.0, 50, 500), 50);
  EXPECT_EQ(releasedRadius(1e12, -50.0, 50, 500), 500);
}

}  // namespace
}  // namespace lensbench
