// The pages on physics say what the program does, and no figure on them is left unchecked.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/docs/Figures.h"

namespace lensbench {
namespace {

TEST(PhysicsPages, OfTheSphericalLenses) {
  using namespace poreiaaktinon;
  Page page("physics.md");
  for (const auto say :
       {sayUnits, sayRays, sayTotalReflection, sayWaves, sayReflectance, sayFans, sayBundles,
        sayDiaphragm, sayCardinalPoints, sayAberration, sayImage, sayFocalCircles, sayOutline,
        sayLineAndCircle, sayOneRefraction, sayTolerances}) {
    say(page);
  }
  EXPECT_THAT(page.unchecked(), testing::IsEmpty());
}

TEST(PhysicsPages, OfTheHyperbolicLenses) {
  using namespace protosfakos;
  Page page("physics-hyperbolic.md");
  for (const auto say : {sayLens, sayCloseToTheAxis, sayLaws, sayIdealBundle, sayFacesAsDrawn,
                         sayRaysOfScenes, sayFronts, sayFarAndNear}) {
    say(page);
  }
  EXPECT_THAT(page.unchecked(), testing::IsEmpty());
}

}  // namespace
}  // namespace lensbench
