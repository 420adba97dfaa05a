// One step of the moving waves as drawing operations: rub out, mend the scene, draw both fronts.
#include <gtest/gtest.h>
#include <vector>

#include "optics/poreiaaktinon/Bundles.h"
#include "screens/kelmo/Scene.h"
#include "screens/kelmo/WaveAnimation.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench {
namespace {

using Kind = Operation::Kind;
using Operations = std::vector<Operation>;

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb darkBlue = RGB(2, 0, 150);

class AnimationOrderTest : public ::testing::Test {
 protected:
  AnimationOrderTest() {
    drawWaveScene(bench);
    animation.start({poreiaaktinon::bundlePaths(poreiaaktinon::setupOf(bench), 0.0, 20), false});
    bench.surface.forget();
  }

  Operations drawn(int step) {
    bench.surface.forget();
    animation.draw(bench, step);
    return bench.surface.operations();
  }
  // The operations that draw the front of a step in a colour.
  Operations front(int step, Rgb colour) const {
    Operations all;
    const Front f = frontAt(animation.set(), 2.5 * step);
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
  Operations mending() {
    bench.surface.forget();
    redrawWaveScene(bench.surface, lensScene(bench));
    return bench.surface.operations();
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

  poreiaaktinon::FakeWorkbench bench;
  WaveAnimation animation;
};

TEST_F(AnimationOrderTest, TheFirstStepHasNothingToRubOut) {
  const Operations step = drawn(1);
  EXPECT_TRUE(same(step, front(1, red)));
}

TEST_F(AnimationOrderTest, AStepRubsOutMendsAndDraws) {
  drawn(1);
  const Operations step = drawn(2);
  EXPECT_TRUE(same(step, joined({front(1, white), mending(), front(2, red)})));
}

TEST_F(AnimationOrderTest, TwoFrontsAreRubbedOutBeforeTwoAreDrawn) {
  drawn(41);
  const Operations step = drawn(42);
  EXPECT_TRUE(same(step, joined({front(41, white), front(1, white), mending(), front(42, red),
                                 front(2, darkBlue)})));
}

TEST_F(AnimationOrderTest, TheSecondFrontIsAbsentFor40Steps) {
  const Operations step = drawn(40);
  EXPECT_TRUE(same(step, front(40, red)));
}

TEST_F(AnimationOrderTest, WhatWasDrawnWithAnotherIndexIsRubbedOutAsItWasDrawn) {
  drawn(60);
  const Operations old = joined({front(60, white), front(20, white)});
  bench.n = 2.0;
  const Operations step = drawn(61);
  ASSERT_GT(step.size(), old.size());
  // The focal circles of the old index go too, somewhere before the scene is mended.
  Operations rubbedOut;
  for (const Operation& op : step) {
    if (op.colour == white && op.kind != Kind::Circle) rubbedOut.push_back(op);
  }
  EXPECT_TRUE(same(rubbedOut, old));
  const Operations rest = joined({mending(), front(61, red), front(21, darkBlue)});
  EXPECT_TRUE(same({step.end() - static_cast<std::ptrdiff_t>(rest.size()), step.end()}, rest));
}

TEST_F(AnimationOrderTest, WithoutASetNothingIsDrawn) {
  drawn(10);
  animation.drop();
  EXPECT_TRUE(drawn(11).empty());
  EXPECT_TRUE(animation.set().rays.empty());
}

TEST_F(AnimationOrderTest, ANewSetHasNothingToRubOut) {
  drawn(10);
  animation.start({poreiaaktinon::bundlePaths(poreiaaktinon::setupOf(bench), 0.2, 20), false});
  const Operations step = drawn(1);
  EXPECT_TRUE(same(step, front(1, red)));
}

TEST_F(AnimationOrderTest, ASetOfMoreThan1501RaysIsNotTaken) {
  const auto ray = animation.set().rays[0];
  animation.start({std::vector(1502, ray), false});
  EXPECT_TRUE(animation.set().rays.empty());
  animation.start({std::vector(1501, ray), false});
  EXPECT_EQ(animation.set().rays.size(), 1501U);
}

}  // namespace
}  // namespace lensbench
