// A lesson set up on the real screens, and what its text says in numbers beside what the rays that
// are drawn there say.
#pragma once

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "app/LessonSetup.h"
#include "canvas/Format.h"
#include "optics/light/AskRays.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {

// Those that are no part of a name, like F2.
inline std::vector<std::string> numbersIn(std::string_view text) {
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

  std::vector<light::RayPath> raysOfBench() {
    for (const poreiaaktinon::Layer& layer : program.screens.kelmo().shown().layers) {
      if (const auto* light = std::get_if<poreiaaktinon::Light>(&layer)) return *light->sent.paths;
    }
    return {};
  }
  // Those that leave the lens, and where they then cross a height.
  std::vector<double> crossings(double height = 0.0) {
    std::vector<double> all;
    for (const light::RayPath& path : raysOfBench()) {
      if (path.count != 3 || path.ending != light::Ending::Open) continue;
      const light::Piece& last = path.pieces[2];
      if (std::fabs(last.direction.y) < 1e-9) continue;
      all.push_back(last.from.x + (height - last.from.y) * last.direction.x / last.direction.y);
    }
    return all;
  }
  const light::RayPath& singleRay() {
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

inline double degrees(double radians) { return radians * 180.0 / std::numbers::pi; }

inline double angleTo(Point direction, Point normal) {
  return std::acos(std::fabs(dot(direction, normal)));
}

inline std::string oneDecimal(double value) {
  std::string text = formatHundredths(std::round(value * 10.0) / 10.0);
  text.pop_back();
  return text;
}

inline void expectIn(const std::string& text, const std::string& part) {
  EXPECT_NE(text.find(part), std::string::npos) << text << "\n" << part;
}

// Where a ray that has left the lens, or what is behind it on its line, is at an abscissa.
inline double heightAt(const light::RayPath& path, double x) {
  const light::Piece& last = path.pieces[2];
  return last.from.y + (x - last.from.x) * last.direction.y / last.direction.x;
}
inline double crossingOf(const light::RayPath& path) {
  const light::Piece& last = path.pieces[2];
  return last.from.x - last.from.y * last.direction.x / last.direction.y;
}

// Where a ray parallel to the axis, at a height, crosses it behind a lens in the air.
inline double parallelRayCrosses(const poreiaaktinon::Fakos& fakos, double n, double height) {
  const poreiaaktinon::SingleRay ray{{-200.0, height}, {1.0, 0.0}};
  const auto sent = send(poreiaaktinon::Bench{fakos, n, {}}, ray, {-600, 600, -400, 400});
  return crossingOf(sent.paths->front());
}

inline std::string pairOf(double x, double y) {
  std::string text = "(";
  text += formatHundredths(x);
  text += ", ";
  text += formatHundredths(y);
  text += ')';
  return text;
}
// As the pointer is told it.
inline std::string placeOf(Point p) { return light::coordinates(p); }

}  // namespace lensbench
