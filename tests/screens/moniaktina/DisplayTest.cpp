// Opening the single-ray screen: size, scale, first picture, and what lasts.
#include <QGuiApplication>
#include <QScreen>

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

TEST_F(MoniaktinaDisplayTest, SourceStandsWhereItIsDesignedWhenTheScreenIsOpened) {
  open();
  // Save for what the frame of the window takes of the display.
  EXPECT_NEAR(fosOnScreen().x(), 72, 2);
  EXPECT_NEAR(fosOnScreen().y(), 144, 2);
  EXPECT_NEAR(c.fos.Width() * screen.canvas().mapping().xPixels, 9.0, 1e-9);
}

TEST_F(MoniaktinaDisplayTest, SourceStandsThereTooWhereTheWindowGetsItsSizeAtOnce) {
  screen.show();
  ASSERT_FALSE(screen.canvas().hasUserScale());
  open();
  EXPECT_NEAR(fosOnScreen().x(), 72, 2);
  EXPECT_NEAR(fosOnScreen().y(), 144, 2);
  EXPECT_NEAR(c.fos.Width() * screen.canvas().mapping().xPixels, 9.0, 1e-9);
}

TEST_F(MoniaktinaDisplayTest, LensFitsItselfToEverySize) {
  open();
  const Point source = middleOfFos();
  for (const QSize size : {QSize(700, 500), QSize(1200, 300), QSize(300, 600)}) {
    resizeTo(size);
    expectOriginInTheMiddle();
    EXPECT_EQ(picture(), lensPicture(design));
    EXPECT_NEAR(middleOfFos().x, source.x, 1e-9);
    EXPECT_NEAR(middleOfFos().y, source.y, 1e-9);
  }
}

TEST_F(MoniaktinaDisplayTest, RayIsTracedToTheEdgesOfEverySize) {
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  c.deiktisdiathlasis.Value(160);
  for (const QSize size : {QSize(700, 500), QSize(1200, 300), QSize(300, 600)}) {
    resizeTo(size);
    expectOriginInTheMiddle();
    EXPECT_EQ(picture(), rayPicture(design, 30.0, -12.0));
    const auto& ray = std::get<poreiaaktinon::single::Ray>(screen.shown().layers.back());
    EXPECT_EQ(ray.sent.edges, light::edgesOf(screen.canvas()));
  }
}

TEST_F(MoniaktinaDisplayTest, ARayKeepsTheDiaphragmThatItMet) {
  t.moves.opening = {-80.0, 0.0, 0.0};
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseUp(1, 0, 30.0, -12.0);
  t.moves.opening = {-80.0, 500.0, -500.0};
  resizeTo({700, 500});
  t.moves.opening = {-80.0, 0.0, 0.0};
  EXPECT_EQ(picture(), rayPicture(design, 30.0, -12.0));
}

TEST_F(MoniaktinaDisplayTest, AimFollowsTheSourceToANewSize) {
  open();
  screen.Form_MouseDown(1, 0, -150.0, 42.0);
  screen.Form_MouseMove(1, 0, 20.0, -10.0);
  const Point source = middleOfFos();
  resizeTo({700, 500});
  EXPECT_TRUE(c.aim.Visible());
  EXPECT_NEAR(c.aim.X1(), source.x, 1e-9);
  EXPECT_NEAR(c.aim.Y1(), source.y, 1e-9);
  EXPECT_NEAR(c.aim.X2(), 20.0, 1e-9);
  EXPECT_NEAR(c.aim.Y2(), -10.0, 1e-9);
}

TEST_F(MoniaktinaDisplayTest, ASourceOutOfSightIsMarkedAtTheEdge) {
  open();
  EXPECT_FALSE(c.sourceMark.Visible());
  resizeTo({1200, 300});
  const double farRight = screen.canvas().ScaleLeft() + screen.canvas().ScaleWidth() - 20.0;
  screen.Form_MouseDown(1, 0, farRight, -30.0);
  screen.Form_MouseUp(1, 0, 0.0, 0.0);
  EXPECT_FALSE(c.sourceMark.Visible());
  resizeTo({300, 600});
  EXPECT_TRUE(c.sourceMark.Visible());
  const Point source = middleOfFos();
  const Point mark = screen.canvas().mapping().toPixel({c.sourceMark.Left(), c.sourceMark.Top()});
  EXPECT_GT(mark.x, screen.canvas().size().width() - 20);
  EXPECT_LT(mark.x, screen.canvas().size().width());
  EXPECT_NEAR(c.sourceMark.Top() - c.sourceMark.Height() / 2.0, source.y, 1e-9);
  // A press puts the source there, in sight.
  screen.Form_MouseDown(1, 0, c.sourceMark.Left(), c.sourceMark.Top());
  EXPECT_FALSE(c.sourceMark.Visible());
}

TEST_F(MoniaktinaDisplayTest, AMarkStandsClearOfTheControls) {
  open();
  resizeTo({1200, 300});
  screen.Form_MouseDown(1, 0, screen.canvas().ScaleLeft() + 20.0, 0.0);
  screen.Form_MouseUp(1, 0, 0.0, 10.0);
  resizeTo({300, 160});
  ASSERT_TRUE(c.sourceMark.Visible());
  const Point mark = screen.canvas().mapping().toPixel({c.sourceMark.Left(), c.sourceMark.Top()});
  EXPECT_EQ(screen.drawingArea()->childAt(qRound(mark.x), qRound(mark.y)), nullptr);
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
