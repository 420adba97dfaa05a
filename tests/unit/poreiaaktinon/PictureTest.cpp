// What the value of the workbench is drawn as, in which order, and how little a change draws.
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "optics/poreiaaktinon/Picture.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using Kind = Operation::Kind;
using Words = std::vector<std::string>;

constexpr Fakos lens{-50.0, 100.0, 20.0, 90.0};
const LensScene scene{lens, 1.5, {-200.0, 30.0}};
const WaveScene whiteScene{lens, 1.5};

Sent fan(double n = 1.5) { return send({lens, n, {}}, Fan{{-200.0, 30.0}, 30.0}, testEdges); }

Words words(const std::vector<Operation>& operations) {
  Words all;
  for (const Operation& operation : operations) {
    std::ostringstream out;
    out.precision(17);
    out << operation;
    if (operation.fill) out << " fill=" << operation.fill->value;
    all.push_back(out.str());
  }
  return all;
}

// On the canvas of the workbench, which is left as every picture leaves it.
template <class Drawing>
std::vector<Operation> recorded(Drawing&& drawing) {
  FakeWorkbench bench;
  drawing(bench.surface);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
  EXPECT_EQ(bench.surface.DrawStyle(), DrawStyle::Solid);
  EXPECT_EQ(bench.surface.FillStyle(), FillStyle::Transparent);
  return bench.surface.operations();
}
std::vector<Operation> drawn(const Shown& shown) {
  return recorded([&](Canvas& canvas) { draw(canvas, shown); });
}
std::vector<Operation> redrawn(const Shown& from, const Shown& to) {
  return recorded([&](Canvas& canvas) { redraw(canvas, from, to); });
}

struct Figure {
  Kind kind;
  Rgb colour;
  int width;
};
void expectFigures(const std::vector<Operation>& operations, const std::vector<Figure>& figures) {
  ASSERT_EQ(operations.size(), figures.size());
  for (std::size_t i = 0; i < figures.size(); ++i) {
    EXPECT_EQ(operations[i].kind, figures[i].kind) << i;
    if (figures[i].kind == Kind::Cls) continue;
    EXPECT_EQ(operations[i].colour, figures[i].colour) << i;
    if (figures[i].kind == Kind::Print || figures[i].kind == Kind::FloodFill) continue;
    EXPECT_EQ(operations[i].width, figures[i].width) << i;
  }
}

constexpr Rgb focal = RGB(55, 0, 0);
constexpr Rgb green = RGB(0, 255, 0);
constexpr Rgb centre = RGB(5, 0, 0);
constexpr Rgb cyan = RGB(0, 255, 255);

TEST(Draw, ClearsAndDrawsTheLensSceneInItsOrder) {
  const std::vector<Figure> marks{{Kind::Circle, focal, 1},  {Kind::Circle, focal, 1},
                                  {Kind::Line, green, 2},    {Kind::Line, green, 2},
                                  {Kind::Circle, centre, 1}, {Kind::Circle, centre, 1},
                                  {Kind::Circle, black, 1},  {Kind::Circle, black, 1}};
  std::vector<Figure> figures{{Kind::Cls, {}, 1}, {Kind::Arc, black, 2}, {Kind::Arc, black, 2}};
  figures.insert(figures.end(), marks.begin(), marks.end());
  figures.push_back({Kind::FloodFill, black, 1});
  // What the fill may have eaten, again.
  for (const std::size_t i : {4u, 5u, 0u, 1u, 2u, 3u, 6u, 7u}) figures.push_back(marks[i]);
  figures.insert(figures.end(), 2, {Kind::Line, black, 1});
  figures.insert(figures.end(), 2, {Kind::PSet, RGB(255, 0, 0), 15});
  figures.insert(figures.end(), 2, {Kind::PSet, RGB(5, 250, 0), 15});
  figures.insert(figures.end(), 6, {Kind::Line, cyan, 2});
  figures.push_back({Kind::PSet, cyan, 15});
  figures.insert(figures.end(), 6, {Kind::Print, black, 1});
  const auto operations = drawn({{scene}});
  expectFigures(operations, figures);
  EXPECT_EQ(operations[1].x1, lens.xc1);  // the right face first, an arc of circle 1
  EXPECT_EQ(operations[2].x1, lens.xc2);
  EXPECT_EQ(operations[11].fill, RGB(220, 220, 195));
  EXPECT_EQ(operations[11].body.outline.size(), 2u);
}

TEST(Draw, FillsTheLensFromWithinIt) {
  const auto fillAt = [](const Fakos& fakos) {
    for (const Operation& op : drawn({{LensScene{fakos, 1.5, {-200.0, 0.0}}}})) {
      if (op.kind == Kind::FloodFill) return op.x1 - 400.0;  // a pixel is a unit here
    }
    return 1e9;
  };
  EXPECT_EQ(fillAt(lens), 0.0);                              // 50 left of the right vertex
  EXPECT_EQ(fillAt({-80.0, 100.0, 60.0, 90.0}), -5.0);       // the middle of a thinner one
  EXPECT_EQ(fillAt({-50.0, 100.0, 300.0, 90.0}), 1e9);       // no lens
  EXPECT_EQ(fillAt({0.0, 450.0, 500.0, 600.0}), 399.0);      // the right end is out of sight
  EXPECT_EQ(fillAt({-600.0, 500.0, -50.0, 400.0}), -150.0);  // the left end is
  EXPECT_EQ(fillAt({-600.0, 100.0, -450.0, 100.0}), 1e9);    // both ends are
}

TEST(Draw, WithoutALensShowsTheCirclesAndTheirCentresAlone) {
  const auto operations = drawn({{LensScene{{-50.0, 100.0, 300.0, 90.0}, 1.5, {-200.0, 30.0}}}});
  expectFigures(operations, {{Kind::Cls, {}, 1},
                             {Kind::Circle, centre, 1},
                             {Kind::Circle, centre, 1},
                             {Kind::Circle, black, 1},
                             {Kind::Circle, black, 1}});
}

TEST(Draw, PutsLayerUponLayer) {
  Words expected = words(drawn({{scene}}));
  const Words light = words(drawn({{Light{fan(), {true, true}}}}));
  const Words marks = words(drawn({{CardinalMarks{lens, 1.5, {-200.0, 30.0}}}}));
  expected.insert(expected.end(), light.begin() + 1, light.end());
  expected.insert(expected.end(), marks.begin() + 1, marks.end());
  EXPECT_EQ(
      words(drawn({{scene, Light{fan(), {true, true}}, CardinalMarks{lens, 1.5, {-200.0, 30.0}}}})),
      expected);
  ASSERT_EQ(marks.size(), 20u);
  EXPECT_EQ(drawn({}).size(), 1u);  // cleared, and nothing more
}

TEST(Draw, ShowsTheWhiteSceneAndBothFronts) {
  const auto operations = drawn({{whiteScene, Fronts{fan(), 60}}});
  std::size_t i = 0;
  EXPECT_EQ(operations[i++].kind, Kind::Cls);
  for (; i < 3; ++i) {
    EXPECT_EQ(operations[i].colour, focal);
    EXPECT_EQ(operations[i].fill, RGB(220, 220, 195));
  }
  for (; i < 5; ++i) {
    EXPECT_EQ(operations[i].kind, Kind::Circle);
    EXPECT_EQ(operations[i].style, DrawStyle::Dotted);
    EXPECT_FALSE(operations[i].fill);
  }
  for (; i < 7; ++i) EXPECT_EQ(operations[i].kind, Kind::Arc);
  // Each front its pieces, then its points; the one 40 steps behind comes last.
  std::vector<Figure> fronts;
  const auto count = [&](Kind kind, Rgb colour) {
    std::size_t n = 0;
    for (const Operation& op : operations) n += op.kind == kind && op.colour == colour ? 1 : 0;
    return n;
  };
  for (const Rgb colour : {RGB(255, 0, 0), RGB(2, 0, 150)}) {
    EXPECT_EQ(count(Kind::PSet, colour), 12u);
    fronts.insert(fronts.end(), count(Kind::Line, colour), {Kind::Line, colour, 2});
    fronts.insert(fronts.end(), count(Kind::PSet, colour), {Kind::PSet, colour, 3});
  }
  expectFigures({operations.begin() + 7, operations.end()}, fronts);
}

TEST(Draw, TheSecondFrontFollowsFortyStepsBehind) {
  const auto second = [](int step) {
    std::size_t n = 0;
    for (const Operation& op : drawn({{whiteScene, Fronts{fan(), step}}})) {
      n += op.colour == RGB(2, 0, 150) ? 1 : 0;
    }
    return n;
  };
  EXPECT_EQ(second(40), 0u);
  EXPECT_GT(second(41), 0u);
}

TEST(Redraw, DrawsOnlyWhatWasAdded) {
  const Shown before{{scene}};
  const Shown after{{scene, Light{fan(), {true, false}}}};
  const Words whole = words(drawn(after));
  const auto added = static_cast<std::ptrdiff_t>(drawn(before).size());
  EXPECT_EQ(words(redrawn(before, after)), Words(whole.begin() + added, whole.end()));
  EXPECT_TRUE(redrawn(after, after).empty());
  EXPECT_EQ(words(redrawn({}, after)), Words(whole.begin() + 1, whole.end()));
}

TEST(Redraw, DrawsFromNothingWhatCannotBeAdded) {
  const Shown before{{scene, Light{fan(), {true, false}}}};
  for (const Shown& after : {Shown{}, Shown{{scene}}, Shown{{whiteScene}},
                             Shown{{LensScene{lens, 1.6, {-200.0, 30.0}}, Light{fan(), {}}}},
                             Shown{{scene, Light{fan(1.6), {true, false}}}},
                             Shown{{scene, Light{fan(), {true, true}}}}}) {
    EXPECT_EQ(words(redrawn(before, after)), words(drawn(after)));
  }
}

TEST(Redraw, OfATickRubsOutTheFrontsMendsTheSceneAndDrawsTheNext) {
  const Sent sent = fan();
  const auto operations =
      redrawn({{whiteScene, Fronts{sent, 60}}}, {{whiteScene, Fronts{sent, 61}}});
  const auto before = drawn({{whiteScene, Fronts{sent, 60}}});
  const Words after = words(drawn({{whiteScene, Fronts{sent, 61}}}));
  const std::size_t sceneEnd = 7;
  const std::size_t rubbedOut = before.size() - sceneEnd;
  ASSERT_EQ(operations.size(), rubbedOut + after.size() - 1);
  for (std::size_t i = 0; i < rubbedOut; ++i) {
    Operation was = before[sceneEnd + i];
    was.colour = white;
    EXPECT_EQ(words({operations[i]}), words({was})) << i;
  }
  const auto rest = static_cast<std::ptrdiff_t>(rubbedOut);
  EXPECT_EQ(words({operations.begin() + rest, operations.end()}),
            Words(after.begin() + 1, after.end()));
}

TEST(Redraw, OfWavesUnderAnotherSceneStartsFromNothing) {
  const Shown before{{whiteScene, Fronts{fan(), 60}}};
  for (const Shown& after : {Shown{{WaveScene{lens, 1.6}, Fronts{fan(1.6), 61}}},
                             Shown{{WaveScene{{-51.0, 100.0, 20.0, 90.0}, 1.5}, Fronts{fan(), 60}}},
                             Shown{{whiteScene}}, Shown{{scene, Fronts{fan(), 61}}},
                             Shown{{whiteScene, Fronts{fan(), 61}, Light{fan(), {}}}}}) {
    EXPECT_EQ(words(redrawn(before, after)), words(drawn(after)));
  }
  // Fronts over more than the white scene cannot be rubbed out: they would take of it.
  const Shown crowded{{scene, whiteScene, Fronts{fan(), 60}}};
  const Shown next{{scene, whiteScene, Fronts{fan(), 61}}};
  EXPECT_EQ(words(redrawn(crowded, next)), words(drawn(next)));
}

TEST(Shown, IsEqualWhenAllThatItWasDrawnWithIs) {
  const auto equal = [](const Layer& a, const Layer& b) { return Shown{{a}} == Shown{{b}}; };
  EXPECT_TRUE(equal(scene, LensScene{lens, 1.5, {-200.0, 30.0}}));
  EXPECT_FALSE(equal(scene, LensScene{lens, 1.6, {-200.0, 30.0}}));
  EXPECT_FALSE(equal(scene, LensScene{lens, 1.5, {-200.0, 31.0}}));
  EXPECT_FALSE(equal(scene, LensScene{lens, 1.5, {-201.0, 30.0}}));
  EXPECT_FALSE(equal(scene, CardinalMarks{lens, 1.5, {-200.0, 30.0}}));
  EXPECT_TRUE(equal(whiteScene, WaveScene{lens, 1.5}));
  EXPECT_FALSE(equal(whiteScene, WaveScene{{-50.0, 100.0, 21.0, 90.0}, 1.5}));
  EXPECT_TRUE(equal(Light{fan(), {}}, Light{fan(), {}}));
  EXPECT_FALSE(equal(Light{fan(), {}}, Light{fan(), {false, true}}));
  EXPECT_FALSE(equal(Light{fan(), {}}, Light{fan(1.6), {}}));
  EXPECT_TRUE(equal(Fronts{fan(), 3}, Fronts{fan(), 3}));
  EXPECT_FALSE(equal(Fronts{fan(), 3}, Fronts{fan(), 4}));
  EXPECT_FALSE((Shown{{scene}} == Shown{{scene, scene}}));
}

TEST(FittedTo, TracesWhatWasSentToTheNewEdges) {
  const light::Edges wide{-600.0, 600.0, -200.0, 200.0};
  const Shown shown{{scene, Light{fan(), {}}, Fronts{fan(), 5}}};
  const Shown fitted = fittedTo(wide, shown);
  ASSERT_EQ(fitted.layers.size(), 3u);
  EXPECT_EQ(fitted.layers[0], shown.layers[0]);
  EXPECT_EQ(std::get<Light>(fitted.layers[1]).sent.edges, wide);
  EXPECT_EQ(std::get<Light>(fitted.layers[1]).sent.paths->at(6).end().x, -600.0);
  EXPECT_EQ(std::get<Fronts>(fitted.layers[2]).sent.edges, wide);
  EXPECT_EQ(std::get<Fronts>(fitted.layers[2]).step, 5);
  EXPECT_EQ(fittedTo(testEdges, fitted), shown);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
