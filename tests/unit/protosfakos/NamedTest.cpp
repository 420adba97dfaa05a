// The given routines that pictures do not need: formulas of the hyperbola, and those that act on
// the Ibn Sahl screen.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "optics/protosfakos/Named.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

TEST(Toxoimitono, IsTheArcSine) {
  EXPECT_EQ(toxoimitonoSahl(0).value(), 0.0);
  for (const double s : {-0.999, -0.5, 0.1, 0.7, 0.99999}) {
    EXPECT_NEAR(toxoimitonoSahl(s).value(), std::asin(s), 1e-13) << s;
  }
}

TEST(Toxoimitono, RaisesAtAndBeyondOne) {
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(1); }), 11);
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(-1); }), 11);
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(1.5); }), 5);
}

TEST(Apostasi, IsTheDistance) {
  EXPECT_EQ(apostasiSahl(1, 2, 4, 6).value(), 5.0);
  EXPECT_EQ(apostasiSahl(4, 6, 1, 2).value(), 5.0);
  EXPECT_EQ(apostasiSahl(Variant(), Variant(), 3, -4).value(), 5.0);
}

TEST(Tomiyperbolis, OrderOfTheRootsDependsOnTheSteepness) {
  const double a = 12.0, b = deriveLens(1.5)->b, k = b / a;
  // Less steep than the asymptotes: first the right branch for a line through the origin.
  EXPECT_GT(tomiyperbolis1(0, 0, b, a).value(), 0.0);
  EXPECT_NEAR(tomiyperbolis1(0, 0, b, a).value(), a, 1e-13);
  EXPECT_NEAR(tomiyperbolis2(0, 0, b, a).value(), -a, 1e-13);
  // Steeper: the plus root first.
  const double m = 2.0 * k, q = -60.0;
  const double A = m * m - k * k;
  const double D = b * b * ((q * q + b * b) / (a * a) - m * m);
  ASSERT_GT(D, 0.0);
  EXPECT_NEAR(tomiyperbolis1(m, q, b, a).value(), (-m * q + std::sqrt(D)) / A, 1e-12);
  EXPECT_NEAR(tomiyperbolis2(m, q, b, a).value(), (-m * q - std::sqrt(D)) / A, 1e-12);
}

TEST(Tomiyperbolis, PointsAreOnLineAndHyperbola) {
  for (const double n : {1.05, 1.33, 1.5, 2.5}) {
    const auto [a, b, c] = *deriveLens(n);
    for (double m = -2.05; m < 2.1; m += 0.1) {
      for (double q = -95.0; q < 100.0; q += 10.0) {
        for (const Variant& x : {tomiyperbolis1(m, q, b, a), tomiyperbolis2(m, q, b, a)}) {
          if (x.isEmpty()) continue;
          const double y = m * x.value() + q;
          const double scale = 1.0 + y * y / (b * b);
          EXPECT_NEAR((x.value() / a) * (x.value() / a) - y * y / (b * b), 1.0, 1e-10 * scale);
        }
      }
    }
  }
}

TEST(Tomiyperbolis, IsEmptyWithoutIntersection) {
  const auto [a, b, c] = *deriveLens(1.5);
  EXPECT_TRUE(tomiyperbolis1(3, 0, b, a).isEmpty());
  EXPECT_TRUE(tomiyperbolis2(3, 0, b, a).isEmpty());
}

TEST(Tomiyperbolis, ParallelToAnAsymptoteBothGiveTheOnePoint) {
  // b = a makes the asymptotes y = x and y = -x: x² - (x + 6)² = 144 at x = -15.
  EXPECT_EQ(tomiyperbolis1(1, 6, 12, 12).value(), -15.0);
  EXPECT_EQ(tomiyperbolis2(1, 6, 12, 12).value(), -15.0);
  EXPECT_EQ(tomiyperbolis1(-1, 6, 12, 12).value(), 15.0);
  EXPECT_EQ(errorNumber([] { tomiyperbolis1(1, 0, 12, 12); }), 11);
}

// A screen without windows, connected for the lifetime of a test.
class Named : public ::testing::Test {
 protected:
  Named() {
    asked.rays = Fan{{108, 25}};
    asked.diafragma = wideOpen;
    connectSahlScreen({.canvas = [this]() -> Canvas& { return canvas; },
                       .asked = [this] { return asked; },
                       .caption = [this](const std::string& text) { captions.push_back(text); },
                       .message = [this](const std::string& text) { messages.push_back(text); }});
  }
  ~Named() override { connectSahlScreen({}); }

  double b() const { return deriveLens(asked.deiktisSahl)->b; }
  // What the picture of the same scene draws.
  std::vector<Operation> picture(bool amfikyrtos, const Rays& rays) const {
    Asked same = asked;
    same.amfikyrtos = amfikyrtos;
    same.rays = rays;
    Recording other(600.0, 600.0);
    drawOver(other, sceneOf(same));
    return other.operations();
  }
  void expectDrawn(const std::vector<Operation>& expected) {
    const auto& ops = canvas.operations();
    ASSERT_EQ(ops.size(), expected.size());
    for (std::size_t i = 0; i < ops.size(); ++i) {
      ASSERT_EQ(ops[i].kind, expected[i].kind) << i;
      ASSERT_EQ(ops[i].colour, expected[i].colour) << i;
      ASSERT_EQ(ops[i].x1, expected[i].x1) << i;
      ASSERT_EQ(ops[i].y1, expected[i].y1) << i;
      ASSERT_EQ(ops[i].x2, expected[i].x2) << i;
      ASSERT_EQ(ops[i].y2, expected[i].y2) << i;
    }
    canvas.forget();
  }
  void expectPoint(int ray, int front, double x, double y) {
    EXPECT_NEAR(kymataX(recordedRays(), ray, front).value(), x, 1e-12) << front;
    EXPECT_NEAR(kymataY(recordedRays(), ray, front).value(), y, 1e-12) << front;
  }

  Asked asked;
  Recording canvas{600.0, 600.0};
  std::vector<std::string> captions;
  std::vector<std::string> messages;
};

TEST_F(Named, PoreiaamfikyrtouGivesTheExitPoint) {
  const auto [a, b, c] = *deriveLens(1.5);
  Variant x, y;
  poreiaamfikyrtou(a, b, 0, 10, x, y);
  ASSERT_FALSE(x.isEmpty());
  const double yExit = y.value();
  EXPECT_NEAR((x.value() / a) * (x.value() / a) - yExit * yExit / (b * b), 1.0, 1e-12);
  const Way path =
      wayThrough(biconvex(a, b, 1.5), rayWithSlope({130, 10}, 0, Travel::Left), wideOpen);
  EXPECT_NEAR(x.value(), path.exit.x, 1e-12);
  EXPECT_NEAR(yExit, path.exit.y, 1e-12);
  poreiaamfikyrtou(a, b, 0, 60, x, y);
  EXPECT_TRUE(x.isEmpty());
  EXPECT_TRUE(y.isEmpty());
  poreiaamfikyrtou(a, b, 0, 0, x, y);
  EXPECT_NEAR(x.value(), 12.0, 1e-12);
  EXPECT_EQ(y.value(), 0.0);
  // The diaphragm of the screen does not count.
  asked.diafragma = {90.0, 0.0, 0.0};
  poreiaamfikyrtou(a, b, 0, 0, x, y);
  EXPECT_FALSE(x.isEmpty());
}

TEST_F(Named, ScenesDrawWhatPicturesDraw) {
  const double m = 0.2;
  sxediasiepipedokyrtou(12, b(), 108, 25);
  expectDrawn(picture(false, Fan{{108, 25}}));
  sxediasiamfikyrtou(12, b(), 108, 25);
  expectDrawn(picture(true, Fan{{108, 25}}));
  desmiepipedokyrtou(12, b(), m);
  expectDrawn(picture(false, Desmi{m}));
  desmiamfikyrtou(12, b(), m);
  expectDrawn(picture(true, Desmi{m}));
  EXPECT_EQ(
      captions,
      (std::vector<std::string>{
          "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ", "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές",
          "IBN SAHL'S PLANECONVEX LENS", "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές"}));
  EXPECT_TRUE(messages.empty());
}

TEST_F(Named, ScenesFollowTheOptionsAndTheDiaphragmOfTheScreen) {
  asked.onlyWaves = true;
  asked.diafragma = {100.0, 30.0, 18.0};
  sxediasiepipedokyrtou(12, b(), 108, 25);
  expectDrawn(picture(false, Fan{{108, 25}}));
}

TEST_F(Named, FrontsOfAFanAreCountedFromPigi) {
  sxediasiepipedokyrtou(12, b(), 100, 20);
  ASSERT_GT(plithosaktinon(), 1);
  expectPoint(0, 0, 108, 25);
  EXPECT_EQ(canvas.operations(Operation::Kind::Circle)[0].x1, 100.0);
}

TEST_F(Named, AnotherSceneForgetsTheRaysOfTheOneBefore) {
  EXPECT_EQ(plithosaktinon(), 0);
  sxediasiepipedokyrtou(12, b(), 108, 0);
  ASSERT_GT(plithosaktinon(), 0);
  asked.diafragma = {100.0, 0.0, 0.0};
  sxediasiepipedokyrtou(12, b(), 108, 50);
  EXPECT_EQ(plithosaktinon(), 0);
  for (const Recorded& ray : recordedRays()) {
    EXPECT_EQ(ray.entry.x, 0.0);
    EXPECT_EQ(ray.exit.x, 0.0);
    EXPECT_EQ(ray.directionX, 0.0F);
    EXPECT_EQ(ray.directionY, 0.0F);
  }
}

TEST_F(Named, WaveRoutinesLayThePointsOfARecordedRay) {
  desmiepipedokyrtou(12, b(), 0);
  const int k = 3;
  const Recorded before = recordedRays()[k];
  kymatapigis(k);
  expectPoint(k, 0, 108, 25);
  kymatadesmis(130, before.entry.y, k);
  expectPoint(k, 0, 130, before.entry.y);
  expectPoint(k, 5, 130 - 16, before.entry.y);
  for (int j = 0; j <= lastFront; ++j) {
    const Point p = before.kymata[static_cast<std::size_t>(j)];
    expectPoint(k, j, p.x, p.y);
  }
  kymatadesmis(Variant(), Variant(), k);
  expectPoint(k, 0, 0, 0);
  expectPoint(k, 1, 0, 0);
}

TEST_F(Named, IndexOutsideTheArraysIsAnError) {
  EXPECT_EQ(errorNumber([] { kymatapigis(501); }), 9);
  EXPECT_EQ(errorNumber([] { kymatapigis(-1); }), 9);
  EXPECT_EQ(errorNumber([] { kymatadesmis(0, 0, 1e12); }), 9);
  EXPECT_EQ(errorNumber([] { kymatapigis(500); }), 0);
}

TEST_F(Named, IndexOfRefractionZeroIsDivisionByZero) {
  asked.deiktisSahl = 0.0;
  EXPECT_EQ(errorNumber([] { kymatapigis(0); }), 11);
  EXPECT_EQ(errorNumber([] { sxediasiamfikyrtou(12, 13, 108, 25); }), 11);
  Variant x, y;
  EXPECT_EQ(errorNumber([&] { poreiaamfikyrtou(12, 13, 0, 0, x, y); }), 11);
}

TEST_F(Named, NegativeLengthIsToldOnceForASceneAndThePointsAreStored) {
  asked.deiktisSahl = -1.5;
  const double plain = deriveLens(1.5)->b;
  sxediasiepipedokyrtou(12, plain, 108, 0);
  ASSERT_GT(plithosaktinon(), 1);
  EXPECT_EQ(messages, std::vector<std::string>{"  ARNHTIKO"});
  kymatapigis(1);
  EXPECT_EQ(messages.size(), 1u);
  EXPECT_NE(kymataX(recordedRays(), 1, 30).value(), 0.0);
  sxediasiepipedokyrtou(12, plain, 108, 0);
  EXPECT_EQ(messages.size(), 2u);
  // A scene that was drawn with a true index is told when its waves are laid with another.
  asked.deiktisSahl = 1.5;
  sxediasiepipedokyrtou(12, plain, 108, 0);
  EXPECT_EQ(messages.size(), 2u);
  asked.deiktisSahl = -1.5;
  kymatapigis(0);
  kymatapigis(1);
  EXPECT_EQ(messages.size(), 3u);
}

TEST(NamedUnconnected, AreRefused) {
  EXPECT_THROW(sxediasiepipedokyrtou(12, 13, 108, 25), std::bad_function_call);
  EXPECT_THROW(kymatapigis(0), std::bad_function_call);
}

}  // namespace
}  // namespace lensbench::protosfakos
