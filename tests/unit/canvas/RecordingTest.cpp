// What a recording plays on another canvas is what was drawn on it.
#include <gtest/gtest.h>
#include <string>
#include <tuple>

#include "canvas/Recording.h"

namespace lensbench {
namespace {

constexpr Rgb red = RGB(255, 0, 0);

// Everything that an operation holds, to be compared.
auto contents(const Operation& op) {
  return std::make_tuple(op.kind, op.x1, op.y1, op.x2, op.y2, op.radius, op.colour.value, op.width,
                         op.style, op.fill ? std::optional(op.fill->value) : std::nullopt, op.text,
                         op.font.name, op.font.size, op.body.outline.size(), op.body.borderWidth);
}

void drawEverything(Canvas& canvas) {
  canvas.BackColor(RGB(200, 210, 220));
  canvas.Cls();
  canvas.Scale(-10, 5, 10, -5);
  canvas.DrawWidth(3);
  canvas.Line(1, 2, 3, 4, red);
  canvas.DrawWidth(1);
  canvas.DrawStyle(DrawStyle::Dotted);
  canvas.Line(-1, -2, -3, -4);
  canvas.DrawStyle(DrawStyle::Solid);
  canvas.Circle(0, 0, 2, black);
  canvas.Circle(0, 0, 2, black, 1.0, 2.0);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillColor(RGB(9, 8, 7));
  canvas.Circle(1, 1, 0.5, red);
  canvas.FloodFill(30, 20, black);
  canvas.FillBody(31, 21, black, {{{{0, 0}, 2, 0.0, 3.0}}, 2});
  canvas.FillStyle(FillStyle::Transparent);
  canvas.PSet(4, 4, red);
  canvas.ForeColor(RGB(0, 0, 99));
  canvas.FontName("Times New Roman Greek");
  canvas.FontSize(13);
  canvas.CurrentX(2);
  canvas.CurrentY(-2);
  canvas.Print("F1");
}

TEST(Recording, PlaysEveryOperationAsItWasDrawn) {
  Recording first(400, 200);
  drawEverything(first);
  Recording second(400, 200);
  first.playOn(second);
  ASSERT_EQ(second.operations().size(), first.operations().size());
  for (std::size_t i = 0; i < first.operations().size(); ++i) {
    EXPECT_EQ(contents(second.operations()[i]), contents(first.operations()[i])) << i;
  }
}

TEST(Recording, AFillFindsItsPlaceOnACanvasOfAnotherSize) {
  Recording small(400, 200);
  small.Scale(-10, 5, 10, -5);
  small.FillStyle(FillStyle::Solid);
  small.FloodFill(399, 0, black);
  Recording large(800, 600);
  small.playOn(large);
  EXPECT_EQ(large.operations().back().x1, 799.0);
  EXPECT_EQ(large.operations().back().y1, 1.0);
}

TEST(Recording, ACopyIsAValueOfItsOwn) {
  Recording first;
  first.Line(0, 0, 1, 1);
  Recording second = first;
  second.Line(1, 1, 2, 2);
  EXPECT_EQ(first.operations().size(), 1u);
  EXPECT_EQ(second.operations().size(), 2u);
}

}  // namespace
}  // namespace lensbench
