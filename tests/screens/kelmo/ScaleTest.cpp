// The coordinate system of the workbench, and what a change of the window's size does to it.
#include <QTest>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class ScaleTest : public KelmoTest {
 protected:
  // The first input: a key that means nothing to the workbench.
  void touch() { QTest::keyClick(screen.drawingArea(), Qt::Key_F3); }
};

TEST_F(ScaleTest, HalfTheWidthAndHalfTheHeightAre600UnitsAtEverySize) {
  for (const QSize size : {QSize(1920, 1080), QSize(1366, 768), QSize(1024, 600), QSize(800, 800),
                           QSize(700, 1100), QSize(1601, 777)}) {
    SCOPED_TRACE(::testing::Message() << size.width() << " x " << size.height());
    giveSize(size);
    ASSERT_EQ(screen.drawingArea()->size(), size);
    const double sum = size.width() + size.height();
    const poreiaaktinon::Edges e = edges();
    EXPECT_NEAR(e.left, -600.0 * size.width() / sum, 1e-9);
    EXPECT_NEAR(e.right, 600.0 * size.width() / sum, 1e-9);
    EXPECT_NEAR(e.upper, 600.0 * size.height() / sum, 1e-9);
    EXPECT_NEAR(e.lower, -600.0 * size.height() / sum, 1e-9);
    EXPECT_NEAR(e.right + e.upper, 600.0, 1e-9);
    EXPECT_LT(screen.canvas().ScaleHeight(), 0.0);
    const UserMapping m = screen.canvas().mapping();
    EXPECT_NEAR(m.xPixels, -m.yPixels, 1e-9) << "a unit is as long in x as in y";
  }
}

TEST_F(ScaleTest, UntilTheFirstInputTheSceneFitsItselfToEverySize) {
  giveSize({1200, 900});
  EXPECT_NEAR(c.Line1.Y1(), 600.0 * 900 / 2100, 1e-9);
  EXPECT_NEAR(c.Line2.Y1(), -600.0 * 900 / 2100, 1e-9);
  EXPECT_NEAR(c.Line1.X2(), 0.0, 1e-9);
  EXPECT_NEAR(c.Line1.Y2(), 0.0, 1e-9);
  EXPECT_EQ(c.pigi.Left(), -200.0);
  EXPECT_EQ(c.pigi.Top(), 0.0);
  const QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, freshScene()));
}

TEST_F(ScaleTest, AfterTheFirstInputOriginPixelsPerUnitAndPictureStay) {
  touch();
  const UserMapping before = screen.canvas().mapping();
  const QImage shown = picture();
  for (const QSize size : {QSize(1900, 1000), QSize(1300, 700)}) {
    giveSize(size);
    const UserMapping after = screen.canvas().mapping();
    EXPECT_NEAR(after.left, before.left, 1e-9);
    EXPECT_NEAR(after.top, before.top, 1e-9);
    EXPECT_NEAR(after.xPixels, before.xPixels, 1e-9);
    EXPECT_NEAR(after.yPixels, before.yPixels, 1e-9);
    const QSize common = size.boundedTo(usualSize).boundedTo({1300, 700});
    EXPECT_TRUE(samePicture(picture().copy({{0, 0}, common}), shown.copy({{0, 0}, common})));
  }
}

TEST_F(ScaleTest, AfterTheFirstInputTheBladesReachTheNewEdges) {
  touch();
  c.VScroll1.Value(-50);
  const poreiaaktinon::Diafragma before = blades();
  giveSize({1700, 1000});
  EXPECT_NEAR(c.Line1.Y1(), edges().upper, 1e-9);
  EXPECT_NEAR(c.Line2.Y1(), edges().lower, 1e-9);
  EXPECT_NEAR(blades().X, before.X, 1e-9);
  EXPECT_NEAR(blades().yA, before.yA, 1e-9);
  EXPECT_NEAR(blades().yB, before.yB, 1e-9);
}

TEST_F(ScaleTest, AResizeKeepsTheMovingWaves) {
  touch();
  openDiaphragm();
  c.parallilakymata.trigger();
  ticks(c.Timer2, 30);
  const QSize smaller{1500, 700};
  const QImage shown = picture();
  giveSize(smaller);
  EXPECT_TRUE(samePicture(picture(), shown.copy({{0, 0}, smaller})));
  EXPECT_EQ(screen.animation().set().rays.size(), 21U);
}

TEST_F(ScaleTest, ControlsStandInTheAreaAndDoNotCoverEachOther) {
  for (const QSize size : {QSize(1920, 1000), QSize(1366, 700), QSize(1024, 560)}) {
    SCOPED_TRACE(::testing::Message() << size.width() << " x " << size.height());
    giveSize(size);
    QList<QWidget*> controls =
        screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (qsizetype i = 0; i < controls.size(); ++i) {
      const QRect place = controls[i]->geometry();
      EXPECT_TRUE(QRect({0, 0}, size).contains(place)) << controls[i]->objectName().toStdString();
      for (qsizetype j = i + 1; j < controls.size(); ++j) {
        EXPECT_FALSE(place.intersects(controls[j]->geometry()))
            << controls[i]->objectName().toStdString() << " and "
            << controls[j]->objectName().toStdString();
      }
    }
  }
}

TEST_F(ScaleTest, OnAnOrdinaryDisplayNoControlCoversTheLens) {
  for (const QSize size : {QSize(1920, 1000), QSize(1366, 690)}) {
    giveSize(size);
    const UserMapping m = screen.canvas().mapping();
    const Point upperLeft = m.toPixel({-70.0, 86.0});  // the start lens with its rim
    const Point lowerRight = m.toPixel({50.0, -86.0});
    const QRectF lens(QPointF(upperLeft.x, upperLeft.y), QPointF(lowerRight.x, lowerRight.y));
    for (const QWidget* control :
         screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      EXPECT_FALSE(lens.intersects(QRectF(control->geometry())))
          << control->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace lensbench
