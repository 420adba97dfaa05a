// A press places the source, on any lens and anywhere; on an edge of the diaphragm it does not.
#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlPress : public ElSahlFixture, public ::testing::WithParamInterface<bool> {
 protected:
  ElSahlPress() { shared.amfikyrtosSahl = GetParam(); }
};

TEST_P(ElSahlPress, ClearsStoresTheSourceAndDrawsTheFan) {
  press(60, 60);
  press(80, -15);
  EXPECT_EQ(80, shared.pigiX.value());
  EXPECT_EQ(-15, shared.pigiY.value());
  EXPECT_TRUE(shows({fan(80, -15)}));
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_P(ElSahlPress, SetsTheCaptionOfTheLens) {
  press(80, -15);
  EXPECT_EQ(GetParam() ? "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές"
                       : "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ",
            screen.Caption());
}

TEST_P(ElSahlPress, DrawsAtEveryIndexOfTheScrollBarAndFromEverywhere) {
  for (const double n : {1.0, 1.01, 1.05, 1.33, 1.5, 2.5}) {
    shared.deiktisSahl = n;
    for (const Point p :
         {Point{108, 25}, Point{-12 * n, 0}, Point{12, 0}, Point{30, 5}, Point{48, 3}, Point{84, 0},
          Point{20, 110}, Point{-119, -119}, Point{149, 0}, Point{0, 0}}) {
      EXPECT_NO_THROW(press(p.x, p.y)) << n << ' ' << p.x << ' ' << p.y;
      EXPECT_FALSE(blank());
    }
  }
}

TEST_P(ElSahlPress, BelowIndex1ShowsTheMessageAndKeepsEverything) {
  press(80, -15);
  const QImage before = picture();
  shared.deiktisSahl = 0.99;
  press(70, 0);
  EXPECT_EQ(QStringList{biggerIndex}, dialogs.messages);
  EXPECT_EQ(before, picture());
  EXPECT_EQ(80, shared.pigiX.value());
  EXPECT_EQ(-15, shared.pigiY.value());
}

INSTANTIATE_TEST_SUITE_P(BothLenses, ElSahlPress, ::testing::Bool());

class ElSahlMouse : public ElSahlFixture {};

TEST_F(ElSahlMouse, OnlyTheLeftButtonDoesAnything) {
  const QImage before = picture();
  for (const int button : {2, 4}) {
    screen.Form_MouseDown(button, 0, 70, 0);
    screen.Form_MouseDown(button, 0, 130, 50);
    EXPECT_FALSE(screen.syromenigrammi1);
    screen.Form_MouseUp(button, 0, 60, 40);
  }
  EXPECT_EQ(before, picture());
  EXPECT_EQ(108, shared.pigiX.value());
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlMouse, ARealPressPlacesTheSourceUnderTheMouse) {
  const QPoint place = pixel(90, 30);
  QTest::mouseClick(screen.drawingArea(), Qt::LeftButton, {}, place);
  EXPECT_EQ(place, pixel(shared.pigiX.value(), shared.pigiY.value()));
}

TEST_F(ElSahlMouse, TheSourceStandsUnderTheMouseAlsoInAResizedWindow) {
  press(100, 0);
  resizeTo(screen.width() + 150, screen.height() + 90);
  const QPoint place(300, 200);
  QTest::mouseClick(screen.drawingArea(), Qt::LeftButton, {}, place);
  EXPECT_EQ(place, pixel(shared.pigiX.value(), shared.pigiY.value()));
  EXPECT_TRUE(shows({fan(shared.pigiX.value(), shared.pigiY.value())}));
}

TEST_F(ElSahlMouse, TheDiaphragmStaysBesideTheLensInAResizedWindow) {
  press(130, 60);
  release(100, 40);
  resizeTo(screen.width() + 150, screen.height() + 90);
  expectEdges(100, 40, -10);
  press(-50, 0);
  expectEdges(100, 40, -10);
}

TEST_F(ElSahlMouse, AnEdgeIsTakenWhereItIsSeenInAResizedWindow) {
  press(100, 0);
  resizeTo(screen.width() + 150, screen.height() + 90);
  const QPoint place = pixel(130, 60);
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(screen.syromenigrammi1);
  QTest::mouseRelease(screen.drawingArea(), Qt::LeftButton, {}, place);
  EXPECT_EQ(place, pixel(c.Line1.X2(), c.Line1.Y2()));
}

TEST_F(ElSahlMouse, PressesLeaveTheEdgesExactlyInTheirPlace) {
  for (int i = 0; i < 50; ++i) {
    press(80 + 0.37 * i, 1.7 * i);
    release(80, 0);
  }
  EXPECT_EQ(130.0, c.Line1.X1());
  EXPECT_EQ(10.0, c.Line1.Y2());
  EXPECT_EQ(-10.0, c.Line2.Y2());
}

}  // namespace
}  // namespace lensbench
