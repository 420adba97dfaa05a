// The named refraction at one surface, and the named test of the diaphragm.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr Boolean yes = -1;
constexpr Boolean no = 0;

TEST(Sxetikosdeiktis, IsNInAndOneOverNOut) {
  EXPECT_EQ(sxetikosdeiktis(1, 0, -10, 0, 0, 0, 10, 1.5).value(), 1.5);
  EXPECT_EQ(sxetikosdeiktis(1, 0, 10, 0, 0, 0, 10, 1.5).value(), 1.0 / 1.5);
  EXPECT_EQ(sxetikosdeiktis(0, 1, -10, 0, 0, 0, 10, 1.5).value(), 1.0 / 1.5);  // grazing
}

TEST(Diathlasi, AxialRayPassesStraightOn) {
  const DiathlasiApotelesma r = diathlasi(1, 0, -100, 0, 0, 0, 100, 1.5);
  EXPECT_EQ(r.ok, yes);
  EXPECT_EQ(r.dx, 1.0f);
  EXPECT_EQ(r.dy, 0.0f);
}

TEST(Diathlasi, BendsTowardsTheNormalOnEntry) {
  // At 30 degrees above the axis of the circle the incidence of a horizontal ray is 30 degrees.
  const double a = std::atan(1.0) * 4.0 / 6.0;
  const DiathlasiApotelesma r =
      diathlasi(1, 0, -100 * std::cos(a), 100 * std::sin(a), 0, 0, 100, 1.5);
  const double a2 = std::asin(std::sin(a) / 1.5);
  EXPECT_EQ(r.ok, yes);
  EXPECT_FLOAT_EQ(r.dx, static_cast<float>(std::cos(a - a2)));
  EXPECT_FLOAT_EQ(r.dy, static_cast<float>(-std::sin(a - a2)));
}

TEST(Diathlasi, BendsAwayFromTheNormalOnExit) {
  const double a = std::atan(1.0) * 4.0 / 6.0;
  const DiathlasiApotelesma r =
      diathlasi(2, 0, 100 * std::cos(a), 100 * std::sin(a), 0, 0, 100, 1.5);
  const double a2 = std::asin(std::sin(a) * 1.5);
  EXPECT_EQ(r.ok, yes);
  EXPECT_FLOAT_EQ(r.dx, static_cast<float>(std::cos(a2 - a)));
  EXPECT_FLOAT_EQ(r.dy, static_cast<float>(-std::sin(a2 - a)));
}

TEST(Diathlasi, TotalReflectionBeyondTheCriticalAngle) {
  const auto outAt = [](double degrees) {
    const double a = degrees * std::atan(1.0) / 45.0;
    return diathlasi(1, 0, 100 * std::cos(a), 100 * std::sin(a), 0, 0, 100, 1.5);
  };
  const double critical = std::asin(1.0 / 1.5) * 45.0 / std::atan(1.0);
  EXPECT_EQ(outAt(critical - 0.001).ok, yes);
  const DiathlasiApotelesma trapped = outAt(critical + 0.001);
  EXPECT_EQ(trapped.ok, no);
  EXPECT_EQ(trapped.dx, 0.0f);
  EXPECT_EQ(trapped.dy, 0.0f);
}

TEST(Diathlasi, IndexOneKeepsTheDirection) {
  const DiathlasiApotelesma r = diathlasi(3, 4, -80, 60, 0, 0, 100, 1);
  EXPECT_EQ(r.ok, yes);
  EXPECT_FLOAT_EQ(r.dx, 0.6f);
  EXPECT_FLOAT_EQ(r.dy, 0.8f);
}

TEST(Diathlasi, UnguardedDivisionsRaise) {
  EXPECT_THROW(diathlasi(1, 0, 0, 0, 0, 0, 0, 1.5), RuntimeError);
  EXPECT_THROW(diathlasi(1, 0, 100, 0, 0, 0, 100, 0), RuntimeError);
  EXPECT_THROW(diathlasi(0, 0, 100, 0, 0, 0, 100, 1.5), RuntimeError);
}

TEST(Elegxosdiafragmatos, TheEndsOfTheOpeningLetPass) {
  for (const double y : {-20.0, 30.0}) {
    const DiafragmaApotelesma r = elegxosdiafragmatos(50, 30, -20, -100, y, 1, 0);
    EXPECT_EQ(r.blocked, no);
    EXPECT_EQ(r.x, -100.0f);
    EXPECT_EQ(r.y, static_cast<float>(y));
  }
}

TEST(Elegxosdiafragmatos, JustBeyondAnEndIsBlocked) {
  const DiafragmaApotelesma above = elegxosdiafragmatos(50, 30, -20, -100, 30.001, 1, 0);
  EXPECT_EQ(above.blocked, yes);
  EXPECT_EQ(above.x, 50.0f);
  EXPECT_EQ(above.y, 30.001f);
  EXPECT_EQ(elegxosdiafragmatos(50, 30, -20, -100, -20.001, 1, 0).blocked, yes);
}

TEST(Elegxosdiafragmatos, TestsTheLineBehindTheStartToo) {
  const DiafragmaApotelesma r = elegxosdiafragmatos(50, 30, -20, 150, 100, 1, 0.5);
  EXPECT_EQ(r.blocked, yes);
  EXPECT_EQ(r.x, 50.0f);
  EXPECT_EQ(r.y, 50.0f);
}

TEST(Elegxosdiafragmatos, VerticalRayIsTestedAtItsStart) {
  const DiafragmaApotelesma r = elegxosdiafragmatos(50, 30, -20, 7, 31, 0, 1);
  EXPECT_EQ(r.blocked, yes);
  EXPECT_EQ(r.x, 50.0f);
  EXPECT_EQ(r.y, 31.0f);
  EXPECT_EQ(elegxosdiafragmatos(50, 30, -20, 7, 30, 0, 1).blocked, no);
}

TEST(Elegxosdiafragmatos, ASlopeThatIsNoNumberIsOverflow) {
  EXPECT_EQ(errorNumber([] { elegxosdiafragmatos(50, 30, -20, 50, 31, 1e-310, 1); }), 6);
  EXPECT_EQ(errorNumber([] { elegxosdiafragmatos(50, 30, -20, 7, 31, -1e-310, 1); }), 6);
}

TEST(Elegxosdiafragmatos, AnOpeningOfHeightZeroLetsItsPointThrough) {
  EXPECT_EQ(elegxosdiafragmatos(50, 0, 0, -100, 0, 1, 0).blocked, no);
  EXPECT_EQ(elegxosdiafragmatos(50, 0, 0, -100, 0.001, 1, 0).blocked, yes);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
