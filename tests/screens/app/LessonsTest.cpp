// Every lesson is set up on the real screens, and what its text says in numbers is computed anew
// from the rays that are drawn there.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <regex>
#include <set>
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
#include "optics/light/AskRays.h"
#include "optics/light/OpticalPath.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/poreiaaktinon/Scenes.h"
#include "optics/protosfakos/Scene.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/help/Guide.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

using light::RayPath;

// Those that are no part of a name, like F2.
std::vector<std::string> numbersIn(std::string_view text) {
  static const std::regex number("(^|[^A-Za-z0-9.])(-?[0-9]+([.][0-9]+)?)");
  const std::string whole(text);
  std::vector<std::string> all;
  for (std::sregex_iterator it(whole.begin(), whole.end(), number), end; it != end; ++it) {
    all.push_back((*it)[2]);
  }
  return all;
}

class LessonsTest : public testing::Test {
 protected:
  LessonsTest() { Main(program.screens); }

  // Numbered from 1, as they are taught.
  const lessons::Lesson& set(std::size_t number) {
    const lessons::Lesson& lesson = lessons::all()[number - 1];
    setUp(program.screens, lesson);
    taught_.push_back(&lesson);
    return lesson;
  }
  // Both languages say the figure, which was computed.
  void says(const lessons::Words& words, const std::string& figure) {
    EXPECT_NE(words.greek.find(figure), std::string_view::npos) << words.greek << "\n" << figure;
    EXPECT_NE(words.english.find(figure), std::string_view::npos) << words.english << "\n"
                                                                  << figure;
    for (const std::string& number : numbersIn(figure)) computed_.insert(number);
  }
  void says(const lessons::Words& words, double value) { says(words, formatHundredths(value)); }
  // No number is told that was not computed.
  void TearDown() override {
    for (const lessons::Lesson* lesson : taught_) {
      for (const lessons::Words& words : {lesson->look, lesson->answer}) {
        for (const std::string_view text : {words.greek, words.english}) {
          for (const std::string& number : numbersIn(text)) {
            EXPECT_TRUE(computed_.count(number)) << number << " in: " << text;
          }
        }
      }
    }
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
  // With Shift, at a point of the workbench.
  void press(Point p) {
    constexpr int shiftKey = 1;
    program.screens.kelmo().Form_MouseDown(leftButton, shiftKey, p.x, p.y);
    program.screens.kelmo().Form_MouseUp(leftButton, shiftKey, p.x, p.y);
  }
  poreiaaktinon::CardinalPoints points() {
    return cardinalPoints(program.screens.kelmo().fakos(), program.screens.kelmo().n());
  }
  bool shows(const Form& form) { return form.isVisible(); }
  // What the pointer that rests there is told.
  std::string told(const DrawingScreen& screen, Point at) { return screen.tipAt(at).toStdString(); }
  std::string toldOnBench(Point at) { return told(program.screens.kelmo(), at); }

  Program program;

 private:
  std::vector<const lessons::Lesson*> taught_;
  std::set<std::string> computed_;
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

void expectIn(const std::string& text, const std::string& part) {
  EXPECT_NE(text.find(part), std::string::npos) << text << "\n" << part;
}

// Where a ray that has left the lens, or what is behind it on its line, is at an abscissa.
double heightAt(const RayPath& path, double x) {
  const light::Piece& last = path.pieces[2];
  return last.from.y + (x - last.from.x) * last.direction.y / last.direction.x;
}
double crossingOf(const RayPath& path) {
  const light::Piece& last = path.pieces[2];
  return last.from.x - last.from.y * last.direction.x / last.direction.y;
}

// Where a ray parallel to the axis, at a height, crosses it behind a lens in the air.
double parallelRayCrosses(const poreiaaktinon::Fakos& fakos, double n, double height) {
  const poreiaaktinon::SingleRay ray{{-200.0, height}, {1.0, 0.0}};
  const auto sent = send(poreiaaktinon::Bench{fakos, n, {}}, ray, {-600, 600, -400, 400});
  return crossingOf(sent.paths->front());
}

std::string pairOf(double x, double y) {
  std::string text = "(";
  text += formatHundredths(x);
  text += ", ";
  text += formatHundredths(y);
  text += ')';
  return text;
}
// As the pointer is told it.
std::string placeOf(Point p) { return light::coordinates(p); }

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
  says(lesson.look, "n = " + formatHundredths(ray.n));
  const std::string law = told(program.screens.moniaktina(), ray.pieces[0].to);
  expectIn(law, "a1 = " + formatHundredths(degrees(a1)) + "°");
  expectIn(law, "a2 = " + formatHundredths(degrees(a2)) + "°");
  EXPECT_EQ(formatHundredths(std::sin(a1)), formatHundredths(1.5 * std::sin(a2)));
  const double denser = 2.0;
  const double sine = std::sin(a1) / denser;
  says(lesson.answer, formatHundredths(degrees(std::asin(sine))) + "°");
  says(lesson.answer, formatHundredths(std::sin(a1)) + " / " + formatHundredths(denser) + " = " +
                          formatHundredths(sine));
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
  says(lesson.look, "x = " + formatHundredths(points().H2));
  EXPECT_NEAR(points().F2 - points().H2, points().f, 1e-9);
  press({0.0, 10.0});
  EXPECT_TRUE(raysOfBench().empty());
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  expectIn(toldOnBench({points().F2, 0.0}), "f = " + formatShort(points().f));
  expectIn(toldOnBench({points().H2, 60.0}), "H2: ");
  expectIn(toldOnBench({points().H2, 60.0}), placeOf({points().H2, 0.0}));

  // A thin lens of these faces turns rays in proportion to n - 1, this one not quite.
  const poreiaaktinon::Fakos lens = program.screens.kelmo().fakos();
  const poreiaaktinon::Fakos thin{-lens.R1, lens.R1, lens.R2, lens.R2};
  EXPECT_EQ(cardinalPoints(thin, 1.5).d, 0.0);
  EXPECT_NEAR(cardinalPoints(thin, 1.5).f / cardinalPoints(thin, 2.0).f, 2.0, 1e-12);
  says(lesson.answer, "n − 1");
  const double doubled = cardinalPoints(lens, 2.0).f;
  says(lesson.answer, doubled);
  EXPECT_NEAR(points().f / doubled, 2.0, 0.05);
  EXPECT_GT(std::fabs(points().f / doubled - 2.0), 0.01);
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
  expectIn(toldOnBench({220.0, -20.0}), "real, magnification -1.00, at (220, -20)");
  // Paraxial rays meet where the construction says.
  EXPECT_EQ(points().F2, paraxialPoints(program.screens.kelmo().fakos(), 1.5).F2);
  // The image still answers when a press elsewhere has sent a fan.
  press({-190.0, 20.0});
  EXPECT_FALSE(raysOfBench().empty());
  const Image next = imageOf(points(), -190.0);
  expectIn(toldOnBench({next.x, 20.0 * next.magnification}), "real, magnification ");
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
  const Point at{image.x, image.magnification * source.y};
  expectIn(toldOnBench(at), "virtual, magnification " + formatHundredths(image.magnification));
  expectIn(toldOnBench(at), placeOf({at.x, at.y}));

  // Every ray of the construction goes through the glass.
  const poreiaaktinon::Glass glass =
      poreiaaktinon::glassOf(program.screens.kelmo().fakos(), program.screens.kelmo().n());
  EXPECT_LT(at.y, glass.h);

  press(source);
  EXPECT_EQ(program.screens.kelmo().pigi(), source);
  int through = 0;
  for (const RayPath& path : raysOfBench()) {
    if (path.count != 3 || path.ending != light::Ending::Open) continue;
    EXPECT_GT(path.pieces[2].from.x, image.x);
    EXPECT_GT(path.pieces[2].direction.x, 0.0) << "away from the image";
    ++through;
  }
  EXPECT_GE(through, 10);
}

TEST_F(LessonsTest, CardinalPointsOfAThickLens) {
  const auto& lesson = set(5);
  EXPECT_NEAR(points().d, points().f, 1e-9);
  says(lesson.look, points().F2);
  says(lesson.look, "x = " + formatHundredths(points().H2));
  says(lesson.see, formatWhole(points().d));
  const poreiaaktinon::Fakos lens = program.screens.kelmo().fakos();
  const double meets = parallelRayCrosses(lens, 1.5, 1e-4);
  says(lesson.look, meets);
  says(lesson.look, points().F2 - meets);
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({meets, 0.0}));
  expectIn(toldOnBench({points().H2, 60.0}), "H2: ");

  // Marked with the radius of the face beside it, R1 of the right face; exactly it takes R2.
  const auto H2with = [&](double radius) {
    return rightVertex(lens) - points().d * points().f * 0.5 / (1.5 * radius);
  };
  EXPECT_NEAR(points().H2, H2with(lens.R1), 1e-9);
  EXPECT_NEAR(meets, H2with(lens.R2) + points().f, 1e-6);

  // The bundle through an opening of 24 meets nearer to there than to the mark.
  KelmoState narrowed = program.screens.kelmo().state();
  narrowed.diafragma = {-150.0, 12.0, -12.0};
  program.screens.kelmo().restore(narrowed);
  program.screens.kelmo().drawBundle(0.0);
  ASSERT_EQ(crossings().size(), 4U);
  for (const double x : crossings()) EXPECT_NEAR(x, meets, 0.7);

  poreiaaktinon::Fakos even = lens;
  even.R2 = even.R1;
  EXPECT_NEAR(cardinalPoints(even, 1.5).F2, parallelRayCrosses(even, 1.5, 1e-4), 1e-6);
}

TEST_F(LessonsTest, SphericalAberrationAndStoppingDown) {
  constexpr std::size_t spherical = 6;
  const auto& wide = set(spherical);
  const auto opening = [this] {
    const light::Diafragma blades = program.screens.kelmo().diafragma();
    return formatWhole(blades.yA - blades.yB);
  };
  const std::string wideOpening = opening();
  const auto all = crossings();
  const auto [nearest, farthest] = std::minmax_element(all.begin(), all.end());
  const auto rays = raysOfBench();
  says(wide.act, std::to_string(rays.size()));
  const RayPath& outer = rays[33 - 1];
  const RayPath& inner = rays[39 - 1];
  for (const auto& words : {wide.act, wide.look}) {
    says(words, formatWhole(outer.start().y));
    says(words, formatWhole(inner.start().y));
  }
  expectIn(toldOnBench({160.0, heightAt(outer, 160.0)}), "ray 33 of 81");
  expectIn(toldOnBench({200.0, heightAt(inner, 200.0)}), "ray 39 of 81");
  EXPECT_EQ(crossingOf(outer), *nearest);
  says(wide.look, *nearest);
  const double atTen = crossingOf(inner);
  says(wide.look, atTen);

  // The marks beside which they cross, and the cusp.
  says(wide.look, points().F2);
  expectIn(toldOnBench({points().F2, 0.0}), placeOf({points().F2, 0.0}));
  const double circle = poreiaaktinon::glassOf(program.screens.kelmo().fakos(), 1.5).f.value();
  says(wide.look, circle);
  expectIn(toldOnBench({circle, 0.0}), "right focus of the thin lens");
  EXPECT_LT(*nearest, circle);
  EXPECT_LT(circle, atTen);
  EXPECT_LT(atTen, points().F2);
  EXPECT_NEAR(parallelRayCrosses(program.screens.kelmo().fakos(), 1.5, 1e-4), points().F2, 1e-6);

  const auto& narrow = set(7);
  const auto some = crossings();
  const auto [first, last] = std::minmax_element(some.begin(), some.end());
  EXPECT_EQ(*first, atTen);
  says(narrow.look, *first);
  says(narrow.look, *last);
  says(narrow.look, *last - *first);
  says(narrow.look, *nearest);
  says(narrow.look, *farthest - *nearest);
  says(narrow.look, opening());
  says(narrow.look, wideOpening);
  says(narrow.look, std::to_string(spherical));
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
