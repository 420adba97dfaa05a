// The lessons on reflection, fronts and Ibn Sahl's lenses, their figures computed anew.
#include <algorithm>

#include "optics/light/OpticalPath.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/protosfakos/Scene.h"
#include "screens/ElSahl/ElSahl.h"
#include "tests/screens/app/Lessons.h"

namespace lensbench {
namespace {

using light::RayPath;

TEST_F(LessonsTest, TotalReflection) {
  const auto& lesson = set(8);
  const RayPath& ray = singleRay();
  EXPECT_EQ(ray.ending, light::Ending::TotalReflection);
  ASSERT_EQ(ray.count, 1);
  const double angle = angleTo(ray.pieces[0].direction, ray.meetings[0].normal);
  says(lesson.look, oneDecimal(degrees(angle)) + "°");
  says(lesson.look, oneDecimal(degrees(std::asin(1.0 / 1.5))) + "°");
  EXPECT_GT(angle, std::asin(1.0 / 1.5));
  says(lesson.look, "1 / n");
  says(lesson.look, "n = " + formatHundredths(ray.n));
  const double critical = std::asin(1.0 / 1.2);
  EXPECT_LT(angle, critical);
  says(lesson.answer, oneDecimal(degrees(critical)) + "°");

  moniaktina& screen = program.screens.moniaktina();
  const std::string end = told(screen, ray.end());
  expectIn(end, "την κρίσιμη γωνία των " + oneDecimal(degrees(std::asin(1.0 / 1.5))) + "°");
  expectIn(end, oneDecimal(degrees(angle)) + "° is more than the critical angle");
  // The same ray in glass of index 1.20, then one from a press on the source, aimed nearer to the
  // axis.
  const Point source = ray.start();
  const Point aim{194.0, 90.0};
  screen.controls().deiktisdiathlasis.Value(120);
  screen.Form_MouseUp(leftButton, 0, aim.x, aim.y);
  EXPECT_EQ(singleRay().ending, light::Ending::Open);
  EXPECT_EQ(singleRay().start(), source);
  screen.controls().deiktisdiathlasis.Value(150);
  screen.Form_MouseUp(leftButton, 0, aim.x, aim.y);
  EXPECT_EQ(singleRay().ending, light::Ending::TotalReflection);
  screen.Form_MouseDown(leftButton, 0, source.x, source.y);
  screen.Form_MouseUp(leftButton, 0, aim.x, aim.y / 6.0);
  EXPECT_EQ(singleRay().ending, light::Ending::Open);
  EXPECT_EQ(singleRay().count, 2);
}

TEST_F(LessonsTest, ALensOfLessIndex) {
  const auto& lesson = set(9);
  says(lesson.look, points().f);
  says(lesson.look, points().F2);
  expectIn(toldOnBench({points().F2, 0.0}), "f = " + formatShort(points().f));
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  const auto meets = crossings();
  ASSERT_GE(meets.size(), 4U);
  for (const double x : meets) EXPECT_NEAR(x, points().F2, 1.5);
}

TEST_F(LessonsTest, FrontsThroughALens) {
  const auto& lesson = set(10);
  EXPECT_TRUE(program.screens.kelmo().controls().Check2.Value());
  const auto rays = raysOfBench();
  const RayPath* axial = nullptr;
  for (const RayPath& ray : rays) {
    if (ray.count == 3 && std::fabs(ray.pieces[2].direction.y) < 1e-9) axial = &ray;
  }
  ASSERT_NE(axial, nullptr);
  const auto apart = [&](double L) {
    return length(pointAtOpticalPath(*axial, L + poreiaaktinon::waveStep)->position -
                  pointAtOpticalPath(*axial, L)->position);
  };
  says(lesson.look, apart(20.0));
  const double toGlass = light::opticalLength(*axial, axial->pieces[0]) + axial->phase;
  says(lesson.look, apart(toGlass + 5.0));
  says(lesson.look, formatWhole(poreiaaktinon::waveStep) + " / " + formatHundredths(axial->n));
  const double glass = length(axial->pieces[1].to - axial->pieces[1].from);
  says(lesson.look, formatWhole(glass));
  says(lesson.look, formatWhole(axial->n * glass));
  says(lesson.look, formatWhole(axial->n * glass - glass));

  // The two fronts that run, before the lens.
  kelmo& bench = program.screens.kelmo();
  bench.controls().parallilakymata.trigger();
  for (int i = 0; i < 60; ++i) bench.Timer2_Timer();
  const auto& running = std::get<poreiaaktinon::Fronts>(bench.shown().layers.back());
  EXPECT_EQ(running.step, 60);
  const auto axis = [&](int step) {
    const auto points = frontAt(running.sent, poreiaaktinon::pathPerStep * step).points;
    return std::min_element(points.begin(), points.end(),
                            [](Point a, Point b) { return std::fabs(a.y) < std::fabs(b.y); })
        ->x;
  };
  const double first = axis(running.step);
  EXPECT_LT(first, leftVertex(bench.fakos()));
  says(lesson.look, first - axis(running.step - poreiaaktinon::stepsBehind));
  // Home.
  EXPECT_TRUE(bench.restartWaves());
  EXPECT_FALSE(std::holds_alternative<poreiaaktinon::Fronts>(bench.shown().layers.back()));
}

// Where all rays that leave a lens along the axis meet.
Point meetingPoint(const std::vector<RayPath>& paths) {
  std::vector<double> all;
  for (const RayPath& path : paths) {
    if (path.count != 3 || std::fabs(path.pieces[2].direction.y) < 1e-9) continue;
    all.push_back(crossingOf(path));
  }
  EXPECT_GT(all.size(), 20U);
  for (const double x : all) EXPECT_NEAR(x, all.front(), 1e-9);
  return {all.front(), 0.0};
}

TEST_F(LessonsTest, IbnSahl) {
  const auto& lesson = set(11);
  EXPECT_TRUE(shows(program.screens.ElSahl()));
  const auto& scene = std::get<protosfakos::Scene>(program.screens.ElSahl().shown().layers.back());
  int meeting = 0;
  Point at{};
  for (const RayPath& path : scene.traced->paths) {
    if (path.count != 3 || std::fabs(path.pieces[2].direction.y) < 1e-9) continue;
    const light::Piece& last = path.pieces[2];
    at = {last.from.x - last.from.y * last.direction.x / last.direction.y, 0.0};
    EXPECT_NEAR(at.x, -18.0, 1e-9);
    ++meeting;
  }
  EXPECT_EQ(meeting, 50);
  says(lesson.look, pairOf(at.x, at.y));
  says(lesson.look, "1.50·" + formatWhole(scene.traced->a));
  EXPECT_NEAR(-at.x / scene.traced->a, 1.5, 1e-12);
  const protosfakos::Scene dense = protosfakos::sceneOf(
      {.deiktisSahl = 2.0, .rays = protosfakos::Desmi{}, .diafragma = {130.0, 110.0, -110.0}});
  const Point there = meetingPoint(dense.traced->paths);
  says(lesson.answer, pairOf(there.x, there.y));
  says(lesson.answer,
       formatHundredths(dense.asked.deiktisSahl) + "·" + formatWhole(dense.traced->a));

  // The biconvex lens brings the light of one point to the same other one.
  const Point source{8.0 * scene.traced->a - at.x, 0.0};
  says(lesson.look, pairOf(source.x, source.y));
  const protosfakos::Scene both = protosfakos::sceneOf(
      {.amfikyrtos = true, .rays = protosfakos::Fan{source}, .diafragma = {130.0, 110.0, -110.0}});
  EXPECT_NEAR(meetingPoint(both.traced->paths).x, at.x, 1e-9);
}

TEST_F(LessonsTest, AnObliqueBundle) {
  const auto& lesson = set(12);
  const double plane = points().F2;
  says(lesson.look, plane);
  const double height = points().f * std::tan(10.0 / 180.0 * std::numbers::pi);
  says(lesson.look, height);
  says(lesson.look, formatWhole(std::round(degrees(program.screens.kelmo().gonia.value()))) + "°");
  std::vector<RayPath> through;
  for (const RayPath& path : raysOfBench()) {
    if (path.count == 3 && path.ending == light::Ending::Open) through.push_back(path);
  }
  ASSERT_GE(through.size(), 4U);
  // The lowest and the highest ray.
  const auto at = [&](double x) {
    const auto [low, high] = std::minmax_element(
        through.begin(), through.end(),
        [x](const RayPath& a, const RayPath& b) { return heightAt(a, x) < heightAt(b, x); });
    return std::pair(heightAt(*low, x), heightAt(*high, x));
  };
  const auto width = [&](double x) { return at(x).second - at(x).first; };
  const auto [low, high] = at(plane);
  says(lesson.look, low);
  says(lesson.look, high);
  EXPECT_LT(low, height);
  EXPECT_LT(height, high);

  double narrowest = 150.0;
  for (double x = narrowest; x < 250.0; x += 0.01) {
    if (width(x) < width(narrowest)) narrowest = x;
  }
  EXPECT_LT(width(narrowest), 0.2);
  EXPECT_LT(narrowest, plane);
  std::string there = "(";
  there += formatWhole(std::round(narrowest));
  there += ", ";
  there += oneDecimal((at(narrowest).first + at(narrowest).second) / 2.0);
  there += ')';
  says(lesson.look, there);
}

}  // namespace
}  // namespace lensbench
