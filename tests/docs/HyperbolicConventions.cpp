// Where the picture of Ibn Sahl's lenses is a convention.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

#include "canvas/Recording.h"
#include "optics/protosfakos/Outline.h"
#include "optics/protosfakos/Picture.h"
#include "tests/docs/Figures.h"
#include "tests/docs/Paraxial.h"
#include "tests/docs/Sahl.h"

namespace lensbench::protosfakos {
namespace {

constexpr double degree = std::numbers::pi / 180.0;

Asked fanFrom(Point source) {
  return {.deiktisSahl = exampleIndex, .rays = Fan{source}, .diafragma = wideOpen};
}

double angleOf(Point direction) { return std::atan(std::fabs(direction.y / direction.x)) / degree; }

std::vector<Operation> drawnLines(const Recording& canvas) {
  return canvas.operations(Operation::Kind::Line);
}

// The farthest that a face is from a stroke that is drawn for it.
double sag(const Operation& stroke, double a, double b) {
  const Point from{stroke.x1, stroke.y1};
  const Point along = unit(Point{stroke.x2, stroke.y2} - from);
  double most = 0.0;
  for (int i = 0; i <= 50; ++i) {
    const double y = stroke.y1 + (stroke.y2 - stroke.y1) * i / 50.0;
    most = std::max(most, std::fabs(cross(along, Point{a * std::hypot(1.0, y / b), y} - from)));
  }
  return most;
}

bool entersBesideTheGlass(const light::RayPath& path) {
  return path.ending == light::Ending::Trapped && isZero(path.pieces[1].to - path.pieces[1].from);
}

constexpr int farRays = 10000;

// How many of the rays that start so far away rounding lets enter beside the glass.
int besideTheGlass(double away) {
  RandomRays random(421);
  int count = 0;
  for (int i = 0; i < farRays; ++i) {
    const light::Lens glass = random.glass(random.index());
    const light::Ray near = random.ray(glass);
    const auto path = traced(glass, {near.start - away * near.direction, near.direction});
    if (entersBesideTheGlass(path)) ++count;
  }
  return count;
}

}  // namespace

void sayIdealBundle(Page& page) {
  const auto [a, b, c] = deriveLens(exampleIndex).value();
  Recording canvas;
  drawIdealBundle(canvas, a, b);
  const auto strokes = drawnLines(canvas);
  ASSERT_EQ(strokes.size(), 2U * 9U);
  for (std::size_t i = 0; i < strokes.size(); i += 2) {
    EXPECT_EQ(strokes[i].x1, 10.0 * a);
    EXPECT_EQ(strokes[i].y1, strokes[i].y2);
    EXPECT_EQ(strokes[i + 1].x2, -c);
  }
  page.says("The ideal bundle is nine rays drawn from x = 10a = " + fixed(strokes[0].x1, 0) +
            " straight to the first face, and from there to (−c, 0)");

  const auto path =
      traced(lensOf(true, exampleIndex), rayWithSlope({130.0, 1e-3}, 0.0, Travel::Left));
  const double within = crossing(path.pieces[1]);
  const double from = crossing(path.pieces[2]);
  const double power = (exampleIndex - 1.0) * a / (b * b);
  EXPECT_NEAR(within, 7.0 * a - exampleIndex / power, 1e-5);
  const auto m = paraxial::lens(power, 6.0 * a, exampleIndex, power);
  EXPECT_NEAR(from, a + m.A / m.C, 1e-5);
  page.says("at n = " + fixed(exampleIndex) + " those close to the axis cross it at (" +
            fixed(within) + ", 0), in the glass, and leave as if they came from (" + fixed(from) +
            ", 0)");
}

void sayFacesAsDrawn(Page& page) {
  const auto [a, b, c] = deriveLens(exampleIndex).value();
  Recording canvas;
  drawOutline(canvas, a, b, false);
  double off = 0.0;
  int strokes = 0;
  for (const Operation& stroke : drawnLines(canvas)) {
    const bool ofCurve = stroke.x1 >= a && stroke.x2 >= a && stroke.x1 != stroke.x2;
    if (!ofCurve || stroke.y1 < 0.0 || stroke.y2 < 0.0) continue;
    ++strokes;
    off = std::max(off, sag(stroke, a, b));
  }
  page.says("A face is drawn in " + std::to_string(strokes) +
            " strokes on each side of the axis; at n = " + fixed(exampleIndex) +
            " they are up to " + fixed(off) + " off the curve that rays meet");

  // To the vertex, along the outermost slope.
  const double run = 10.0;
  const double slope = 0.9;
  const auto path = traced(lensOf(false, exampleIndex),
                           rayWithSlope({a - run, -slope * run}, slope, Travel::Right));
  EXPECT_FALSE(path.meetings[0].refracts);
  EXPECT_EQ(path.pieces[2].direction, path.pieces[0].direction);
  const Point direction = path.pieces[1].direction;
  const auto bent =
      light::refracted(direction, {-1.0, 0.0}, 1.0 / exampleIndex, light::Grazing::Reflected);
  EXPECT_NEAR(std::sin(angleOf(direction) * degree),
              exampleIndex * std::sin(angleOf(bent.value()) * degree), 1e-12);
  page.says("the outermost of a fan, " + fixed(angleOf(direction)) + "° from the axis, to " +
            fixed(angleOf(*bent)) + "° at n = " + fixed(exampleIndex));
}

void sayRaysOfScenes(Page& page) {
  const Scene scene = sceneOf(fanFrom({108.0, 25.0}));
  const auto& paths = scene.traced->paths;
  const auto slope = [&](std::size_t k) {
    const Point d = paths[k].pieces[0].direction;
    return -d.y / d.x;
  };
  const auto apart = [&](std::size_t k) {
    return fixed(std::fabs(angleOf(paths[k].pieces[0].direction) -
                           angleOf(paths[k + 1].pieces[0].direction)));
  };
  const std::size_t middle = paths.size() / 2;
  EXPECT_NEAR(slope(middle), 0.0, 1e-12);
  const double first = std::fabs(slope(0));
  EXPECT_NEAR(std::fabs(slope(paths.size() - 1)), first, 1e-12);
  page.says("A fan is " + std::to_string(paths.size()) + " rays of slopes " + fixed(first) +
            " to " + fixed(-first) + " in equal steps, so they are not equally far apart: " +
            apart(middle) + "° at the axis, " + apart(0) + "° at its edge");

  const light::Lens glass = lensOf(false, exampleIndex);
  const auto passing = traced(glass, rayWithSlope({130.0, 100.0}, 0.0, Travel::Left));
  const auto leaving = traced(glass, rayWithSlope({130.0, 10.0}, 0.0, Travel::Left));
  page.says("A ray that misses the lens is drawn " +
            fixed(length(passing.pieces[0].to - passing.pieces[0].from), 0) +
            " long, one that leaves it " +
            fixed(length(leaving.pieces[2].to - leaving.pieces[2].from), 0) + " long behind it");

  const auto stopped = [&](double opening) {
    return trace(glass, rayWithSlope({130.0, 0.0}, 0.0, Travel::Left),
                 Diafragma{100.0, opening / 2.0, -opening / 2.0})
               .ending == light::Ending::Diaphragm;
  };
  EXPECT_TRUE(stopped(-1.0));
  EXPECT_TRUE(stopped(0.0));
  EXPECT_FALSE(stopped(1e-300));
  page.says("One whose opening is 0 or less stops every ray that reaches it");
}

void sayFronts(Page& page) {
  const Point onPlane{130.0, 0.0};
  const double slope = 0.4;
  Asked asked = fanFrom({108.0, 25.0});
  asked.rays = Desmi{slope};
  const Point along = rayWithSlope({}, slope, Travel::Left).direction;
  const Scene bundle = sceneOf(asked);
  for (const Recorded& ray : bundle.traced->recorded) {
    EXPECT_NEAR(dot(ray.kymata[1] - onPlane, along), 0.0, 1e-9);
    EXPECT_NEAR(length(ray.kymata[2] - ray.kymata[1]), frontSpacing, 1e-9);
  }
  page.says("Fronts stand at each whole " + fixed(frontSpacing, 0) +
            " of the optical path, from the source or from the plane through " + place(onPlane, 0) +
            " square to the bundle, and end at " + fixed(frontSpacing * (lastFront - 1), 0));

  const Point source{108.0, 25.0};
  const Scene scene = sceneOf(fanFrom(source));
  const auto again = raysOf({scene, true});
  ASSERT_GT(again.size(), 10U);
  EXPECT_EQ(again[0].kymata[1], source);
  for (std::size_t k = 2; k < again.size(); ++k) {
    EXPECT_EQ(again[k].kymata[1], again[1].kymata[1]);
  }
  page.says("lays the points of all rays but the first as if they started at " +
            place(again[1].kymata[1], 0) +
            ". Those are no fronts: with the first source they start " +
            fixed(length(again[1].kymata[1] - source)) + " from it");
}

void sayFarAndNear(Page& page) {
  EXPECT_EQ(besideTheGlass(1e12), 0);
  page.says("Of " + grouped(farRays) + " rays from 1e12 away none does, from 1e17 about " +
            about(besideTheGlass(1e17), "700", 100.0));

  const light::Lens glass = lensOf(false, exampleIndex);
  double stands = 0.0;
  double within = 1e-6;
  for (int i = 0; i < 60; ++i) {
    const double deep = 0.5 * (stands + within);
    const auto path = traced(glass, rayWithSlope({rimX(semiAxis) - deep, 1.0}, 0.1, Travel::Left));
    (path.pieces[0].medium == light::Medium::Air ? stands : within) = deep;
  }
  EXPECT_NEAR(stands, 1e-9, 1e-11);
  page.says("A source nearer than 1e-9 to a face stands on it");

  EXPECT_EQ(deriveLens(1.0)->b, 0.0);
  const light::Lens flat = lensOf(false, 1.0);
  EXPECT_TRUE(emerged(traced(flat, rayWithSlope({130.0, 0.0}, 0.0, Travel::Left))));
  EXPECT_TRUE(traced(flat, rayWithSlope({130.0, 1e-6}, 0.0, Travel::Left)).missed());
  page.says("n = 1 is a lens without height");
}

}  // namespace lensbench::protosfakos
