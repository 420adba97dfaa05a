// The lessons on rays and images, their figures computed anew.
#include <algorithm>

#include "optics/poreiaaktinon/Scenes.h"
#include "tests/screens/app/Lessons.h"

namespace lensbench {
namespace {

using light::RayPath;

TEST_F(LessonsTest, RefractionAtAFace) {
  const auto& lesson = set(1);
  EXPECT_TRUE(shows(program.screens.moniaktina()));
  const RayPath& ray = singleRay();
  ASSERT_EQ(ray.count, 3);
  const Point normal = ray.meetings[0].normal;
  const double a1 = angleTo(ray.pieces[0].direction, normal);
  const double a2 = angleTo(ray.pieces[1].direction, normal);
  says(lesson.look, formatHundredths(degrees(a1)) + "°");
  says(lesson.look, formatHundredths(degrees(a2)) + "°");
  says(lesson.look, std::sin(a1));
  says(lesson.look, "n = " + formatHundredths(ray.n));
  const std::string law = told(program.screens.moniaktina(), ray.pieces[0].to);
  expectIn(law, "a1 = " + formatHundredths(degrees(a1)) + "°");
  expectIn(law, "a2 = " + formatHundredths(degrees(a2)) + "°");
  EXPECT_EQ(formatHundredths(std::sin(a1)), formatHundredths(1.5 * std::sin(a2)));
  const double denser = 2.0;
  const double sine = std::sin(a1) / denser;
  says(lesson.answer, formatHundredths(degrees(std::asin(sine))) + "°");
  says(lesson.answer, formatHundredths(std::sin(a1)) + " / " + formatHundredths(denser) + " = " +
                          formatHundredths(sine));
  // A ray can reach the glass at all: the diaphragm is open.
  EXPECT_GT(program.screens.kelmo().diafragma().yA, program.screens.kelmo().diafragma().yB);
}

TEST_F(LessonsTest, FocalLength) {
  const auto& lesson = set(2);
  EXPECT_TRUE(shows(program.screens.kelmo()));
  says(lesson.look, points().f);
  says(lesson.look, points().F2);
  const auto meets = crossings();
  ASSERT_GE(meets.size(), 4U);
  for (const double x : meets) EXPECT_NEAR(x, points().F2, 0.8);
  says(lesson.look, "x = " + formatHundredths(points().H2));
  EXPECT_NEAR(points().F2 - points().H2, points().f, 1e-9);
  press({0.0, 10.0});
  EXPECT_TRUE(raysOfBench().empty());
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  expectIn(toldOnBench({points().F2, 0.0}), "f = " + formatShort(points().f));
  expectIn(toldOnBench({points().H2, 60.0}), "H2: ");
  expectIn(toldOnBench({points().H2, 60.0}), placeOf({points().H2, 0.0}));

  // A thin lens of these faces turns rays in proportion to n - 1, this one not quite.
  const poreiaaktinon::Fakos lens = program.screens.kelmo().fakos();
  const poreiaaktinon::Fakos thin{-lens.R1, lens.R1, lens.R2, lens.R2};
  EXPECT_EQ(cardinalPoints(thin, 1.5).d, 0.0);
  EXPECT_NEAR(cardinalPoints(thin, 1.5).f / cardinalPoints(thin, 2.0).f, 2.0, 1e-12);
  says(lesson.answer, "n − 1");
  const double doubled = cardinalPoints(lens, 2.0).f;
  says(lesson.answer, doubled);
  EXPECT_NEAR(points().f / doubled, 2.0, 0.05);
  EXPECT_GT(std::fabs(points().f / doubled - 2.0), 0.01);
}

// Where paraxial light from a point at x meets again, and how much larger; by Gauss's formula.
struct Image {
  double x;
  double magnification;
};
Image imageOf(const poreiaaktinon::CardinalPoints& p, double x) {
  const double s = p.H1 - x;
  const double t = 1.0 / (1.0 / p.f - 1.0 / s);
  return {p.H2 + t, -t / s};
}

TEST_F(LessonsTest, TheImageAndItsMagnification) {
  const auto& lesson = set(3);
  const Point source = program.screens.kelmo().pigi();
  EXPECT_EQ(source.x, -220.0);
  EXPECT_EQ(source.y, 20.0);
  const Image image = imageOf(points(), source.x);
  EXPECT_NEAR(image.x, 220.0, 1e-9);
  EXPECT_NEAR(image.magnification * source.y, -20.0, 1e-9);
  says(lesson.look, "(-220, 20)");
  says(lesson.look, "(220, -20)");
  says(lesson.look, image.magnification);
  expectIn(toldOnBench({220.0, -20.0}), "real, magnification -1.00, at (220, -20)");
  // Paraxial rays meet where the construction says.
  EXPECT_EQ(points().F2, paraxialPoints(program.screens.kelmo().fakos(), 1.5).F2);
  // The image still answers when a press elsewhere has sent a fan.
  press({-190.0, 20.0});
  EXPECT_FALSE(raysOfBench().empty());
  const Image next = imageOf(points(), -190.0);
  expectIn(toldOnBench({next.x, 20.0 * next.magnification}), "real, magnification ");
  const double twice = points().H1 - 1.5 * points().f;
  EXPECT_NEAR(imageOf(points(), twice).magnification, -2.0, 1e-9);
  says(lesson.answer, twice);
  says(lesson.answer, imageOf(points(), twice).x);
}

TEST_F(LessonsTest, AVirtualImage) {
  const auto& lesson = set(4);
  const Point source = program.screens.kelmo().pigi();
  EXPECT_GT(source.x, points().F1);
  const Image image = imageOf(points(), source.x);
  says(lesson.look, pairOf(image.x, image.magnification * source.y));
  says(lesson.look, image.magnification);
  EXPECT_LT(image.x, source.x);
  const Point at{image.x, image.magnification * source.y};
  expectIn(toldOnBench(at), "virtual, magnification " + formatHundredths(image.magnification));
  expectIn(toldOnBench(at), placeOf({at.x, at.y}));

  // Every ray of the construction goes through the glass.
  const poreiaaktinon::Glass glass =
      poreiaaktinon::glassOf(program.screens.kelmo().fakos(), program.screens.kelmo().n());
  EXPECT_LT(at.y, glass.h);

  press(source);
  EXPECT_EQ(program.screens.kelmo().pigi(), source);
  int through = 0;
  for (const RayPath& path : raysOfBench()) {
    if (path.count != 3 || path.ending != light::Ending::Open) continue;
    EXPECT_GT(path.pieces[2].from.x, image.x);
    EXPECT_GT(path.pieces[2].direction.x, 0.0) << "away from the image";
    ++through;
  }
  EXPECT_GE(through, 10);
}

TEST_F(LessonsTest, CardinalPointsOfAThickLens) {
  const auto& lesson = set(5);
  EXPECT_NEAR(points().d, points().f, 1e-9);
  says(lesson.look, points().F2);
  says(lesson.look, "x = " + formatHundredths(points().H2));
  says(lesson.see, formatWhole(points().d));
  const poreiaaktinon::Fakos lens = program.screens.kelmo().fakos();
  const double meets = parallelRayCrosses(lens, 1.5, 1e-4);
  says(lesson.look, meets);
  says(lesson.look, points().F2 - meets);
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({meets, 0.0}));
  expectIn(toldOnBench({points().H2, 60.0}), "H2: ");

  // Marked with the radius of the face beside it, R1 of the right face; exactly it takes R2.
  const auto H2with = [&](double radius) {
    return rightVertex(lens) - points().d * points().f * 0.5 / (1.5 * radius);
  };
  EXPECT_NEAR(points().H2, H2with(lens.R1), 1e-9);
  EXPECT_NEAR(meets, H2with(lens.R2) + points().f, 1e-6);

  // The bundle through an opening of 24 meets nearer to there than to the mark.
  KelmoState narrowed = program.screens.kelmo().state();
  narrowed.diafragma = {-150.0, 12.0, -12.0};
  program.screens.kelmo().restore(narrowed);
  program.screens.kelmo().drawBundle(0.0);
  ASSERT_EQ(crossings().size(), 4U);
  for (const double x : crossings()) EXPECT_NEAR(x, meets, 0.7);

  poreiaaktinon::Fakos even = lens;
  even.R2 = even.R1;
  EXPECT_NEAR(cardinalPoints(even, 1.5).F2, parallelRayCrosses(even, 1.5, 1e-4), 1e-6);
}

TEST_F(LessonsTest, SphericalAberrationAndStoppingDown) {
  constexpr std::size_t spherical = 6;
  const auto& wide = set(spherical);
  const auto opening = [this] {
    const light::Diafragma blades = program.screens.kelmo().diafragma();
    return formatWhole(blades.yA - blades.yB);
  };
  const std::string wideOpening = opening();
  const auto all = crossings();
  const auto [nearest, farthest] = std::minmax_element(all.begin(), all.end());
  const auto rays = raysOfBench();
  says(wide.act, std::to_string(rays.size()));
  const RayPath& outer = rays[33 - 1];
  const RayPath& inner = rays[39 - 1];
  for (const auto& words : {wide.act, wide.look}) {
    says(words, formatWhole(outer.start().y));
    says(words, formatWhole(inner.start().y));
  }
  expectIn(toldOnBench({160.0, heightAt(outer, 160.0)}), "ray 33 of 81");
  expectIn(toldOnBench({200.0, heightAt(inner, 200.0)}), "ray 39 of 81");
  EXPECT_EQ(crossingOf(outer), *nearest);
  says(wide.look, *nearest);
  const double atTen = crossingOf(inner);
  says(wide.look, atTen);

  // The marks beside which they cross, and the cusp.
  says(wide.look, points().F2);
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  const double circle = poreiaaktinon::glassOf(program.screens.kelmo().fakos(), 1.5).f.value();
  says(wide.look, circle);
  expectIn(toldOnBench({circle, 0.0}), "right focus of the thin lens");
  EXPECT_LT(*nearest, circle);
  EXPECT_LT(circle, atTen);
  EXPECT_LT(atTen, points().F2);
  EXPECT_NEAR(parallelRayCrosses(program.screens.kelmo().fakos(), 1.5, 1e-4), points().F2, 1e-6);

  const auto& narrow = set(7);
  const auto some = crossings();
  const auto [first, last] = std::minmax_element(some.begin(), some.end());
  EXPECT_EQ(*first, atTen);
  says(narrow.look, *first);
  says(narrow.look, *last);
  says(narrow.look, *last - *first);
  says(narrow.look, *nearest);
  says(narrow.look, *farthest - *nearest);
  says(narrow.look, opening());
  says(narrow.look, wideOpening);
  says(narrow.look, std::to_string(spherical));
  EXPECT_LT(some.size(), all.size());
}

}  // namespace
}  // namespace lensbench
