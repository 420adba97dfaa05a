// The picture at every size of the window, and what stands out of sight there.
#include <functional>
#include <random>

#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlResize : public ElSahlFixture {
 protected:
  double right() { return screen.canvas().ScaleLeft() + screen.canvas().ScaleWidth(); }
  double bottom() { return screen.canvas().ScaleTop() + screen.canvas().ScaleHeight(); }
  double ratio() {
    const UserMapping& map = screen.canvas().mapping();
    return map.xPixels / -map.yPixels;
  }
  // A window three times as wide as high, in which more than the box is in sight at its sides.
  void widen() { resizeTo(1200, 400); }
  void open(const QRect& geometry) { resizeTo(geometry.width(), geometry.height()); }
};

TEST_F(ElSahlResize, TheBoxIsFittedWholeAndCentredWithTheRatioOfUnitsOfTheOpening) {
  press(80, -15);
  const double opening = ratio();
  for (const QSize size : {QSize(1200, 400), QSize(400, 900), QSize(533, 534), QSize(200, 200)}) {
    resizeTo(size.width(), size.height());
    EXPECT_NEAR(opening, ratio(), 1e-9);
    EXPECT_NEAR(15, (screen.canvas().ScaleLeft() + right()) / 2, 1e-9);
    EXPECT_NEAR(0, (screen.canvas().ScaleTop() + bottom()) / 2, 1e-9);
    EXPECT_LE(screen.canvas().ScaleLeft(), -120 + 1e-9);
    EXPECT_GE(screen.canvas().ScaleTop(), 120 - 1e-9);
    EXPECT_TRUE(std::fabs(right() - 150) < 1e-9 ||
                std::fabs(screen.canvas().ScaleTop() - 120) < 1e-9);
  }
}

TEST_F(ElSahlResize, TheSizeOfTheOpeningHasItsNumbersAgain) {
  const QRect opened = screen.geometry();
  widen();
  open(opened);
  expectOpeningScale();
}

TEST_F(ElSahlResize, EverySceneFollows) {
  const std::vector<std::function<void()>> scenes = {[&] { screen.drawFan(); },
                                                     [&] { press(-60, 40); },
                                                     [&] { screen.kymatikosahl_Click(); },
                                                     [&] {
                                                       dialogs.answer = "10";
                                                       screen.parallilidesmifotos_Click();
                                                     },
                                                     [&] { shared.deiktisSahl = 2.0; },
                                                     [&] { c.onlyrays.click(); }};
  for (const auto& draw : scenes) {
    screen.prepare();
    draw();
    const protosfakos::Shown before = screen.shown();
    for (const QSize size : {QSize(1200, 400), QSize(400, 900)}) {
      resizeTo(size.width(), size.height());
      EXPECT_EQ(before, screen.shown());
      EXPECT_TRUE(showsItsValue(screen));
    }
  }
}

TEST_F(ElSahlResize, EdgesKeepTheirUserCoordinatesAndReachTheEdgesOfTheWindow) {
  const auto edgeAt = [&](double y) {
    const QPoint p = pixel(130, 0);
    return screen.drawingArea()->grab().toImage().pixelColor(p.x(), static_cast<int>(y));
  };
  const QColor blue(0, 0, 192);
  for (const QSize size : {QSize(400, 1000), QSize(1200, 400)}) {
    resizeTo(size.width(), size.height());
    expectEdges(130, 10, -10);
    const int height = screen.drawingArea()->height();
    EXPECT_EQ(blue, edgeAt(0));
    EXPECT_EQ(blue, edgeAt(pixel(0, 12).y()));
    EXPECT_NE(blue, edgeAt(pixel(0, 0).y()));
    EXPECT_EQ(blue, edgeAt(pixel(0, -12).y()));
    EXPECT_EQ(blue, edgeAt(height - 1));
  }
  EXPECT_GT(screen.canvas().ScaleTop(), 119);
}

TEST_F(ElSahlResize, AnEdgeIsTakenBeyondItsOuterEndWhereItIsSeen) {
  resizeTo(400, 1000);
  ASSERT_GT(screen.canvas().ScaleTop(), 220);
  press(130, 210);
  EXPECT_TRUE(screen.syromenigrammi1);
  release(130, 210);
  press(130, -210);
  EXPECT_TRUE(screen.syromenigrammi2);
}

TEST_F(ElSahlResize, ADragGoesOnAtTheNewSize) {
  press(130, 60);
  screen.Form_MouseMove(1, 0, 100, 30);
  widen();
  EXPECT_TRUE(screen.syromenigrammi1);
  expectEdges(100, 30, -10);
  release(90, 20);
  expectEdges(90, 20, -10);
}

TEST_F(ElSahlResize, EdgesOutOfSightAreMarkedAndCanBeTaken) {
  const QRect opened = screen.geometry();
  widen();
  press(130, 60);
  release(300, 40);
  expectEdges(300, 40, -10);
  EXPECT_FALSE(c.mark1.Visible() || c.mark2.Visible());
  open(opened);
  expectEdges(300, 40, -10);
  ASSERT_TRUE(c.mark1.Visible());
  ASSERT_TRUE(c.mark2.Visible());
  for (const EdgeMark* mark : {&c.mark1, &c.mark2}) {
    const bool upper = mark == &c.mark1;
    const Point middle{mark->Left() + mark->Width() / 2, mark->Top() - mark->Height() / 2};
    EXPECT_GT(middle.x, 140);
    EXPECT_LT(middle.x, 150);
    EXPECT_NEAR(upper ? 40 : -10, middle.y, 1e-9);
    QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixel(middle.x, middle.y));
    EXPECT_EQ(upper, screen.syromenigrammi1);
    EXPECT_EQ(!upper, screen.syromenigrammi2);
    emit screen.DragEnded();
  }
  press(c.mark1.Left(), c.mark1.Top());
  release(100, 30);
  expectEdges(100, 30, -10);
  EXPECT_FALSE(c.mark1.Visible() || c.mark2.Visible());
}

TEST_F(ElSahlResize, AnInnerEndAboveTheWindowIsMarkedAtItsTop) {
  resizeTo(400, 1000);
  press(130, 60);
  release(100, 180);
  expectEdges(100, 180, -10);
  widen();
  ASSERT_TRUE(c.mark1.Visible());
  EXPECT_FALSE(c.mark2.Visible());
  const Point middle{c.mark1.Left() + c.mark1.Width() / 2, c.mark1.Top() - c.mark1.Height() / 2};
  EXPECT_NEAR(100, middle.x, 1e-9);
  EXPECT_GT(middle.y, 100);
  EXPECT_EQ(nullptr, screen.drawingArea()->childAt(pixel(middle.x, middle.y)));
}

TEST_F(ElSahlResize, ASourceOutOfSightIsMarked) {
  const QRect opened = screen.geometry();
  widen();
  press(-300, 20);
  EXPECT_FALSE(c.sourceMark.Visible());
  open(opened);
  EXPECT_TRUE(c.sourceMark.Visible());
  EXPECT_NEAR(20, c.sourceMark.Top() - c.sourceMark.Height() / 2, 1e-9);
  EXPECT_EQ(-300, shared.pigiX.value());
  dialogs.answer = "0";
  screen.parallilidesmifotos_Click();
  EXPECT_FALSE(c.sourceMark.Visible());
  screen.kymatikosahl_Click();
  EXPECT_TRUE(c.sourceMark.Visible());
  screen.BACKKELMO_Click();
  EXPECT_FALSE(c.sourceMark.Visible());
}

class ElSahlLaw : public ElSahlFixture, public ::testing::WithParamInterface<unsigned> {
 protected:
  std::mt19937 random{GetParam()};
  int from(int least, int most) { return std::uniform_int_distribution(least, most)(random); }
  double near() { return from(-2500, 2500) / 10.0; }

  void act() {
    OptionButton* options[] = {&c.kymataYESNO, &c.RAYSANDWAVES, &c.onlyrays};
    switch (from(0, 10)) {
      case 0:
        press(near(), near());
        break;
      case 1:
        press(c.Line1.X1(), from(0, 1) == 0 ? c.Line1.Y2() : c.Line2.Y2());
        break;
      case 2:
        screen.Form_MouseMove(1, 0, near(), near());
        if (from(0, 1) == 0) emit screen.DragEnded();
        break;
      case 3:
        release(near(), near());
        break;
      case 4:
        options[from(0, 2)]->click();
        break;
      case 5:
        screen.kymatikosahl_Click();
        break;
      case 6:
        dialogs.answer = QString::number(from(-180, 180));
        screen.parallilidesmifotos_Click();
        break;
      case 7:
        resizeTo(from(150, 900), from(120, 800));
        break;
      case 8:
        screen.canvas().resize(screen.drawingArea()->size(), from(2, 4) / 2.0);
        break;
      case 9:
        shared.deiktisSahl = from(100, 250) / 100.0;
        shared.amfikyrtosSahl = from(0, 1) == 1;
        shared.desmiMode = from(0, 1) == 1;
        break;
      default:
        screen.BACKKELMO_Click();
        screen.Hide();
        screen.prepare();
        screen.drawFan();
    }
  }
};

TEST_P(ElSahlLaw, ThePictureIsWhatItsValueGives) {
  for (int i = 0; i < 60; ++i) {
    act();
    ASSERT_TRUE(showsItsValue(screen)) << "after action " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ElSahlLaw, ::testing::Range(1u, 7u));

}  // namespace
}  // namespace lensbench
