// One step of the moving waves as drawing operations: rub out, mend the scene, draw both fronts.
#include <gtest/gtest.h>
#include <vector>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench {
namespace {

using namespace poreiaaktinon;
using Kind = Operation::Kind;
using Operations = std::vector<Operation>;

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb darkBlue = RGB(2, 0, 150);
constexpr light::Edges edges{-400.0, 400.0, -200.0, 200.0};

class AnimationOrderTest : public ::testing::Test {
 protected:
  AnimationOrderTest() {
    surface.Scale(edges.left, edges.upper, edges.right, edges.lower);
    draw(surface, shown);
  }

  // What is drawn to get from what is shown to a step.
  Operations drawn(int step) {
    Shown next{{WaveScene{bench.fakos, bench.n}, Fronts{resent(set, bench, edges), step}}};
    return turnedInto(std::move(next));
  }
  Operations turnedInto(Shown next) {
    surface.forget();
    redraw(surface, shown, next);
    shown = std::move(next);
    return surface.operations();
  }
  // The operations that draw the front of a step in a colour.
  Operations front(int step, Rgb colour) const {
    Operations all;
    const Front f = frontAt(resent(set, bench, edges), 2.5 * step);
    for (const Front::Piece& piece : f.pieces) {
      Operation op;
      op.kind = Kind::Line;
      op.x1 = piece.from.x;
      op.y1 = piece.from.y;
      op.x2 = piece.to.x;
      op.y2 = piece.to.y;
      op.colour = colour;
      op.width = 2;
      all.push_back(op);
    }
    for (const Point& point : f.points) {
      Operation op;
      op.kind = Kind::PSet;
      op.x1 = point.x;
      op.y1 = point.y;
      op.colour = colour;
      op.width = 3;
      all.push_back(op);
    }
    return all;
  }
  // The white scene, drawn once more without clearing.
  Operations mending() const {
    Recording fresh(800.0, 400.0);
    fresh.Scale(edges.left, edges.upper, edges.right, edges.lower);
    fresh.forget();
    draw(fresh, {{WaveScene{bench.fakos, bench.n}}});
    return {fresh.operations().begin() + 1, fresh.operations().end()};
  }
  static Operations joined(const std::vector<Operations>& parts) {
    Operations all;
    for (const Operations& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  }
  static ::testing::AssertionResult same(const Operations& drawn, const Operations& expected) {
    if (drawn.size() != expected.size()) {
      return ::testing::AssertionFailure()
             << drawn.size() << " operations, expected " << expected.size();
    }
    for (std::size_t i = 0; i < drawn.size(); ++i) {
      const Operation& a = drawn[i];
      const Operation& b = expected[i];
      if (a.kind != b.kind || a.x1 != b.x1 || a.y1 != b.y1 || a.x2 != b.x2 || a.y2 != b.y2 ||
          a.radius != b.radius || a.colour != b.colour || a.width != b.width ||
          a.style != b.style || a.fill != b.fill) {
        return ::testing::AssertionFailure() << i << " is " << a << ", expected " << b;
      }
    }
    return ::testing::AssertionSuccess();
  }

  Recording surface{800.0, 400.0};
  Bench bench{{-50.0, 100.0, 20.0, 90.0}, 1.5, light::Diafragma{0.0, 1000.0, -1000.0}};
  Sent set = send(bench, Desmi{0.0, 20}, edges);
  Shown shown{{WaveScene{bench.fakos, bench.n}}};
};

TEST_F(AnimationOrderTest, TheFirstStepHasNothingToRubOut) {
  EXPECT_TRUE(same(drawn(1), front(1, red)));
}

TEST_F(AnimationOrderTest, AStepRubsOutMendsAndDraws) {
  drawn(1);
  EXPECT_TRUE(same(drawn(2), joined({front(1, white), mending(), front(2, red)})));
}

TEST_F(AnimationOrderTest, TwoFrontsAreRubbedOutBeforeTwoAreDrawn) {
  drawn(41);
  EXPECT_TRUE(same(drawn(42), joined({front(41, white), front(1, white), mending(), front(42, red),
                                      front(2, darkBlue)})));
}

TEST_F(AnimationOrderTest, TheSecondFrontIsAbsentFor40Steps) {
  EXPECT_TRUE(same(drawn(40), front(40, red)));
}

TEST_F(AnimationOrderTest, WithoutAChangeNothingIsDrawn) {
  drawn(10);
  EXPECT_TRUE(drawn(10).empty());
}

}  // namespace
}  // namespace lensbench
