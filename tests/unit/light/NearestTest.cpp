// What is the answer among things drawn around a point.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "optics/light/Nearest.h"

namespace lensbench::light {
namespace {

auto saying(const char* words) {
  return [words] { return std::string(words); };
}

TEST(Nearest, TakesNothingBeyondItsReach) {
  Nearest nearest({0.0, 0.0}, 5.0);
  EXPECT_FALSE(nearest.answer());
  nearest.point(Rank::Event, {3.0, 4.1}, saying("beyond"));
  nearest.stroke(Rank::Event, {-10.0, 5.1}, {10.0, 5.1}, saying("beyond"));
  nearest.stroke(Rank::Event, {5.1, 0.0}, {20.0, 0.0}, saying("in line but beyond"));
  EXPECT_FALSE(nearest.answer());
  nearest.point(Rank::Ray, {3.0, 4.0}, saying("just within"));
  ASSERT_TRUE(nearest.answer());
  EXPECT_EQ(nearest.answer()->text, "just within");
  EXPECT_EQ(nearest.answer()->distance, 5.0);
  EXPECT_EQ(nearest.answer()->at.x, 3.0);
  EXPECT_EQ(nearest.answer()->at.y, 4.0);
}

TEST(Nearest, NamesByRankBeforeDistance) {
  Nearest nearest({0.0, 0.0}, 5.0);
  nearest.point(Rank::Ray, {0.0, 0.0}, saying("ray"));
  EXPECT_EQ(nearest.answer()->text, "ray");
  nearest.point(Rank::Front, {1.0, 0.0}, saying("front"));
  EXPECT_EQ(nearest.answer()->text, "front");
  nearest.point(Rank::Guide, {2.0, 0.0}, saying("guide"));
  EXPECT_EQ(nearest.answer()->text, "guide");
  nearest.point(Rank::Mark, {3.0, 0.0}, saying("mark"));
  EXPECT_EQ(nearest.answer()->text, "mark");
  nearest.point(Rank::Event, {4.0, 0.0}, saying("event"));
  EXPECT_EQ(nearest.answer()->text, "event");
  nearest.point(Rank::Mark, {0.0, 0.0}, saying("mark again"));
  EXPECT_EQ(nearest.answer()->text, "event");
}

TEST(Nearest, AmongEqualsTheNearerAndThenTheLater) {
  Nearest nearest({0.0, 0.0}, 5.0);
  nearest.point(Rank::Mark, {2.0, 0.0}, saying("first"));
  nearest.point(Rank::Mark, {3.0, 0.0}, saying("farther"));
  EXPECT_EQ(nearest.answer()->text, "first");
  nearest.point(Rank::Mark, {0.0, -2.0}, saying("later"));
  EXPECT_EQ(nearest.answer()->text, "later");
  nearest.point(Rank::Mark, {1.0, 0.0}, saying("nearer"));
  EXPECT_EQ(nearest.answer()->text, "nearer");
}

TEST(Nearest, OfAStrokeItTakesTheFootOrTheNearerEnd) {
  Nearest across({0.0, 1.0}, 5.0);
  across.stroke(Rank::Ray, {-10.0, 0.0}, {30.0, 0.0}, saying("across"));
  EXPECT_DOUBLE_EQ(across.answer()->at.x, 0.0);
  EXPECT_DOUBLE_EQ(across.answer()->distance, 1.0);
  for (const bool backwards : {false, true}) {
    Nearest end({0.0, 1.0}, 5.0);
    const Point near{3.0, 1.0};
    const Point far{9.0, 1.0};
    end.stroke(Rank::Ray, backwards ? far : near, backwards ? near : far, saying("end"));
    EXPECT_EQ(end.answer()->at.x, 3.0);
    EXPECT_EQ(end.answer()->distance, 3.0);
  }
  Nearest dot({0.0, 1.0}, 5.0);
  dot.stroke(Rank::Ray, {0.0, 3.0}, {0.0, 3.0}, saying("of no length"));
  EXPECT_EQ(dot.answer()->distance, 2.0);
}

TEST(Nearest, AnEndFarAwayCostsNoDigits) {
  // A tenth of a unit above a line that starts 1e15 away.
  const double slope = 0.5;
  const Point start{-1e15, -1e15 * slope};
  Nearest nearest({100.0, 50.1}, 1.0);
  nearest.stroke(Rank::Ray, start, {200.0, 100.0}, saying("ray"));
  ASSERT_TRUE(nearest.answer());
  EXPECT_NEAR(nearest.answer()->distance, 0.1 / std::hypot(1.0, slope), 1e-9);
}

TEST(Nearest, NoNumberIsNearNothing) {
  Nearest nearest({std::numeric_limits<double>::quiet_NaN(), 0.0}, 5.0);
  nearest.point(Rank::Event, {0.0, 0.0}, saying("point"));
  nearest.stroke(Rank::Event, {-1.0, 0.0}, {1.0, 0.0}, saying("stroke"));
  EXPECT_FALSE(nearest.answer());
}

}  // namespace
}  // namespace lensbench::light
