// What the value of the single-ray screen is drawn as.
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "optics/poreiaaktinon/SingleRayPicture.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon::single {
namespace {

using Kind = Operation::Kind;

const Outline outline = outlineOf(90, 100, 0, 100, 1.5);
const AimLine aim{{-100.0, 20.0}, {50.0, 10.0}};
Ray ray(double n = 1.5) {
  return {send({{0.0, 90.0, 100.0, 100.0}, n, {}}, SingleRay{{-100.0, 20.0}, {150.0, -10.0}},
               testEdges)};
}

std::vector<Operation> drawn(const Shown& shown) {
  FakeWorkbench bench;
  draw(bench.surface, shown);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
  return bench.surface.operations();
}
std::vector<Operation> redrawn(const Shown& from, const Shown& to) {
  FakeWorkbench bench;
  redraw(bench.surface, from, to);
  return bench.surface.operations();
}
std::string words(const std::vector<Operation>& operations) {
  std::ostringstream out;
  out.precision(17);
  for (const Operation& op : operations) out << op << '\n';
  return out.str();
}

TEST(OutlineOf, SaysWhereTheFacesMeetAndHowFarTheyReach) {
  EXPECT_DOUBLE_EQ(outline.x0, 40.5);
  EXPECT_NEAR(outline.h, std::sqrt(90.0 * 90.0 - 40.5 * 40.5), 1e-11);
  EXPECT_EQ(outline.h2, -outline.h);
  EXPECT_NEAR(outline.alpha1, std::asin(outline.h / 90.0), 1e-13);
  EXPECT_NEAR(outline.alpha2, std::asin(outline.h / 100.0), 1e-13);
  EXPECT_NEAR(outline.f.value(), 94.7368421, 1e-7);
}

TEST(OutlineOf, DividesByZeroInWords) {
  for (const auto& [R1, R2, xc2] : {std::tuple{0, 100, 100}, {100, 0, 100}, {100, 100, 0}}) {
    EXPECT_EQ(errorNumber([R1 = R1, R2 = R2, xc2 = xc2] { outlineOf(R1, R2, 0, xc2, 1.5); }), 11);
  }
  EXPECT_EQ(errorNumber([] { outlineOf(90, 100, 0, 0, 1.5); }), 0);
}

TEST(AimedDirection, IsTheDifferenceInSinglesOrStraightUp) {
  EXPECT_EQ(aimedDirection(1.0f, 2.0f, 4.0f, 6.0f).x, 3.0);
  EXPECT_EQ(aimedDirection(1.0f, 2.0f, 4.0f, 6.0f).y, 4.0);
  const Point steep = aimedDirection(0.0f, 0.0f, 1e-30f, 1e10f);
  EXPECT_EQ(steep.x, 0.0);
  EXPECT_EQ(steep.y, 50.0);
  EXPECT_EQ(errorNumber([] { aimedDirection(1.0f, 2.0f, 1.0f, 6.0f); }), 11);
}

TEST(Draw, ShowsTheLensAlone) {
  const auto operations = drawn({{LensAlone{outline}}});
  ASSERT_EQ(operations.size(), 5u);
  EXPECT_EQ(operations[0].kind, Kind::Cls);
  for (std::size_t i : {1u, 2u}) {
    EXPECT_EQ(operations[i].kind, Kind::Arc);
    EXPECT_EQ(operations[i].width, 5);
    EXPECT_EQ(operations[i].colour, RGB(0, 255, 0));
  }
  for (std::size_t i : {3u, 4u}) {
    EXPECT_EQ(operations[i].kind, Kind::Circle);
    EXPECT_EQ(operations[i].radius, 3.0);
    EXPECT_EQ(operations[i].colour, RGB(255, 0, 0));
  }
}

TEST(Draw, ShowsTheRayOverTheLensTwiceOverTheAim) {
  const auto operations = drawn({{aim, LensUnderRay{outline}, ray()}});
  std::vector<Kind> kinds;
  for (const Operation& op : operations) kinds.push_back(op.kind);
  using enum Operation::Kind;
  EXPECT_EQ(kinds, (std::vector<Kind>{Cls, Line,                                             //
                                      Circle, Circle, Arc, Arc, Line, Line,                  //
                                      Circle, Circle, Circle, Circle, Arc, Arc, Line, Line,  //
                                      Line, Line, Line}));
  EXPECT_EQ(operations[1].colour, black);
  EXPECT_EQ(operations[8].radius, 6.0);
  EXPECT_EQ(operations[9].radius, 6.0);
  for (std::size_t i = 16; i < 19; ++i) EXPECT_EQ(operations[i].colour, RGB(255, 0, 0));
}

TEST(Redraw, DrawsWhatWasAddedOrAllFromNothing) {
  const Shown before{{aim, LensUnderRay{outline}}};
  const Shown after{{aim, LensUnderRay{outline}, ray()}};
  EXPECT_EQ(redrawn(before, after).size(), 3u);
  EXPECT_TRUE(redrawn(after, after).empty());
  EXPECT_EQ(words(redrawn(after, before)), words(drawn(before)));
  const Shown other{{LensAlone{outlineOf(90, 100, 0, 100, 1.6)}}};
  EXPECT_EQ(words(redrawn({{LensAlone{outline}}}, other)), words(drawn(other)));
}

TEST(Shown, IsEqualWhenAllThatItWasDrawnWithIs) {
  const auto equal = [](const Layer& a, const Layer& b) { return Shown{{a}} == Shown{{b}}; };
  EXPECT_TRUE(equal(LensAlone{outline}, LensAlone{outlineOf(90, 100, 0, 100, 1.5)}));
  EXPECT_FALSE(equal(LensAlone{outline}, LensUnderRay{outline}));
  EXPECT_FALSE(equal(LensAlone{outline}, LensAlone{outlineOf(90, 100, 0, 100, 1.6)}));
  EXPECT_FALSE(equal(LensAlone{outline}, LensAlone{outlineOf(90, 100, 0, 101, 1.5)}));
  EXPECT_FALSE(equal(LensAlone{outline}, LensAlone{outlineOf(90, 100, 1, 100, 1.5)}));
  EXPECT_FALSE(equal(aim, AimLine{{-100.0, 20.0}, {50.0, 11.0}}));
  EXPECT_TRUE(equal(ray(), ray()));
  EXPECT_FALSE(equal(ray(), ray(1.6)));
}

TEST(FittedTo, TracesTheRayToTheNewEdges) {
  const light::Edges wide{-600.0, 600.0, -300.0, 300.0};
  const Shown fitted = fittedTo(wide, Shown{{aim, ray()}});
  EXPECT_EQ(std::get<Ray>(fitted.layers[1]).sent.paths->front().end().x, 600.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon::single
