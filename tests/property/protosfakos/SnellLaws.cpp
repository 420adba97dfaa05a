// The law of sines at each face, and that light retraces its path.
#include <gtest/gtest.h>

#include "tests/property/protosfakos/RandomRays.h"

namespace lensbench::protosfakos {
namespace {

bool refractedAtEntry(const Way& path) {
  return path.entryNormal && path.ending != End::Stopped && path.ending != End::Missed;
}

TEST(SnellLaw, HoldsAtEachFaceInThePlaneOfIncidence) {
  RandomRays random(1);
  Largest entry, exit, norm;
  int entries = 0, exits = 0;
  while (exits < lawRays) {
    const double n = random.index();
    const light::Lens glass = random.glass(n);
    const Way path = wayThrough(glass, random.ray(glass), wideOpen);
    if (refractedAtEntry(path)) {
      ++entries;
      entry.meet(cross(*path.entryNormal, path.incident.direction) -
                 n * cross(*path.entryNormal, path.inside));
      norm.meet(length(path.inside) - 1.0);
      // It goes on through the face: the same side of the normal's foot.
      ASSERT_GT(
          dot(*path.entryNormal, path.incident.direction) * dot(*path.entryNormal, path.inside),
          0.0);
    }
    if (path.ending == End::Emerged && path.exitNormal) {
      ++exits;
      exit.meet(n * cross(*path.exitNormal, path.inside) - cross(*path.exitNormal, path.emerging));
      norm.meet(length(path.emerging) - 1.0);
      ASSERT_GT(dot(*path.exitNormal, path.inside), 0.0);
      ASSERT_GT(dot(*path.exitNormal, path.emerging), 0.0);
    }
  }
  EXPECT_GT(entries, lawRays / 2);
  EXPECT_LT(entry.value, 1e-12);
  EXPECT_LT(exit.value, 1e-12);
  EXPECT_LT(norm.value, 1e-12);
  RecordProperty("entry", std::to_string(entry.value * 1e15) + "e-15");
  RecordProperty("exit", std::to_string(exit.value * 1e15) + "e-15");
}

// The normal itself, from the derivative of the curve: slope b²·x / (a²·y).
TEST(SnellLaw, NormalsAreSquareToTheDrawnCurves) {
  RandomRays random(2);
  Largest error;
  for (int i = 0; i < lawRays; ++i) {
    const light::Lens glass = random.glass(random.index());
    const bool mirrored = isBiconvex(glass);
    const double y = random.between(-1, 1) * rimHalfHeight(bOf(glass));
    const double x = semiAxis * std::hypot(1.0, y / bOf(glass));
    const Point tangent{semiAxis * semiAxis * y, bOf(glass) * bOf(glass) * x};
    const auto normal = normalAt(glass.left, {x, y});
    ASSERT_TRUE(normal);
    error.meet(dot(*normal, tangent) / length(tangent));
    ASSERT_LT(normal->x, 0.0);
    if (mirrored) {
      const auto other = normalAt(glass.right, {96.0 - x, y});
      ASSERT_TRUE(other);
      error.meet(other->x + normal->x);
      error.meet(other->y - normal->y);
    }
  }
  EXPECT_LT(error.value, 1e-12);
  RecordProperty("largest", std::to_string(error.value * 1e15) + "e-15");
}

TEST(TotalReflection, OnlyBeyondTheCriticalAngle) {
  RandomRays random(3);
  int reflected = 0;
  for (int i = 0; i < lawRays; ++i) {
    const double n = random.index();
    const light::Lens glass = random.glass(n);
    const light::RayPath path = trace(glass, random.ray(glass), wideOpen);
    if (path.ending != light::Ending::TotalReflection) continue;
    ++reflected;
    const auto last = static_cast<std::size_t>(path.count) - 1;
    ASSERT_EQ(path.pieces[last].medium, light::Medium::Glass);
    const bool left = path.meetings[last].face == light::Side::Left;
    const auto normal = normalAt(left ? glass.left : glass.right, path.end());
    ASSERT_TRUE(normal);
    ASSERT_GT(n * std::fabs(cross(*normal, path.pieces[last].direction)), 1.0 - 1e-12);
  }
  EXPECT_GT(reflected, 1000);
}

TEST(Reversal, ARaySentBackRetracesItsPath) {
  RandomRays random(4);
  Largest error;
  int compared = 0;
  while (compared < lawRays) {
    const light::Lens glass = random.glass(random.index());
    const Way path = wayThrough(glass, random.ray(glass), wideOpen);
    if (path.ending != End::Emerged || path.startsInGlass) continue;
    // Near grazing the smallest change of the way back is magnified without bound.
    if (std::fabs(dot(*path.entryNormal, path.incident.direction)) < 0.05) continue;
    if (std::fabs(dot(*path.exitNormal, path.emerging)) < 0.05) continue;
    const Way back =
        wayThrough(glass, {path.exit + 50.0 * path.emerging, -path.emerging}, wideOpen);
    // Within a hair of the rim the way back may meet the other face first.
    if (std::fabs(path.entry.x - rimX(semiAxis)) < 1e-6 && isBiconvex(glass)) {
      continue;
    }
    ++compared;
    ASSERT_EQ(back.ending, End::Emerged);
    error.meet(length(back.entry - path.exit));
    error.meet(length(back.exit - path.entry));
    error.meet(length(back.emerging + path.incident.direction));
  }
  EXPECT_LT(error.value, 1e-9);
  RecordProperty("largest", std::to_string(error.value * 1e12) + "e-12");
}

}  // namespace
}  // namespace lensbench::protosfakos
