#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <numbers>
#include <vector>

#include "canvas/Canvas.h"
#include "canvas/Recording.h"
#include "canvas/RuntimeError.h"

namespace lensbench {
namespace {

constexpr double pi = std::numbers::pi;

TEST(Canvas, CountsInTwipsUntilAScaleIsSet) {
  const Recording canvas(800, 400);
  EXPECT_FALSE(canvas.hasUserScale());
  EXPECT_EQ(canvas.ScaleLeft(), 0.0);
  EXPECT_EQ(canvas.ScaleTop(), 0.0);
  EXPECT_EQ(canvas.ScaleWidth(), 12000.0);
  EXPECT_EQ(canvas.ScaleHeight(), 6000.0);
}

TEST(Canvas, ScaleMapsTheCorners) {
  Recording canvas(800, 400);
  canvas.Scale(-400, 200, 400, -200);
  EXPECT_EQ(canvas.ScaleWidth(), 800.0);
  EXPECT_EQ(canvas.ScaleHeight(), -400.0);
  EXPECT_EQ(canvas.ScaleX(0 - canvas.ScaleLeft(), ScaleUnit::User, ScaleUnit::Pixel), 400.0);
  EXPECT_EQ(canvas.ScaleY(150 - canvas.ScaleTop(), ScaleUnit::User, ScaleUnit::Pixel), 50.0);
  EXPECT_EQ(canvas.ScaleX(10, ScaleUnit::Pixel, ScaleUnit::Twip), 150.0);
  EXPECT_EQ(canvas.ScaleY(150, ScaleUnit::Twip, ScaleUnit::User), -10.0);
}

TEST(Canvas, AScaleWithoutLengthIsDivisionByZero) {
  Recording canvas;
  EXPECT_THROW(canvas.Scale(1, 1, 1, 2), RuntimeError);
  EXPECT_THROW(canvas.Scale(0, 2, 1, 2), RuntimeError);
  EXPECT_FALSE(canvas.hasUserScale());
}

TEST(Canvas, LineTakesForeColorAndMovesTheCurrentPoint) {
  Recording canvas;
  canvas.ForeColor(RGB(1, 2, 3));
  canvas.DrawWidth(4);
  canvas.DrawStyle(DrawStyle::Dotted);
  canvas.Line(1, 2, 3, 4);
  canvas.Line(0, 0, 5, 6, RGB(255, 0, 0));
  ASSERT_EQ(canvas.operations().size(), 2u);
  const Operation& first = canvas.operations()[0];
  EXPECT_EQ(first.colour, RGB(1, 2, 3));
  EXPECT_EQ(first.width, 4);
  EXPECT_EQ(first.style, DrawStyle::Dotted);
  EXPECT_EQ(first.x2, 3.0);
  EXPECT_EQ(canvas.operations()[1].colour, RGB(255, 0, 0));
  EXPECT_EQ(canvas.CurrentX(), 5.0);
  EXPECT_EQ(canvas.CurrentY(), 6.0);
  canvas.Cls();
  EXPECT_EQ(canvas.CurrentX(), 0.0);
  EXPECT_EQ(canvas.CurrentY(), 0.0);
}

TEST(Canvas, AnArcFromBeforeToAfterAngleZeroPassesThroughIt) {
  Recording canvas;
  const double alpha = 0.4;
  canvas.Circle(0, 0, 10, black, 2 * pi - alpha, alpha);
  const Operation& arc = canvas.operations().back();
  EXPECT_DOUBLE_EQ(arc.x2, 2 * pi - alpha);
  EXPECT_NEAR(arc.y2 - arc.x2, 2 * alpha, 1e-14);
}

TEST(Canvas, AnArcWithoutLengthHasNoSweepAndAWholeTurnStaysWhole) {
  Recording canvas;
  canvas.Circle(0, 0, 10, black, 2 * pi, 0);
  EXPECT_EQ(canvas.operations().back().x2, canvas.operations().back().y2);
  canvas.Circle(0, 0, 10, black, 0, 2 * pi);
  EXPECT_DOUBLE_EQ(canvas.operations().back().y2, 2 * pi);
}

TEST(Canvas, ClosedCirclesAreFilledWhileFillStyleIsSolid) {
  Recording canvas;
  canvas.FillColor(RGB(9, 9, 9));
  canvas.Circle(0, 0, 3);
  EXPECT_FALSE(canvas.operations().back().fill.has_value());
  canvas.FillStyle(FillStyle::Solid);
  canvas.Circle(0, 0, 3);
  EXPECT_EQ(canvas.operations().back().fill, std::optional(RGB(9, 9, 9)));
}

TEST(Canvas, ATransparentFillFillsNothing) {
  Recording canvas;
  canvas.FillColor(RGB(9, 9, 9));
  EXPECT_FALSE(canvas.FloodFill(10, 10, black));
  EXPECT_TRUE(canvas.operations().empty());
  canvas.FillStyle(FillStyle::Solid);
  EXPECT_TRUE(canvas.FloodFill(10, 10, black));
  ASSERT_EQ(canvas.operations().size(), 1u);
  EXPECT_EQ(canvas.operations().back().fill, std::optional(RGB(9, 9, 9)));
}

TEST(Canvas, PrintMovesOneLineDownTheScreen) {
  Recording canvas(100, 100);
  canvas.Scale(-50, 50, 50, -50);
  canvas.CurrentX(10);
  canvas.CurrentY(20);
  canvas.Print("F1");
  EXPECT_EQ(canvas.operations().back().text, "F1");
  EXPECT_EQ(canvas.operations().back().x1, 10.0);
  EXPECT_EQ(canvas.operations().back().y1, 20.0);
  EXPECT_LT(canvas.CurrentY(), 20.0);
  canvas.Cls();
  canvas.Print("middle");
  EXPECT_EQ(canvas.operations().back().x1, 0.0);
  EXPECT_EQ(canvas.operations().back().y1, 0.0);
}

TEST(Canvas, ANumberThatIsNotFiniteNeverReachesTheSurface) {
  Recording canvas;
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::nan("");
  EXPECT_THROW(canvas.Line(0, 0, inf, 0), RuntimeError);
  EXPECT_THROW(canvas.Circle(0, nan, 1), RuntimeError);
  EXPECT_THROW(canvas.Circle(0, 0, 1, black, 0, inf), RuntimeError);
  EXPECT_THROW(canvas.PSet(-inf, 0), RuntimeError);
  EXPECT_THROW(canvas.CurrentX(nan), RuntimeError);
  EXPECT_THROW(canvas.Scale(0, 0, inf, 1), RuntimeError);
  EXPECT_TRUE(canvas.operations().empty());
}

TEST(Canvas, ABatchOfDotsIsTheDotsInOrder) {
  Recording canvas;
  canvas.DrawWidth(2);
  const std::vector<Point> points{{1, 2}, {3, 4}};
  canvas.PSets(points, RGB(255, 0, 0));
  ASSERT_EQ(canvas.operations().size(), 2u);
  EXPECT_EQ(canvas.operations()[1].kind, Operation::Kind::PSet);
  EXPECT_EQ(canvas.operations()[1].y1, 4.0);
  EXPECT_EQ(canvas.operations()[1].width, 2);
  EXPECT_EQ(canvas.operations()[1].colour, RGB(255, 0, 0));
  const std::vector<Point> bad{{1, 2}, {std::nan(""), 4}};
  EXPECT_THROW(canvas.PSets(bad), RuntimeError);
  EXPECT_EQ(canvas.operations().size(), 2u);
}

TEST(Canvas, AFillThatIsToldItsBodyIsAFloodFill) {
  Recording canvas;
  const Body body{{{{0, 0}, 5, 0, pi}}, 2};
  EXPECT_FALSE(canvas.FillBody(10, 20, black, body));
  EXPECT_TRUE(canvas.operations().empty());
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillColor(RGB(9, 9, 9));
  EXPECT_TRUE(canvas.FillBody(10, 20, black, body));
  ASSERT_EQ(canvas.operations().size(), 1u);
  const Operation& fill = canvas.operations().back();
  EXPECT_EQ(fill.kind, Operation::Kind::FloodFill);
  EXPECT_EQ(fill.x1, 10.0);
  EXPECT_EQ(fill.y1, 20.0);
  EXPECT_EQ(fill.fill, std::optional(RGB(9, 9, 9)));
  EXPECT_EQ(fill.body.outline.size(), 1u);
  EXPECT_EQ(fill.body.borderWidth, 2);
}

TEST(Canvas, SystemColourFiveIsWhite) {
  Recording canvas;
  canvas.BackColor(systemColour(5));
  canvas.Cls();
  EXPECT_EQ(canvas.operations().back().colour, white);
}

TEST(Rgb, KeepsRedInTheLowestByte) {
  EXPECT_EQ(RGB(1, 2, 3).value, 0x030201u);
  EXPECT_EQ(RGB(300, -5, 256), RGB(255, 0, 255));
}

}  // namespace
}  // namespace lensbench
