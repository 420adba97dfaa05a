// The coordinate system of the workbench, and what a change of the window's size does to it.
#include <cmath>

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
    const light::Edges e = edges();
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

TEST_F(ScaleTest, BeforeAndAfterTheFirstInputThePictureFollowsTheWindow) {
  for (const QSize size : {QSize(1200, 900), QSize(1901, 1003), QSize(1300, 700), usualSize}) {
    giveSize(size);
    const double upper = 600.0 * size.height() / (size.width() + size.height());
    EXPECT_NEAR(c.Line1.Y1(), upper, 1e-9);
    EXPECT_NEAR(c.Line2.Y1(), -upper, 1e-9);
    EXPECT_EQ(c.Line1.X2(), 0.0);
    EXPECT_EQ(c.Line1.Y2(), 0.0);
    EXPECT_EQ(c.pigi.Left(), -200.0);
    EXPECT_EQ(c.pigi.Top(), 0.0);
    EXPECT_TRUE(showsSceneOnly());
    touch();
  }
}

TEST_F(ScaleTest, SourceAndDiaphragmKeepTheirUserCoordinatesAndBladesReachTheNewEdges) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  dragFromTo({0.0, 100.0}, {-123.5, 61.5});
  const poreiaaktinon::Diafragma before = blades();
  for (const QSize size : {QSize(1700, 1000), QSize(1233, 901), usualSize}) {
    giveSize(size);
    EXPECT_EQ(c.Line1.Y1(), edges().upper);
    EXPECT_EQ(c.Line2.Y1(), edges().lower);
    EXPECT_EQ(blades(), before);
    EXPECT_EQ(screen.xpigi(), -260.0);
    EXPECT_EQ(screen.ypigi(), 70.0);
  }
}

TEST_F(ScaleTest, RaysAndWavePointsEndAtTheNewEdges) {
  openDiaphragm();
  c.Check1.Value(true);
  sendBundle("20");
  const poreiaaktinon::Shown atFirst = screen.shown();
  const QImage picture1 = picture();
  for (const QSize size : {QSize(1900, 1000), QSize(1300, 700)}) {
    giveSize(size);
    EXPECT_EQ(screen.shown().layers.size(), 2U);
    const auto& light = std::get<poreiaaktinon::Light>(screen.shown().layers[1]);
    EXPECT_EQ(light.sent.edges, edges());
    std::size_t atEdge = 0;
    for (const auto& ray : *light.sent.paths) {
      const Point end = ray.end();
      const bool right = std::fabs(end.x - edges().right) < 1e-6;
      const bool above = std::fabs(end.y - edges().upper) < 1e-6;
      atEdge += right || above ? 1 : 0;
    }
    EXPECT_GT(atEdge, 10U);
    EXPECT_TRUE(samePicture(picture(), drawn(screen.shown())));
  }
  giveSize(usualSize);
  EXPECT_EQ(screen.shown(), atFirst);
  EXPECT_TRUE(samePicture(picture(), picture1)) << "there and back";
}

TEST_F(ScaleTest, ADragInProgressIsSeenAtTheNewSize) {
  press(110.0, 0.0);
  drag(140.0, 10.0);
  giveSize({1300, 700});
  EXPECT_TRUE(c.draggedEdge.Visible());
  EXPECT_NEAR(c.draggedEdge.Left(), -100.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Top(), 120.0, 1e-9);
  release(140.0, 10.0);
  EXPECT_EQ(c.aktina2.Value(), 120);
  press(0.0, 100.0);
  drag(30.0, 60.0);
  giveSize(usualSize);
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{30.0, 60.0, 0.0}));
  release(30.0, 60.0);
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{30.0, 60.0, 0.0}));
}

TEST_F(ScaleTest, WhatTheNewSizeHidesIsMarkedAtTheEdgeAndCanBeTaken) {
  press(-390.0, 100.0, Qt::ShiftModifier);
  release(-390.0, 100.0);
  c.VScroll2.Value(20);
  dragFromTo({0.0, 100.0}, {350.0, 90.0});
  for (const EdgeMark* mark : {&c.sourceMark, &c.upperBladeMark, &c.lowerBladeMark}) {
    EXPECT_FALSE(mark->Visible()) << mark->objectName().toStdString();
  }
  giveSize({800, 1200});  // 240 units to each side
  EXPECT_EQ(blades().X, 350.0);
  EXPECT_EQ(screen.xpigi(), -390.0);
  for (const EdgeMark* mark : {&c.sourceMark, &c.upperBladeMark, &c.lowerBladeMark}) {
    SCOPED_TRACE(mark->objectName().toStdString());
    EXPECT_TRUE(mark->Visible());
    const Point pixel = screen.canvas().mapping().toPixel(centreOf(*mark));
    EXPECT_TRUE(QRectF(0.0, 0.0, 800.0, 1200.0).contains(pixel.x, pixel.y));
    EXPECT_EQ(screen.drawingArea()->childAt(static_cast<int>(pixel.x), static_cast<int>(pixel.y)),
              nullptr);
  }
  dragFromTo(centreOf(c.lowerBladeMark), {200.0, -50.0});
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{200.0, 90.0, -50.0}));
  EXPECT_FALSE(c.upperBladeMark.Visible());
  EXPECT_FALSE(c.lowerBladeMark.Visible());
  dragFromTo(centreOf(c.sourceMark), {-210.0, 100.0});
  EXPECT_EQ(screen.xpigi(), -210.0);
  EXPECT_EQ(screen.ypigi(), 100.0);
  EXPECT_FALSE(c.sourceMark.Visible());
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(ScaleTest, AMarkThatIsTakenAndNotLetGoChangesNothing) {
  press(-390.0, 100.0, Qt::ShiftModifier);
  release(-390.0, 100.0);
  giveSize({800, 1200});
  press(centreOf(c.sourceMark).x, centreOf(c.sourceMark).y);
  drag(-100.0, 20.0);
  EXPECT_EQ(screen.xpigi(), -100.0) << "it is seen moving";
  loseRelease();
  drag(-90.0, 20.0);
  EXPECT_EQ(screen.xpigi(), -390.0);
  EXPECT_EQ(screen.ypigi(), 100.0);
}

// What is left of a display for the drawing area, from a large one to one of 640 x 480, one of
// 1366 x 768 at pixel ratio 2, one of 1024 x 600 with 144 dots an inch and an upright one.
constexpr QSize areas[] = {{1920, 1020}, {1366, 700}, {1366, 690}, {1024, 550}, {1080, 1870},
                           {738, 408},   {683, 1000}, {640, 430},  {683, 340},  {683, 352}};

TEST_F(ScaleTest, ControlsStandInTheAreaAndDoNotCoverEachOther) {
  for (const QSize size : areas) {
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

TEST_F(ScaleTest, OnNoDisplayAControlCoversTheLensOrIsCut) {
  for (const QSize size : areas) {
    SCOPED_TRACE(::testing::Message() << size.width() << " x " << size.height());
    giveSize(size);
    const UserMapping m = screen.canvas().mapping();
    const Point upperLeft = m.toPixel({-70.0, 87.5});  // the start lens with its rim
    const Point lowerRight = m.toPixel({50.0, -87.5});
    const QRectF lens(QPointF(upperLeft.x, upperLeft.y), QPointF(lowerRight.x, lowerRight.y));
    for (const QWidget* control :
         screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      EXPECT_FALSE(lens.intersects(QRectF(control->geometry())))
          << control->objectName().toStdString();
    }
    for (const TextBox* box :
         {&c.Text1, &c.Text2, &c.Text3, &c.Text4, &c.Text5, &c.Text6, &c.Text7}) {
      EXPECT_GE(box->width(), box->widthForText(box->Text())) << box->objectName().toStdString();
    }
    for (const Label* hint : {&c.Label1, &c.Label2}) {
      EXPECT_GE(hint->height(), hint->heightForWidth(hint->width()));
    }
    for (const ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.deiktisdiathlasis, &c.desmi1}) {
      EXPECT_GE(bar->width(), 56) << bar->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace lensbench
