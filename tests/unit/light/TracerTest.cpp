// One tracer for faces of every shape, and each of the conditions in which lenses differ.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/light/Tracer.h"

namespace lensbench::light {
namespace {

constexpr double a = 12.0;
const double b = a * std::sqrt(1.25);  // of index 1.5

// Vertices at (-40, 0) and (40, 0), rim at (0, 80) and (0, -80).
Lens circles(double n = 1.5) {
  return {Circle{{60.0, 0.0}, 100.0}, Circle{{-60.0, 0.0}, 100.0}, n};
}
Lens planoConvex(double n = 1.5) { return {Hyperbola{a, b, {}}, Plane{4.0 * a}, n}; }
Lens biconvex(double n = 1.5) { return {Hyperbola{a, b, {}}, Hyperbola{a, b, 4.0 * a}, n}; }

Conditions toEdges() {
  Conditions conditions;
  conditions.end = Edges{-400.0, 400.0, -200.0, 200.0};
  return conditions;
}
Conditions byLengths() {
  Conditions conditions;
  conditions.touching = 1e-9;
  conditions.outAsIn = false;
  conditions.beforeLens = 4.0 * a;
  conditions.end = Lengths{100.0, 530.0};
  return conditions;
}

double onHyperbola(Point p) { return p.x * p.x / (a * a) - p.y * p.y / (b * b); }

void expectPoint(Point p, double x, double y) {
  EXPECT_NEAR(p.x, x, 1e-12);
  EXPECT_NEAR(p.y, y, 1e-12);
}

TEST(Trace, PiecesJoinAndSayTheirMedium) {
  for (const Lens& lens : {circles(), planoConvex(), biconvex()}) {
    const RayPath path = trace(lens, {{-200.0, 10.0}, {1.0, 0.0}}, toEdges(), 3.0);
    ASSERT_EQ(path.count, 3);
    EXPECT_EQ(path.pieces[0].medium, Medium::Air);
    EXPECT_EQ(path.pieces[1].medium, Medium::Glass);
    EXPECT_EQ(path.pieces[2].medium, Medium::Air);
    EXPECT_EQ(path.meetings[0].face, Side::Left);
    EXPECT_EQ(path.meetings[1].face, Side::Right);
    for (std::size_t i = 0; i < 3; ++i) {
      const Piece& piece = path.pieces[i];
      if (i > 0) expectPoint(piece.from, path.pieces[i - 1].to.x, path.pieces[i - 1].to.y);
      EXPECT_NEAR(length(piece.direction), 1.0, 1e-15);
      EXPECT_NEAR(cross(piece.to - piece.from, piece.direction), 0.0, 1e-11);
      EXPECT_GT(dot(piece.to - piece.from, piece.direction), 0.0);
    }
    EXPECT_EQ(path.n, 1.5);
    EXPECT_EQ(path.phase, 3.0);
  }
}

TEST(Trace, EveryFaceRefractsByTheLawOfSinesAboutItsNormal) {
  for (const Lens& lens : {circles(), planoConvex(), biconvex()}) {
    for (const Ray& ray : {Ray{{-200.0, 10.0}, {1.0, 0.0}}, Ray{{200.0, -15.0}, {-1.0, 0.0}}}) {
      const RayPath path = trace(lens, ray, toEdges());
      ASSERT_EQ(path.count, 3);
      for (std::size_t i = 0; i < 2; ++i) {
        const Point normal = path.meetings[i].normal;
        EXPECT_TRUE(path.meetings[i].refracts);
        EXPECT_NEAR(length(normal), 1.0, 1e-15);
        const double before = cross(normal, path.pieces[i].direction) * (i == 0 ? 1.0 : 1.5);
        const double after = cross(normal, path.pieces[i + 1].direction) * (i == 0 ? 1.5 : 1.0);
        EXPECT_NEAR(before, after, 1e-14);
        // Out of the glass: against the ray that enters, along the one that leaves.
        EXPECT_EQ(dot(normal, path.pieces[i].direction) > 0.0, i == 1);
      }
    }
  }
}

TEST(Trace, ACircleOfNoRadiusIsNoGlass) {
  for (const double y : {0.0, 5.0}) {
    EXPECT_TRUE(trace({Circle{}, Circle{}, 1.5}, {{-200.0, y}, {1.0, 0.0}}, toEdges()).missed());
  }
}

TEST(Trace, PathsEndAtTheEdgesOrAfterALength) {
  expectPoint(trace(planoConvex(), {{-60.0, 0.0}, {1.0, 0.0}}, toEdges()).end(), 400.0, 0.0);
  expectPoint(trace(planoConvex(), {{-60.0, 90.0}, {1.0, 0.0}}, toEdges()).end(), 400.0, 90.0);
  const RayPath through = trace(planoConvex(), {{-60.0, 0.0}, {1.0, 0.0}}, byLengths());
  expectPoint(through.end(), 48.0 + 530.0, 0.0);
  const RayPath missed = trace(planoConvex(), {{-60.0, 90.0}, {1.0, 0.0}}, byLengths());
  EXPECT_TRUE(missed.missed());
  expectPoint(missed.end(), 40.0, 90.0);
}

TEST(Trace, AVertexIsGoneThroughStraightAlongTheSameLine) {
  // Entered there: straight at the other face too.
  const RayPath in = trace(planoConvex(), {{0.0, 9.0}, {0.8, -0.6}}, byLengths());
  ASSERT_EQ(in.count, 3);
  EXPECT_FALSE(in.meetings[0].refracts);
  EXPECT_FALSE(in.meetings[1].refracts);
  expectPoint(in.pieces[1].to, 48.0, -27.0);
  expectPoint(in.pieces[2].direction, 0.8, -0.6);
  // Left there: refracted at the first face alone.
  const RayPath axial = trace(planoConvex(), {{108.0, 0.0}, {-1.0, 0.0}}, byLengths());
  ASSERT_EQ(axial.count, 3);
  EXPECT_TRUE(axial.meetings[0].refracts);
  EXPECT_FALSE(axial.meetings[1].refracts);
  expectPoint(axial.pieces[1].to, 12.0, 0.0);
}

// --- What standing on a face means

TEST(OnFace, AStartOnAFaceOfACircleIsInTheGlassAlready) {
  Conditions conditions = toEdges();
  const Ray justOutside{{-40.01, 0.0}, {1.0, 0.0}};
  EXPECT_EQ(trace(circles(), justOutside, conditions).pieces[0].medium, Medium::Air);
  conditions.onFace = 0.0005;
  EXPECT_EQ(trace(circles(), justOutside, conditions).pieces[0].medium, Medium::Glass);
  // Heading out it has left the lens, and does not find its own start.
  const Ray justInside{{-39.99, 0.0}, {-1.0, 0.0}};
  EXPECT_TRUE(trace(circles(), justInside, conditions).missed());
  conditions.onFace = 0.0;
  EXPECT_EQ(trace(circles(), justInside, conditions).pieces[0].medium, Medium::Glass);
}

TEST(OnFace, TheOuterLimitOfTheMarginStandsOnTheFaceTheInnerOneDoesNot) {
  Conditions conditions = toEdges();
  conditions.onFace = 0.5;
  // 150 and 50 units from the centre of the left face.
  EXPECT_EQ(trace(circles(), {{-90.0, 0.0}, {1.0, 0.0}}, conditions).pieces[0].medium,
            Medium::Glass);
  EXPECT_EQ(trace(circles(), {{-90.001, 0.0}, {1.0, 0.0}}, conditions).pieces[0].medium,
            Medium::Air);
  EXPECT_EQ(trace(circles(), {{10.0, 0.0}, {-1.0, 0.0}}, conditions).pieces[0].medium,
            Medium::Glass);
  EXPECT_TRUE(trace(circles(), {{9.999, 0.0}, {-1.0, 0.0}}, conditions).missed());
}

TEST(Touching, AStartBarelyInTheGlassStillEnters) {
  const Ray ray{{48.0 - 1e-10, 3.0}, {-1.0, 0.0}};
  EXPECT_EQ(trace(planoConvex(), ray, byLengths()).pieces[0].medium, Medium::Air);
  Conditions exact = byLengths();
  exact.touching = 0.0;
  EXPECT_EQ(trace(planoConvex(), ray, exact).pieces[0].medium, Medium::Glass);
}

TEST(Touching, AShorterStretchOfGlassIsNone) {
  // Across the vertex of the hyperbola, where 1e-11 units of glass are left.
  const Ray ray{{12.0 + 1e-11, 0.0}, {-1.0, 0.0}};
  EXPECT_TRUE(trace(planoConvex(), ray, byLengths()).missed());
  Conditions exact = byLengths();
  exact.touching = 0.0;
  EXPECT_FALSE(trace(planoConvex(), ray, exact).missed());
}

TEST(EnteredAtRim, SaysWhichFaceIsEnteredWhereBothAreMetAtOnce) {
  Conditions conditions = toEdges();
  const Ray down{{0.0, 110.0}, {0.0, -1.0}};
  conditions.enteredAtRim = Side::Left;
  const RayPath left = trace(circles(1.0), down, conditions);
  EXPECT_EQ(left.meetings[0].face, Side::Left);
  expectPoint(left.pieces[0].to, 0.0, 80.0);
  conditions.enteredAtRim = Side::Right;
  const RayPath right = trace(circles(1.0), down, conditions);
  EXPECT_EQ(right.meetings[0].face, Side::Right);
  expectPoint(right.pieces[0].to, 0.0, 80.0);
  // Beside the rim the nearer face counts.
  EXPECT_EQ(trace(circles(1.0), {{-1.0, 110.0}, {0.0, -1.0}}, conditions).meetings[0].face,
            Side::Left);
}

// --- What a face does

TEST(OutAsIn, TheFaceThatLightEnteredByLetsItOutOrTrapsIt) {
  const Ray steep{{15.0, 60.0}, unit({-1.0, -40.0})};
  const RayPath trapped = trace(planoConvex(1.05), steep, byLengths());
  EXPECT_EQ(trapped.ending, Ending::Trapped);
  ASSERT_EQ(trapped.count, 2);
  EXPECT_NEAR(onHyperbola(trapped.end()), 1.0, 1e-12);
  Conditions conditions = byLengths();
  conditions.outAsIn = true;
  const RayPath out = trace(planoConvex(1.05), steep, conditions);
  EXPECT_EQ(out.ending, Ending::Open);
  ASSERT_EQ(out.count, 3);
  EXPECT_EQ(out.meetings[0].face, Side::Left);
  EXPECT_EQ(out.meetings[1].face, Side::Left);
}

TEST(OutAsIn, WithoutGlassAheadTheRayEndsWhereItEntered) {
  // A start so far away that rounding carries the entry past the rim of the lens.
  int ended = 0;
  for (int i = 0; i < 400; ++i) {
    const double slope = -1.0 + 0.005 * i;
    const Point d = unit({-1.0, slope});
    const Ray ray{Point{50.0, 10.0} - 1e18 * d, d};
    const RayPath path = trace(biconvex(), ray, byLengths());
    if (path.ending != Ending::Trapped) continue;
    ASSERT_EQ(path.count, 2);
    if (path.pieces[1].from.x == path.pieces[1].to.x &&
        path.pieces[1].from.y == path.pieces[1].to.y) {
      ++ended;
      EXPECT_EQ(path.pieces[1].medium, Medium::Glass);
      EXPECT_EQ(path.meetings[1].face, Side::None);
    }
  }
  EXPECT_GT(ended, 0);
}

TEST(Grazing, GoesIntoThePathOfTheRay) {
  // Out of thick glass through the plane at the very angle whose sine times n is 1.
  const Lens slab{Circle{{0.0, 0.0}, 1000.0}, Plane{48.0}, 1.0 / 0.6};
  const Ray ray{{0.0, 0.0}, {0.8, 0.6}};
  Conditions conditions = toEdges();
  conditions.grazing = Grazing::AlongTangent;
  const RayPath along = trace(slab, ray, conditions);
  ASSERT_EQ(along.count, 2);
  expectPoint(along.pieces[1].direction, 0.0, 1.0);
  conditions.grazing = Grazing::Reflected;
  EXPECT_EQ(trace(slab, ray, conditions).ending, Ending::TotalReflection);
}

TEST(Trace, TotalReflectionEndsAtTheFaceThatReflects) {
  const RayPath path = trace(circles(2.0), {{5.0, 0.0}, {0.0, 1.0}}, toEdges());
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  ASSERT_EQ(path.count, 1);
  EXPECT_EQ(path.meetings[0].face, Side::Right);
  EXPECT_TRUE(path.meetings[0].refracts);
}

// --- The diaphragm

TEST(Diaphragm, StopsEveryPieceOrTheWayBeforeTheLensAlone) {
  for (const double X : {-50.0, 30.0, 200.0}) {
    Conditions conditions = toEdges();
    conditions.diafragma = Diafragma{X, 50.0, 20.0};
    const Ray ray{{-100.0, 10.0}, {1.0, 0.0}};
    const RayPath stopped = trace(planoConvex(), ray, conditions);
    EXPECT_EQ(stopped.ending, Ending::Diaphragm) << X;
    EXPECT_EQ(stopped.end().x, X);
    EXPECT_EQ(stopped.count, X < 12.0 ? 1 : X < 48.0 ? 2 : 3);
    conditions.beforeLens = 48.0;
    const RayPath before = trace(planoConvex(), ray, conditions);
    EXPECT_EQ(before.ending, X < 12.0 ? Ending::Diaphragm : Ending::Open) << X;
  }
}

TEST(Diaphragm, AtTheStartCountsOnEveryPieceButNotBeforeTheLens) {
  Conditions conditions = toEdges();
  conditions.diafragma = Diafragma{-100.0, 50.0, 20.0};
  const Ray ray{{-100.0, 10.0}, {1.0, 0.0}};
  EXPECT_EQ(trace(planoConvex(), ray, conditions).ending, Ending::Diaphragm);
  conditions.beforeLens = 48.0;
  EXPECT_EQ(trace(planoConvex(), ray, conditions).ending, Ending::Open);
}

TEST(Diaphragm, BesideTheLensCountsUpToThePlaneOfTheRim) {
  Conditions conditions = byLengths();
  const Ray high{{108.0, 80.0}, {-1.0, 0.0}};
  for (const auto& [X, ending] : {std::pair{90.0, Ending::Diaphragm},
                                  {48.0, Ending::Diaphragm},
                                  {47.9, Ending::Open},
                                  {108.0, Ending::Open}}) {
    conditions.diafragma = Diafragma{X, 10.0, -10.0};
    EXPECT_EQ(trace(planoConvex(), high, conditions).ending, ending) << X;
  }
}

TEST(Diaphragm, ClosedLetsNothingThroughAlongTheAxis) {
  for (Conditions conditions : {toEdges(), byLengths()}) {
    for (const Diafragma& closed : {Diafragma{-50.0, 0.0, 0.0}, Diafragma{-50.0, -3.0, 3.0}}) {
      conditions.diafragma = closed;
      for (const Lens& lens : {circles(), planoConvex(), biconvex()}) {
        const RayPath axial = trace(lens, {{-100.0, 0.0}, {1.0, 0.0}}, conditions);
        EXPECT_EQ(axial.ending, Ending::Diaphragm);
        expectPoint(axial.end(), -50.0, 0.0);
        EXPECT_EQ(axial.count, 1);
      }
      const RayPath beside = trace(planoConvex(), {{-100.0, 90.0}, {1.0, 0.0}}, conditions);
      EXPECT_EQ(beside.ending, Ending::Diaphragm);
      // What never reaches it goes on.
      EXPECT_EQ(trace(planoConvex(), {{-40.0, 0.0}, {1.0, 0.0}}, conditions).ending, Ending::Open);
    }
  }
}

}  // namespace
}  // namespace lensbench::light
