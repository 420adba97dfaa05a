// Cardinal points and the construction of the image.
#include <gtest/gtest.h>
#include <vector>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using Kind = Operation::Kind;

TEST(CardinalPoints, SymmetricLensHasSymmetricPoints) {
  const CardinalPoints p = cardinalPoints({-60.0, 100.0, 60.0, 100.0}, 1.5);
  EXPECT_EQ(p.d, 80.0);
  // 1/f = 0.5 (1/100 + 1/100) - 0.25 * 80 / (1.5 * 10000)
  EXPECT_NEAR(p.f, 1.0 / (0.01 - 20.0 / 15000.0), 1e-10);
  EXPECT_NEAR(p.H1, -p.H2, 1e-12);
  EXPECT_NEAR(p.F1, -p.F2, 1e-12);
  EXPECT_NEAR(p.H1 - p.F1, p.f, 1e-12);
  EXPECT_EQ(p.N1, p.H1);
  EXPECT_EQ(p.N2, p.H2);
}

TEST(CardinalPoints, PrincipalPointsGoWithTheRadiusOfTheirOwnFace) {
  const CardinalPoints p = cardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.5);
  EXPECT_EQ(p.d, 120.0);
  const double f = 1.0 / (0.5 / 100.0 + 0.5 / 90.0 - 0.25 * 120.0 / 1.5 / 9000.0);
  EXPECT_NEAR(p.f, f, 1e-10);
  EXPECT_NEAR(p.H1, -70.0 + 120.0 * f * 0.5 / (1.5 * 90.0), 1e-10);
  EXPECT_NEAR(p.H2, 50.0 - 120.0 * f * 0.5 / (1.5 * 100.0), 1e-10);
}

TEST(CardinalPoints, WithoutThicknessTheyAreThoseOfTheThinLens) {
  const CardinalPoints p = cardinalPoints({-100.0, 100.0, 90.0, 90.0}, 1.5);
  EXPECT_EQ(p.d, 0.0);
  EXPECT_NEAR(p.f, estiakiapostasi(100, 90, 1.5).value(), 1e-10);
  EXPECT_EQ(p.H1, 0.0);
  EXPECT_EQ(p.H2, 0.0);
}

TEST(CardinalPoints, LensWithoutPowerIsDivisionByZero) {
  EXPECT_THROW(cardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.0), RuntimeError);
  EXPECT_THROW(cardinalPoints({-50.0, 100.0, 20.0, 0.0}, 1.5), RuntimeError);
}

TEST(HasCardinalPoints, AsksForALensWithPower) {
  EXPECT_TRUE(hasCardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.5));
  EXPECT_TRUE(hasCardinalPoints({-50.0, 100.0, 20.0, 90.0}, 0.5));
  EXPECT_FALSE(hasCardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.0));
  EXPECT_FALSE(hasCardinalPoints({-50.0, 100.0, 300.0, 90.0}, 1.5));
  EXPECT_FALSE(hasCardinalPoints({-50.0, 100.0, 50.0, 0.0}, 1.5));
  // R1 + R2 = d (n - 1)/n: an afocal lens.
  EXPECT_FALSE(hasCardinalPoints({0.0, 100.0, 0.0, 100.0}, 1.5));
}

TEST(CanConstruct, NeedsASourceOffTheAxisAndOffF1AndN1) {
  const CardinalPoints p = cardinalPoints({-50.0, 100.0, 20.0, 90.0}, 1.5);
  EXPECT_TRUE(canConstruct(p, {-200.0, 30.0}, Travel::Right));
  EXPECT_FALSE(canConstruct(p, {-200.0, 0.0}, Travel::Right));
  // A slope that underflows to 0.
  EXPECT_FALSE(canConstruct(p, {-200.0, 5e-324}, Travel::Right));
  EXPECT_FALSE(canConstruct(p, {p.F1, 30.0}, Travel::Right));
  EXPECT_FALSE(canConstruct(p, {p.N1, 30.0}, Travel::Right));
}

TEST(Xaraktiristikasimeia, DrawsMarksConstructionAndLabelsInOrder) {
  FakeWorkbench bench;
  bench.source = {-300.0, 40.0};
  bench.surface.DrawWidth(7);
  xaraktiristikasimeia();

  const CardinalPoints p = cardinalPoints(bench.lens, bench.n);
  const Rgb cyan = RGB(0, 255, 255);
  const double s1 = -40.0 / (p.F1 + 300.0);
  const double y1 = 40.0 + (p.H1 + 300.0) * s1;
  const double s2 = -40.0 / p.f;
  const double s3 = -40.0 / (p.N1 + 300.0);
  const double x = p.H2 + (y1 - 40.0) / s2;
  struct Expected {
    Kind kind;
    double x1, y1, x2, y2;
    Rgb colour;
    int width;
    DrawStyle style;
  };
  const std::vector<Expected> figures{
      {Kind::Line, p.H1, -200, p.H1, 200, black, 1, DrawStyle::Dotted},
      {Kind::Line, p.H2, -200, p.H2, 200, black, 1, DrawStyle::Dotted},
      {Kind::PSet, p.F1, 0, 0, 0, RGB(255, 0, 0), 15, DrawStyle::Solid},
      {Kind::PSet, p.F2, 0, 0, 0, RGB(255, 0, 0), 15, DrawStyle::Solid},
      {Kind::PSet, p.N1, 0, 0, 0, RGB(5, 250, 0), 15, DrawStyle::Solid},
      {Kind::PSet, p.N2, 0, 0, 0, RGB(5, 250, 0), 15, DrawStyle::Solid},
      {Kind::Line, -300, 40, p.H2, 40, cyan, 2, DrawStyle::Solid},
      {Kind::Line, -300, 40, p.H1, y1, cyan, 2, DrawStyle::Solid},
      {Kind::Line, p.H1, y1, 500, y1, cyan, 2, DrawStyle::Solid},
      {Kind::Line, p.H2, 40, 500, 40 + (500 - p.H2) * s2, cyan, 2, DrawStyle::Solid},
      {Kind::Line, -300, 40, p.N1, 0, cyan, 2, DrawStyle::Solid},
      {Kind::Line, p.N2, 0, 500, (500 - p.N2) * s3, cyan, 2, DrawStyle::Solid},
      {Kind::PSet, x, y1, 0, 0, cyan, 15, DrawStyle::Solid}};
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), figures.size() + 6);
  for (std::size_t i = 0; i < figures.size(); ++i) {
    EXPECT_EQ(drawn[i].kind, figures[i].kind) << i;
    EXPECT_NEAR(drawn[i].x1, figures[i].x1, 1e-9) << i;
    EXPECT_NEAR(drawn[i].y1, figures[i].y1, 1e-9) << i;
    EXPECT_NEAR(drawn[i].x2, figures[i].x2, 1e-9) << i;
    EXPECT_NEAR(drawn[i].y2, figures[i].y2, 1e-9) << i;
    EXPECT_EQ(drawn[i].colour, figures[i].colour) << i;
    EXPECT_EQ(drawn[i].width, figures[i].width) << i;
    EXPECT_EQ(drawn[i].style, figures[i].style) << i;
  }
  EXPECT_LT(y1 * 40.0, 0.0);  // a real image stands upside down
  EXPECT_GT(x, 50.0);

  const std::vector<std::pair<std::string, Point>> labels{{"H1", {p.H1, 150}}, {"H2", {p.H2, 150}},
                                                          {"F1", {p.F1, -2}},  {"F2", {p.F2, -2}},
                                                          {"N1", {p.N1, -2}},  {"N2", {p.N2, -2}}};
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const Operation& op = drawn[figures.size() + i];
    EXPECT_EQ(op.kind, Kind::Print);
    EXPECT_EQ(op.text, labels[i].first);
    EXPECT_EQ(op.x1, labels[i].second.x);
    EXPECT_EQ(op.y1, labels[i].second.y);
    EXPECT_EQ(op.font.size, 13.0);
  }
  EXPECT_EQ(bench.surface.FontSize(), 10.0);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
  EXPECT_EQ(bench.surface.DrawStyle(), DrawStyle::Solid);
}

TEST(Xaraktiristikasimeia, TestsNothingAndRaises) {
  FakeWorkbench bench;  // the source stands on the axis
  EXPECT_THROW(xaraktiristikasimeia(), RuntimeError);
  bench.source.y = 40.0;
  bench.n = 1.0;
  EXPECT_THROW(xaraktiristikasimeia(), RuntimeError);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
