// The marks of a lens, the construction of an image, and how far both are from where rays meet.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/Scenes.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"
#include "tests/docs/Figures.h"
#include "tests/docs/Paraxial.h"
#include "tests/docs/Workbench.h"
#include "tests/property/poreiaaktinon/IndependentTrace.h"

namespace lensbench::poreiaaktinon {
namespace {

paraxial::Matrix matrixOf(const Fakos& f, double n) {
  return paraxial::lens((n - 1.0) / f.R2, rightVertex(f) - leftVertex(f), n, (n - 1.0) / f.R1);
}

// The image of a point to the left of a lens by paraxial rays.
Point paraxialImage(const Fakos& f, double n, Point source) {
  const auto image = paraxial::image(matrixOf(f, n), leftVertex(f) - source.x, source.y);
  return {rightVertex(f) + image.behind, image.height};
}

// The formulas as the page has them.
void expectMarks(const Fakos& f, double n) {
  const CardinalPoints p = cardinalPoints(f, n);
  const double V1 = leftVertex(f);
  const double V2 = rightVertex(f);
  const double d = V2 - V1;
  const double power = (n - 1) * (1 / f.R1 + 1 / f.R2) - (n - 1) * (n - 1) * d / (n * f.R1 * f.R2);
  const double close = 1e-9 * std::max(1.0, p.f * p.f);
  EXPECT_NEAR(p.f, 1 / power, close);
  EXPECT_NEAR(p.H1, V1 + d * p.f * (n - 1) / (n * f.R2), close);
  EXPECT_NEAR(p.H2, V2 - d * p.f * (n - 1) / (n * f.R1), close);
  EXPECT_EQ(p.N1, p.H1);
  EXPECT_EQ(p.N2, p.H2);
  EXPECT_EQ(p.F1, p.H1 - p.f);
  EXPECT_EQ(p.F2, p.H2 + p.f);
}

// Where exact optics has them, and how far from there they are marked.
void expectDisplaced(const Fakos& f, double n) {
  const CardinalPoints marked = cardinalPoints(f, n);
  const CardinalPoints meant = paraxialPoints(f, n);
  const paraxial::Matrix m = matrixOf(f, n);
  const double close = 1e-9 * std::max(1.0, marked.f * marked.f);
  EXPECT_NEAR(meant.f, -1 / m.C, close);
  EXPECT_NEAR(meant.F1, leftVertex(f) + m.D / m.C, close);
  EXPECT_NEAR(meant.F2, rightVertex(f) - m.A / m.C, close);
  const double by = marked.f * (n - 1) * marked.d / n * (1 / f.R2 - 1 / f.R1);
  for (const auto point : {&CardinalPoints::H1, &CardinalPoints::H2, &CardinalPoints::N1,
                           &CardinalPoints::N2, &CardinalPoints::F1, &CardinalPoints::F2}) {
    EXPECT_NEAR(marked.*point - meant.*point, by, close);
  }
}

}  // namespace

void sayCardinalPoints(Page& page) {
  RandomBench random(201);
  for (int i = 0; i < 1000; ++i) {
    const Bench bench = random.bench();
    if (!hasCardinalPoints(bench.fakos, bench.n)) continue;
    expectMarks(bench.fakos, bench.n);
    expectDisplaced(bench.fakos, bench.n);
  }
  page.says(
      "1/f = (n − 1)(1/R1 + 1/R2) − (n − 1)² d / (n R1 R2) "
      "H1 = V1 + d f (n − 1) / (n R2), H2 = V2 − d f (n − 1) / (n R1) "
      "N1 = H1, N2 = H2, F1 = H1 − f, F2 = H2 + f");
  page.says("f (n − 1) d / n · (1/R2 − 1/R1) which is 0 for R1 = R2");

  for (const double n : {0.4, 1.5, 2.5}) {
    const CardinalPoints marked = cardinalPoints(openingLens, n);
    const paraxial::Matrix m = matrixOf(openingLens, n);
    const double F1 = leftVertex(openingLens) + m.D / m.C;
    const double F2 = rightVertex(openingLens) - m.A / m.C;
    const Bench bench{openingLens, n, {}};
    EXPECT_NEAR(crossing(traced(bench, {-200.0, 0.01}, {1.0, 0.0})), F2, 1e-5);
    EXPECT_NEAR(crossing(traced(bench, {200.0, 0.01}, {-1.0, 0.0})), F1, 1e-5);
    page.says("| " + fixed(n) + " | " + fixed(marked.f) + " | " + fixed(marked.F1) + " | " +
              fixed(F1) + " | " + fixed(marked.F2) + " | " + fixed(F2) + " | " +
              fixed(marked.F2 - F2) + " |");
  }
}

void sayAberration(Page& page) {
  const auto meets = [](double height) {
    const double x = crossing(tracedOnBench({-200.0, height}, {1.0, 0.0}));
    const auto second = traceIndependently(openingLens, openingIndex, {-200.0, height}, 0.0);
    const Leg& out = second.legs.at(2);
    EXPECT_NEAR(x, static_cast<double>(out.x - out.y / std::tan(out.angle)), 1e-9);
    return fixed(x);
  };
  page.says("parallel rays at the heights 10, 30 and 50 cross the axis at " + meets(10.0) + ", " +
            meets(30.0) + " and " + meets(50.0));
}

void sayImage(Page& page) {
  const CardinalPoints marked = cardinalPoints(openingLens, openingIndex);
  const auto constructed = [&](Point source) { return imageOf(marked, source, Travel::Right); };
  RandomBench random(202);
  for (int i = 0; i < 1000; ++i) {
    const Point source = random.source();
    const double M = marked.f / (source.x - marked.F1);
    const Point image = constructed(source);
    const double close = 1e-9 * std::max(1.0, M * M);
    EXPECT_NEAR(image.y, M * source.y, close * 1e2);
    EXPECT_NEAR(image.x, marked.H2 + marked.f * (1.0 - M), close * 1e4);
  }
  page.says("M = f / (xS − F1), y′ = M yS, x′ = H2 + f (1 − M)");

  const Point source{-250.0, 30.0};
  const Point meant = paraxialImage(openingLens, openingIndex, source);
  const Point told = imageOf(paraxialPoints(openingLens, openingIndex), source, Travel::Right);
  EXPECT_LT(length(told - meant), 1e-9);
  page.says("From " + place(source, 0) + " it is marked at " + place(constructed(source)) +
            "; paraxial rays meet at " + place(meant));

  const Point within{0.0, 10.0};
  const double n = openingIndex;
  const double depth = rightVertex(openingLens) - within.x;
  const auto seen =
      paraxial::image(paraxial::through((n - 1.0) / openingLens.R1), depth / n, within.y);
  EXPECT_EQ(travelFrom(within, openingLens), Travel::Right);
  EXPECT_EQ(tracedOnBench(within, {1.0, 0.0}).pieces[0].medium, light::Medium::Glass);
  page.says("From " + place(within, 0) + " the image is marked at " + place(constructed(within)) +
            ", whereas paraxial rays, which meet the right face alone, seem to come from " +
            place({rightVertex(openingLens) + seen.behind, seen.height}));
}

void sayFocalCircles(Page& page) {
  RandomBench random(203);
  const double thickness = 0.001;
  double worst = 0.0;
  for (int i = 0; i < lawRays; ++i) {
    const double R1 = random.real(50.0, 500.0);
    const double R2 = random.real(50.0, 500.0);
    const double n = random.index();
    if (std::fabs(n - 1.0) < 0.05) continue;
    const Fakos thin{thickness - R1, R1, R2, R2};
    const Glass glass = glassOf(thin, n);
    EXPECT_NEAR(glass.f.value() * ((1 / R1 + 1 / R2) * (n - 1)), 1.0, 1e-12);
    const Point start{-30.0, random.real(0.01, 0.1)};
    const double meets = crossing(traced({thin, n, {}}, start, {1.0, 0.0}));
    worst = std::max(
        worst, std::fabs(meets - (glass.xordi + glass.f.value())) / std::fabs(glass.f.value()));
  }
  const int part = 10000;
  EXPECT_LT(worst * part, 1.0);
  EXPECT_GT(worst * part, 0.01);
  page.says("They stand at the thin-lens focal length, 1 / ((1/R1 + 1/R2)(n − 1)), from the chord");
  page.says("For a thickness of " + fixed(thickness, 3) +
            " the rays of a narrow bundle meet at the circle to 1 part in " + grouped(part));

  const Glass glass = glassOf(openingLens, openingIndex);
  const paraxial::Matrix m = matrixOf(openingLens, openingIndex);
  page.says("its thin f is " + fixed(glass.f.value()) + ", the right-hand circle stands at " +
            fixed(glass.xordi + glass.f.value()) + " and paraxial rays meet at " +
            fixed(rightVertex(openingLens) - m.A / m.C));
}

void sayOutline(Page& page) {
  const Fakos f{0.0, 200.0, 120.0, 100.0};
  const single::Outline outline = single::outlineOf(f.R1, f.R2, f.xc1, f.xc2, 1.5);
  EXPECT_NEAR(std::sin(outline.alpha1), outline.h / f.R1, 1e-12);
  EXPECT_NEAR(std::sin(outline.alpha2), outline.h / f.R2, 1e-12);
  const double reach = std::numbers::pi - faceArcs(f).value().leftStart;
  EXPECT_NEAR(reach, std::atan2(outline.h, f.xc2 - outline.x0), 1e-9);
  const auto degrees = [](double radians) {
    return fixed(radians * 180.0 / std::numbers::pi) + "°";
  };
  page.says("With R1 = " + fixed(f.R1, 0) + ", R2 = " + fixed(f.R2, 0) +
            " and xc2 = " + fixed(f.xc2, 0) + " the left face is drawn to " +
            degrees(outline.alpha2) + " above and below the axis; it reaches to " + degrees(reach));

  RandomBench random(204);
  double moved = 0.0;
  for (int i = 0; i < lawRays; ++i) {
    const double v = random.real(-600.0, 600.0);
    moved = std::max(moved, std::fabs(toSingle(v) - v));
  }
  page.says("within 600 units they are moved by no more than " + below(moved, "3.1e-5"));

  const float aside = -1e-16f;
  EXPECT_GT(single::aimedDirection(0, 0, 0.99f * aside, -1.0f).y, 0.0);
  EXPECT_LT(single::aimedDirection(0, 0, 10.0f * aside, -1.0f).y, 0.0);
  page.says("A ray aimed down with a positive slope of 1e16 or more goes up");
}

}  // namespace lensbench::poreiaaktinon
