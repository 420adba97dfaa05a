// The arcs of the two faces.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

TEST(FaceArcs, EndAtTheRim) {
  const Fakos lens{-50.0, 100.0, 20.0, 90.0};
  const auto arcs = faceArcs(lens);
  ASSERT_TRUE(arcs);
  EXPECT_NEAR(-50.0 + 100.0 * std::cos(arcs->rightEnd), 20.0 + 90.0 * std::cos(arcs->leftStart),
              1e-11);
  EXPECT_NEAR(100.0 * std::sin(arcs->rightEnd), 90.0 * std::sin(arcs->leftStart), 1e-11);
  EXPECT_NEAR(arcs->rightStart, 2.0 * pi - arcs->rightEnd, 1e-12);
  EXPECT_NEAR(arcs->leftEnd, 2.0 * pi - arcs->leftStart, 1e-12);
}

TEST(FaceArcs, FaceMayBeMoreThanHalfACircle) {
  const Fakos lens{-430.0, 500.0, 0.0, 90.0};  // the rim lies right of the centre of circle 2
  const auto arcs = faceArcs(lens);
  ASSERT_TRUE(arcs);
  EXPECT_GT(arcs->leftEnd - arcs->leftStart, pi);
  EXPECT_NEAR(-430.0 + 500.0 * std::cos(arcs->rightEnd), 90.0 * std::cos(arcs->leftStart), 1e-10);
  EXPECT_NEAR(500.0 * std::sin(arcs->rightEnd), 90.0 * std::sin(arcs->leftStart), 1e-10);
}

TEST(FaceArcs, ABallIsOneWholeCircle) {
  const auto arcs = faceArcs({-450.0, 500.0, 0.0, 50.0});
  ASSERT_TRUE(arcs);
  EXPECT_EQ(arcs->rightEnd, 0.0);
  EXPECT_NEAR(arcs->leftStart, 0.0, 1e-15);
  EXPECT_NEAR(arcs->leftEnd, 2.0 * pi, 1e-15);
}

TEST(FaceArcs, ABallOfCircleOneIsOneWholeCircleToo) {
  const auto arcs = faceArcs({0.0, 50.0, 450.0, 500.0});
  ASSERT_TRUE(arcs);
  EXPECT_EQ(arcs->rightStart, 0.0);
  EXPECT_EQ(arcs->rightEnd, 2.0 * pi);
  EXPECT_EQ(arcs->leftEnd - arcs->leftStart, 0.0);
}

TEST(FaceArcs, AnglesAreOfOneTurn) {
  for (const Fakos& lens : {Fakos{-50.0, 100.0, 20.0, 90.0}, Fakos{-430.0, 500.0, 0.0, 90.0},
                            Fakos{-450.0, 500.0, 0.0, 50.0}, Fakos{0.0, 50.0, 450.0, 500.0}}) {
    const auto arcs = faceArcs(lens);
    ASSERT_TRUE(arcs);
    for (const double angle : {arcs->rightStart, arcs->rightEnd, arcs->leftStart, arcs->leftEnd}) {
      EXPECT_GE(angle, 0.0);
      EXPECT_LE(angle, 2.0 * pi);
    }
  }
}

TEST(FaceArcs, NothingWithoutALens) {
  EXPECT_FALSE(faceArcs({-50.0, 100.0, 300.0, 90.0}));
  EXPECT_FALSE(faceArcs({0.0, 500.0, 0.0, 90.0}));
}

TEST(Sxediasitoxou, DrawsTheRightFaceThenTheLeftInBlack) {
  FakeWorkbench bench;
  sxediasitoxou1(-50, 100, 20, 90, 0, 0);
  sxediasitoxou2(-50, 100, 20, 90, 0, 0, 0);
  const auto& drawn = bench.surface.operations();
  ASSERT_EQ(drawn.size(), 2u);
  const auto arcs = faceArcs(bench.lens);
  ASSERT_TRUE(arcs);
  for (const Operation& op : drawn) {
    EXPECT_EQ(op.kind, Operation::Kind::Arc);
    EXPECT_EQ(op.colour, black);
    EXPECT_EQ(op.width, 2);
    EXPECT_EQ(op.y1, 0.0);
  }
  EXPECT_EQ(drawn[0].x1, -50.0);
  EXPECT_EQ(drawn[0].radius, 100.0);
  EXPECT_EQ(drawn[0].x2, arcs->rightStart);
  EXPECT_NEAR(drawn[0].y2 - drawn[0].x2, 2.0 * arcs->rightEnd, 1e-14);
  EXPECT_EQ(drawn[1].x1, 20.0);
  EXPECT_EQ(drawn[1].radius, 90.0);
  EXPECT_EQ(drawn[1].x2, arcs->leftStart);
  EXPECT_NEAR(drawn[1].y2, arcs->leftEnd, 1e-15);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
}

TEST(Sxediasitoxou, DrawsAWholeCircleWhole) {
  FakeWorkbench bench;
  sxediasitoxou1(0, 50, 450, 500, 0, 0);
  sxediasitoxou2(-450, 500, 0, 50, 0, 0, 0);
  ASSERT_EQ(bench.surface.operations().size(), 2u);
  for (const Operation& op : bench.surface.operations()) {
    EXPECT_EQ(op.radius, 50.0);
    EXPECT_NEAR(op.y2 - op.x2, 2.0 * pi, 1e-15);
  }
}

TEST(Sxediasitoxou, DrawsNothingWithoutALens) {
  FakeWorkbench bench;
  sxediasitoxou1(-50, 100, 300, 90, 0, 0);
  sxediasitoxou2(-50, 100, 50, 0, 0, 0, 0);
  EXPECT_TRUE(bench.surface.operations().empty());
}

TEST(Sxediasitoxou2, DrawsInTheGivenColour) {
  FakeWorkbench bench;
  sxediasitoxou2(-50, 100, 20, 90, 0, 0, static_cast<int>(RGB(255, 0, 0).value));
  ASSERT_EQ(bench.surface.operations().size(), 1u);
  EXPECT_EQ(bench.surface.operations()[0].colour, RGB(255, 0, 0));
}

TEST(Sxediasitoxou2, AColourOutOfRangeIsOverflow) {
  FakeWorkbench bench;
  for (const double colour : {-1.0, 4294967296.0, 1e300}) {
    EXPECT_EQ(errorNumber([&] { sxediasitoxou2(-50, 100, 20, 90, 0, 0, colour); }), 6) << colour;
  }
  EXPECT_TRUE(bench.surface.operations().empty());
  EXPECT_EQ(errorNumber([&] { sxediasitoxou2(-50, 100, 20, 90, 0, 0, 0xFFFFFF); }), 0);
  EXPECT_EQ(bench.surface.operations().size(), 1u);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
