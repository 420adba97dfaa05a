// Bundles of parallel rays: the question for the angle, its answers, and what is drawn.
#include <cmath>
#include <tuple>

#include "optics/poreiaaktinon/Numbers.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

using poreiaaktinon::pi;

class BundleTest : public KelmoTest {
 protected:
  BundleTest() { openDiaphragm(); }

  // The present scene and over it, ray by ray, a bundle at an angle in radians.
  QImage sceneWithBundle(double angle, bool rays, bool waves) {
    return drawn(sceneAlone(), [&](Canvas& canvas) {
      const double dx = std::cos(angle);
      const double dy = std::sin(angle);
      const int spaces = c.desmi1.Value();
      for (int i = 0; i <= spaces; ++i) {
        const double k = 200.0 - i * (400.0 / spaces);
        const Point start{-200.0 - k * std::tan(angle), k / dx};
        const double phase = (start.x + 200.0) * dx + start.y * dy;
        drawRay(canvas, start, {dx, dy}, {rays, waves}, phase);
      }
    });
  }
  void expectBundleShown(double degrees) {
    const QImage shown = picture();
    EXPECT_DOUBLE_EQ(screen.gonia.value(), degrees * pi / 180.0);
    EXPECT_TRUE(samePicture(shown, sceneWithBundle(degrees * pi / 180.0, true, false)));
  }
  int errorOfAnswer(const QString& answer) {
    try {
      sendBundle(answer);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }
};

TEST_F(BundleTest, AsksForTheAngleBeforeAnythingElse) {
  c.Timer1.Interval(3);
  c.Timer2.Interval(4);
  const auto before = state();
  const QImage shown = picture();
  bool asked = false;
  dialogs.whileOpen = [&] {
    asked = true;
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(samePicture(picture(), shown));
  };
  sendBundle("10");
  EXPECT_TRUE(asked);
  EXPECT_EQ(dialogs.prompts, QStringList{"Give angle with horizontal direction: -90<φ<90"});
  EXPECT_EQ(dialogs.defaults, QStringList{"0"});
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(BundleTest, AnAnswerSetsModesTimersAndMarks) {
  c.kymatachronika.Checked(true);
  sendBundle("20");
  EXPECT_TRUE(shared.desmiMode);
  EXPECT_EQ(c.Timer1.Interval(), 1500);
  EXPECT_FALSE(c.Timer1.Enabled());
  EXPECT_EQ(c.Timer2.Interval(), 1550);
  EXPECT_TRUE(c.Timer2.Enabled());
  EXPECT_FALSE(c.kymatachronika.Checked());
  EXPECT_TRUE(c.parallilakymata.Checked());
  EXPECT_TRUE(c.kymatachronika.isEnabled());
  EXPECT_TRUE(c.parallilakymata.isEnabled());
  EXPECT_EQ(set().size(), 21U);
}

TEST_F(BundleTest, AnAnswerIsAnAngleInDegrees) {
  for (const int degrees : {0, 20, 45, -35, 75, 120, 180, -90}) {
    SCOPED_TRACE(degrees);
    sendBundle(QString::number(degrees));
    expectBundleShown(degrees);
  }
}

TEST_F(BundleTest, TheBundleClearsWhatStoodThere) {
  clutter();
  sendBundle("45");
  expectBundleShown(45.0);
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  sendBundle("45");
  expectBundleShown(45.0);
}

TEST_F(BundleTest, ANumberMayBeWrittenWithAPointOrAComma) {
  sendBundle("22,5");
  expectBundleShown(22.5);
  sendBundle("-22.5");
  expectBundleShown(-22.5);
  sendBundle(" \u221222,5° ");
  expectBundleShown(-22.5);
  EXPECT_EQ(errorOfAnswer("1.234,5"), 13);
}

TEST_F(BundleTest, WhatIsNoNumberIsATypeMismatch) {
  for (const char* answer : {"", " ", "abc", "12abc", "1 2", "--3", "nan", "inf", "0x10"}) {
    EXPECT_EQ(errorOfAnswer(answer), 13) << '"' << answer << '"';
  }
}

TEST_F(BundleTest, ANumberThatIsNoNumberAnyMoreIsAnOverflow) {
  EXPECT_EQ(errorOfAnswer("1e400"), 6);
}

TEST_F(BundleTest, CancellingChangesNothing) {
  sendBundle("30");
  tick(c.Timer2);
  const auto before = state();
  const QImage shown = picture();
  dialogs.answer.reset();
  c.EPANALIPSI.trigger();
  EXPECT_EQ(dialogs.prompts.size(), 2);
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(samePicture(picture(), shown));
}

TEST_F(BundleTest, TheNumberOfRaysIsOneMoreThanTheNumberOfSpaces) {
  for (const int spaces : {2, 3, 7, 20, 99, 150}) {
    c.desmi1.Value(spaces);
    sendBundle("10");
    EXPECT_EQ(set().size(), static_cast<std::size_t>(spaces) + 1);
    expectBundleShown(10.0);
  }
}

TEST_F(BundleTest, TheMarksChooseRaysAndWaves) {
  c.Check1.Value(true);
  sendBundle("20");
  QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithBundle(20.0 * pi / 180.0, true, true)));
  c.Check1.Value(false);
  c.Check2.Value(true);
  sendBundle("-35");
  shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithBundle(-35.0 * pi / 180.0, false, true)));
}

TEST_F(BundleTest, TheIndexIsReadFromItsScrollBar) {
  c.deiktisdiathlasis.Value(250);
  sendBundle("0");
  EXPECT_EQ(screen.n(), 2.5);
  expectBundleShown(0.0);
}

TEST_F(BundleTest, TheDiaphragmStopsTheRays) {
  c.VScroll1.Value(-10);
  c.VScroll2.Value(10);
  c.HScroll1.Value(-40);
  sendBundle("0");
  int passed = 0;
  for (const auto& ray : set()) {
    const bool stopped = ray.ending == light::Ending::Diaphragm;
    EXPECT_EQ(stopped, std::fabs(ray.start().y) > 20.0) << ray.start().y;
    passed += stopped ? 0 : 1;
  }
  EXPECT_EQ(passed, 3);
  expectBundleShown(0.0);
}

TEST_F(BundleTest, TheFixedBundlesStandAtOneRadian) {
  const auto timers = [this] {
    return std::tuple(c.Timer1.Enabled(), c.Timer1.Interval(), c.Timer2.Enabled(),
                      c.Timer2.Interval());
  };
  const auto before = timers();
  for (const int angle : {-1, 1}) {
    shared.desmiMode = false;
    clutter();
    angle < 0 ? screen.desmiMinusOne() : screen.desmiPlusOne();
    const QImage shown = picture();
    EXPECT_TRUE(samePicture(shown, sceneWithBundle(angle, true, false)));
    EXPECT_TRUE(shared.desmiMode);
  }
  EXPECT_EQ(timers(), before);
  EXPECT_TRUE(dialogs.prompts.isEmpty());
}

TEST_F(BundleTest, AShiftPressEndsTheMode) {
  sendBundle("0");
  press(-260.0, 70.0, Qt::ShiftModifier);
  EXPECT_FALSE(shared.desmiMode);
  EXPECT_EQ(c.Timer2.Interval(), 11500);
  EXPECT_FALSE(c.Timer2.Enabled());
  EXPECT_EQ(c.Timer1.Interval(), 1500);
  EXPECT_FALSE(c.Timer1.Enabled());
}

}  // namespace
}  // namespace lensbench
