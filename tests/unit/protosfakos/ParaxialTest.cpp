// The image of a point by light close to the axis, against the foci and against traced rays.
#include <gtest/gtest.h>

#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/Lens.h"
#include "optics/protosfakos/Paraxial.h"

namespace lensbench::protosfakos {
namespace {

Asked lens(bool amfikyrtos, double n) { return {.amfikyrtos = amfikyrtos, .deiktisSahl = n}; }

TEST(ParaxialImage, OfOneFocusOfABiconvexLensIsTheOther) {
  for (const double n : {1.2, 1.5, 2.5}) {
    const double c = n * semiAxis;
    const auto image = paraxialImage(lens(true, n), {8.0 * semiAxis + c, 0.0});
    ASSERT_TRUE(image);
    EXPECT_NEAR(image->at.x, -c, 1e-9);
    EXPECT_TRUE(image->real);
    const auto back = paraxialImage(lens(true, n), {-c, 0.0});
    ASSERT_TRUE(back);
    EXPECT_NEAR(back->at.x, 8.0 * semiAxis + c, 1e-9);
  }
}

TEST(ParaxialImage, OfTheFocusOfAPlanoConvexLensIsNowhere) {
  EXPECT_FALSE(paraxialImage(lens(false, 1.5), {-1.5 * semiAxis, 0.0}));
}

TEST(ParaxialImage, OfASourceWithinTheFocusIsVirtualAndUpright) {
  const auto image = paraxialImage(lens(false, 1.5), {0.0, 1.0});
  ASSERT_TRUE(image);
  EXPECT_FALSE(image->real);
  EXPECT_GT(image->at.y, 1.0);
}

TEST(ParaxialImage, NeedsASourceOutsideALensWithHeight) {
  EXPECT_FALSE(paraxialImage(lens(true, 1.5), {2.0 * semiAxis, 0.0}));
  EXPECT_FALSE(paraxialImage(lens(true, 1.0), {-100.0, 0.0}));
}

// Rays that start close to the axis, nearly along it, meet in the image.
TEST(ParaxialImage, IsWhereTracedRaysMeet) {
  for (const bool amfikyrtos : {false, true}) {
    for (const double n : {1.3, 1.5, 2.0}) {
      for (const Point source : {Point{-100.0, 1e-4}, Point{-60.0, 2e-4}, Point{140.0, 1e-4}}) {
        const auto image = paraxialImage(lens(amfikyrtos, n), source);
        ASSERT_TRUE(image);
        const auto axes = *deriveLens(n);
        const light::Lens glass =
            amfikyrtos ? biconvex(axes.a, axes.b, n) : planoConvex(axes.a, axes.b, n);
        for (const double slope : {-1e-5, 1e-5}) {
          const Travel travel = source.x < 0.0 ? Travel::Right : Travel::Left;
          const light::RayPath path =
              trace(glass, rayWithSlope(source, slope, travel), std::nullopt);
          ASSERT_TRUE(emerged(path));
          const light::Piece& last = path.pieces[2];
          const double y =
              last.from.y + (image->at.x - last.from.x) * last.direction.y / last.direction.x;
          EXPECT_NEAR(y, image->at.y, 1e-7) << "n " << n << " from " << source.x;
        }
      }
    }
  }
}

}  // namespace
}  // namespace lensbench::protosfakos
