// Wave points of one ray, the fronts through them, and the arrays that hold them.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/protosfakos/Fronts.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/protosfakos/FakeSahlScreen.h"

namespace lensbench::protosfakos {
namespace {

// A ray along the axis from (100, 0): 10 in air, 8 in glass of index 2, then on at an angle.
void recordRay(int k) {
  SahlState& s = state();
  s.pigiX = 100;
  s.pigiY = 0;
  s.entryX[k] = 90;
  s.entryY[k] = 0;
  s.exitX[k] = 82;
  s.exitY[k] = 0;
  s.directionX[k] = 3.0f;  // negated and not of length 1: the ray goes along (-0.6, -0.8)
  s.directionY[k] = 4.0f;
}

void expectPoint(int ray, int front, double x, double y) {
  EXPECT_NEAR(state().kymataX[ray][front].value(), x, 1e-12) << front;
  EXPECT_NEAR(state().kymataY[ray][front].value(), y, 1e-12) << front;
}

TEST(Kymatapigis, LaysPointsAtEqualOpticalPath) {
  const SahlBench bench(2.0);
  recordRay(3);
  kymatapigis(3);
  expectPoint(3, 0, 100, 0);
  expectPoint(3, 1, 100, 0);
  expectPoint(3, 2, 96, 0);
  expectPoint(3, 3, 92, 0);
  expectPoint(3, 4, 89, 0);  // path 12: 2 beyond the entry, 1 in the glass
  expectPoint(3, 5, 87, 0);
  expectPoint(3, 7, 83, 0);                   // path 24
  expectPoint(3, 8, 82 - 0.6 * 2, -0.8 * 2);  // path 28, 26 at the exit
  expectPoint(3, 30, 82 - 0.6 * 90, -0.8 * 90);
}

TEST(Kymatapigis, SourceOnTheEntryPoint) {
  const SahlBench bench(2.0);
  recordRay(0);
  state().pigiX = 90;
  kymatapigis(0);
  expectPoint(0, 1, 90, 0);
  expectPoint(0, 2, 88, 0);
}

TEST(Kymatadesmis, CountsFromItsOwnStartAndEmptyAsZero) {
  const SahlBench bench(2.0);
  recordRay(0);
  kymatadesmis(94, 3, 0);
  expectPoint(0, 0, 94, 3);
  expectPoint(0, 2, 94 - 0.8 * 4, 3 - 0.6 * 4);
  expectPoint(0, 3, 88.5, 0);
  kymatadesmis(Variant(), Variant(), 0);
  expectPoint(0, 0, 0, 0);
  expectPoint(0, 2, 4, 0);
  expectPoint(0, 23, 88, 0);
}

TEST(Kymata, IndexOutsideTheArraysIsAnError) {
  const SahlBench bench;
  EXPECT_EQ(errorNumber([] { kymatapigis(501); }), 9);
  EXPECT_EQ(errorNumber([] { kymatapigis(-1); }), 9);
  EXPECT_EQ(errorNumber([] { kymatadesmis(0, 0, 1e12); }), 9);
  EXPECT_EQ(errorNumber([] { kymatapigis(500); }), 0);
  EXPECT_EQ(errorNumber([] { state().kymataX[601]; }), 9);
  EXPECT_EQ(errorNumber([] { state().kymataX[600][31]; }), 9);
  EXPECT_EQ(errorNumber([] { state().kymataY[0][-1]; }), 9);
  EXPECT_EQ(errorNumber([] { state().kymataY[600][30]; }), 0);
}

TEST(Kymata, IndexZeroIsDivisionByZero) {
  const SahlBench bench;
  state().deiktisSahl = 0;
  EXPECT_EQ(errorNumber([] { kymatapigis(0); }), 11);
}

TEST(Kymata, NegativeLengthIsToldOnceForASceneAndThePointsAreStored) {
  SahlBench bench(2.0);
  recordRay(0);
  recordRay(1);
  state().deiktisSahl = -2.0;
  kymatapigis(0);
  kymatapigis(1);
  EXPECT_EQ(bench.screen.messages, std::vector<std::string>{"  ARNHTIKO"});
  EXPECT_FALSE(state().kymataX[1][30].isEmpty());
  state().clearRays();
  recordRay(0);
  kymatapigis(0);
  EXPECT_EQ(bench.screen.messages.size(), 2u);
}

TEST(Kymata, NoScenesShowTheMessage) {
  SahlBench bench(2.5);
  for (const bool amfikyrtos : {false, true}) {
    for (int degrees = -85; degrees <= 85; degrees += 5) {
      bench.bundle(amfikyrtos, std::tan(degrees * 0.017453292519943295));
    }
    bench.fan(amfikyrtos, 108, 25);
  }
  EXPECT_TRUE(bench.screen.messages.empty());
}

TEST(Fronts, JoinNeighbouringRaysFrontByFront) {
  const SahlBench bench(2.0);
  for (int k = 0; k < 3; ++k) {
    recordRay(k);
    kymatadesmis(100, k, k);
  }
  state().plithosaktinon = 3;
  Recording canvas;
  canvas.ForeColor(RGB(9, 8, 7));
  drawFronts(canvas);
  const auto& ops = canvas.operations();
  ASSERT_EQ(ops.size(), 60u);
  EXPECT_EQ(ops[0].colour, RGB(9, 8, 7));
  std::size_t at = 0;
  for (int j = 1; j <= 30; ++j) {
    for (int i = 1; i < 3; ++i, ++at) {
      EXPECT_EQ(ops[at].x1, state().kymataX[i - 1][j].value());
      EXPECT_EQ(ops[at].y1, state().kymataY[i - 1][j].value());
      EXPECT_EQ(ops[at].x2, state().kymataX[i][j].value());
      EXPECT_EQ(ops[at].y2, state().kymataY[i][j].value());
    }
  }
}

TEST(Fronts, FewerThanTwoRaysHaveNone) {
  const SahlBench bench(2.0);
  Recording canvas;
  for (const Variant& rays : {Variant(), Variant(0), Variant(1)}) {
    state().plithosaktinon = rays;
    drawFronts(canvas, RGB(0, 0, 255));
  }
  EXPECT_TRUE(canvas.operations().empty());
}

TEST(Fronts, StandUprightBehindThePlaneForASourceAtTheFarFocus) {
  SahlBench bench(1.5);
  bench.fan(false, -18, 0);
  ASSERT_GT(bench.recorded(), 20);
  // Optical path 12·(n + 1) = 30 reaches the vertex; from 30 + 1.5·36 on all points are behind it.
  for (int j = 10; j <= 30; ++j) {
    const double path = 4.0 * (j - 1);
    const double x = path <= 84 ? 12 + (path - 30) / 1.5 : 48 + path - 84;
    for (int k = 0; k < bench.recorded(); ++k) {
      if (state().entryX[k].value() > x) continue;
      EXPECT_NEAR(state().kymataX[k][j].value(), x, 2e-5) << j << ' ' << k;
    }
  }
}

TEST(SahlState, IsOne) {
  const SahlBench bench;
  state().desmiMode = true;
  EXPECT_TRUE(state().desmiMode);
  EXPECT_EQ(&state(), &state());
}

}  // namespace
}  // namespace lensbench::protosfakos
