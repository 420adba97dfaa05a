// Opening the single-ray screen: size, scale, first picture, and what lasts.
#include <QGuiApplication>
#include <QScreen>

#include "optics/poreiaaktinon/Tracing.h"
#include "screens/moniaktina/SingleRayPicture.h"
#include "tests/screens/moniaktina/MoniaktinaTest.h"

namespace lensbench {
namespace {

class MoniaktinaDisplayTest : public MoniaktinaTest {
 protected:
  void expectOriginInTheMiddle() {
    const RasterCanvas& canvas = screen.canvas();
    const double W = canvas.size().width();
    const double H = canvas.size().height();
    EXPECT_NEAR(canvas.ScaleLeft(), -600.0 * W / (W + H), 1e-9);
    EXPECT_NEAR(canvas.ScaleTop(), 600.0 * H / (W + H), 1e-9);
    EXPECT_NEAR(canvas.ScaleWidth(), 1200.0 * W / (W + H), 1e-9);
    EXPECT_NEAR(canvas.ScaleHeight(), -1200.0 * H / (W + H), 1e-9);
  }
  void resizeTo(QSize size) {
    screen.setWindowState(Qt::WindowNoState);
    screen.resize(size);
    QCoreApplication::processEvents();
  }
  QPoint fosOnScreen() {
    const Point p = screen.canvas().mapping().toPixel({c.fos.Left(), c.fos.Top()});
    return {qRound(p.x), qRound(p.y)};
  }
};

TEST_F(MoniaktinaDisplayTest, LoadDrawsTheFirstRayInTwips) {
  // Aimed at half the corner of the source, and drawn before any scale is set.
  EXPECT_EQ(picture(), rayPicture(design, 540.0, 1080.0));
  EXPECT_TRUE(hasColour(RGB(255, 0, 0), {0.0, 0.0}, {6630.0, 3225.0}));
  EXPECT_EQ(screen.deiktis.value(), 1.5);
}

TEST_F(MoniaktinaDisplayTest, FillsTheDisplayWithTheOriginInTheMiddle) {
  open();
  EXPECT_TRUE(screen.isMaximized());
  EXPECT_EQ(screen.frameGeometry().width(),
            QGuiApplication::primaryScreen()->availableGeometry().width());
  expectOriginInTheMiddle();
  const UserMapping map = screen.canvas().mapping();
  EXPECT_NEAR(map.xPixels, -map.yPixels, 1e-9);
  EXPECT_EQ(picture(), lensPicture(design));
}

TEST_F(MoniaktinaDisplayTest, SourceKeepsItsPlaceOnTheScreen) {
  open();
  EXPECT_EQ(fosOnScreen(), QPoint(72, 144));
  EXPECT_NEAR(c.fos.Width() * screen.canvas().mapping().xPixels, 9.0, 1e-9);
}

TEST_F(MoniaktinaDisplayTest, UntouchedPictureFitsItselfToEverySize) {
  open();
  resizeTo({700, 500});
  expectOriginInTheMiddle();
  EXPECT_EQ(picture(), lensPicture(design));
  EXPECT_EQ(fosOnScreen(), QPoint(72, 144));
}

TEST_F(MoniaktinaDisplayTest, TouchedPictureStaysWhenTheWindowIsResized) {
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  const UserMapping before = screen.canvas().mapping();
  const QImage ray = picture();
  resizeTo({700, 500});
  const UserMapping after = screen.canvas().mapping();
  EXPECT_NEAR(after.left, before.left, 1e-9);
  EXPECT_NEAR(after.top, before.top, 1e-9);
  EXPECT_NEAR(after.xPixels, before.xPixels, 1e-9);
  EXPECT_NEAR(after.yPixels, before.yPixels, 1e-9);
  const QRect common = ray.rect() & picture().rect();
  EXPECT_EQ(picture().copy(common), ray.copy(common));
}

TEST_F(MoniaktinaDisplayTest, ScrollBarCountsAsATouch) {
  open();
  c.deiktisdiathlasis.Value(160);
  const double left = screen.canvas().ScaleLeft();
  resizeTo({700, 500});
  EXPECT_NEAR(screen.canvas().ScaleLeft(), left, 1e-9);
}

TEST_F(MoniaktinaDisplayTest, HidingAndShowingKeepsThePicture) {
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  const QImage before = picture();
  screen.Hide();
  screen.Show();
  QCoreApplication::processEvents();
  EXPECT_EQ(picture(), before);
}

TEST_F(MoniaktinaDisplayTest, OpenedAgainItKeepsValuesAndSourceAndDrawsTheLensAnew) {
  open();
  c.aktina1.Value(140);
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  const QPoint source = fosOnScreen();
  screen.Hide();
  open();
  EXPECT_EQ(c.aktina1.Value(), 140);
  EXPECT_EQ(fosOnScreen(), source);
  expectOriginInTheMiddle();
  EXPECT_EQ(picture(), lensPicture({140, 100, 100, 1.5}));
}

TEST_F(MoniaktinaDisplayTest, OpenedAgainAfterAResizeItFillsTheDisplay) {
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  resizeTo({700, 500});
  screen.Hide();
  open();
  EXPECT_TRUE(screen.isMaximized());
  expectOriginInTheMiddle();
  EXPECT_EQ(picture(), lensPicture(design));
}

}  // namespace
}  // namespace lensbench
