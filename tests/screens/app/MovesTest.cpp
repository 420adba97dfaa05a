// Start-up and every row of the table of moves between screens.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QTest>

#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

class MovesTest : public ::testing::Test {
 protected:
  MovesTest() {
    boxes.answer.reset();
    Main(screens);
  }

  int visibleWindows() const {
    int count = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) count += window->isVisible();
    return count;
  }

  FakeDialogs& boxes = Shell::instance->boxes;
  Program program;
  Screens& screens = program.screens;
};

using EndOfProgram = MovesTest;

TEST_F(MovesTest, ShowsOnlyTheWorkbenchAtStartButHasMadeTheOtherTwo) {
  EXPECT_TRUE(screens.kelmo().isVisible());
  EXPECT_EQ(visibleWindows(), 1);
  EXPECT_EQ(screens.eisagogiko().controls().Label1.Caption(), "Index of Refraction n=1.50");
  EXPECT_EQ(screens.shared().deiktisSahl.value(), 1.5);
  EXPECT_EQ(screens.kelmo().Caption(), "SPHERICAL  LENSES");
  EXPECT_EQ(screens.eisagogiko().Caption(), "CHOOSE  LENS");
  EXPECT_EQ(screens.ElSahl().Caption(), "Φακός Ιμπν Σαχλ 2 υπεροβλές");
  EXPECT_EQ(screens.moniaktina().Caption(), "ΜΙΑ ΑΚΤΙΝΑ");
}

TEST_F(MovesTest, StartsWithTheIbnSahlStrokesAtTwoHundred) {
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

TEST_F(MovesTest, EachScreenIsMadeOnce) {
  eisagogiko* menu = &screens.eisagogiko();
  menu->controls().deiktissahl.Value(170);
  screens.kelmo().controls().SAHLIC.trigger();
  screens.kelmo().controls().SAHLIC.trigger();
  EXPECT_EQ(&screens.eisagogiko(), menu);
  EXPECT_EQ(menu->controls().deiktissahl.Value(), 170);
  EXPECT_EQ(visibleWindows(), 2);
}

TEST_F(MovesTest, AktinaRayPutsTheSingleRayScreenInThePlaceOfTheWorkbench) {
  screens.kelmo().controls().singleray.trigger();
  EXPECT_FALSE(screens.kelmo().isVisible());
  EXPECT_TRUE(screens.moniaktina().isVisible());
  const Canvas& canvas = screens.moniaktina().canvas();
  EXPECT_NEAR(canvas.ScaleWidth() - canvas.ScaleHeight(), 1200.0, 1e-9);
  EXPECT_NEAR(canvas.ScaleWidth() + 2.0 * canvas.ScaleLeft(), 0.0, 1e-9);
}

TEST_F(MovesTest, PisoReturnsToTheWorkbenchWithItsPictureIntact) {
  const QImage before = screens.kelmo().image().copy();
  screens.kelmo().controls().singleray.trigger();
  screens.moniaktina().controls().Command1.click();
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
  EXPECT_EQ(screens.kelmo().image(), before);
}

TEST_F(MovesTest, IbnSahlOpensTheMenuInFrontOfTheWorkbench) {
  screens.kelmo().controls().SAHLIC.trigger();
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(MovesTest, TheMenuOpensTheBiconvexLensAndStays) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  EXPECT_TRUE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.shared().amfikyrtosSahl);
  EXPECT_EQ(screens.ElSahl().Caption(), "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές");
  EXPECT_EQ(screens.ElSahl().controls().Line1.X1(), 130.0);
}

TEST_F(MovesTest, TheMenuOpensThePlanoConvexLensAndStays) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command2.click();
  EXPECT_TRUE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  EXPECT_FALSE(screens.shared().amfikyrtosSahl);
  EXPECT_EQ(screens.ElSahl().Caption(), "Επιπεδόκυρτος φακός του Ιμπν Σαχλ ");
}

TEST_F(MovesTest, TheMenuReturnsToTheWorkbench) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command3.click();
  EXPECT_FALSE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(MovesTest, BackToMenuHidesTheIbnSahlScreenAndShowsTheMenu) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  screens.eisagogiko().Hide();
  screens.ElSahl().controls().BACKKELMO.trigger();
  EXPECT_FALSE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
}

TEST_F(MovesTest, WavesCountFromWhatWasLastDoneOnTheWorkbench) {
  // Whether "WAVES" counts as after a bundle.
  const auto waves = [&] {
    screens.openLensMenu();
    screens.eisagogiko().controls().Command2.click();
    screens.ElSahl().controls().kymatikosahl.trigger();
    const auto& layers = screens.ElSahl().shown().layers;
    const auto* fronts =
        layers.empty() ? nullptr : std::get_if<protosfakos::FrontsAgain>(&layers.back());
    EXPECT_NE(fronts, nullptr);
    return fronts != nullptr && fronts->desmiMode;
  };
  boxes.answer = "0";
  screens.kelmo().controls().EPANALIPSI.trigger();
  EXPECT_TRUE(waves());

  const Point pixel = screens.kelmo().canvas().mapping().toPixel({-260.0, 70.0});
  QTest::mouseClick(screens.kelmo().drawingArea(), Qt::LeftButton, Qt::ShiftModifier,
                    QPointF(pixel.x, pixel.y).toPoint());
  EXPECT_FALSE(waves());
}

TEST_F(MovesTest, ALensButtonDrawsTheFanOfItsLensFromTheSharedSource) {
  screens.openLensMenu();
  screens.eisagogiko().controls().deiktissahl.Value(170);
  for (const bool amfikyrtos : {true, false}) {
    MenuControls& menu = screens.eisagogiko().controls();
    (amfikyrtos ? menu.Command1 : menu.Command2).click();
    const auto& layers = screens.ElSahl().shown().layers;
    ASSERT_EQ(layers.size(), 1u);
    const protosfakos::Asked& asked = std::get<protosfakos::Scene>(layers.front()).asked;
    EXPECT_EQ(asked.amfikyrtos, amfikyrtos);
    EXPECT_EQ(asked.deiktisSahl, 1.7);
    const Point source = std::get<protosfakos::Fan>(asked.rays).source;
    EXPECT_EQ(source.x, 108.0);
    EXPECT_EQ(source.y, 25.0);
    EXPECT_EQ(screens.shared().pigiX.value(), 108.0);
    EXPECT_EQ(screens.shared().pigiY.value(), 25.0);
  }
}

// The places of menu and Ibn Sahl window without their frames, which a window that has not been
// seen yet does not know of.
class MenuPlace : public MovesTest {
 protected:
  void openBoth(int menuWidth, int menuHeight) {
    menu.clientSize(menuWidth * twipsPerPixel, menuHeight * twipsPerPixel);
    screens.openLensMenu();
    menu.controls().Command1.click();
    QCoreApplication::processEvents();
  }

  const QRect display = QGuiApplication::primaryScreen()->availableGeometry();
  eisagogiko& menu = screens.eisagogiko();
  const ElSahl& sahl = screens.ElSahl();
};

TEST_F(MenuPlace, IsBesideTheIbnSahlWindow) {
  openBoth(200, 150);
  EXPECT_GT(menu.geometry().left(), sahl.geometry().right());
  EXPECT_TRUE(display.contains(menu.geometry()));
}

TEST_F(MenuPlace, IsBelowTheIbnSahlWindowWhereNoRoomIsBesideIt) {
  openBoth(display.width() / 2, 150);
  EXPECT_GT(menu.geometry().top(), sahl.geometry().bottom());
  EXPECT_TRUE(display.contains(menu.geometry()));
}

TEST_F(MenuPlace, IsNotTheProgramsWhereNoRoomIsAtAllOrAPersonHasMovedIt) {
  menu.move(5, 6);
  openBoth(display.width() / 2, display.height() / 2);
  EXPECT_EQ(menu.pos(), QPoint(5, 6));
  openBoth(200, 150);
  EXPECT_NE(menu.pos(), QPoint(5, 6));
  menu.move(37, 41);
  screens.leaveLensMenu();
  openBoth(200, 150);
  EXPECT_EQ(menu.pos(), QPoint(37, 41));
}

TEST_F(MovesTest, NoScreenClearsAnother) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  const QImage bench = screens.kelmo().image().copy();
  const QImage sahl = screens.ElSahl().image().copy();
  screens.leaveIbnSahl();
  screens.leaveLensMenu();
  screens.openSingleRay();
  screens.leaveSingleRay();
  screens.openLensMenu();
  EXPECT_EQ(screens.kelmo().image(), bench);
  EXPECT_EQ(screens.ElSahl().image(), sahl);
}

TEST_F(MovesTest, TheLensButtonsGiveTheIbnSahlScreenItsOpeningSizeAgainWhateverStateItWasIn) {
  screens.openLensMenu();
  CommandButton& button = screens.eisagogiko().controls().Command1;
  ElSahl& sahl = screens.ElSahl();
  button.click();
  QCoreApplication::processEvents();
  const QRect opening = sahl.frameGeometry();
  const QImage picture = sahl.image().copy();
  EXPECT_EQ(opening.width(), opening.height());
  const auto opensAsAtFirst = [&](const char* state) {
    button.click();
    QCoreApplication::processEvents();
    EXPECT_EQ(sahl.frameGeometry(), opening) << state;
    EXPECT_TRUE(sahl.isVisible() && !sahl.isMinimized() && !sahl.isMaximized()) << state;
    EXPECT_EQ(sahl.image(), picture) << state;
  };
  sahl.move(100, 70);
  opensAsAtFirst("moved");
  sahl.resize(900, 300);
  opensAsAtFirst("resized");
  sahl.showMaximized();
  opensAsAtFirst("maximised");
  sahl.showMaximized();
  sahl.controls().BACKKELMO.trigger();
  opensAsAtFirst("maximised and left");
  sahl.showMinimized();
  opensAsAtFirst("minimised");
}

TEST_F(MovesTest, AktinaRaySizesTheSingleRayScreenAnewWhateverStateItWasIn) {
  moniaktina& ray = screens.moniaktina();
  const auto opens = [&](const char* state) {
    screens.kelmo().controls().singleray.trigger();
    QCoreApplication::processEvents();
    EXPECT_TRUE(ray.isVisible() && ray.isMaximized() && !ray.isMinimized()) << state;
    EXPECT_NEAR(ray.canvas().ScaleWidth() - ray.canvas().ScaleHeight(), 1200.0, 1e-9) << state;
    screens.leaveSingleRay();
  };
  opens("new");
  ray.setWindowState(Qt::WindowNoState);
  ray.resize(500, 400);
  opens("resized");
  ray.setWindowState(Qt::WindowMinimized);
  opens("minimised");
}

TEST_F(MovesTest, NoOrderOfMovesAndMinimisingLeavesTheProgramWithoutAWindow) {
  const auto inSight = [&](Form& form) { return form.isVisible() && !form.isMinimized(); };
  screens.openLensMenu();
  screens.eisagogiko().showMinimized();
  screens.openLensMenu();
  EXPECT_TRUE(inSight(screens.eisagogiko()));
  screens.kelmo().showMinimized();
  screens.leaveLensMenu();
  EXPECT_TRUE(inSight(screens.kelmo()));
  screens.openSingleRay();
  screens.kelmo().setWindowState(Qt::WindowMinimized);
  screens.leaveSingleRay();
  EXPECT_TRUE(inSight(screens.kelmo()));
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  screens.eisagogiko().showMinimized();
  screens.leaveIbnSahl();
  EXPECT_TRUE(inSight(screens.eisagogiko()));
}

TEST_F(MovesTest, TheWorkbenchsDiaphragmIsWhatTheOthersAreTold) {
  const light::Diafragma before = screens.diafragma();
  screens.kelmo().controls().VScroll1.Value(-70);
  screens.kelmo().controls().HScroll1.Value(40);
  const light::Diafragma told = screens.diafragma();
  EXPECT_EQ(told, screens.kelmo().diafragma());
  EXPECT_GT(told.X, before.X);
  EXPECT_GT(told.yA, before.yA);
}

TEST_F(MovesTest, TheCloseBoxOfTheSingleRayScreenGoesBack) {
  screens.kelmo().controls().singleray.trigger();
  screens.moniaktina().close();
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(MovesTest, TheCloseBoxOfTheMenuGoesToTheSphericalLenses) {
  screens.openLensMenu();
  screens.eisagogiko().close();
  EXPECT_FALSE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(MovesTest, TheCloseBoxOfTheIbnSahlScreenGoesBackToTheMenu) {
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
