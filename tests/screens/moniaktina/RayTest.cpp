// The ray itself, seen on the picture: refracted, blocked, reflected or missing the lens.
#include <cmath>

#include "tests/screens/moniaktina/MoniaktinaTest.h"

namespace lensbench {
namespace {

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb stop = RGB(255, 0, 255);

class MoniaktinaRayTest : public MoniaktinaTest {
 protected:
  void SetUp() override { open(); }
  // Puts the middle of the source at a point and sends the ray towards another.
  void send(Point from, Point towards) {
    screen.Form_MouseDown(1, 0, from.x - c.fos.Width() / 2.0, from.y + c.fos.Height() / 2.0);
    screen.Form_MouseUp(1, 0, towards.x, towards.y);
  }
};

TEST_F(MoniaktinaRayTest, AxialRayGoesStraightThrough) {
  send({-250.0, 0.0}, {-240.0, 0.0});
  for (const double x : {-200.0, -100.0, 20.0, 70.0, 150.0, 280.0}) {
    EXPECT_EQ(colourAt({x, 0.0}), red) << x;
  }
}

TEST_F(MoniaktinaRayTest, RayThroughTheLensBendsTowardsTheAxisByTheLawOfRefraction) {
  constexpr double y = 20.0;
  send({-250.0, y}, {-240.0, y});
  // By hand: left face of circle 2, then right face of circle 1.
  const Point entry{100.0 - std::sqrt(100.0 * 100.0 - y * y), y};
  const double a1 = std::asin(y / 100.0);
  const double inside = a1 - std::asin(std::sin(a1) / 1.5);  // downward, radians
  const double b = entry.x * std::cos(inside) - entry.y * std::sin(inside);
  const double inGlass =
      -b + std::sqrt(b * b + 90.0 * 90.0 - entry.x * entry.x - entry.y * entry.y);
  const Point exit{entry.x + inGlass * std::cos(inside), entry.y - inGlass * std::sin(inside)};
  const double normal = std::asin(exit.y / 90.0);
  const double outside = std::asin(1.5 * std::sin(normal + inside)) - normal;  // downward

  EXPECT_EQ(colourAt({-100.0, y}), red);
  const double along = inGlass / 2.0;
  EXPECT_TRUE(hasColour(
      red, {entry.x + along * std::cos(inside) - 0.5, entry.y - along * std::sin(inside) + 0.5},
      {entry.x + along * std::cos(inside) + 0.5, entry.y - along * std::sin(inside) - 0.5}));
  const double atX = 250.0;
  const double atY = exit.y - (atX - exit.x) * std::tan(outside);
  EXPECT_LT(atY, 0.0);
  EXPECT_TRUE(hasColour(red, {atX - 1.0, atY + 1.0}, {atX + 1.0, atY - 1.0}));
  EXPECT_FALSE(hasColour(red, {atX - 1.0, 200.0}, {atX + 1.0, atY + 2.0}));
}

TEST_F(MoniaktinaRayTest, RayThatMissesTheLensRunsStraightToTheEdge) {
  send({-250.0, 120.0}, {-240.0, 120.0});
  EXPECT_EQ(colourAt({40.0, 120.0}), red);
  EXPECT_EQ(colourAt({250.0, 120.0}), red);
}

TEST_F(MoniaktinaRayTest, ClosedDiaphragmOfTheWorkbenchStopsTheRayInADot) {
  t.moves.opening = {-80.0, 0.0, 0.0};
  send({-250.0, 30.0}, {-240.0, 30.0});
  EXPECT_EQ(colourAt({-150.0, 30.0}), red);
  EXPECT_EQ(colourAt({-80.0, 30.0}), stop);
  EXPECT_FALSE(hasColour(red, {-70.0, 40.0}, {300.0, 20.0}));
}

TEST_F(MoniaktinaRayTest, DiaphragmBehindTheLensStopsTheRayToo) {
  t.moves.opening = {200.0, 0.0, 0.0};
  send({-250.0, 20.0}, {-240.0, 20.0});
  EXPECT_TRUE(hasColour(stop, {195.0, 100.0}, {205.0, -100.0}));
  EXPECT_FALSE(hasColour(red, {205.0, 70.0}, {300.0, -70.0}));
}

TEST_F(MoniaktinaRayTest, OpenDiaphragmLetsTheRayPass) {
  t.moves.opening = {-80.0, 40.0, -40.0};
  send({-250.0, 30.0}, {-240.0, 30.0});
  EXPECT_FALSE(hasColour(stop, {-300.0, 200.0}, {300.0, -200.0}));
  EXPECT_EQ(colourAt({-20.0, 30.0}), red);
}

TEST_F(MoniaktinaRayTest, TotalReflectionEndsTheRayAtTheFace) {
  c.deiktisdiathlasis.Value(250);
  // From inside the glass, straight to the right: the critical angle is asin(1/2.5), met at
  // y = 36 on circle 1.
  send({50.0, 50.0}, {60.0, 50.0});
  EXPECT_EQ(colourAt({65.0, 50.0}), red);
  EXPECT_FALSE(hasColour(red, {85.0, 60.0}, {300.0, -60.0}));
  EXPECT_FALSE(hasColour(stop, {-300.0, 200.0}, {300.0, -200.0}));
}

TEST_F(MoniaktinaRayTest, IndexOfOneDoesNotBendTheRay) {
  c.deiktisdiathlasis.Value(100);
  send({-250.0, 50.0}, {-240.0, 50.0});
  EXPECT_EQ(colourAt({250.0, 50.0}), red);
}

TEST_F(MoniaktinaRayTest, VerticalDirectionIsTracedUpward) {
  // Aimed so steeply that the slope is beyond the arc tangent: the ray leaves straight up.
  send({-100.0, 0.0}, {-50.0, 0.0});
  c.fos.Left(-c.fos.Width() / 2.0);
  c.fos.Top(150.0);
  ASSERT_EQ(middleOfFos().x, 0.0);
  screen.Form_MouseUp(1, 0, 1e-20, 151.0);
  EXPECT_EQ(colourAt({0.0, 180.0}), red);
}

}  // namespace
}  // namespace lensbench
