// Placing the source and aiming the ray with the mouse.
#include <QDialog>
#include <QtTest/QTest>

#include "tests/screens/moniaktina/MoniaktinaTest.h"

namespace lensbench {
namespace {

class MoniaktinaAimTest : public MoniaktinaTest {
 protected:
  void SetUp() override { open(); }
  QPoint pixelOf(Point user) {
    const Point p = screen.canvas().mapping().toPixel(user);
    return {static_cast<int>(p.x), static_cast<int>(p.y)};
  }
  Point userAt(QPoint pixel) {
    return screen.canvas().mapping().toUser(
        {static_cast<double>(pixel.x()), static_cast<double>(pixel.y())});
  }
};

TEST_F(MoniaktinaAimTest, PressPutsTheCornerOfTheSourceAtThePointer) {
  const QImage before = picture();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  EXPECT_EQ(c.fos.Left(), -150.0);
  EXPECT_EQ(c.fos.Top(), 42.0);
  EXPECT_EQ(picture(), before);
}

TEST_F(MoniaktinaAimTest, AimIsShownWhileTheButtonIsHeldAndLeavesNoTrace) {
  const QImage before = picture();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  EXPECT_TRUE(c.aim.Visible());
  EXPECT_NEAR(c.aim.X1(), middleOfFos().x, 1e-4);
  EXPECT_NEAR(c.aim.Y1(), middleOfFos().y, 1e-4);
  screen.Form_MouseMove(1, 0, 20.0, -10.0);
  EXPECT_EQ(c.aim.X2(), 20.0);
  EXPECT_EQ(c.aim.Y2(), -10.0);
  EXPECT_EQ(picture(), before);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  EXPECT_FALSE(c.aim.Visible());
  EXPECT_EQ(picture(), rayPicture(design, 30.0, -12.0));
}

TEST_F(MoniaktinaAimTest, HidingTheScreenEndsADrag) {
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixelOf({-150.0, 42.0}));
  ASSERT_TRUE(c.aim.Visible());
  screen.Hide();
  EXPECT_FALSE(c.aim.Visible());
  open();
  screen.Form_MouseMove(0, 0, 60.0, 30.0);
  EXPECT_FALSE(c.aim.Visible());
  EXPECT_EQ(picture(), lensPicture(design));
}

TEST_F(MoniaktinaAimTest, ADragThatIsLostLeavesThePicture) {
  const QImage before = picture();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseMove(1, 0, 20.0, -10.0);
  emit screen.DragEnded();
  EXPECT_FALSE(c.aim.Visible());
  screen.Form_MouseMove(0, 0, 30.0, -10.0);
  EXPECT_FALSE(c.aim.Visible());
  EXPECT_EQ(picture(), before);
}

TEST_F(MoniaktinaAimTest, AReleaseAfterTheDragEndedSendsNoRay) {
  const QImage before = picture();
  QWidget* area = screen.drawingArea();
  QTest::mousePress(area, Qt::LeftButton, {}, pixelOf({-150.0, 42.0}));
  QDialog box(&screen);
  box.setModal(true);
  box.show();
  ASSERT_FALSE(c.aim.Visible());
  box.hide();
  QTest::mouseRelease(area, Qt::LeftButton, {}, pixelOf({20.0, -10.0}));
  EXPECT_EQ(picture(), before);
  EXPECT_FALSE(screen.drawingArea()->toolTip().isEmpty());
}

TEST_F(MoniaktinaAimTest, MovingWithoutAPressShowsNoAim) {
  screen.Form_MouseMove(0, 0, 20.0, -10.0);
  EXPECT_FALSE(c.aim.Visible());
}

TEST_F(MoniaktinaAimTest, ReleaseClearsAndDrawsWithTheLensOfTheScrollBars) {
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  c.aktina1.Value(140);
  c.kentrokykloy.Value(130);
  screen.Form_MouseUp(1, 0, 60.0, 0.0);
  EXPECT_EQ(picture(), rayPicture({140, 100, 130, 1.5}, 60.0, 0.0));
  EXPECT_EQ(screen.canvas().FontName(), "Arial Greek");
  EXPECT_EQ(screen.canvas().DrawWidth(), 1);
}

TEST_F(MoniaktinaAimTest, SourceAndAimAreSingles) {
  screen.Form_MouseDown(1, 0, -150.1, 42.7);
  screen.Form_MouseUp(1, 0, 30.3, -12.9);
  const auto& layers = screen.shown().layers;
  const auto& aim = std::get<poreiaaktinon::single::AimLine>(layers.front());
  const auto& sent = std::get<poreiaaktinon::single::Ray>(layers.back()).sent;
  const auto& ray = std::get<poreiaaktinon::SingleRay>(sent.rays);
  const Point source{asSingle(middleOfFos().x), asSingle(middleOfFos().y)};
  ASSERT_NE(source.x, middleOfFos().x);
  for (const Point& start : {aim.from, ray.source}) {
    EXPECT_EQ(start.x, source.x);
    EXPECT_EQ(start.y, source.y);
  }
  EXPECT_EQ(aim.to.x, asSingle(30.3));
  EXPECT_EQ(aim.to.y, asSingle(-12.9));
  EXPECT_EQ(ray.direction.x, asSingle(asSingle(30.3) - source.x));
  EXPECT_EQ(ray.direction.y, asSingle(asSingle(-12.9) - source.y));
}

TEST_F(MoniaktinaAimTest, ReleaseReadsTheStateFromTheScrollBars) {
  screen.deiktis = 9;
  screen.aktinaR1 = 9;
  screen.aktinaR2 = 9;
  screen.kentro2 = 9;
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  EXPECT_EQ(screen.deiktis.value(), 1.5);
  EXPECT_EQ(screen.aktinaR1.value(), 90.0);
  EXPECT_EQ(screen.aktinaR2.value(), 100.0);
  EXPECT_EQ(screen.kentro2.value(), 100.0);
}

TEST_F(MoniaktinaAimTest, OtherButtonsDoNothing) {
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  const QImage before = picture();
  for (const int button : {2, 4}) {
    screen.Form_MouseDown(button, 0, 50.0, 50.0);
    EXPECT_FALSE(c.aim.Visible());
    screen.Form_MouseUp(button, 0, -50.0, 20.0);
    EXPECT_EQ(c.fos.Left(), -150.0);
    EXPECT_EQ(c.fos.Top(), 42.0);
    EXPECT_EQ(picture(), before);
  }
}

TEST_F(MoniaktinaAimTest, RealPressDragAndRelease) {
  QWidget* area = screen.drawingArea();
  const QPoint from = pixelOf({-200.0, 40.0});
  const QPoint to = pixelOf({10.0, 5.0});
  QTest::mousePress(area, Qt::LeftButton, {}, from);
  EXPECT_NEAR(c.fos.Left(), userAt(from).x, 1e-9);
  QTest::mouseMove(area, to);
  QTest::mouseRelease(area, Qt::LeftButton, {}, to);
  EXPECT_EQ(picture(), rayPicture(design, userAt(to).x, userAt(to).y));
  EXPECT_FALSE(c.aim.Visible());

  QTest::mouseClick(area, Qt::RightButton, {}, to);
  EXPECT_NEAR(c.fos.Left(), userAt(from).x, 1e-9);
}

TEST_F(MoniaktinaAimTest, ClickWithoutADragSendsTheRayTowardsTheCorner) {
  screen.Form_MouseDown(1, 0, 0.0, 10.0);
  screen.Form_MouseUp(1, 0, 0.0, 10.0);
  EXPECT_EQ(picture(), rayPicture(design, 0.0, 10.0));
}

TEST_F(MoniaktinaAimTest, HowToAimIsSaidUntilItHasBeenDone) {
  const QString hint = screen.drawingArea()->toolTip();
  EXPECT_TRUE(hint.contains("Press"));
  EXPECT_TRUE(hint.contains("Πάτησε"));
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  EXPECT_TRUE(screen.drawingArea()->toolTip().isEmpty());
}

TEST_F(MoniaktinaAimTest, WhatStopsARayIsSaidUntilARayHasPassed) {
  const QString hint = screen.drawingArea()->toolTip();
  t.moves.opening = {-80.0, 0.0, 0.0};
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  EXPECT_EQ(screen.drawingArea()->toolTip(), hint);
  t.moves.opening = {-80.0, 90.0, -90.0};
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  EXPECT_TRUE(screen.drawingArea()->toolTip().isEmpty());
}

TEST_F(MoniaktinaAimTest, ReleaseStraightAboveOrBelowEndsInDivisionByZero) {
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  const Point source = middleOfFos();
  for (const double dy : {80.0, -80.0, 0.0}) {
    try {
      screen.Form_MouseUp(1, 0, source.x, source.y + dy);
      ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), 11);
      EXPECT_FALSE(error.detail().empty());
    }
    // What was drawn before the error stands behind its box.
    const auto& layers = screen.shown().layers;
    ASSERT_EQ(layers.size(), 2u);
    EXPECT_TRUE(std::holds_alternative<poreiaaktinon::single::AimLine>(layers[0]));
    EXPECT_TRUE(std::holds_alternative<poreiaaktinon::single::LensUnderRay>(layers[1]));
  }
}

TEST_F(MoniaktinaAimTest, SteepReleaseBesideTheSourceIsDrawn) {
  screen.Form_MouseDown(1, 0, 40.0, -150.0);
  const double x = middleOfFos().x + 0.001;
  screen.Form_MouseUp(1, 0, x, 100.0);
  EXPECT_EQ(picture(), rayPicture(design, x, 100.0));
}

}  // namespace
}  // namespace lensbench
