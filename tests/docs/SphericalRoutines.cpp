// The named routines, and the tolerances of a start.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/light/Refraction.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/docs/Figures.h"
#include "tests/docs/Workbench.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr int lines = 100000;
constexpr double smallest = 50.0;
constexpr double largest = 500.0;

// What the slope form makes of lines that cross circles.
struct Lines {
  double off = 0.0;    // greatest distance of a point from its circle
  double share = 0.0;  // of the lines that are not found, %
};

// Lines along a direction through sources on the bench. Only the direction (0, 1) is vertical.
Lines crossingLines(Point direction) {
  RandomBench random(301);
  Lines result;
  int missing = 0;
  for (int i = 0; i < lines;) {
    const Point source = random.source();
    const double r = random.real(smallest, largest);
    const Point centre{random.real(-500.0, 500.0), 0.0};
    if (std::fabs(cross(source - centre, unit(direction))) > 0.999 * r) continue;
    ++i;
    const SimeiaTomis met =
        tomieytheiaskyklou(centre.x, centre.y, r, direction.x, direction.y, source.x, source.y);
    if (met.found == 0) ++missing;
    for (const Point p : {Point{met.x1, met.y1}, Point{met.x2, met.y2}}) {
      result.off = std::max(result.off, std::fabs(length(p - centre) - r));
    }
  }
  result.share = 100.0 * missing / lines;
  return result;
}

// How far before the left vertex of a lens of two such radii a ray along the axis still starts on
// the face.
double margin(double R) {
  const Bench bench{{20.0 - R, R, R - 20.0, R}, 1.5, {}};
  double on = 0.0;
  double before = 1.0;
  for (int i = 0; i < 60; ++i) {
    const double apart = 0.5 * (on + before);
    const Point start{leftVertex(bench.fakos) - apart, 0.0};
    const bool inGlass = traced(bench, start, {1.0, 0.0}).pieces[0].medium == light::Medium::Glass;
    (inGlass ? on : before) = apart;
  }
  return on;
}

// The angle in the glass of a ray that meets the left vertex of such a lens at an angle from so far
// away, degrees.
double angleInGlass(double R, double apart, double degrees) {
  const Bench bench{{20.0 - R, R, R - 20.0, R}, 1.5, {}};
  const double angle = degrees * std::numbers::pi / 180.0;
  const Point along{std::cos(angle), std::sin(angle)};
  const Point vertex{leftVertex(bench.fakos), 0.0};
  const light::RayPath path = traced(bench, vertex - apart * along, along);
  for (const light::Piece& piece : path.way()) {
    if (piece.medium != light::Medium::Glass) continue;
    return std::atan2(piece.direction.y, piece.direction.x) * 180.0 / std::numbers::pi;
  }
  return 0.0;
}

}  // namespace

void sayLineAndCircle(Page& page) {
  page.says("from circles of radius " + fixed(smallest, 0) + " to " + fixed(largest, 0) +
            ", over " + grouped(lines) + " lines each");
  std::string slopes = "| slope |";
  std::string off = "| off by less than |";
  const std::array bounds{"1e-11", "1e-9", "1e-7", "1e-5", "1e-3"};
  int slope = 1;
  for (const char* bound : bounds) {
    const Lines met = crossingLines({1.0, static_cast<double>(slope)});
    EXPECT_EQ(met.share, 0.0) << slope;
    slopes += " " + grouped(slope) + " |";
    off += " " + below(met.off, bound) + " |";
    slope *= 10;
  }
  const auto lost = [&](double share, const std::string& figure, double within) {
    slopes += " " + grouped(slope) + " |";
    off += " about " + about(share, figure, within) + " % not found |";
    slope *= 10;
  };
  lost(crossingLines({1.0, 1e5}).share, "1.1", 0.2);
  lost(crossingLines({1.0, 1e6}).share, "32.7", 0.8);
  page.says(slopes);
  page.says(off);
  page.says("a rounding makes about " + about(crossingLines({0.0, 1.0}).share, "8.5", 0.8) +
            " % of them not found although they cross the circle");
}

void sayOneRefraction(Page& page) {
  RandomBench random(302);
  double residual = 0.0;
  int lifted = 0;
  int nowhere = 0;
  for (int i = 0; i < lawRays; ++i) {
    const Point centre{random.real(-500.0, 500.0), 0.0};
    const double r = random.real(smallest, largest);
    const double n = random.index();
    const Point normal = random.direction();
    const Point p = centre + r * normal;
    const Point d = random.direction();
    const auto out = diathlasi(d.x, d.y, p.x, p.y, centre.x, centre.y, r, n);
    const bool into = dot(d, normal) < 0.0;
    const double sine = cross(normal, d) * (into ? 1.0 / n : n);
    if (out.ok != 0 && std::fabs(sine) < 0.999999) {
      residual = std::max(residual, std::fabs(cross(normal, {out.dx, out.dy}) - sine));
    }

    const Point along = random.real(1.0, 100.0) * turned(normal);
    const Variant tx = (p.y - centre.y) / r;
    const Variant ty = (centre.x - p.x) / r;
    if (!gonia(along.x, along.y, tx, ty).isEmpty()) continue;
    ++lifted;
    const auto grazing = diathlasi(along.x, along.y, p.x, p.y, centre.x, centre.y, r, n);
    const double aside = std::fabs(dot(normal, {grazing.dx, grazing.dy}));
    if (aside == 0.0) {
      ++nowhere;
    } else {
      EXPECT_NEAR(aside, 1.0, 1e-6);
    }
  }
  page.says("Snell's law holds to " + below(residual, "1e-6"));
  const auto share = [](int rays) { return 100.0 * rays / lawRays; };
  page.says("lifts the sine of a ray along the tangent above 1; that happens to about " +
            about(share(lifted), "34", 2.0) + " % of exactly grazing rays. It sends about " +
            about(share(lifted - nowhere), "22", 2.0) + " % along the normal, and gives about " +
            about(share(nowhere), "12", 2.0) + " % no direction, (0, 0)");
}

void sayTolerances(Page& page) {
  const double parts = margin(100.0) / 100.0;
  EXPECT_NEAR(parts, margin(500.0) / 500.0, 1e-9);
  page.says("A start within " + fixed(parts, 4) + " R of a face (" + fixed(margin(100.0)) +
            " at R = 100, " + fixed(margin(500.0)) + " at R = 500) stands on that face");
  const double incidence = 30.0;
  const auto bent =
      light::refracted({std::cos(std::numbers::pi / 6), std::sin(std::numbers::pi / 6)},
                       {-1.0, 0.0}, 1.0 / 1.5, light::Grazing::AlongTangent);
  EXPECT_NEAR(angleInGlass(100.0, 0.1, incidence),
              std::atan2(bent->y, bent->x) * 180.0 / std::numbers::pi, 1e-9);
  page.says("A ray that meets the face at " + fixed(incidence, 0) + "° from there goes on at " +
            fixed(angleInGlass(100.0, 0.04, incidence), 0) +
            "°; one from further away goes on at " + fixed(angleInGlass(100.0, 0.1, incidence)) +
            "°");

  // The first values of the single-ray screen.
  const Fakos first{0.0, 90.0, 100.0, 100.0};
  DiadromiApotelesma found;
  diadromiaktinas2(found, first.xc1, first.xc2, first.R1, first.R2, 1, 0, -50, 0);
  EXPECT_EQ(found.found, 0);
  const light::RayPath path = traced({first, 1.5, {}}, {-50.0, 0.0}, {1.0, 0.0});
  EXPECT_EQ(path.count, 3);
  page.says("takes a point of exactly " + place(path.pieces[0].to, 0) + " as not found");
}

}  // namespace lensbench::poreiaaktinon
