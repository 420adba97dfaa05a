// The construction of the image against rays that are traced, from sources on either side.
#include <gtest/gtest.h>
#include <vector>

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using Kind = Operation::Kind;

// The construction of a lens, as drawn.
std::vector<Operation> constructed(const Fakos& fakos, double n, Point source, Travel travel) {
  FakeWorkbench bench;
  drawConstruction(bench.surface, cardinalPoints(fakos, n), source, travel);
  return bench.surface.operations();
}

double heightAt(const Operation& line, double x) {
  return line.y1 + (line.y2 - line.y1) * (x - line.x1) / (line.x2 - line.x1);
}
double heightAt(const light::Piece& piece, double x) {
  return piece.from.y + (x - piece.from.x) * piece.direction.y / piece.direction.x;
}

TEST(TravelFrom, IsLeftwardsFromASourceRightOfTheRightVertex) {
  const Fakos lens{-50.0, 100.0, 20.0, 90.0};  // vertices at -70 and 50
  EXPECT_EQ(travelFrom({-200.0, 30.0}, lens), Travel::Right);
  EXPECT_EQ(travelFrom({0.0, 150.0}, lens), Travel::Right);
  EXPECT_EQ(travelFrom({50.0, 30.0}, lens), Travel::Right);
  EXPECT_EQ(travelFrom({50.001, 30.0}, lens), Travel::Left);
}

TEST(CanConstruct, LeftwardsNeedsASourceOffF2AndN2) {
  const CardinalPoints p = cardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.5);
  EXPECT_TRUE(canConstruct(p, {200.0, 30.0}, Travel::Left));
  EXPECT_FALSE(canConstruct(p, {200.0, 0.0}, Travel::Left));
  EXPECT_FALSE(canConstruct(p, {p.F2, 30.0}, Travel::Left));
  EXPECT_FALSE(canConstruct(p, {p.N2, 30.0}, Travel::Left));
  EXPECT_TRUE(canConstruct(p, {p.F1, 30.0}, Travel::Left));
}

// The three rays of a construction leave the lens where rays do that are traced close to the axis.
void expectConstructionFollowsLight(const Fakos& fakos, double n, Point source, Travel travel) {
  const auto drawn = constructed(fakos, n, source, travel);
  ASSERT_EQ(drawn.size(), 7u);
  // The piece before the lens and the one behind it, of each ray.
  const std::pair<std::size_t, std::size_t> rays[] = {{0, 3}, {1, 2}, {4, 5}};
  const double beyond = static_cast<double>(travel) * 350.0;
  const double tolerance = 1e-5 * std::fabs(source.y);
  for (const auto& [before, behind] : rays) {
    const Point aim{0.0, heightAt(drawn[before], 0.0)};
    const light::RayPath path = tracePath({fakos, n, {}}, source, aim - source);
    ASSERT_EQ(path.count, 3);
    EXPECT_NEAR(heightAt(path.pieces[2], beyond), heightAt(drawn[behind], beyond), tolerance);
    EXPECT_EQ(drawn[behind].x2, static_cast<double>(travel) * 500.0);
  }
  // They meet in the image.
  const Operation& image = drawn[6];
  EXPECT_EQ(image.kind, Kind::PSet);
  const Point computed = imageOf(cardinalPoints(fakos, n), source, travel);
  EXPECT_EQ(computed.x, image.x1);
  EXPECT_EQ(computed.y, image.y1);
  for (const auto& [before, behind] : rays) {
    EXPECT_NEAR(heightAt(drawn[behind], image.x1), image.y1, 1e-9 * std::fabs(image.y1));
  }
}

TEST(Construction, FollowsLightFromTheLeft) {
  expectConstructionFollowsLight({-60.0, 100.0, 60.0, 100.0}, 1.5, {-380.0, 0.01}, Travel::Right);
}

TEST(Construction, FollowsLightFromTheRightInMirrorImage) {
  for (const double n : {1.3, 1.5, 2.0}) {
    for (const double x : {250.0, 380.0}) {
      expectConstructionFollowsLight({-60.0, 100.0, 60.0, 100.0}, n, {x, 0.01}, Travel::Left);
      expectConstructionFollowsLight({-60.0, 100.0, 60.0, 100.0}, n, {x, -0.01}, Travel::Left);
    }
  }
}

TEST(Construction, LeftwardsIsTheMirrorImageOfTheMirroredLens) {
  const auto left = constructed({-50.0, 100.0, 20.0, 90.0}, 1.5, {230.0, 40.0}, Travel::Left);
  const auto right = constructed({-20.0, 90.0, 50.0, 100.0}, 1.5, {-230.0, 40.0}, Travel::Right);
  ASSERT_EQ(left.size(), right.size());
  for (std::size_t i = 0; i < left.size(); ++i) {
    EXPECT_EQ(left[i].kind, right[i].kind);
    EXPECT_NEAR(left[i].x1, -right[i].x1, 1e-10) << i;
    EXPECT_NEAR(left[i].y1, right[i].y1, 1e-10) << i;
    EXPECT_NEAR(left[i].x2, -right[i].x2, 1e-10) << i;
    EXPECT_NEAR(left[i].y2, right[i].y2, 1e-10) << i;
    EXPECT_EQ(left[i].width, right[i].width);
  }
}

TEST(DrawCardinalPoints, MarksAndLabelsStayForASourceOnTheRight) {
  const Fakos lens{-50.0, 100.0, 20.0, 90.0};
  const auto drawnFrom = [&](Point source) {
    FakeWorkbench bench;
    drawCardinalPoints(bench.surface, lens, 1.5, source);
    return bench.surface.operations();
  };
  const auto left = drawnFrom({-230.0, 40.0});
  const auto right = drawnFrom({230.0, 40.0});
  ASSERT_EQ(left.size(), 19u);
  ASSERT_EQ(right.size(), 19u);
  for (std::size_t i = 0; i < left.size(); ++i) {
    if (i >= 6 && i < 13) continue;  // the construction
    EXPECT_EQ(left[i].kind, right[i].kind);
    EXPECT_EQ(left[i].x1, right[i].x1) << i;
    EXPECT_EQ(left[i].text, right[i].text) << i;
  }
  EXPECT_LT(right[8].x2, -400.0);
  EXPECT_GT(left[8].x2, 400.0);
}

TEST(DrawCardinalPoints, LeavesOutWhatHasNoAnswer) {
  const auto count = [](const Fakos& lens, double n, Point source) {
    FakeWorkbench bench;
    drawCardinalPoints(bench.surface, lens, n, source);
    return bench.surface.operations().size();
  };
  const Fakos lens{-50.0, 100.0, 20.0, 90.0};
  const CardinalPoints p = cardinalPoints(lens, 1.5);
  EXPECT_EQ(count(lens, 1.5, {-200.0, 30.0}), 19u);
  EXPECT_EQ(count(lens, 1.5, {-200.0, 0.0}), 12u);
  EXPECT_EQ(count(lens, 1.5, {p.F1, 30.0}), 12u);
  EXPECT_EQ(count(lens, 1.5, {p.F2, 30.0}), 12u);  // right of the lens: in mirror image
  EXPECT_EQ(count(lens, 1.0, {-200.0, 30.0}), 0u);
  EXPECT_EQ(count({-50.0, 100.0, 300.0, 90.0}, 1.5, {-200.0, 30.0}), 0u);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
