// What is shown as a value: its layers, and that drawing less leaves what drawing it all leaves.
#include <gtest/gtest.h>
#include <vector>

#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

using Kind = Operation::Kind;

Scene fanFrom(double x, double y) { return sceneOf({.rays = Fan{{x, y}}, .diafragma = wideOpen}); }

// Whether both hold the same operations, each with its pen.
void expectSame(const std::vector<Operation>& a, const std::vector<Operation>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    ASSERT_EQ(a[i].kind, b[i].kind) << i;
    ASSERT_EQ(a[i].x1, b[i].x1) << i;
    ASSERT_EQ(a[i].y1, b[i].y1) << i;
    ASSERT_EQ(a[i].x2, b[i].x2) << i;
    ASSERT_EQ(a[i].y2, b[i].y2) << i;
    ASSERT_EQ(a[i].radius, b[i].radius) << i;
    ASSERT_EQ(a[i].colour, b[i].colour) << i;
    ASSERT_EQ(a[i].width, b[i].width) << i;
  }
}

std::vector<Operation> drawn(const Shown& shown) {
  Recording canvas;
  draw(canvas, shown);
  return canvas.operations();
}

TEST(Asked, IsEqualWhenAllOfItIs) {
  const Asked asked{.rays = Fan{{108, 25}}, .diafragma = wideOpen};
  EXPECT_EQ(asked, asked);
  std::vector<Asked> others(9, asked);
  others[0].amfikyrtos = true;
  others[1].deiktisSahl = 1.51;
  others[2].rays = Fan{{108, 24}};
  others[3].rays = Fan{{107, 25}};
  others[4].rays = Desmi{};
  others[5].diafragma.X = 90;
  others[6].diafragma.yB = -3;
  others[7].onlyRays = true;
  others[8].onlyWaves = true;
  for (std::size_t i = 0; i < others.size(); ++i) EXPECT_NE(others[i], asked) << i;
  EXPECT_NE(Rays(Desmi{0.1}), Rays(Desmi{0.2}));
}

TEST(Shown, KeepsOneOfEqualLayersAtTheTop) {
  Shown shown;
  add(shown, fanFrom(108, 25));
  add(shown, fanFrom(60, 60));
  add(shown, FrontsAgain{fanFrom(60, 60), true});
  ASSERT_EQ(shown.layers.size(), 3u);
  add(shown, fanFrom(108, 25));
  ASSERT_EQ(shown.layers.size(), 3u);
  EXPECT_EQ(shown.layers[0], Layer(fanFrom(60, 60)));
  EXPECT_EQ(shown.layers[2], Layer(fanFrom(108, 25)));
  add(shown, FrontsAgain{fanFrom(60, 60), false});
  EXPECT_EQ(shown.layers.size(), 4u);
}

TEST(Shown, IsDrawnFromNothingLayerByLayer) {
  Shown shown;
  add(shown, fanFrom(108, 25));
  add(shown, fanFrom(60, 60));
  Recording canvas;
  canvas.Cls();
  for (const Layer& layer : shown.layers) drawOver(canvas, std::get<Scene>(layer));
  expectSame(drawn(shown), canvas.operations());
  EXPECT_EQ(drawn({}).size(), 1u);
  EXPECT_EQ(drawn({})[0].kind, Kind::Cls);
}

TEST(Shown, WhatIsAddedIsDrawnOverTheRest) {
  Shown before, after;
  add(before, fanFrom(108, 25));
  after = before;
  add(after, fanFrom(60, 60));
  Recording canvas;
  draw(canvas, before);
  redraw(canvas, before, after);
  expectSame(canvas.operations(), drawn(after));
  canvas.forget();
  redraw(canvas, after, after);
  EXPECT_TRUE(canvas.operations().empty());
}

TEST(Shown, WhatIsGoneIsDrawnFromNothing) {
  Shown before, after;
  add(before, fanFrom(108, 25));
  add(after, fanFrom(60, 60));
  Recording canvas;
  for (const Shown& to : {after, Shown{}}) {
    canvas.forget();
    redraw(canvas, before, to);
    expectSame(canvas.operations(), drawn(to));
  }
}

TEST(FrontsAgain, AreThoseOfTheSceneInForeColor) {
  const Scene scene = fanFrom(108, 25);
  Shown before, after;
  add(before, scene);
  after = before;
  add(after, FrontsAgain{scene, false});
  Recording canvas;
  draw(canvas, before);
  const auto sceneOps = canvas.operations();
  canvas.forget();
  canvas.ForeColor(RGB(9, 8, 7));
  redraw(canvas, before, after);
  const auto& ops = canvas.operations();
  const auto fronts = static_cast<std::size_t>(30 * (scene.traced->plithosaktinon() - 1));
  ASSERT_GT(fronts, 100u);
  ASSERT_EQ(ops.size(), fronts);
  for (std::size_t i = 0; i < fronts; ++i) {
    const Operation& blue = sceneOps[sceneOps.size() - fronts + i];
    EXPECT_EQ(ops[i].colour, RGB(9, 8, 7));
    EXPECT_EQ(ops[i].x1, blue.x1);
    EXPECT_EQ(ops[i].y2, blue.y2);
  }
}

TEST(FrontsAgain, AfterABundleOnTheWorkbenchAllButTheFirstRayStartAtTheOrigin) {
  const Scene scene = fanFrom(108, 25);
  Shown shown;
  add(shown, FrontsAgain{scene, true});
  const auto ops = drawn(shown);  // Cls first
  // Front 1 stands where the rays start.
  EXPECT_EQ(ops[1].x1, 108.0);
  EXPECT_EQ(ops[1].y1, 25.0);
  EXPECT_EQ(ops[1].x2, 0.0);
  EXPECT_EQ(ops[2].x1, 0.0);
  EXPECT_EQ(ops[2].y2, 0.0);
  Recorded second = scene.traced->recorded[1];
  layFronts(second, {}, 1.5);
  const auto front = static_cast<std::size_t>(scene.traced->plithosaktinon() - 1);
  EXPECT_EQ(ops[1 + 29 * front].x2, second.kymata[30].x);
  EXPECT_EQ(ops[1 + 29 * front].y2, second.kymata[30].y);
}

}  // namespace
}  // namespace lensbench::protosfakos
