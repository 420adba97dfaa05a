// The diaphragm: three sliders, two texts, and the drags of its blades.
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

using poreiaaktinon::Diafragma;

class DiaphragmTest : public KelmoTest {
 protected:
  void expectBlades(double X, double yA, double yB) {
    EXPECT_NEAR(c.Line1.X1(), X, 1e-9);
    EXPECT_NEAR(c.Line1.X2(), X, 1e-9);
    EXPECT_NEAR(c.Line2.X1(), X, 1e-9);
    EXPECT_NEAR(c.Line2.X2(), X, 1e-9);
    EXPECT_NEAR(c.Line1.Y1(), edges().upper, 1e-9);
    EXPECT_NEAR(c.Line1.Y2(), yA, 1e-9);
    EXPECT_NEAR(c.Line2.Y1(), edges().lower, 1e-9);
    EXPECT_NEAR(c.Line2.Y2(), yB, 1e-9);
  }
  Point at(int pixelX, int pixelY) {
    return screen.canvas().mapping().toUser(
        {static_cast<double>(pixelX), static_cast<double>(pixelY)});
  }
  // Of a blade end that no label stands above.
  double lowest() { return at(0, c.HScroll1.y()).y + 3.0; }
  void expectTexts(const char* opening, const char* place) {
    EXPECT_EQ(c.Text3.Text(), QString("οπή διαφράγματος =") + opening);
    EXPECT_EQ(c.Text4.Text(), QString("Θέση διαφράγματος") + place);
  }
};

TEST_F(DiaphragmTest, TheHorizontalSliderMovesBothBladesFromEdgeToEdge) {
  c.HScroll1.Value(-100);
  expectBlades(-400.0, 0.0, 0.0);
  expectTexts("0", "-400");
  c.HScroll1.Value(37);
  expectBlades(148.0, 0.0, 0.0);
  c.HScroll1.Value(100);
  expectBlades(400.0, 0.0, 0.0);
  expectTexts("0", "400");
}

TEST_F(DiaphragmTest, TheVerticalSlidersMoveTheEndsFromTheAxisToTheEdges) {
  c.VScroll1.Value(-100);
  expectBlades(0.0, 200.0, 0.0);
  expectTexts("200", "0");
  c.VScroll2.Value(100);
  expectBlades(0.0, 200.0, -200.0);
  expectTexts("400", "0");
  c.VScroll1.Value(-33);
  expectBlades(0.0, 66.0, -200.0);
  c.VScroll2.Value(7);
  expectBlades(0.0, 66.0, -14.0);
  expectTexts("80", "0");
  c.VScroll1.Value(0);
  c.VScroll2.Value(0);
  expectBlades(0.0, 0.0, 0.0);
}

TEST_F(DiaphragmTest, TheFormulasHoldAtAnotherSize) {
  giveSize({1500, 1000});  // 360 and 240 units from the centre
  c.HScroll1.Value(-25);
  c.VScroll1.Value(-50);
  c.VScroll2.Value(75);
  expectBlades(-90.0, 120.0, -180.0);
  expectTexts("300", "-90");
}

TEST_F(DiaphragmTest, TheOpeningIsShownInWholeUnitsHalvesAwayFromZero) {
  dragFromTo({0.0, 100.0}, {12.5, 20.5});
  expectTexts("21", "13");
  dragFromTo({12.5, 100.0}, {-12.5, 20.25});
  expectTexts("20", "-13");
}

TEST_F(DiaphragmTest, OnlyTheUpperSliderRecoloursItsBlade) {
  c.HScroll1.Value(10);
  c.VScroll2.Value(10);
  EXPECT_EQ(c.Line1.BorderColor(), RGB(100, 100, 0));
  c.Line1.BorderWidth(1);
  c.VScroll1.Value(-10);
  EXPECT_EQ(c.Line1.BorderColor(), RGB(250, 0, 0));
  EXPECT_EQ(c.Line1.BorderWidth(), 4);
  EXPECT_EQ(c.Line2.BorderColor(), RGB(100, 100, 0));
  EXPECT_EQ(c.Line2.BorderWidth(), 4);
}

TEST_F(DiaphragmTest, EverySliderClearsAndDrawsTheSceneAnew) {
  for (ScrollBar* slider : {&c.HScroll1, &c.VScroll2}) {
    clutter();
    slider->Value(slider->Value() + 20);
    EXPECT_TRUE(showsSceneOnly()) << slider->objectName().toStdString();
  }
  clutter();
  c.VScroll1.Value(-20);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(DiaphragmTest, TheBladesStandAboveThePictureAndLeaveItAlone) {
  const QImage before = picture();
  c.HScroll1.Value(55);
  EXPECT_TRUE(samePicture(picture(), before));
}

TEST_F(DiaphragmTest, ADraggedBladeTakesTheDiaphragmAlongAndItsEndFollows) {
  dragFromTo({1.0, 100.0}, {60.0, 50.0});
  expectBlades(60.0, 50.0, 0.0);
  expectTexts("50", "60");
  dragFromTo({58.0, -120.0}, {-80.0, -90.0});
  expectBlades(-80.0, 50.0, -90.0);
  expectTexts("140", "-80");
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(DiaphragmTest, TheBladeIsSeenMovingBeforeItIsReleased) {
  press(0.0, 100.0);
  drag(30.0, 40.0);
  expectBlades(30.0, 40.0, 0.0);
  expectTexts("40", "30");
  drag(-20.0, 75.0);
  expectBlades(-20.0, 75.0, 0.0);
  EXPECT_EQ(c.HScroll1.Value(), 0) << "the sliders follow at the release";
  release(-20.0, 75.0);
  expectBlades(-20.0, 75.0, 0.0);
  EXPECT_EQ(c.HScroll1.Value(), -5);
}

TEST_F(DiaphragmTest, SlidersGoToTheNearestValueAndLeaveTheBladeWhereItIs) {
  clutter();
  dragFromTo({0.0, 100.0}, {61.0, 33.25});
  expectBlades(61.0, 33.25, 0.0);
  EXPECT_EQ(c.HScroll1.Value(), 15);   // 15.25 %
  EXPECT_EQ(c.VScroll1.Value(), -17);  // 16.625 %
  EXPECT_EQ(c.VScroll2.Value(), 0);
  // The handler of the upper slider, which draws, would have recoloured the blade.
  EXPECT_EQ(c.Line1.BorderColor(), RGB(100, 100, 0));
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(DiaphragmTest, ASliderMovesOnlyItsOwnPartOfADraggedDiaphragm) {
  dragFromTo({0.0, 100.0}, {61.0, 33.25});
  c.VScroll2.Value(10);
  expectBlades(61.0, 33.25, -20.0);
  c.HScroll1.Value(20);
  expectBlades(80.0, 33.25, -20.0);
}

TEST_F(DiaphragmTest, AnEndStopsAtTheOtherEnd) {
  openDiaphragm();
  dragFromTo({0.0, 199.0}, {0.0, 40.0});
  dragFromTo({0.0, -199.0}, {0.0, -30.0});
  expectBlades(0.0, 40.0, -30.0);
  dragFromTo({0.0, 100.0}, {0.0, -120.0});
  expectBlades(0.0, -30.0, -30.0);
  dragFromTo({0.0, 100.0}, {0.0, 40.0});
  dragFromTo({0.0, -100.0}, {0.0, 150.0});
  expectBlades(0.0, 40.0, 40.0);
  // An upper end below the axis is beyond its slider, which stays at its last value.
  EXPECT_EQ(c.VScroll2.Value(), 0);
  EXPECT_EQ(c.VScroll1.Value(), -20);
}

TEST_F(DiaphragmTest, ReleasedEndsAndPlaceStayThreeUnitsInsideWhatNoControlCovers) {
  dragFromTo({0.0, 100.0}, {0.0, 260.0});
  expectBlades(0.0, 197.0, 0.0);
  EXPECT_EQ(c.VScroll1.Value(), -99);  // 98.5 %
  dragFromTo({0.0, -100.0}, {0.0, -260.0});
  expectBlades(0.0, 197.0, lowest());
  dragFromTo({0.0, 0.0}, {450.0, 0.0});
  const double rightmost = at(c.VScroll1.x(), 0).x - 3.0;
  expectBlades(rightmost, 197.0, lowest());
  dragFromTo({rightmost, 0.0}, {-450.0, 0.0});
  expectBlades(-397.0, 197.0, lowest());
  EXPECT_EQ(c.HScroll1.Value(), -99);
}

TEST_F(DiaphragmTest, AReleasedEndStaysClearOfTheControlsAboveAndBelowIt) {
  for (const double x : {-390.0, -300.0, -150.0, 150.0, 350.0, 385.0}) {
    SCOPED_TRACE(x);
    dragFromTo({blades().X, blades().yA + 1.0}, {x, 195.0});
    dragFromTo({x, blades().yB - 1.0}, {x, -195.0});
    for (const Point end : {Point{x, blades().yA}, Point{x, blades().yB}}) {
      const Point pixel = screen.canvas().mapping().toPixel(end);
      for (const QWidget* control :
           screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QRectF near = QRectF(control->geometry()).adjusted(-5.9, -5.9, 5.9, 5.9);
        EXPECT_FALSE(control->isVisible() && near.contains(pixel.x, pixel.y))
            << control->objectName().toStdString();
      }
    }
    // They can be taken again.
    dragFromTo({x, blades().yA}, {x, 20.0});
    dragFromTo({x, blades().yB}, {x, -20.0});
    expectBlades(x, 20.0, -20.0);
  }
}

class WholeDiaphragmTest : public DiaphragmTest {
 protected:
  WholeDiaphragmTest() {
    dragFromTo({0.0, 100.0}, {-120.0, 60.0});
    dragFromTo({-120.0, -100.0}, {-120.0, -40.0});
  }
};

TEST_F(WholeDiaphragmTest, MovesSidewaysWithItsOpening) {
  dragFromTo({-120.0, 10.0}, {90.0, 30.0});
  expectBlades(90.0, 60.0, -40.0);
  EXPECT_EQ(c.HScroll1.Value(), 23);  // 22.5 %, halves away from zero
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(WholeDiaphragmTest, StaysAtItsHeightWhenReleasedAboveTheLowerEnd) {
  dragFromTo({-120.0, 10.0}, {-120.0, -40.0});
  expectBlades(-120.0, 60.0, -40.0);
  dragFromTo({-120.0, 10.0}, {-120.0, 150.0});
  expectBlades(-120.0, 60.0, -40.0);
}

TEST_F(WholeDiaphragmTest, MovesDownInTenthsOfTheHeightWhenReleasedBelowTheLowerEnd) {
  dragFromTo({-120.0, 10.0}, {-120.0, -41.0});
  expectBlades(-120.0, 20.0, -80.0);  // one step of 40
  dragFromTo({-120.0, -30.0}, {-100.0, -125.0});
  expectBlades(-100.0, -60.0, -160.0);  // two steps
}

TEST_F(WholeDiaphragmTest, StopsAboveTheLowerScrollBar) {
  dragFromTo({-120.0, 10.0}, {-120.0, -230.0});
  expectBlades(-120.0, lowest() + 100.0, lowest());
  expectTexts("100", "-120");
}

TEST_F(WholeDiaphragmTest, OnlyTheReleaseCountsHoweverFarTheDragWent) {
  press(-120.0, 10.0);
  drag(300.0, -190.0);
  drag(50.0, 100.0);
  drag(-10.0, 10.0);
  release(-10.0, 10.0);
  expectBlades(-10.0, 60.0, -40.0);
}

TEST_F(WholeDiaphragmTest, ClosedOnTheAxisItsBladesAreTakenAndNotTheWhole) {
  dragFromTo({-120.0, 150.0}, {-120.0, -40.0});  // closed at -40
  dragFromTo({-120.0, -40.0}, {-120.0, 0.0});    // the upper blade comes first
  expectBlades(-120.0, 0.0, -40.0);
}

}  // namespace
}  // namespace lensbench
