// Start-up and every row of the table of moves between screens.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QTest>

#include "app/Screens.h"
#include "optics/protosfakos/SahlState.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeDialogs.h"

namespace lensbench {
namespace {

class Program : public ::testing::Test {
 protected:
  Program() { Main(screens); }

  int visibleWindows() const {
    int count = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) count += window->isVisible();
    return count;
  }

  FakeDialogs boxes;
  Screens screens;
};

using EndOfProgram = Program;

TEST_F(Program, ShowsOnlyTheWorkbenchAtStartButHasMadeTheOtherTwo) {
  EXPECT_TRUE(screens.kelmo().isVisible());
  EXPECT_EQ(visibleWindows(), 1);
  EXPECT_EQ(screens.eisagogiko().controls().Label1.Caption(), "Index of Refraction n=1.50");
  EXPECT_EQ(protosfakos::state().deiktisSahl.value(), 1.5);
  EXPECT_EQ(screens.kelmo().Caption(), "SPHERICAL  LENSES");
  EXPECT_EQ(screens.eisagogiko().Caption(), "CHOOSE  LENS");
  EXPECT_EQ(screens.ElSahl().Caption(), "Φακός Ιμπν Σαχλ 2 υπεροβλές");
  EXPECT_EQ(screens.moniaktina().Caption(), "ΜΙΑ ΑΚΤΙΝΑ");
}

TEST_F(Program, StartsWithTheIbnSahlStrokesAtTwoHundred) {
  const SahlControls& sahl = screens.ElSahl().controls();
  EXPECT_EQ(sahl.Line1.X1(), 200.0);
  EXPECT_EQ(sahl.Line1.Y1(), 200.0);
  EXPECT_EQ(sahl.Line1.X2(), 200.0);
  EXPECT_EQ(sahl.Line1.Y2(), 10.0);
  EXPECT_EQ(sahl.Line2.X1(), 200.0);
  EXPECT_EQ(sahl.Line2.Y1(), -200.0);
  EXPECT_EQ(sahl.Line2.X2(), 200.0);
  EXPECT_EQ(sahl.Line2.Y2(), -10.0);
}

TEST_F(Program, EachScreenIsMadeOnce) {
  eisagogiko* menu = &screens.eisagogiko();
  menu->controls().deiktissahl.Value(170);
  screens.kelmo().controls().SAHLIC.trigger();
  screens.kelmo().controls().SAHLIC.trigger();
  EXPECT_EQ(&screens.eisagogiko(), menu);
  EXPECT_EQ(menu->controls().deiktissahl.Value(), 170);
  EXPECT_EQ(visibleWindows(), 2);
}

TEST_F(Program, AktinaRayPutsTheSingleRayScreenInThePlaceOfTheWorkbench) {
  screens.kelmo().controls().singleray.trigger();
  EXPECT_FALSE(screens.kelmo().isVisible());
  EXPECT_TRUE(screens.moniaktina().isVisible());
  const Canvas& canvas = screens.moniaktina().canvas();
  EXPECT_NEAR(canvas.ScaleWidth() - canvas.ScaleHeight(), 1200.0, 1e-9);
  EXPECT_NEAR(canvas.ScaleWidth() + 2.0 * canvas.ScaleLeft(), 0.0, 1e-9);
}

TEST_F(Program, PisoReturnsToTheWorkbenchWithItsPictureIntact) {
  const QImage before = screens.kelmo().canvas().image().copy();
  screens.kelmo().controls().singleray.trigger();
  screens.moniaktina().controls().Command1.click();
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
  EXPECT_EQ(screens.kelmo().canvas().image(), before);
}

TEST_F(Program, IbnSahlOpensTheMenuInFrontOfTheWorkbench) {
  screens.kelmo().controls().SAHLIC.trigger();
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(Program, TheMenuOpensTheBiconvexLensAndStays) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  EXPECT_TRUE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(protosfakos::state().amfikyrtosSahl);
  EXPECT_EQ(screens.ElSahl().Caption(), "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές");
  EXPECT_EQ(screens.ElSahl().controls().Line1.X1(), 130.0);
}

TEST_F(Program, TheMenuOpensThePlanoConvexLensAndStays) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command2.click();
  EXPECT_TRUE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_FALSE(protosfakos::state().amfikyrtosSahl);
  EXPECT_EQ(screens.ElSahl().Caption(), "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ");
}

TEST_F(Program, TheMenuReturnsToTheWorkbench) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command3.click();
  EXPECT_FALSE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(Program, BackToMenuHidesTheIbnSahlScreenAndShowsTheMenu) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  screens.eisagogiko().Hide();
  screens.ElSahl().controls().BACKKELMO.trigger();
  EXPECT_FALSE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
}

TEST_F(Program, WavesCountFromWhatWasLastDoneOnTheWorkbench) {
  auto& state = protosfakos::state();
  const auto waves = [&] {
    screens.openLensMenu();
    screens.eisagogiko().controls().Command2.click();
    screens.ElSahl().controls().kymatikosahl.trigger();
    ASSERT_GT(state.plithosaktinon.value(), 2);
  };
  boxes.answer = "0";
  screens.kelmo().controls().EPANALIPSI.trigger();
  waves();
  EXPECT_EQ(state.kymataX[1][0].value(), 0);
  EXPECT_EQ(state.kymataY[1][0].value(), 0);

  const Point pixel = screens.kelmo().canvas().mapping().toPixel({-260.0, 70.0});
  QTest::mouseClick(screens.kelmo().drawingArea(), Qt::LeftButton, Qt::ShiftModifier,
                    QPointF(pixel.x, pixel.y).toPoint());
  waves();
  EXPECT_EQ(state.kymataX[1][0].value(), 108);
  EXPECT_EQ(state.kymataY[1][0].value(), 25);
}

TEST_F(Program, TheCloseBoxOfTheSingleRayScreenGoesBack) {
  screens.kelmo().controls().singleray.trigger();
  screens.moniaktina().close();
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(Program, TheCloseBoxOfTheMenuGoesToTheSphericalLenses) {
  screens.openLensMenu();
  screens.eisagogiko().close();
  EXPECT_FALSE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(Program, TheCloseBoxOfTheIbnSahlScreenGoesBackToTheMenu) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command2.click();
  screens.eisagogiko().Hide();
  screens.ElSahl().close();
  EXPECT_FALSE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
}

TEST_F(EndOfProgram, BothEndEntriesAndTheCloseBoxOfTheWorkbenchEndItWithoutAsking) {
  EXPECT_EXIT(screens.kelmo().controls().TELIOMA.trigger(), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(screens.ElSahl().controls().TELOS.trigger(), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(screens.kelmo().close(), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(screens.kelmo().end(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace lensbench
