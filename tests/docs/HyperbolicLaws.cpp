// How exactly the laws of Ibn Sahl's lenses hold.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "tests/docs/Figures.h"
#include "tests/docs/Sahl.h"
#include "tests/property/protosfakos/IndependentPath.h"

namespace lensbench::protosfakos {
namespace {

constexpr int scenes = 200;
constexpr double grazing = 3.0;  // degrees

// Calls a law with so many random rays that it takes; it tells of each whether it took it.
template <class Law>
void forRays(unsigned seed, const Law& law) {
  RandomRays random(seed);
  int taken = 0;
  for (int tries = 0; taken < lawRays && tries < 100 * lawRays; ++tries) taken += law(random);
  EXPECT_EQ(taken, lawRays);
}

void row(Page& page, const std::string& law, const std::string& figures) {
  page.says("| " + law + " | " + figures + " |");
}

// How far the line of a ray passes from a point.
double missDistance(const Way& way, Point p) { return cross(way.emerging, p - way.exit); }

void sayFaces(Page& page) {
  Largest entry, exit, normal, off;
  forRays(411, [&](RandomRays& random) {
    const double n = random.index();
    const light::Lens glass = random.glass(n);
    const double b = bOf(glass);
    const Way way = wayThrough(glass, random.ray(glass), wideOpen);
    if (way.ending != End::Emerged || !way.entryNormal || !way.exitNormal) return false;
    entry.meet(cross(*way.entryNormal, way.incident.direction) -
               n * cross(*way.entryNormal, way.inside));
    exit.meet(n * cross(*way.exitNormal, way.inside) - cross(*way.exitNormal, way.emerging));
    const auto meetFace = [&](Point p, Point N) {
      const double mirrored = std::fabs(8 * semiAxis - p.x - semiAxis * std::hypot(1.0, p.y / b));
      const double plane = std::fabs(p.x - rimX(semiAxis));
      const double curve = std::fabs(p.x - semiAxis * std::hypot(1.0, p.y / b));
      off.meet(std::min(curve, isBiconvex(glass) ? mirrored : plane));
      if (curve > 1e-9) return;
      const Point tangent{semiAxis * semiAxis * p.y, b * b * p.x};
      normal.meet(dot(N, tangent) / length(tangent));
    };
    meetFace(way.entry, *way.entryNormal);
    meetFace(way.exit, *way.exitNormal);
    return true;
  });
  row(page, "Law of sines on entry, on exit",
      below(entry.value, "1e-14") + ", " + below(exit.value, "1e-14"));
  row(page, "Normal square to the curve", below(normal.value, "1e-14"));
  row(page, "Point met is on its face", below(off.value, "1e-11"));
}

void sayFoci(Page& page) {
  Largest miss, optical, slope, image;
  forRays(412, [&](RandomRays& random) {
    const double n = random.index();
    const auto [a, b, c] = deriveLens(n).value();
    const Point far{-c, 0.0};
    const double y = random.between(-0.999, 0.999) * rimHalfHeight(b);
    const Way axial =
        wayThrough(lensOf(false, n), rayWithSlope({130.0, y}, 0.0, Travel::Left), wideOpen);
    miss.meet(missDistance(axial, far));
    optical.meet((130.0 - axial.entry.x) + n * length(axial.exit - axial.entry) +
                 dot(far - axial.exit, axial.emerging) - ((130.0 - rimX(a)) + n * rimX(a) + a));

    const Point near{8 * a + c, 0.0};
    const bool back = y > 0.0;
    const light::Ray ray = back ? rayWithSlope(far, random.between(-0.2, 0.2), Travel::Right)
                                : rayWithSlope(near, random.between(-0.2, 0.2), Travel::Left);
    const Way way = wayThrough(lensOf(true, n), ray, wideOpen);
    if (way.ending != End::Emerged) return false;
    slope.meet(way.inside.y);
    image.meet(missDistance(way, back ? near : far));
    return true;
  });
  row(page, "Axial bundle, distance from (−c, 0)", below(miss.value, "1e-11"));
  row(page, "Axial bundle, optical path to (−c, 0)", below(optical.value, "1e-12"));
  row(page, "Source at (−c, 0), slope in the glass", below(slope.value, "1e-13"));
  row(page, "Biconvex, image of (8a + c, 0) at (−c, 0) and back", below(image.value, "1e-11"));
}

void sayPaths(Page& page) {
  Largest points, directions, back;
  forRays(413, [&](RandomRays& random) {
    const double n = random.index();
    const light::Lens glass = random.glass(n);
    const light::Ray ray = random.ray(glass);
    const Way way = wayThrough(glass, ray, wideOpen);
    if (way.ending != End::Emerged || !way.entryNormal || !way.exitNormal) return false;
    const auto expected =
        independent::construct({semiAxis, bOf(glass), n, isBiconvex(glass)},
                               {ray.start.x, ray.start.y}, {ray.direction.x, ray.direction.y});
    const double least = std::sin(grazing * std::numbers::pi / 180.0);
    if (expected.margin < 1e-4L ||
        std::fabs(dot(*way.entryNormal, way.incident.direction)) < least ||
        std::fabs(dot(*way.exitNormal, way.emerging)) < least) {
      return false;
    }
    points.meet(apart(expected.entry, way.entry));
    points.meet(apart(expected.exit, way.exit));
    directions.meet(apart(expected.inside, way.inside));
    directions.meet(apart(expected.emerging, way.emerging));
    const Way home = wayThrough(glass, {way.exit + 50.0 * way.emerging, -way.emerging}, wideOpen);
    back.meet(length(home.entry - way.exit));
    back.meet(length(home.exit - way.entry));
    back.meet(length(home.emerging + way.incident.direction));
    return true;
  });
  row(page, "Path against an independent construction: points, directions",
      below(points.value, "1e-11") + ", " + below(directions.value, "1e-12"));
  row(page, "Way back along the path", below(back.value, "1e-11"));
}

void sayFrontErrors(Page& page) {
  RandomRays random(414);
  Largest square, off;
  for (int i = 0; i < scenes; ++i) {
    Asked asked{.amfikyrtos = i % 2 == 0, .deiktisSahl = random.index(), .diafragma = wideOpen};
    const double slope = std::tan(random.between(-60.0, 60.0) * std::numbers::pi / 180.0);
    asked.rays = Desmi{slope};
    const Point along = rayWithSlope({}, slope, Travel::Left).direction;
    const Scene bundle = sceneOf(asked);
    for (const Recorded& ray : bundle.traced->recorded) {
      for (std::size_t j = 1; j <= lastFront; ++j) {
        if (dot(ray.entry - ray.kymata[j], along) < 1e-9) break;
        square.meet(dot(ray.kymata[j] - Point{130.0, 0.0}, along) -
                    frontSpacing * (static_cast<double>(j) - 1.0));
      }
    }

    asked.rays = Fan{{random.between(-120.0, 150.0), random.between(-60.0, 60.0)}};
    const Scene fan = sceneOf(asked);
    std::size_t k = 0;
    for (const light::RayPath& path : fan.traced->paths) {
      if (!emerged(path)) continue;
      const light::Piece& last = path.way().back();
      for (const Point p : fan.traced->recorded[k].kymata) {
        if (dot(p - last.from, last.direction) > 1e-9 &&
            std::fabs(cross(last.direction, p - last.from)) < 1e-3) {
          off.meet(cross(last.direction, p - last.from));
        }
      }
      ++k;
    }
  }
  row(page, "Fronts of a bundle square to its rays, -60° to 60°", below(square.value, "1e-12"));
  row(page, "Wave point off its ray behind the lens", below(off.value, "1e-5"));
}

}  // namespace

void sayLaws(Page& page) {
  page.says("at 90° the slope is 1.6e16");
  EXPECT_NEAR(std::tan(0.5 * std::numbers::pi), 1.6e16, 0.05e16);
  page.says("Over " + grouped(lawRays) + " rays for each law, or, of fronts, all those of " +
            std::to_string(scenes) + " scenes, with n from 1.01 to 2.50");
  sayFaces(page);
  sayFoci(page);
  sayPaths(page);
  sayFrontErrors(page);
  page.says("Paths are compared where they are not within " + fixed(grazing, 0) + "° of grazing");
  page.says("because the direction is brought to length 1 again");
}

}  // namespace lensbench::protosfakos
