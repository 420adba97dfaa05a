#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include <QTest>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/Shape.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

const FormDesign design{"ElSahl", "", 0, 0, 3000, 2400, white};

QImage shown(const Form& form) {
  return form.drawingArea()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(Shape, StandsWhereItIsDesignedAndKeepsItsPlaceUnderANewScale) {
  Form form(design);
  Shape fos(form, "fos", {1080, 1200, 135, 135});
  EXPECT_EQ(fos.objectName(), "fos");
  EXPECT_EQ(fos.Left(), 1080.0);
  EXPECT_EQ(fos.Height(), 135.0);
  fos.FillStyle(FillStyle::Solid);
  fos.FillColor(RGB(255, 128, 0));
  fos.BorderColor(red);
  const QImage before = shown(form);
  EXPECT_EQ(colourAt(before, 77, 85), RGB(255, 128, 0));
  form.canvas().Scale(-600, 480, 600, -480);
  EXPECT_EQ(shown(form), before);
  EXPECT_NEAR(fos.Left(), -600 + 72 * 6, 1e-9);
  EXPECT_NEAR(fos.Top(), 480 - 80 * 6, 1e-9);
  EXPECT_NEAR(fos.Width(), 9 * 6, 1e-9);
  EXPECT_NEAR(fos.Height(), 9 * 6, 1e-9);
  form.canvas().Scale(-10, -10, 10, 10);
  EXPECT_EQ(shown(form), before);
}

TEST(Shape, MovesAboveThePictureWithoutDisturbingIt) {
  Form form(design);
  form.canvas().Scale(0, 160, 200, 0);
  form.canvas().Line(0, 0, 200, 160, blue);
  const QImage picture = form.canvas().image().copy();
  Shape pigi(form, "pigi", {0, 0, 300, 300});
  pigi.FillStyle(FillStyle::Solid);
  pigi.FillColor(green);
  pigi.Left(90);
  pigi.Top(90);
  EXPECT_EQ(colourAt(shown(form), 100, 80), green);
  pigi.Left(10);
  const QImage moved = shown(form);
  EXPECT_EQ(colourAt(moved, 20, 80), green);
  EXPECT_NE(colourAt(moved, 100, 80), green);
  pigi.Visible(false);
  EXPECT_NE(colourAt(shown(form), 20, 80), green);
  EXPECT_EQ(form.canvas().image(), picture);
}

TEST(Shape, IsTransparentUnlessItsFillIsSolid) {
  Form form(design);
  Shape circle(form, "circle", {1500, 1200, 600, 600});
  circle.BorderColor(red);
  EXPECT_EQ(colourAt(shown(form), 120, 100), white);
  circle.BorderStyle(BorderStyle::Dotted);
  EXPECT_EQ(colourAt(shown(form), 120, 100), white);
  EXPECT_EQ(circle.BorderStyle(), BorderStyle::Dotted);
}

TEST(Shape, AVisibleFormRepaintsOnlyTheOldAndTheNewPlace) {
  Form form(design);
  Shape marker(form, "Shape1", {300, 300, 135, 135});
  form.Show();
  QTest::qWait(50);
  QRegion painted;
  struct Watch : QObject {
    QRegion* painted;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) *painted += static_cast<QPaintEvent*>(event)->region();
      return false;
    }
  } watch;
  watch.painted = &painted;
  form.drawingArea()->installEventFilter(&watch);
  marker.Left(2250);
  QTest::qWait(50);
  EXPECT_TRUE(painted.contains(QPoint(24, 24)));
  EXPECT_TRUE(painted.contains(QPoint(154, 24)));
  EXPECT_FALSE(painted.contains(QPoint(90, 24)));
}

TEST(LineControl, IsDrawnAboveThePictureFromEndToEnd) {
  Form form(design);
  LineControl line(form, "Line1", {360, 0, 360, 1200});
  EXPECT_EQ(line.X1(), 360.0);
  EXPECT_EQ(line.Y2(), 1200.0);
  form.canvas().Scale(-120, 120, 150, -120);
  line.BorderColor(blue);
  line.BorderWidth(3);
  line.X1(15);
  line.X2(15);
  line.Y1(200);
  line.Y2(15);
  EXPECT_EQ(line.X1(), 15.0);
  const QImage picture = shown(form);
  EXPECT_EQ(colourAt(picture, 100, 0), blue);
  EXPECT_EQ(colourAt(picture, 100, 69), blue);
  EXPECT_EQ(colourAt(picture, 100, 72), white);
  EXPECT_EQ(count(form.canvas().image(), white), 400 * 320);
}

TEST(LineControl, KeepsItsPlaceUnderANewScaleAndItsUnitsUnderAResize) {
  Form form(design);
  form.canvas().Scale(-100, 80, 100, -80);
  LineControl line(form, "Line1", {1500, 0, 1500, 1200});
  EXPECT_NEAR(line.X1(), 0.0, 1e-12);
  EXPECT_NEAR(line.Y1(), 80.0, 1e-12);
  const QImage before = shown(form);
  form.canvas().Scale(0, 0, 200, 160);
  EXPECT_EQ(shown(form), before);
  EXPECT_NEAR(line.X1(), 100.0, 1e-12);
  EXPECT_NEAR(line.Y2(), 80.0, 1e-12);
  const double x = line.X1();
  form.clientSize(4500, 3000);
  EXPECT_EQ(line.X1(), x);
  EXPECT_EQ(shown(form).copy(before.rect()), before);
}

// The drawing area as a display of a pixel ratio shows it.
QImage shownAt(const Form& form, double ratio) {
  QImage image((QSizeF(form.drawingArea()->size()) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  form.drawingArea()->render(&image);
  image.setDevicePixelRatio(1.0);
  return image;
}

TEST(LineControl, OfWholePixelsHasNoSoftEdges) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    for (const int width : {1, 2, 3, 4}) {
      Form form(design);
      form.canvas().Scale(0, 0, 200, 160);
      LineControl line(form, "Line1", {0, 0, 0, 0});
      line.BorderColor(blue);
      line.BorderWidth(width);
      const int solid = std::max(1, int(std::lround(width * ratio)));
      line.between({100, 20}, {100, 60});
      QImage picture = shownAt(form, ratio);
      QRect drawn = extent(picture, blue);
      EXPECT_EQ(drawn.width(), solid) << width << " at " << ratio;
      EXPECT_EQ(count(picture, blue), drawn.width() * drawn.height());
      EXPECT_EQ(count(picture, white), picture.width() * picture.height() - count(picture, blue));
      EXPECT_NEAR(drawn.left() + solid / 2.0, 100.5 * ratio, 0.51);
      EXPECT_EQ(drawn.top(), std::floor(20.5 * ratio));
      EXPECT_EQ(drawn.bottom() + 1, std::ceil(60.5 * ratio));
      line.between({20, 100}, {60, 100});
      picture = shownAt(form, ratio);
      drawn = extent(picture, blue);
      EXPECT_EQ(drawn.height(), solid) << width << " at " << ratio;
      EXPECT_EQ(count(picture, white), picture.width() * picture.height() - count(picture, blue));
      EXPECT_NEAR(drawn.top() + solid / 2.0, 100.5 * ratio, 0.51);
    }
  }
}

TEST(LineControl, AnEvenWidthStandsWhereACanvasLineOfItStands) {
  Form form(design);
  form.canvas().setOversampling(1);
  form.canvas().Scale(0, 0, 200, 160);
  LineControl line(form, "Line1", {0, 0, 0, 0});
  line.BorderColor(blue);
  line.BorderWidth(4);
  line.between({100, 20}, {100, 60});
  form.canvas().DrawWidth(4);
  form.canvas().Line(100, 20, 100, 60, red);
  const QRect below = extent(form.image(), red);
  const QRect above = extent(shown(form), blue);
  EXPECT_EQ(above.left(), below.left());
  EXPECT_EQ(above.right(), below.right());
}

TEST(LineControl, OutlivesNothingAndLeavesNothing) {
  Form form(design);
  {
    const LineControl line(form, "Line1", {0, 0, 3000, 2400});
    EXPECT_NE(count(shown(form), white), 200 * 160);
  }
  EXPECT_EQ(count(shown(form), white), 200 * 160);
}

}  // namespace
}  // namespace lensbench
