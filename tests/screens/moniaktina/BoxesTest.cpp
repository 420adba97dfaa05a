// The value boxes of the single-ray screen by wheel and keyboard, and what is said before it ends
// the program.
#include <gtest/gtest.h>

#include <QToolTip>
#include <QtTest/QTest>

#include "canvas/RuntimeError.h"
#include "tests/screens/moniaktina/MoniaktinaTest.h"
#include "tests/support/ByHand.h"

namespace lensbench {
namespace {

class MoniaktinaBoxes : public MoniaktinaTest {
 protected:
  void SetUp() override {
    open();
    screen.activateWindow();
  }
  void enter(QWidget& into, const QString& text) { enterInto(screen, into, text); }
  void lens(int R1, int R2, int centre) {
    c.kentrokykloy.Value(77);
    c.aktina1.Value(R1);
    c.aktina2.Value(R2);
    c.kentrokykloy.Value(centre);
  }
  // Whether bars and tool tips are as they are designed.
  bool calm() {
    bool all = true;
    for (const ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.kentrokykloy}) {
      all = all && !bar->oneStepAway() && bar->toolTip().count('\n') == 1;
    }
    return all;
  }
};

TEST_F(MoniaktinaBoxes, TypedValuesGoToTheirBars) {
  enter(c.Text6, "210");
  EXPECT_EQ(c.aktina1.Value(), 210);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα 1 =210");
  enter(c.Text5, "1");
  EXPECT_EQ(c.aktina2.Value(), 1);
  enter(c.Text7, "12,6");
  EXPECT_EQ(c.kentrokykloy.Value(), 13);
  enter(c.Text2, "2.5");
  EXPECT_EQ(c.deiktisdiathlasis.Value(), 250);
  turnWheel(c.Text2, -1);
  EXPECT_EQ(c.deiktisdiathlasis.Value(), 247);
  EXPECT_EQ(picture(), lensPicture({210, 1, 13, 1.5}));
}

TEST_F(MoniaktinaBoxes, AValueThatEndsTheProgramIsExplainedAndNotTaken) {
  enter(c.Text5, "0");
  ASSERT_NE(fieldOn(screen), nullptr);
  EXPECT_EQ(fieldOn(screen)->note().text(),
            "Με ακτίνα 0 ο κύκλος γίνεται σημείο και το πρόγραμμα τελειώνει.\n"
            "With a radius of 0 the circle is a point and the program ends.");
  EXPECT_EQ(c.aktina2.Value(), 100);
  QTest::keyClick(fieldOn(screen), Qt::Key_Escape);

  lens(90, 100, 0);
  const QString same =
      "Οι δύο κύκλοι θα συμπέσουν και το πρόγραμμα τελειώνει.\n"
      "The two circles would coincide and the program ends.";
  enter(c.Text6, "100");
  ASSERT_NE(fieldOn(screen), nullptr);
  EXPECT_EQ(fieldOn(screen)->note().text(), same);
  QTest::keyClick(fieldOn(screen), Qt::Key_Escape);
  enter(c.Text5, "90");
  ASSERT_NE(fieldOn(screen), nullptr);
  QTest::keyClick(fieldOn(screen), Qt::Key_Escape);
  enter(c.Text5, "91");
  EXPECT_EQ(c.aktina2.Value(), 91);

  lens(120, 120, 30);
  enter(c.Text7, "-4");
  ASSERT_NE(fieldOn(screen), nullptr);
  EXPECT_EQ(fieldOn(screen)->note().text(), same);
  EXPECT_EQ(c.kentrokykloy.Value(), 30);
}

TEST_F(MoniaktinaBoxes, WheelAndArrowsStopBeforeSuchAValue) {
  c.aktina2.Value(2);
  turnWheel(c.Text5, -1);
  EXPECT_EQ(c.aktina2.Value(), 1);
  EXPECT_NO_THROW(turnWheel(c.Text5, -1));
  EXPECT_NO_THROW(QTest::keyClick(&c.Text5, Qt::Key_Down));
  EXPECT_EQ(c.aktina2.Value(), 1);
  EXPECT_TRUE(QToolTip::text().contains("radius of 0"));
}

TEST_F(MoniaktinaBoxes, NothingIsSaidWhileNoDangerIsNear) {
  EXPECT_TRUE(calm());
  lens(90, 100, 40);
  EXPECT_TRUE(calm());
  lens(50, 2, 1);
  EXPECT_TRUE(calm());
}

TEST_F(MoniaktinaBoxes, ARadiusOneStepAwayFromNothingIsWarnedOf) {
  c.aktina2.Value(1);
  EXPECT_TRUE(c.aktina2.oneStepAway());
  EXPECT_TRUE(
      c.aktina2.toolTip().endsWith("\n\nΗ ακτίνα 2 είναι 1: στο 0 το πρόγραμμα τελειώνει.\n"
                                   "Radius 2 is 1: at 0 the program ends."));
  EXPECT_FALSE(c.aktina1.oneStepAway());
  EXPECT_THROW(c.aktina2.Value(0), RuntimeError);
  c.aktina2.Value(2);
  EXPECT_TRUE(calm());
}

TEST_F(MoniaktinaBoxes, CirclesThatCanCoincideAreWarnedOf) {
  // Equal radii: the bar of the centre leads there, in one step of 40 or of 1.
  lens(90, 90, 41);
  EXPECT_FALSE(c.kentrokykloy.oneStepAway());
  EXPECT_TRUE(c.kentrokykloy.toolTip().endsWith(
      "\n\nΑκτίνες 90 και 90, κέντρο στο 41: με ίσες ακτίνες και κέντρο 0 οι κύκλοι συμπίπτουν και "
      "το πρόγραμμα τελειώνει.\n"
      "Radii 90 and 90, centre at 41: with equal radii and the centre at 0 the circles coincide "
      "and "
      "the program ends."));
  c.kentrokykloy.Value(40);
  EXPECT_TRUE(c.kentrokykloy.oneStepAway());
  EXPECT_THROW(c.kentrokykloy.Value(0), RuntimeError);

  // The centre at 0: the bars of the radii lead there.
  lens(90, 130, 0);
  EXPECT_FALSE(c.kentrokykloy.oneStepAway());
  EXPECT_TRUE(c.aktina1.oneStepAway());
  EXPECT_FALSE(c.aktina2.oneStepAway());
  EXPECT_TRUE(c.aktina1.toolTip().contains("Radii 90 and 130, centre at 0"));
  EXPECT_TRUE(c.aktina2.toolTip().contains("Radii 90 and 130, centre at 0"));
  c.aktina2.Value(91);
  EXPECT_TRUE(c.aktina1.oneStepAway());
  EXPECT_TRUE(c.aktina2.oneStepAway());
  EXPECT_THROW(c.aktina1.Value(91), RuntimeError);
  // Of a smaller circle than the bar of the other goes.
  lens(90, 40, 0);
  EXPECT_FALSE(c.aktina1.toolTip().contains("Radii"));
  EXPECT_TRUE(c.aktina2.toolTip().contains("Radii 90 and 40"));
}

TEST_F(MoniaktinaBoxes, TheAimIsWarnedOfStraightAboveAndBelowTheSource) {
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  const Point source = middleOfFos();
  const double pixel = 1.0 / screen.canvas().mapping().xPixels;
  const Rgb usual = c.aim.BorderColor();
  for (const double y : {source.y + 60.0, source.y - 60.0}) {
    for (const double away : {0.0, 0.9, -0.9}) {
      const Point aim{source.x + away * pixel, y};
      screen.Form_MouseMove(1, 0, aim.x, aim.y);
      EXPECT_NE(c.aim.BorderColor(), usual) << away;
      EXPECT_EQ(QToolTip::text(), screen.warning(aim));
      EXPECT_TRUE(screen.warning(aim).contains(QString::number(source.x, 'f', 2)))
          << screen.warning(aim).toStdString();
    }
    for (const double away : {1.1, -1.1, 40.0}) {
      screen.Form_MouseMove(1, 0, source.x + away * pixel, y);
      EXPECT_EQ(c.aim.BorderColor(), usual) << away;
      EXPECT_TRUE(screen.warning({source.x + away * pixel, y}).isEmpty());
    }
  }
  EXPECT_THROW(screen.Form_MouseUp(1, 0, source.x, source.y + 60.0), RuntimeError);
}

TEST_F(MoniaktinaBoxes, APressLeavesNoWarningOfTheLastAim) {
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  const Rgb usual = c.aim.BorderColor();
  screen.Form_MouseMove(1, 0, middleOfFos().x, 90.0);
  emit screen.DragEnded();
  screen.Form_MouseDown(1, 0, -100.0, 42.0);
  EXPECT_EQ(c.aim.BorderColor(), usual);
  EXPECT_EQ(c.aim.BorderWidth(), 1);
}

}  // namespace
}  // namespace lensbench
