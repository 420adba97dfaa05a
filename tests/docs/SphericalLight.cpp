// Rays, waves, fans, bundles and the diaphragm.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "canvas/Recording.h"
#include "optics/light/OpticalPath.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Named.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/poreiaaktinon/Scenes.h"
#include "tests/docs/Figures.h"
#include "tests/docs/Workbench.h"
#include "tests/property/poreiaaktinon/IndependentTrace.h"
#include "tests/support/OpticalLength.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::Ending;
using light::Grazing;
using light::RayPath;

constexpr double degree = std::numbers::pi / 180.0;

Point alongAngle(double angle) { return {std::cos(angle), std::sin(angle)}; }

// How much more than 0 the law of sines leaves at the faces of a path, and how far its points are
// from the circles.
void meetFaces(const Bench& bench, const RayPath& path, double& residual, double& off) {
  for (std::size_t i = 0; i + 1 < path.way().size(); ++i) {
    const bool right = path.meetings[i].face == light::Side::Right;
    const Point centre{right ? bench.fakos.xc1 : bench.fakos.xc2, 0.0};
    const Point fromCentre = path.pieces[i].to - centre;
    const auto part = [&](std::size_t k) {
      return light::indexOf(path, path.pieces[k]) *
             cross(path.pieces[k].direction, unit(fromCentre));
    };
    residual = std::max(residual, std::fabs(part(i) - part(i + 1)));
    off = std::max(off, std::fabs(length(fromCentre) - (right ? bench.fakos.R1 : bench.fakos.R2)));
  }
}

double distance(const Leg& leg, Point p) {
  return static_cast<double>(std::hypot(leg.x - p.x, leg.y - p.y));
}

// The angle of incidence from which on a face reflects totally, radians.
double criticalAngle(double ratio) {
  double passes = 0.0;
  double reflects = 0.5 * std::numbers::pi;
  for (int i = 0; i < 60; ++i) {
    const double angle = 0.5 * (passes + reflects);
    const bool through =
        light::refracted(alongAngle(angle), {-1.0, 0.0}, ratio, Grazing::AlongTangent).has_value();
    (through ? passes : reflects) = angle;
  }
  return passes;
}

std::string inDegrees(double radians, int decimals = 2) {
  return fixed(radians / degree, decimals) + "°";
}

// The rays of a bundle through a lens of index 1.
std::vector<RayPath> bundle(double gonia) {
  return *send({openingLens, 1.0, {}}, Desmi{gonia, 20}, RandomBench::edges).paths;
}

// The distance of neighbouring rays across over that of their k; its sign is that of their order.
double spread(double gonia) {
  const auto paths = bundle(gonia);
  return -cross(alongAngle(gonia), paths[1].start() - paths[0].start()) / (400.0 / 20.0);
}

}  // namespace

void sayUnits(Page& page) {
  EXPECT_EQ(std::get<light::Circle>(lensOf({openingLens, 1.5, {}}).left).centre.y, 0.0);
  page.says("The axis is y = " + fixed(0.0, 0) + ", x grows to the right and y upwards");
  EXPECT_TRUE(estiakiapostasi(100, 90, 1).isEmpty());
  EXPECT_LT(estiakiapostasi(100, 90, 0.99), 0);
  EXPECT_GT(estiakiapostasi(100, 90, 1.01), 0);
  page.says("below 1 the lens is of an optically thinner material than its surroundings");

  RandomBench random(101);
  for (int i = 0; i < 1000; ++i) {
    const Fakos f = random.lens();
    const Glass glass = glassOf(f, 1.5);
    const double x = (f.xc1 + f.xc2 + (f.R1 * f.R1 - f.R2 * f.R2) / (f.xc2 - f.xc1)) / 2.0;
    EXPECT_EQ(leftVertex(f), f.xc2 - f.R2);
    EXPECT_EQ(rightVertex(f), f.xc1 + f.R1);
    EXPECT_NEAR(glass.xordi, x, 1e-9);
    EXPECT_NEAR(glass.h * glass.h, f.R1 * f.R1 - (x - f.xc1) * (x - f.xc1), 1e-6);
  }
  page.says(
      "V1 = xc2 − R2, V2 = xc1 + R1, d = V2 − V1 "
      "x = (xc1 + xc2 + (R1² − R2²) / (xc2 − xc1)) / 2 "
      "h = √(R1² − (x − xc1)²)");

  const Glass glass = glassOf(openingLens, openingIndex);
  const double V1 = leftVertex(openingLens);
  const double V2 = rightVertex(openingLens);
  page.says("R1 = " + fixed(openingLens.R1, 0) + ", R2 = " + fixed(openingLens.R2, 0) +
            ", xc1 = " + fixed(openingLens.xc1, 0) + ", xc2 = " + fixed(openingLens.xc2, 0) +
            ", n = " + fixed(openingIndex) + ", where another n is not given: V1 = " +
            fixed(V1, 0) + ", V2 = " + fixed(V2, 0) + ", d = " + fixed(V2 - V1, 0) +
            ", x = " + fixed(glass.xordi) + ", h = " + fixed(glass.h));
}

void sayRays(Page& page) {
  RandomBench random(102);
  for (int i = 0; i < 1000; ++i) {
    const Point u = random.direction();
    const Point N = random.direction();
    const Point T = turned(N);
    const double m = random.real(0.4, 2.5);
    const double s = m * dot(u, T);
    const auto out = light::refracted(u, N, m, Grazing::AlongTangent);
    ASSERT_EQ(out.has_value(), std::fabs(s) <= 1.0);
    if (!out) continue;
    const Point expected = s * T + (dot(u, N) < 0.0 ? -1.0 : 1.0) * std::sqrt(1.0 - s * s) * N;
    EXPECT_LT(length(*out - expected), 1e-12);
  }
  page.says("s = m (u · T), u′ = s T + sgn(u · N) √(1 − s²) N");
  page.says("**Total reflection**, |s| > 1, ends a ray at the face");

  double residual = 0.0;
  double off = 0.0;
  double apart = 0.0;
  double frontsApart = 0.0;
  int rays = 0;
  for (int tries = 0; rays < lawRays && tries < 60 * lawRays; ++tries) {
    const Bench bench = random.bench();
    const Point source = random.source();
    if (!inAir(bench.fakos, source)) continue;
    const double angle = random.real(-3.2, 3.2);
    const RayPath path = traced(bench, source, alongAngle(angle));
    if (path.meetings[0].face == light::Side::None) continue;
    ++rays;
    meetFaces(bench, path, residual, off);
    const IndependentTrace second = traceIndependently(bench.fakos, bench.n, source, angle);
    if (second.smallestCosine < 1e-3L) continue;
    ASSERT_EQ(second.totallyReflected, path.ending == Ending::TotalReflection);
    for (std::size_t leg = 1; leg < second.legs.size(); ++leg) {
      apart = std::max(apart, distance(second.legs[leg], path.pieces[leg].from));
    }
    const double L = random.real(0.0, light::opticalLength(path));
    frontsApart = std::max(
        frontsApart, length(light::pointAtOpticalPath(path, L)->position - pointOn(second, L)));
  }
  page.says("Over " + grouped(rays) + " rays n₁ sin a₁ − n₂ sin a₂ is below " +
            below(residual, "1e-14") + ", the points of a path are within " + below(off, "1e-11") +
            " of the circles and, away from grazing, within " + below(apart, "1e-10") +
            " of those of a second tracer");
  page.says("within " + below(frontsApart, "1e-9") + " of where a second tracer puts it");
}

void sayTotalReflection(Page& page) {
  const double sparse = criticalAngle(1.5);
  const double dense = criticalAngle(2.5);
  const double thin = criticalAngle(1.0 / 0.4);
  EXPECT_NEAR(sparse, std::asin(1.0 / 1.5), 1e-9);
  EXPECT_NEAR(dense, std::asin(1.0 / 2.5), 1e-9);
  EXPECT_NEAR(thin, std::asin(0.4), 1e-9);
  page.says("The critical angle of the glass is arcsin(1/n): " + inDegrees(sparse) +
            " at n = " + fixed(1.5) + ", " + inDegrees(dense) + " at n = " + fixed(2.5) +
            ". With n < 1 it comes on entry, from arcsin(n) on: " + inDegrees(thin) +
            " at n = " + fixed(0.4));
}

void sayWaves(Page& page) {
  Recording canvas;
  canvas.Scale(-400.0, 200.0, 400.0, -200.0);
  drawWavePoints(canvas, tracedOnBench({-300.0, 0.0}, {1.0, 0.0}));
  const auto dots = canvas.operations(Operation::Kind::PSet);
  EXPECT_NEAR((dots.at(1).x1 - dots.at(0).x1), waveStep, 1e-9);
  page.says("A wave point stands at each whole " + fixed(waveStep, 0) + " of it");

  const Point onPlane{-200.0, 0.0};
  for (const double gonia : {-1.2, -0.5, 0.0, 0.3, 1.0}) {
    for (const RayPath& path : bundle(gonia)) {
      const Point along = alongAngle(gonia);
      EXPECT_NEAR(dot(path.start() - onPlane, along), path.phase, 1e-9);
    }
  }
  page.says("for a bundle from the plane through " + place(onPlane, 0) + " square to the rays");
  page.says("A moving front advances by " + fixed(pathPerStep, 1) +
            " a step, and the second one is " + fixed(pathPerStep * stepsBehind, 0) + " behind it");
}

// By the law of Fresnel for light that is square to the plane of the drawing, close to the normal.
void sayReflectance(Page& page) {
  const auto reflected = [](double n) {
    const double before = 1e-4;
    const auto beyond =
        light::refracted(alongAngle(before), {1.0, 0.0}, 1.0 / n, Grazing::AlongTangent).value();
    const double behind = std::atan2(beyond.y, beyond.x);
    const double amplitude = std::sin(before - behind) / std::sin(before + behind);
    EXPECT_NEAR(amplitude, (n - 1.0) / (n + 1.0), 1e-7);
    return fixed(100.0 * amplitude * amplitude) + " % at n = " + fixed(n);
  };
  page.says("Of light that falls straight on a face ((n − 1) / (n + 1))² is reflected: " +
            reflected(1.5) + ", " + reflected(2.5));
}

void sayFans(Page& page) {
  const double step = openingStep;
  const Bench air{{}, 1.0, {}};
  const Sent fan = send(air, Fan{{0.0, 0.0}, step}, {-500.0, 500.0, -500.0, 500.0});
  const auto& paths = *fan.paths;
  const double gap =
      std::acos(dot(paths.front().pieces[0].direction, paths.back().pieces[0].direction));
  page.says("A fan has Int(360 / step) rays");
  EXPECT_EQ(paths.size(), std::floor(360.0 / step));
  const double radius = 200.0;
  const Front::Piece piece = frontAt(fan, radius).pieces.front();
  page.says("with a step of " + fixed(step, 4) + "°, the first of the workbench, " +
            std::to_string(rayCount(step)) + " rays, the last " + inDegrees(gap, 4) +
            " from the first");
  page.says(fixed(radius, 0) + " from its source the true front bulges by " +
            fixed(radius - length(0.5 * (piece.from + piece.to))) + " beyond them");
}

void sayBundles(Page& page) {
  for (const double gonia : {-0.7, 0.0, 1.1}) {
    const auto paths = bundle(gonia);
    for (std::size_t i = 0; i < paths.size(); ++i) {
      const double k = 200.0 - 20.0 * static_cast<double>(i);
      const Point start{-200.0 - k * std::tan(gonia), k / std::cos(gonia)};
      EXPECT_LT(length(paths[i].start() - start), 1e-9);
    }
    const double sine = std::sin(gonia);
    EXPECT_NEAR(spread(gonia), 1.0 + sine * sine / std::cos(gonia), 1e-9);
  }
  EXPECT_GT(spread(89.99 * degree), 1000.0);
  double wider = 120.0 * degree;
  double crossed = 140.0 * degree;
  ASSERT_LT(spread(wider) * spread(crossed), 0.0);
  for (int i = 0; i < 60; ++i) {
    const double middle = 0.5 * (wider + crossed);
    (spread(middle) * spread(wider) > 0.0 ? wider : crossed) = middle;
  }
  page.says(
      "at the angle φ start at (-200 − k tan φ, k / cos φ), so their distance across is "
      "1 + sin² φ / cos φ times the spacing of k: " +
      fixed(spread(0.0), 0) + " at 0°, " + fixed(spread(45.0 * degree)) + " at 45°, " +
      fixed(spread(60.0 * degree)) + " at 60°, without bound towards 90°");
  page.says("at " + fixed(wider / degree, 1) + "° it is " + fixed(spread(wider), 0) +
            " and all rays run on one line");
}

void sayDiaphragm(Page& page) {
  const auto ending = [](double opening) {
    const Bench bench{openingLens, openingIndex, Diafragma{-150.0, opening / 2, -opening / 2}};
    return traced(bench, {-200.0, 0.0}, {1.0, 0.0}).ending;
  };
  EXPECT_EQ(ending(-1.0), Ending::Diaphragm);
  EXPECT_EQ(ending(0.0), Ending::Diaphragm);
  EXPECT_EQ(ending(1e-300), Ending::Open);
  page.says("A diaphragm whose opening is 0 or less stops every ray that reaches it");
  EXPECT_EQ(elegxosdiafragmatos(-150, 0, 0, -200, 0, 1, 0).blocked, 0);
  page.says("lets the one point of an opening of height 0 through");
}

}  // namespace lensbench::poreiaaktinon
