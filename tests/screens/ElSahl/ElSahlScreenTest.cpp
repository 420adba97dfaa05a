// The Ibn Sahl screen as it opens, its options and its ways out.
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>

#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlScreen : public ElSahlFixture {};

TEST(ElSahlDesign, LoadPlacesTheEdgesAndSelectsRaysAndWaves) {
  FakeMoves moves;
  ElSahl screen(moves);
  EXPECT_EQ("ElSahl", screen.objectName());
  EXPECT_EQ("Φακός Ιμπν Σαχλ 2 υπεροβλές", screen.Caption());
  EXPECT_EQ(white, screen.canvas().BackColor());
  EXPECT_FALSE(screen.isVisible());
  const SahlControls& c = screen.controls();
  for (const LineControl* edge : {&c.Line1, &c.Line2}) {
    EXPECT_EQ(130, edge->X1());
    EXPECT_EQ(130, edge->X2());
    EXPECT_EQ(RGB(0, 0, 192), edge->BorderColor());
    EXPECT_EQ(3, edge->BorderWidth());
  }
  EXPECT_EQ(200, c.Line1.Y1());
  EXPECT_EQ(10, c.Line1.Y2());
  EXPECT_EQ(-200, c.Line2.Y1());
  EXPECT_EQ(-10, c.Line2.Y2());
  EXPECT_TRUE(c.RAYSANDWAVES.Value());
  EXPECT_FALSE(c.onlyrays.Value());
  EXPECT_FALSE(c.kymataYESNO.Value());
}

TEST(ElSahlDesign, StartUpMovesTheEdgesTo200) {
  FakeMoves moves;
  ElSahl screen(moves);
  screen.strokesAt(200);
  EXPECT_EQ(200, screen.controls().Line1.X1());
  EXPECT_EQ(200, screen.controls().Line2.X2());
  EXPECT_EQ(10, screen.controls().Line1.Y2());
  EXPECT_EQ(-10, screen.controls().Line2.Y2());
}

TEST_F(ElSahlScreen, PrepareOpensASquareWindowTwoThirdsOfTheDisplayHigh) {
  const double display = QGuiApplication::primaryScreen()->geometry().height() * 15.0;
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(screen.AutoRedraw());
  EXPECT_EQ(0, screen.Left());
  EXPECT_EQ(0, screen.Top());
  EXPECT_NEAR(display / 1.5, screen.Height(), 15.0);
  EXPECT_EQ(screen.Height(), screen.Width());
  EXPECT_EQ(-120, screen.canvas().ScaleLeft());
  EXPECT_EQ(120, screen.canvas().ScaleTop());
  EXPECT_EQ(270, screen.canvas().ScaleWidth());
  EXPECT_EQ(-240, screen.canvas().ScaleHeight());
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlScreen, PrepareAgainResetsSizeScaleAndEdges) {
  press(130, 50);
  release(60, 40);
  screen.resize(500, 300);
  screen.prepare();
  EXPECT_EQ(screen.Height(), screen.Width());
  EXPECT_EQ(270, screen.canvas().ScaleWidth());
  EXPECT_EQ(-240, screen.canvas().ScaleHeight());
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlScreen, ANewSizeFitsTheSceneOnlyUntilSomethingIsDoneByHand) {
  screen.resize(640, 480);
  QCoreApplication::processEvents();
  EXPECT_EQ(270, screen.canvas().ScaleWidth());
  expectEdges(130, 10, -10);
  EXPECT_TRUE(shows([&] { fan(108, 25); }));

  press(100, 0);
  const QImage before = picture();
  screen.resize(700, 520);
  QCoreApplication::processEvents();
  EXPECT_GT(screen.canvas().ScaleWidth(), 270);
  EXPECT_EQ(before, screen.canvas().image().copy(before.rect()));
}

TEST_F(ElSahlScreen, AnOptionChosenByHandKeepsThePictureAtANewSize) {
  SahlControls& c = screen.controls();
  for (OptionButton* option : {&c.onlyrays, &c.kymataYESNO, &c.RAYSANDWAVES}) {
    screen.prepare();
    screen.canvas().Cls();
    fan(108, 25);
    const QImage before = picture();
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(10, option->height() / 2));
    screen.resize(screen.width() + 60, screen.height() + 40);
    QCoreApplication::processEvents();
    EXPECT_EQ(before, screen.canvas().image().copy(before.rect()))
        << qPrintable(option->objectName());
  }
}

TEST_F(ElSahlScreen, AnIndexChangedInTheMenuKeepsThePictureAtANewSize) {
  screen.canvas().Cls();
  fan(108, 25);
  const QImage before = picture();
  state.deiktisSahl = 2.0;
  screen.resize(screen.width() + 60, screen.height() + 40);
  QCoreApplication::processEvents();
  EXPECT_EQ(before, screen.canvas().image().copy(before.rect()));
}

TEST_F(ElSahlScreen, HowToUseTheMouseIsSaidUntilItHasBeenDone) {
  const auto hint = [&] { return screen.drawingArea()->toolTip(); };
  EXPECT_TRUE(hint().contains("Press to place the source"));
  EXPECT_TRUE(hint().contains("Πάτησε για να βάλεις την πηγή"));
  state.deiktisSahl = 0.5;
  press(100, 0);
  EXPECT_FALSE(hint().isEmpty());
  state.deiktisSahl = 1.5;
  press(100, 0);
  EXPECT_TRUE(hint().isEmpty());

  ElSahl another(moves);
  another.prepare();
  EXPECT_FALSE(another.drawingArea()->toolTip().isEmpty());
  another.Form_MouseDown(1, 0, 130, 60);
  EXPECT_FALSE(another.drawingArea()->toolTip().isEmpty());
  another.Form_MouseUp(1, 0, 100, 60);
  EXPECT_TRUE(another.drawingArea()->toolTip().isEmpty());
}

TEST_F(ElSahlScreen, MenuEntriesStandInTheBarInTheirOrder) {
  QStringList captions;
  for (const QAction* entry : screen.menuBar()->actions()) captions << entry->text();
  EXPECT_EQ((QStringList{"PARALLILI  DESMH", "END", "WAVES", "BACK TO MENU"}), captions);
}

TEST_F(ElSahlScreen, OptionsStandInOneRowAndShowTheirWholeText) {
  SahlControls& c = screen.controls();
  EXPECT_EQ("ONLY WAVES", c.kymataYESNO.Caption());
  EXPECT_EQ("RAYS WAVES", c.RAYSANDWAVES.Caption());
  EXPECT_EQ("Only Rays", c.onlyrays.Caption());
  EXPECT_EQ(120, c.kymataYESNO.place().left);
  OptionButton* row[] = {&c.kymataYESNO, &c.RAYSANDWAVES, &c.onlyrays};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(0, row[i]->y());
    EXPECT_GE(row[i]->width(), row[i]->sizeHint().width());
    EXPECT_GE(row[i]->height(), row[i]->sizeHint().height());
    EXPECT_GE(row[i]->font().pointSizeF(), 9.0);
    if (i > 0) {
      EXPECT_GE(row[i]->x(), row[i - 1]->x() + row[i - 1]->width());
    }
  }
  EXPECT_LE(c.onlyrays.x() + c.onlyrays.width(), screen.drawingArea()->width());
}

TEST_F(ElSahlScreen, EveryControlSaysInTwoLanguagesWhatItIsAndDoes) {
  EXPECT_TRUE(screen.accessibleName().contains(" · "));
  for (const auto* control : screen.drawingArea()->findChildren<QAbstractButton*>()) {
    EXPECT_TRUE(control->accessibleName().contains(" · ")) << qPrintable(control->objectName());
    EXPECT_TRUE(control->toolTip().contains('\n')) << qPrintable(control->objectName());
  }
  for (const QAction* entry : screen.menuBar()->actions()) {
    EXPECT_TRUE(entry->toolTip().contains('\n')) << qPrintable(entry->objectName());
  }
}

TEST_F(ElSahlScreen, ClickingAnOptionSelectsItAlone) {
  SahlControls& c = screen.controls();
  const auto expectOnly = [&](const OptionButton& selected) {
    for (OptionButton* option : {&c.onlyrays, &c.RAYSANDWAVES, &c.kymataYESNO}) {
      EXPECT_EQ(option == &selected, option->Value()) << qPrintable(option->objectName());
    }
  };
  for (OptionButton* option : {&c.onlyrays, &c.kymataYESNO, &c.RAYSANDWAVES, &c.kymataYESNO}) {
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(10, option->height() / 2));
    expectOnly(*option);
  }
  screen.RAYSANDWAVES_Click();
  expectOnly(c.RAYSANDWAVES);
  screen.kymataYESNO_Click();
  expectOnly(c.kymataYESNO);
  c.onlyrays.Value(true);
  screen.kymataYESNO_Click();
  expectOnly(c.kymataYESNO);
}

TEST_F(ElSahlScreen, OnlyWavesRaisesItsFlagAndAPressLowersIt) {
  QTest::mouseClick(&screen.controls().kymataYESNO, Qt::LeftButton);
  EXPECT_TRUE(state.onlyWavesAsked);
  screen.RAYSANDWAVES_Click();
  EXPECT_TRUE(state.onlyWavesAsked);
  press(130, 50);
  EXPECT_FALSE(state.onlyWavesAsked);
}

TEST_F(ElSahlScreen, OptionsAreReadAtTheNextDrawing) {
  press(108, 25);
  const QImage both = picture();
  screen.controls().onlyrays.click();
  EXPECT_EQ(both, picture());
  press(108, 25);
  const QImage rays = picture();
  EXPECT_NE(both, rays);
  screen.controls().kymataYESNO.click();
  press(108, 25);
  EXPECT_NE(both, picture());
  EXPECT_NE(rays, picture());
  EXPECT_TRUE(screen.view().onlyWaves());
}

TEST_F(ElSahlScreen, BackToMenuClearsAndLeaves) {
  press(100, 10);
  ASSERT_FALSE(blank());
  screen.controls().BACKKELMO.trigger();
  EXPECT_TRUE(blank());
  EXPECT_EQ(std::vector<std::string>{"leaveIbnSahl"}, moves.made);
  EXPECT_EQ(100, state.pigiX.value());
  EXPECT_EQ(10, state.pigiY.value());
}

TEST_F(ElSahlScreen, TheCloseBoxIsBackToMenu) {
  press(100, 10);
  screen.close();
  EXPECT_TRUE(blank());
  EXPECT_EQ(std::vector<std::string>{"leaveIbnSahl"}, moves.made);
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(ElSahlScreen, EndEndsTheProgram) {
  screen.controls().TELOS.trigger();
  EXPECT_EQ(std::vector<std::string>{"End"}, moves.made);
}

TEST_F(ElSahlScreen, HidingAndShowingKeepsThePicture) {
  press(90, -20);
  QCoreApplication::processEvents();
  const QImage before = picture();
  const QImage seen = screen.drawingArea()->grab().toImage();
  screen.Hide();
  screen.Show();
  QCoreApplication::processEvents();
  EXPECT_EQ(before, picture());
  EXPECT_EQ(seen, screen.drawingArea()->grab().toImage());
}

}  // namespace
}  // namespace lensbench
