// The workbench worked by keys alone: what can be taken, the ring around it, and which keys the
// controls keep for themselves.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QTest>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class KelmoKeysTest : public KelmoTest {
 protected:
  KelmoKeysTest() { screen.activateWindow(); }

  QWidget& area() { return *screen.drawingArea(); }
  // Comes to the picture as the Tab key does, and on to the thing of this id.
  void goTo(Grab thing) {
    area().setFocus(Qt::TabFocusReason);
    while (at() != static_cast<int>(thing)) {
      ASSERT_TRUE(area().hasFocus()) << "no such thing";
      key(Qt::Key_Tab);
    }
  }
  int at() {
    const auto thing = screen.thingFocus().thing();
    return thing ? thing->id : -1;
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void putBack() {
    c.aktina1.Value(100);
    c.aktina2.Value(90);
    c.kentrokykloy2.Value(-50);
    c.kentrokykloy.Value(20);
    // From elsewhere, because a blade need not stand on a step of its slider.
    for (ScrollBar* slider : {&c.HScroll1, &c.VScroll1, &c.VScroll2}) {
      slider->Value(slider->Min() == 0 ? 50 : -50);
      slider->Value(0);
    }
  }
  const Overlay* ring() { return area().findChild<Overlay*>("focusRing"); }
  QString focus() { return QApplication::focusWidget()->objectName(); }
};

TEST_F(KelmoKeysTest, TheFirstControlHasTheFocusAtStart) { EXPECT_EQ(focus(), "aktina1"); }

TEST_F(KelmoKeysTest, TabGoesFromTheLastControlThroughAllThingsToTheFirstControlAndBack) {
  c.Text4.setFocus();
  std::vector<int> order;
  for (const Thing& thing : screen.things()) order.push_back(thing.id);
  ASSERT_EQ(order.size(), 8U);
  for (const int id : order) {
    key(Qt::Key_Tab);
    EXPECT_EQ(at(), id);
  }
  key(Qt::Key_Tab);
  EXPECT_EQ(focus(), "aktina1");
  EXPECT_EQ(at(), -1);
  for (auto id = order.rbegin(); id != order.rend(); ++id) {
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(at(), *id);
  }
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focus(), "Text4");
}

TEST_F(KelmoKeysTest, ARingStandsAroundTheThingWhileThePictureHasTheFocus) {
  EXPECT_EQ(ring(), nullptr) << "silent until asked";
  for (const Thing& thing : screen.things()) {
    goTo(static_cast<Grab>(thing.id));
    const QRectF outline = thing.outline.boundingRect().adjusted(-1, -1, 1, 1);
    EXPECT_TRUE(ring()->bounds().contains(outline)) << thing.name.toStdString();
    EXPECT_LT(ring()->bounds().width(), outline.width() + 30.0);
  }
  EXPECT_FALSE(ring()->InPicture());
  c.aktina1.setFocus();
  EXPECT_LT(ring()->bounds().width(), 10.0);
}

TEST_F(KelmoKeysTest, TheRingFollowsItsThing) {
  goTo(Grab::Source);
  const QPointF before = ring()->bounds().center();
  key(Qt::Key_Right, Qt::ShiftModifier);
  area().repaint();
  EXPECT_NEAR(ring()->bounds().center().x(), before.x() + 20.0, 1e-6) << "two pixels a unit";
  EXPECT_NEAR(ring()->bounds().center().y(), before.y(), 1e-6);
}

TEST_F(KelmoKeysTest, OfAThingOutOfSightTheRingStandsAtTheEdge) {
  c.kentrokykloy2.Value(-500);
  goTo(Grab::LeftCentre);
  EXPECT_NEAR(ring()->bounds().left(), 0.0, 1e-6);
}

TEST_F(KelmoKeysTest, ArrowsMoveTheSourceByOneTenAndATenth) {
  goTo(Grab::Source);
  key(Qt::Key_Right);
  EXPECT_DOUBLE_EQ(screen.xpigi(), -199.0);
  key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(screen.ypigi(), 10.0);
  key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(screen.xpigi(), -199.1);
  key(Qt::Key_Down);
  EXPECT_DOUBLE_EQ(screen.ypigi(), 9.0);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(KelmoKeysTest, ArrowsMoveTheBladesAndTheSlidersFollow) {
  goTo(Grab::UpperBlade);
  for (int i = 0; i < 5; ++i) key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(blades().yA, 50.0);
  EXPECT_DOUBLE_EQ(blades().yB, 0.0);
  EXPECT_EQ(c.Text3.Text(), "οπή διαφράγματος =50");
  EXPECT_EQ(c.VScroll1.Value(), -25);
  key(Qt::Key_Tab);
  key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(blades().yB, -0.1);
  key(Qt::Key_Tab);
  key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(blades().X, 10.0);
  EXPECT_NEAR(blades().yA - blades().yB, 50.1, 1e-9) << "the whole keeps its opening";
}

TEST_F(KelmoKeysTest, ABladeStopsAtTheOtherAsUnderTheMouse) {
  goTo(Grab::UpperBlade);
  key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(blades().yA, blades().yB);
}

TEST_F(KelmoKeysTest, CentresAndRadiiMoveByWholeUnitsWithinTheirBars) {
  goTo(Grab::LeftCentre);
  key(Qt::Key_Left);
  EXPECT_EQ(c.kentrokykloy2.Value(), -51);
  key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(c.kentrokykloy2.Value(), -52);
  key(Qt::Key_Up);
  EXPECT_EQ(c.kentrokykloy2.Value(), -52);
  for (int i = 0; i < 60; ++i) key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(c.kentrokykloy2.Value(), c.kentrokykloy2.Min());
  goTo(Grab::LeftEdge);
  key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(c.aktina1.Value(), 110);
  goTo(Grab::RightEdge);
  key(Qt::Key_Left);
  EXPECT_EQ(c.aktina2.Value(), 91);
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα2 =91");
}

TEST_F(KelmoKeysTest, WhatKeysDoIsWhatADragDoes) {
  struct Case {
    Grab thing;
    Qt::Key arrow;
    Point from, to;
  };
  const Case cases[] = {
      {Grab::UpperBlade, Qt::Key_Up, {0.0, 100.0}, {0.0, 10.0}},
      {Grab::LowerBlade, Qt::Key_Left, {0.0, -100.0}, {-10.0, 0.0}},
      {Grab::LeftCentre, Qt::Key_Left, {-50.0, 0.0}, {-60.0, 0.0}},
      {Grab::RightCentre, Qt::Key_Right, {20.0, 0.0}, {30.0, 0.0}},
      {Grab::LeftEdge, Qt::Key_Right, {50.0, 0.0}, {60.0, 0.0}},
      {Grab::RightEdge, Qt::Key_Left, {-70.0, 0.0}, {-80.0, 0.0}},
  };
  putBack();
  for (const Case& once : cases) {
    SCOPED_TRACE(static_cast<int>(once.thing));
    goTo(once.thing);
    key(once.arrow, Qt::ShiftModifier);
    const std::vector<std::string> byKeys = state();
    const QImage seen = picture();
    putBack();
    ASSERT_NE(state(), byKeys);
    dragFromTo(once.from, once.to);
    EXPECT_EQ(state(), byKeys);
    EXPECT_TRUE(samePicture(picture(), seen));
    putBack();
  }
}

TEST_F(KelmoKeysTest, EnterAtTheSourceSendsTheFanThatAShiftedPressThereSends) {
  openDiaphragm();
  press(-150.0, 40.0, Qt::ShiftModifier);
  release(-150.0, 40.0);
  const QImage byMouse = picture();
  const std::vector<std::string> state1 = state();
  clutter();
  goTo(Grab::Source);
  key(Qt::Key_Return);
  EXPECT_TRUE(samePicture(picture(), byMouse));
  EXPECT_EQ(state(), state1);
  ASSERT_TRUE(screen.set());
  EXPECT_TRUE(std::holds_alternative<poreiaaktinon::Fan>(screen.set()->rays));
}

TEST_F(KelmoKeysTest, EnterElsewhereAndArrowsWithoutThePictureDoNothing) {
  goTo(Grab::UpperBlade);
  const std::vector<std::string> before = state();
  key(Qt::Key_Return);
  c.Check1.setFocus();
  key(Qt::Key_Return);
  QTest::keyClick(&screen, Qt::Key_Right);
  EXPECT_EQ(state(), before);
}

TEST_F(KelmoKeysTest, EscapeLeavesADragAndPutsEverythingBackAndOnTheWorkbenchNothingMore) {
  openDiaphragm();
  sendBundle("10");
  const QImage before = picture();
  const poreiaaktinon::Diafragma open = blades();
  press(0.0, 190.0);
  drag(50.0, 100.0);
  EXPECT_NE(blades().X, 0.0);
  key(Qt::Key_Escape);
  EXPECT_EQ(blades(), open);
  EXPECT_TRUE(samePicture(picture(), before));
  release(50.0, 100.0);
  EXPECT_EQ(blades(), open) << "the release comes too late";
  key(Qt::Key_Escape);
  EXPECT_TRUE(moves.made.empty());
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(KelmoKeysTest, KeysOfTheProgramAreHeardFromEveryControl) {
  QWidget* const controls[] = {&c.aktina1, &c.Text6, &c.Check1, &c.VScroll1, &area()};
  for (QWidget* control : controls) {
    SCOPED_TRACE(control->objectName().toStdString());
    control->setFocus();
    moves.made.clear();
    key(Qt::Key_F1);
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(moves.made, (std::vector<std::string>{"help", "undo", "redo"}));
    key(Qt::Key_F11);
    EXPECT_TRUE(screen.isFullScreen());
    key(Qt::Key_Escape);
    EXPECT_FALSE(screen.isFullScreen());
  }
}

TEST_F(KelmoKeysTest, AControlKeepsTheKeysThatItUses) {
  c.kymatachronika.trigger();
  ticks(c.Timer1, 5);
  c.Check1.setFocus();
  key(Qt::Key_Space);
  EXPECT_TRUE(c.Check1.Value());
  EXPECT_FALSE(shared.paused);
  c.aktina1.setFocus();
  key(Qt::Key_Home);
  EXPECT_EQ(c.aktina1.Value(), c.aktina1.Min());
  EXPECT_TRUE(c.kymatachronika.Checked());
  key(Qt::Key_Space);
  EXPECT_TRUE(shared.paused) << "a scroll bar has no use for it";
  c.Text6.setFocus();
  key(Qt::Key_Space);
  EXPECT_FALSE(shared.paused) << "nor has a box that is only read";
}

TEST_F(KelmoKeysTest, AKeyThatIsHeldDownPausesOnce) {
  c.kymatachronika.trigger();
  QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
  QApplication::sendEvent(&screen, &first);
  QApplication::sendEvent(&screen, &again);
  EXPECT_TRUE(shared.paused);
}

TEST_F(KelmoKeysTest, FullScreenAndBackKeepTheStateOfTheWindow) {
  screen.setWindowState(Qt::WindowMaximized);
  key(Qt::Key_F11);
  EXPECT_TRUE(screen.isFullScreen());
  key(Qt::Key_F11);
  EXPECT_FALSE(screen.isFullScreen());
  EXPECT_TRUE(screen.isMaximized());
}

}  // namespace
}  // namespace lensbench
