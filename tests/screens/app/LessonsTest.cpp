// Every lesson is set up on the real screens, and what its text says in numbers is computed anew
// from the rays that are drawn there.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string>
#include <vector>

#include <QFile>
#include <QImage>
#include <QTest>
#include <QTextBrowser>

#include "app/Help.h"
#include "app/LessonSetup.h"
#include "app/ProgramState.h"
#include "canvas/Format.h"
#include "optics/light/OpticalPath.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/help/Guide.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

using light::RayPath;

class LessonsTest : public testing::Test {
 protected:
  LessonsTest() { Main(program.screens); }

  // Numbered from 1, as they are taught.
  const lessons::Lesson& set(std::size_t number) {
    const lessons::Lesson& lesson = lessons::all()[number - 1];
    setUp(program.screens, lesson);
    return lesson;
  }

  std::vector<RayPath> raysOfBench() {
    for (const poreiaaktinon::Layer& layer : program.screens.kelmo().shown().layers) {
      if (const auto* light = std::get_if<poreiaaktinon::Light>(&layer)) return *light->sent.paths;
    }
    return {};
  }
  // Those that leave the lens, and where they then cross a height.
  std::vector<double> crossings(double height = 0.0) {
    std::vector<double> all;
    for (const RayPath& path : raysOfBench()) {
      if (path.count != 3 || path.ending != light::Ending::Open) continue;
      const light::Piece& last = path.pieces[2];
      if (std::fabs(last.direction.y) < 1e-9) continue;
      all.push_back(last.from.x + (height - last.from.y) * last.direction.x / last.direction.y);
    }
    return all;
  }
  const RayPath& singleRay() {
    const auto& layers = program.screens.moniaktina().shown().layers;
    return std::get<poreiaaktinon::single::Ray>(layers.back()).sent.paths->front();
  }
  poreiaaktinon::CardinalPoints points() {
    return cardinalPoints(program.screens.kelmo().fakos(), program.screens.kelmo().n());
  }
  bool shows(const Form& form) { return form.isVisible(); }

  Program program;
};

double degrees(double radians) { return radians * 180.0 / std::numbers::pi; }

double angleTo(Point direction, Point normal) {
  return std::acos(std::fabs(dot(direction, normal)));
}

std::string oneDecimal(double value) {
  std::string text = formatHundredths(std::round(value * 10.0) / 10.0);
  text.pop_back();
  return text;
}

// Both languages say the figure.
void says(const lessons::Words& words, const std::string& figure) {
  EXPECT_NE(words.greek.find(figure), std::string_view::npos) << words.greek << "\n" << figure;
  EXPECT_NE(words.english.find(figure), std::string_view::npos) << words.english << "\n" << figure;
}
void says(const lessons::Words& words, double value) { says(words, formatHundredths(value)); }

std::string pairOf(double x, double y) {
  std::string text = "(";
  text += formatHundredths(x);
  text += ", ";
  text += formatHundredths(y);
  text += ')';
  return text;
}

TEST_F(LessonsTest, ThereAreTwelveAndEachIsWhole) {
  ASSERT_EQ(lessons::all().size(), 12U);
  for (const lessons::Lesson& lesson : lessons::all()) {
    for (const lessons::Words& words :
         {lesson.title, lesson.see, lesson.act, lesson.look, lesson.question, lesson.answer}) {
      EXPECT_FALSE(words.greek.empty());
      EXPECT_FALSE(words.english.empty());
    }
    EXPECT_EQ(lesson.question.english.back(), '?');
    EXPECT_EQ(lesson.question.greek.back(), ';');
  }
}

TEST_F(LessonsTest, TheGuideHoldsThemAsTheyAre) {
  QFile page(SOURCE_FOLDER "/docs/guide.md");
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  EXPECT_EQ(page.readAll().toStdString(), lessons::guide()) << "./run --guide writes it anew";
  for (std::size_t i = 1; i <= lessons::all().size(); ++i) {
    const QString picture =
        SOURCE_FOLDER "/docs/" + QString::fromStdString(lessons::picturePath(i));
    EXPECT_FALSE(QImage(picture).isNull()) << picture.toStdString();
  }
}

TEST_F(LessonsTest, SettingOneUpIsOneStepThatUndoTakesBack) {
  // Once every window has its size.
  for (std::size_t i : {0U, 10U, 1U}) {
    program.screens.startLesson(i);
    QTest::qWait(200);
  }
  // As no lesson has it.
  program.screens.kelmo().controls().aktina1.Value(123);
  const ProgramState before = program.screens.state();
  for (std::size_t i = 0; i < lessons::all().size(); ++i) {
    program.screens.startLesson(i);
    QCoreApplication::processEvents();
    EXPECT_NE(program.screens.state(), before) << i;
    program.screens.undo();
    QCoreApplication::processEvents();
    const ProgramState after = program.screens.state();
    EXPECT_EQ(after.kelmo, before.kelmo) << i;
    EXPECT_EQ(after.moniaktina, before.moniaktina) << i;
    EXPECT_EQ(after.ElSahl, before.ElSahl) << i;
    EXPECT_EQ(after.eisagogiko, before.eisagogiko) << i;
  }
}

TEST_F(LessonsTest, TheHelpWindowSetsThemUp) {
  program.screens.help();
  auto* text = program.screens.helpWindow().window()->findChild<QTextBrowser*>();
  EXPECT_FALSE(program.screens.moniaktina().isVisible());
  emit text->anchorClicked(QUrl("lesson:0"));
  EXPECT_TRUE(program.screens.moniaktina().isVisible());
  for (const lessons::Lesson& lesson : lessons::all()) {
    EXPECT_TRUE(text->toPlainText().contains(QString::fromUtf8(lesson.answer.greek)));
    EXPECT_TRUE(text->toPlainText().contains(QString::fromUtf8(lesson.answer.english)));
  }
}

TEST_F(LessonsTest, RefractionAtAFace) {
  const auto& lesson = set(1);
  EXPECT_TRUE(shows(program.screens.moniaktina()));
  const RayPath& ray = singleRay();
  ASSERT_EQ(ray.count, 3);
  const Point normal = ray.meetings[0].normal;
  const double a1 = angleTo(ray.pieces[0].direction, normal);
  const double a2 = angleTo(ray.pieces[1].direction, normal);
  says(lesson.look, formatHundredths(degrees(a1)) + "°");
  says(lesson.look, formatHundredths(degrees(a2)) + "°");
  says(lesson.look, std::sin(a1));
  EXPECT_EQ(formatHundredths(std::sin(a1)), formatHundredths(1.5 * std::sin(a2)));
  says(lesson.answer, formatHundredths(degrees(std::asin(std::sin(a1) / 2.0))) + "°");
  // A ray can reach the glass at all: the diaphragm is open.
  EXPECT_GT(program.screens.kelmo().diafragma().yA, program.screens.kelmo().diafragma().yB);
}

TEST_F(LessonsTest, FocalLength) {
  const auto& lesson = set(2);
  EXPECT_TRUE(shows(program.screens.kelmo()));
  says(lesson.look, points().f);
  says(lesson.look, points().F2);
  const auto meets = crossings();
  ASSERT_GE(meets.size(), 4U);
  for (const double x : meets) EXPECT_NEAR(x, points().F2, 0.8);
  says(lesson.answer, cardinalPoints(program.screens.kelmo().fakos(), 2.0).f);
}

// Where paraxial light from a point at x meets again, and how much larger; by Gauss's formula.
struct Image {
  double x;
  double magnification;
};
Image imageOf(const poreiaaktinon::CardinalPoints& p, double x) {
  const double s = p.H1 - x;
  const double t = 1.0 / (1.0 / p.f - 1.0 / s);
  return {p.H2 + t, -t / s};
}

TEST_F(LessonsTest, TheImageAndItsMagnification) {
  const auto& lesson = set(3);
  const Point source = program.screens.kelmo().pigi();
  EXPECT_EQ(source.x, -220.0);
  EXPECT_EQ(source.y, 20.0);
  const Image image = imageOf(points(), source.x);
  EXPECT_NEAR(image.x, 220.0, 1e-9);
  EXPECT_NEAR(image.magnification * source.y, -20.0, 1e-9);
  says(lesson.look, "(-220, 20)");
  says(lesson.look, "(220, -20)");
  says(lesson.look, image.magnification);
  const double twice = points().H1 - 1.5 * points().f;
  EXPECT_NEAR(imageOf(points(), twice).magnification, -2.0, 1e-9);
  says(lesson.answer, twice);
  says(lesson.answer, imageOf(points(), twice).x);
}

TEST_F(LessonsTest, AVirtualImage) {
  const auto& lesson = set(4);
  const Point source = program.screens.kelmo().pigi();
  EXPECT_GT(source.x, points().F1);
  const Image image = imageOf(points(), source.x);
  says(lesson.look, pairOf(image.x, image.magnification * source.y));
  says(lesson.look, image.magnification);
  EXPECT_LT(image.x, source.x);
}

TEST_F(LessonsTest, CardinalPointsOfAThickLens) {
  const auto& lesson = set(5);
  EXPECT_NEAR(points().d, points().f, 1e-9);
  says(lesson.look, points().F2);
  // Where a ray next to the axis really crosses it.
  const poreiaaktinon::Bench bench{program.screens.kelmo().fakos(), 1.5, {}};
  const auto sent =
      send(bench, poreiaaktinon::SingleRay{{-200.0, 1e-4}, {1.0, 0.0}}, {-600, 600, -400, 400});
  const light::Piece& last = sent.paths->front().pieces[2];
  const double meets = last.from.x - last.from.y * last.direction.x / last.direction.y;
  says(lesson.look, meets);
  says(lesson.look, points().F2 - meets);
}

TEST_F(LessonsTest, SphericalAberrationAndStoppingDown) {
  const auto& wide = set(6);
  const auto all = crossings();
  const auto [nearest, farthest] = std::minmax_element(all.begin(), all.end());
  says(wide.look, *nearest);
  // The ray at height 10 is the second from the axis.
  std::vector<double> sorted(all);
  std::sort(sorted.begin(), sorted.end());
  const double atTen = sorted[sorted.size() - 3];
  says(wide.look, atTen);

  const auto& narrow = set(7);
  const auto some = crossings();
  const auto [first, last] = std::minmax_element(some.begin(), some.end());
  EXPECT_EQ(*first, atTen);
  says(narrow.look, *first);
  says(narrow.look, *last);
  says(narrow.look, *last - *first);
  says(narrow.look, *nearest);
  EXPECT_GT(*farthest - *nearest, 25.0);
  EXPECT_LT(some.size(), all.size());
}

TEST_F(LessonsTest, TotalReflection) {
  const auto& lesson = set(8);
  const RayPath& ray = singleRay();
  EXPECT_EQ(ray.ending, light::Ending::TotalReflection);
  ASSERT_EQ(ray.count, 1);
  const double angle = angleTo(ray.pieces[0].direction, ray.meetings[0].normal);
  says(lesson.look, oneDecimal(degrees(angle)) + "°");
  says(lesson.look, oneDecimal(degrees(std::asin(1.0 / 1.5))) + "°");
  EXPECT_GT(angle, std::asin(1.0 / 1.5));
  const double critical = std::asin(1.0 / 1.2);
  EXPECT_LT(angle, critical);
  says(lesson.answer, oneDecimal(degrees(critical)) + "°");
}

TEST_F(LessonsTest, ALensOfLessIndex) {
  const auto& lesson = set(9);
  says(lesson.look, points().f);
  says(lesson.look, points().F2);
  const auto meets = crossings();
  ASSERT_GE(meets.size(), 4U);
  for (const double x : meets) EXPECT_NEAR(x, points().F2, 1.5);
}

TEST_F(LessonsTest, FrontsThroughALens) {
  const auto& lesson = set(10);
  EXPECT_TRUE(program.screens.kelmo().controls().Check1.Value());
  const auto rays = raysOfBench();
  const RayPath* axial = nullptr;
  for (const RayPath& ray : rays) {
    if (ray.count == 3 && std::fabs(ray.pieces[2].direction.y) < 1e-9) axial = &ray;
  }
  ASSERT_NE(axial, nullptr);
  const auto apart = [&](double L) {
    return length(pointAtOpticalPath(*axial, L + 10.0)->position -
                  pointAtOpticalPath(*axial, L)->position);
  };
  says(lesson.look, apart(20.0));
  const double toGlass = light::opticalLength(*axial, axial->pieces[0]) + axial->phase;
  says(lesson.look, apart(toGlass + 5.0));
  const double glass = length(axial->pieces[1].to - axial->pieces[1].from);
  EXPECT_NEAR(glass, 40.0, 1e-9);
  EXPECT_NEAR(1.5 * glass, 60.0, 1e-9);
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
  EXPECT_GT(meeting, 20);
  says(lesson.look, pairOf(at.x, at.y));
  says(lesson.answer, pairOf(-2.0 * scene.traced->a, 0.0));
}

TEST_F(LessonsTest, AnObliqueBundle) {
  const auto& lesson = set(12);
  const double plane = points().F2;
  says(lesson.look, plane);
  const double height = points().f * std::tan(10.0 / 180.0 * std::numbers::pi);
  says(lesson.look, oneDecimal(height));
  int through = 0;
  for (const RayPath& path : raysOfBench()) {
    if (path.count != 3 || path.ending != light::Ending::Open) continue;
    const light::Piece& last = path.pieces[2];
    EXPECT_NEAR(last.from.y + (plane - last.from.x) * last.direction.y / last.direction.x, height,
                1.0);
    ++through;
  }
  EXPECT_GE(through, 4);
}

}  // namespace
}  // namespace lensbench
