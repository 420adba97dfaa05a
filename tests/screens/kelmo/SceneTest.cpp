// The still pictures of the workbench as drawing operations: every one in its order, with its
// colour and width.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench {
namespace {

using poreiaaktinon::Fakos;
using poreiaaktinon::LensScene;
using poreiaaktinon::WaveScene;
using Kind = Operation::Kind;
using Operations = std::vector<Operation>;

constexpr Rgb focal = RGB(55, 0, 0);
constexpr Rgb centreMark = RGB(5, 0, 0);
constexpr Rgb glass = RGB(220, 220, 195);

Operation stroke(Kind kind, double x, double y, Rgb colour, int width) {
  Operation op;
  op.kind = kind;
  op.x1 = x;
  op.y1 = y;
  op.colour = colour;
  op.width = width;
  return op;
}

Operation line(double x1, double y1, double x2, double y2, Rgb colour, int width,
               DrawStyle style = DrawStyle::Solid) {
  Operation op = stroke(Kind::Line, x1, y1, colour, width);
  op.x2 = x2;
  op.y2 = y2;
  op.style = style;
  return op;
}

Operation circle(double x, double radius, Rgb colour, DrawStyle style = DrawStyle::Solid,
                 std::optional<Rgb> fill = {}) {
  Operation op = stroke(Kind::Circle, x, 0.0, colour, 1);
  op.radius = radius;
  op.style = style;
  op.fill = fill;
  return op;
}

Operation arc(double x, double radius, double start, double end) {
  Operation op = stroke(Kind::Arc, x, 0.0, black, 2);
  op.radius = radius;
  op.x2 = start;
  op.y2 = end;
  return op;
}

Operation dot(double x, double y, Rgb colour) { return stroke(Kind::PSet, x, y, colour, 15); }

Operation label(double x, double y, const char* text) {
  Operation op = stroke(Kind::Print, x, y, black, 1);
  op.text = text;
  op.font = {"Arial", 13.0};
  return op;
}

Operation fillAt(double pixelX, double pixelY) {
  Operation op;
  op.kind = Kind::FloodFill;
  op.x1 = pixelX;
  op.y1 = pixelY;
  op.colour = black;
  op.fill = glass;
  return op;
}

bool same(const Operation& a, const Operation& b) {
  const auto near = [](double u, double v) { return std::fabs(u - v) < 1e-9; };
  return a.kind == b.kind && near(a.x1, b.x1) && near(a.y1, b.y1) && near(a.x2, b.x2) &&
         near(a.y2, b.y2) && near(a.radius, b.radius) && a.colour == b.colour &&
         a.width == b.width && a.style == b.style && a.fill == b.fill && a.text == b.text &&
         (a.kind != Kind::Print || (a.font.name == b.font.name && a.font.size == b.font.size));
}

::testing::AssertionResult sameInOrder(const Operations& drawn, const Operations& expected) {
  for (std::size_t i = 0; i < std::min(drawn.size(), expected.size()); ++i) {
    if (!same(drawn[i], expected[i])) {
      return ::testing::AssertionFailure()
             << "operation " << i << " is " << drawn[i] << ", expected " << expected[i];
    }
  }
  if (drawn.size() == expected.size()) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << drawn.size() << " operations, expected " << expected.size();
}

void append(Operations& list, const Operations& more) {
  list.insert(list.end(), more.begin(), more.end());
}

class SceneTest : public ::testing::Test {
 protected:
  SceneTest() { surface.Scale(-400.0, 200.0, 400.0, -200.0); }

  // The lens by school geometry: the chord of the two circles, and the thick-lens formulas.
  struct Numbers {
    double xordi, h, f;          // abscissa of the chord, half-height, thin focal length
    double rightHalf, leftHalf;  // half-angles of the faces
    double H1, H2, F1, F2;
  };
  Numbers numbers() const {
    const Fakos& l = lens;
    const double d = l.xc2 - l.xc1;
    const double toChord = (d * d + l.R1 * l.R1 - l.R2 * l.R2) / (2.0 * d);
    const double xordi = l.xc1 + toChord;
    const double h = std::sqrt(l.R1 * l.R1 - toChord * toChord);
    const double m = n - 1.0;
    const double f = 1.0 / (m * (1.0 / l.R1 + 1.0 / l.R2));
    const double V1 = l.xc2 - l.R2;
    const double V2 = l.xc1 + l.R1;
    const double thick = 1.0 / (m / l.R1 + m / l.R2 - m * m * (V2 - V1) / (n * l.R1 * l.R2));
    const double H1 = V1 + (V2 - V1) * thick * m / (n * l.R2);
    const double H2 = V2 - (V2 - V1) * thick * m / (n * l.R1);
    return {xordi, h,          f,         std::atan2(h, toChord), std::atan2(h, l.xc2 - xordi), H1,
            H2,    H1 - thick, H2 + thick};
  }

  Operations faces() const {
    const Numbers k = numbers();
    const Fakos& l = lens;
    return {arc(l.xc1, l.R1, 2.0 * std::numbers::pi - k.rightHalf,
                2.0 * std::numbers::pi + k.rightHalf),
            arc(l.xc2, l.R2, std::numbers::pi - k.leftHalf, std::numbers::pi + k.leftHalf)};
  }
  Operations focalCircles(std::optional<Rgb> fill = {}) const {
    const Numbers k = numbers();
    return {circle(k.xordi - k.f, 3.0, focal, DrawStyle::Solid, fill),
            circle(k.xordi + k.f, 3.0, focal, DrawStyle::Solid, fill)};
  }
  Operations centres() const {
    return {circle(lens.xc1, 3.0, centreMark), circle(lens.xc2, 3.0, centreMark)};
  }
  Operations fullCircles(DrawStyle style) const {
    return {circle(lens.xc1, lens.R1, black, style), circle(lens.xc2, lens.R2, black, style)};
  }
  Operations rimLines() const {
    const double h = numbers().h;
    return {line(-200.0, h, 200.0, h, RGB(0, 255, 0), 2),
            line(-200.0, -h, 200.0, -h, RGB(0, 255, 0), 2)};
  }
  Operations marks() const {
    const Numbers k = numbers();
    return {line(k.H1, -200.0, k.H1, 200.0, black, 1, DrawStyle::Dotted),
            line(k.H2, -200.0, k.H2, 200.0, black, 1, DrawStyle::Dotted),
            dot(k.F1, 0.0, RGB(255, 0, 0)),
            dot(k.F2, 0.0, RGB(255, 0, 0)),
            dot(k.H1, 0.0, RGB(5, 250, 0)),
            dot(k.H2, 0.0, RGB(5, 250, 0))};
  }
  Operations labels() const {
    const Numbers k = numbers();
    return {label(k.H1, 150.0, "H1"), label(k.H2, 150.0, "H2"), label(k.F1, -2.0, "F1"),
            label(k.F2, -2.0, "F2"),  label(k.H1, -2.0, "N1"),  label(k.H2, -2.0, "N2")};
  }
  Operations construction() const {
    const Numbers k = numbers();
    const Rgb cyan = RGB(0, 255, 255);
    const auto [x, y] = source;
    const double y1 = y - (k.H1 - x) * y / (k.F1 - x);
    const double s2 = -y / (k.F2 - k.H2);
    const double s3 = -y / (k.H1 - x);
    return {
        line(x, y, k.H2, y, cyan, 2),       line(x, y, k.H1, y1, cyan, 2),
        line(k.H1, y1, 500.0, y1, cyan, 2), line(k.H2, y, 500.0, y + (500.0 - k.H2) * s2, cyan, 2),
        line(x, y, k.H1, 0.0, cyan, 2),     line(k.H2, 0.0, 500.0, (500.0 - k.H2) * s3, cyan, 2),
        dot(k.H2 + (y1 - y) / s2, y1, cyan)};
  }
  // Everything up to the cardinal points, with the fill at this pixel.
  Operations bodyFilledAt(double pixelX) const {
    Operations all = faces();
    append(all, focalCircles());
    append(all, rimLines());
    append(all, centres());
    append(all, fullCircles(DrawStyle::Solid));
    all.push_back(fillAt(pixelX, 200.0));
    append(all, centres());
    append(all, focalCircles());
    append(all, rimLines());
    append(all, fullCircles(DrawStyle::Solid));
    return all;
  }

  // What is drawn behind the clearing.
  Operations drawn() { return drawnWith({{LensScene{lens, n, source}}}); }
  Operations drawnWith(const poreiaaktinon::Shown& shown) {
    surface.forget();
    draw(surface, shown);
    const Operations& all = surface.operations();
    EXPECT_EQ(all.at(0).kind, Kind::Cls);
    return {all.begin() + 1, all.end()};
  }

  // The lens, index and source with which the workbench opens.
  Fakos lens{-50.0, 100.0, 20.0, 90.0};
  double n = 1.5;
  Point source{-200.0, 0.0};
  Recording surface{800.0, 400.0};
};

TEST_F(SceneTest, TheStartLensIsDrawnInOrderAndFilledFromTheAxis) {
  EXPECT_NEAR(numbers().xordi, -1.42857, 1e-4);
  // 120 units thick: filled 50 units left of the right vertex, at x = 0.
  Operations expected = bodyFilledAt(400.0);
  append(expected, marks());
  append(expected, labels());
  EXPECT_TRUE(sameInOrder(drawn(), expected));
}

TEST_F(SceneTest, ASourceOffTheAxisAddsTheConstructionBetweenMarksAndLabels) {
  source = {-250.0, 60.0};
  Operations expected = bodyFilledAt(400.0);
  append(expected, marks());
  append(expected, construction());
  append(expected, labels());
  EXPECT_TRUE(sameInOrder(drawn(), expected));
}

TEST_F(SceneTest, AnIndexBelowOneHasAllOfIt) {
  n = 0.6;
  source = {-250.0, 60.0};
  Operations expected = bodyFilledAt(400.0);
  append(expected, marks());
  append(expected, construction());
  append(expected, labels());
  EXPECT_TRUE(sameInOrder(drawn(), expected));
}

TEST_F(SceneTest, StraightAboveAFocalOrNodalPointThereIsNoConstruction) {
  const Numbers k = numbers();
  const Operations onAxis = drawn();
  for (const double x : {k.F1, k.H1}) {
    source = {x, 60.0};
    EXPECT_TRUE(sameInOrder(drawn(), onAxis));
  }
}

TEST_F(SceneTest, AThinLensIsFilledFromItsMiddle) {
  lens = {-50.0, 60.0, 45.0, 70.0};  // from -25 to 10
  Operations expected = bodyFilledAt(392.0);
  append(expected, marks());
  append(expected, labels());
  EXPECT_TRUE(sameInOrder(drawn(), expected));
}

TEST_F(SceneTest, FacesOfMoreThanHalfACircleKeepTheirAngles) {
  lens = {0.0, 150.0, 100.0, 80.0};  // the chord is right of the centre of circle 2
  ASSERT_GT(numbers().xordi, 100.0);
  ASSERT_GT(numbers().leftHalf, std::numbers::pi / 2.0);
  const Operations ops = drawn();
  EXPECT_TRUE(sameInOrder({ops[0], ops[1]}, faces()));
}

TEST_F(SceneTest, AtIndexOneThereAreNoFocalCirclesAndNoCardinalPoints) {
  n = 1.0;
  source = {-250.0, 60.0};
  Operations expected = faces();
  append(expected, rimLines());
  append(expected, centres());
  append(expected, fullCircles(DrawStyle::Solid));
  expected.push_back(fillAt(400.0, 200.0));
  append(expected, centres());
  append(expected, rimLines());
  append(expected, fullCircles(DrawStyle::Solid));
  EXPECT_TRUE(sameInOrder(drawn(), expected));
}

TEST_F(SceneTest, CirclesThatDoNotCrossLeaveOnlyThemselvesAndTheirCentres) {
  for (const Fakos& apart : {Fakos{-300.0, 100.0, 300.0, 90.0}, Fakos{0.0, 500.0, 0.0, 90.0},
                             Fakos{-50.0, 100.0, 20.0, 0.0}}) {
    lens = apart;
    source = {-250.0, 60.0};
    Operations expected = centres();
    append(expected, fullCircles(DrawStyle::Solid));
    EXPECT_TRUE(sameInOrder(drawn(), expected));
  }
}

TEST_F(SceneTest, LeavesAThinSolidPenAndNoFill) {
  surface.DrawWidth(7);
  drawn();
  EXPECT_EQ(surface.DrawWidth(), 1);
  EXPECT_EQ(surface.DrawStyle(), DrawStyle::Solid);
  EXPECT_EQ(surface.FillStyle(), FillStyle::Transparent);
  EXPECT_EQ(surface.FillColor(), glass);
  EXPECT_EQ(surface.FontName(), "Arial");
  EXPECT_EQ(surface.FontSize(), 10.0);
}

TEST_F(SceneTest, TheSceneUnderMovingWavesIsDottedAndNotFilled) {
  drawn();
  const Operations ops = drawnWith({{WaveScene{lens, n}}});
  Operations expected = focalCircles(glass);
  append(expected, fullCircles(DrawStyle::Dotted));
  append(expected, faces());
  EXPECT_TRUE(sameInOrder(ops, expected));
  EXPECT_EQ(surface.DrawWidth(), 1);
  EXPECT_EQ(surface.DrawStyle(), DrawStyle::Solid);
  EXPECT_EQ(surface.FillStyle(), FillStyle::Transparent);
}

}  // namespace
}  // namespace lensbench
