// The shape of Ibn Sahl's lenses, and what they do close to the axis.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/protosfakos/Paraxial.h"
#include "tests/docs/Figures.h"
#include "tests/docs/Paraxial.h"
#include "tests/docs/Sahl.h"

namespace lensbench::protosfakos {
namespace {

// The glass on the axis, and the abscissas of its ends.
light::Piece glassOnAxis(bool amfikyrtos) {
  return traced(lensOf(amfikyrtos, exampleIndex), rayWithSlope({0.0, 0.0}, 0.0, Travel::Right))
      .pieces[1];
}

}  // namespace

void sayLens(Page& page) {
  RandomRays random(401);
  for (int i = 0; i < 1000; ++i) {
    const double n = random.index();
    const auto [a, b, c] = deriveLens(n).value();
    EXPECT_EQ(a, 12.0);
    EXPECT_NEAR(c, n * a, 1e-12);
    EXPECT_NEAR(b, std::sqrt(c * c - a * a), 1e-9);
    EXPECT_NEAR(rimHalfHeight(b), b * std::sqrt(15.0), 1e-12);
    // Where light enters is on the branch, and so far from the far focus.
    const double y = random.between(-0.99, 0.99) * rimHalfHeight(b);
    const auto path = traced(lensOf(i % 2 == 0, n), rayWithSlope({-20.0, y}, 0.0, Travel::Right));
    const Point p = path.pieces[0].to;
    EXPECT_NEAR(p.x * p.x / (a * a) - p.y * p.y / (b * b), 1.0, 1e-9);
    EXPECT_NEAR(length(p - Point{-c, 0.0}), n * p.x + a, 1e-9);
  }
  page.says(
      "The right branch of the hyperbola x²/a² − y²/b² = 1 is the left face of both lenses: "
      "a = 12, c = n a, b = √(c² − a²) so its eccentricity c/a is n");
  page.says("A point (x, y) of the branch is n x + a away from the far focus (−c, 0)");

  const auto [a, b, c] = deriveLens(exampleIndex).value();
  const light::Piece plano = glassOnAxis(false);
  const light::Piece both = glassOnAxis(true);
  EXPECT_DOUBLE_EQ(plano.from.x, a);
  EXPECT_DOUBLE_EQ(both.to.x, 7.0 * a);
  page.says("At n = " + fixed(exampleIndex) + ": c = " + fixed(c, 0) + ", b = " + fixed(b) +
            ". The rim is at x = 4a = " + fixed(rimX(a), 0) + ", at the height b √15, " +
            fixed(rimHalfHeight(b)) +
            " there. The plano-convex lens ends at the plane x = 4a and is " +
            fixed(plano.to.x - plano.from.x, 0) +
            " thick; the biconvex lens ends at the mirror image of its first face, with its right "
            "vertex at 7a = " +
            fixed(both.to.x, 0) + ", and is " + fixed(both.to.x - both.from.x, 0) + " thick");

  const auto image = paraxialImage({.amfikyrtos = true, .deiktisSahl = exampleIndex}, {-c, 0.0});
  EXPECT_NEAR(image->at.x, 8.0 * a + c, 1e-9);
  page.says("brings it to (8a + c, 0), which is " + place(image->at, 0) +
            " at n = " + fixed(exampleIndex));
}

void sayCloseToTheAxis(Page& page) {
  const double n = exampleIndex;
  const HyperbolaAxes axes = deriveLens(n).value();
  const double a = axes.a;
  const double b = axes.b;
  // From the normal of the face, and from a ray parallel to the axis.
  const double y = 1e-3;
  const Point onFace{a * std::hypot(1.0, y / b), y};
  const Point normal = light::outwardNormal(light::Hyperbola{a, b, {}}, onFace).value();
  const double radius = -y * normal.x / normal.y;
  EXPECT_NEAR(radius, b * b / a, 1e-6);
  EXPECT_NEAR(radius, a * (n * n - 1.0), 1e-6);
  const auto ray = traced(lensOf(false, n), rayWithSlope({130.0, y}, 0.0, Travel::Left));
  const double f = y * ray.pieces[2].direction.x / ray.pieces[2].direction.y;
  EXPECT_NEAR(f, a * (n + 1.0), 1e-6);
  EXPECT_NEAR(f, a + axes.c, 1e-6);
  page.says("a face acts like a circle of radius b²/a = a (n² − 1), " + fixed(radius, 0) +
            " at n = " + fixed(n) +
            ", and the plano-convex lens has the focal length a (n + 1) = a + c, " + fixed(f, 0));

  const Point source{108.0, 25.0};
  const auto imageThrough = [&](bool amfikyrtos) {
    const auto image = paraxialImage({.amfikyrtos = amfikyrtos, .deiktisSahl = n}, source).value();
    const double right = amfikyrtos ? 7.0 * a : rimX(a);
    const double power = (n - 1.0) * a / (b * b);
    const auto meeting = paraxial::image(
        paraxial::lens(amfikyrtos ? power : 0.0, right - a, n, power), source.x - right, source.y);
    EXPECT_LT(length(image.at - Point{a - meeting.behind, meeting.height}), 1e-9);
    return place(image.at);
  };
  page.says(place(source, 0) + ", has its image at " + imageThrough(false) +
            " through the plano-convex lens and at " + imageThrough(true) +
            " through the biconvex one");
}

}  // namespace lensbench::protosfakos
