// The Ibn Sahl screen as it opens, its options and its ways out.
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>

#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlScreen : public ElSahlFixture {};

TEST(ElSahlDesign, LoadPlacesTheEdgesAndSelectsRaysAndWaves) {
  TestContext t;
  ElSahl screen(t.context);
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
  TestContext t;
  ElSahl screen(t.context);
  const SahlControls& c = screen.controls();
  screen.strokesAt(200);
  EXPECT_EQ(200, c.Line1.X1());
  EXPECT_EQ(200, c.Line2.X2());
  EXPECT_EQ(10, c.Line1.Y2());
  EXPECT_EQ(-10, c.Line2.Y2());
}

TEST_F(ElSahlScreen, PrepareOpensASquareWindowTwoThirdsOfTheDisplayHigh) {
  const double display = QGuiApplication::primaryScreen()->geometry().height() * 15.0;
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(screen.AutoRedraw());
  EXPECT_EQ(0, screen.Left());
  EXPECT_EQ(0, screen.Top());
  EXPECT_NEAR(display / 1.5, screen.Height(), 15.0);
  EXPECT_EQ(screen.Height(), screen.Width());
  expectOpeningScale();
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlScreen, PrepareAgainResetsSizePlaceScaleAndEdges) {
  const QRect opened = screen.geometry();
  press(130, 50);
  release(60, 40);
  screen.Left(600);
  screen.Top(450);
  resizeTo(500, 300);
  screen.prepare();
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, screen.geometry());
  EXPECT_EQ(0, screen.Left());
  EXPECT_EQ(0, screen.Top());
  EXPECT_EQ(screen.Height(), screen.Width());
  expectOpeningScale();
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlScreen, AMaximisedScreenOpensAgainAsTheFirstTime) {
  screen.drawFan();
  const QRect opened = screen.geometry();
  const QImage first = picture();
  screen.showMaximized();
  QCoreApplication::processEvents();
  ASSERT_NE(opened, screen.geometry());
  c.BACKKELMO.trigger();
  screen.Hide();
  screen.prepare();
  screen.drawFan();
  QCoreApplication::processEvents();
  EXPECT_FALSE(screen.isMaximized());
  EXPECT_EQ(opened, screen.geometry());
  expectOpeningScale();
  EXPECT_EQ(first, picture());
}

TEST_F(ElSahlScreen, HowToUseTheMouseIsSaidUntilItHasBeenDone) {
  const auto hint = [&] { return screen.drawingArea()->toolTip(); };
  EXPECT_TRUE(hint().contains("Press to place the source"));
  EXPECT_TRUE(hint().contains("Πάτησε για να βάλεις την πηγή"));
  shared.deiktisSahl = 0.5;
  press(100, 0);
  EXPECT_FALSE(hint().isEmpty());
  shared.deiktisSahl = 1.5;
  press(100, 0);
  EXPECT_TRUE(hint().isEmpty());

  ElSahl another(t.context);
  another.prepare();
  EXPECT_FALSE(another.drawingArea()->toolTip().isEmpty());
  another.Form_MouseDown(1, 0, 130, 60);
  EXPECT_FALSE(another.drawingArea()->toolTip().isEmpty());
  another.Form_MouseUp(1, 0, 100, 60);
  EXPECT_TRUE(another.drawingArea()->toolTip().isEmpty());
}

TEST_F(ElSahlScreen, TheTabKeyGoesThroughTheOptionsFromLeftToRight) {
  QStringList order;
  const QWidget* widget = &c.kymataYESNO;
  do {
    if (widget->parent() == screen.drawingArea()) order << widget->objectName();
    widget = widget->nextInFocusChain();
  } while (widget != &c.kymataYESNO);
  EXPECT_EQ((QStringList{"kymataYESNO", "RAYSANDWAVES", "onlyrays"}), order);
}

TEST_F(ElSahlScreen, MenuEntriesStandInTheBarInTheirOrder) {
  QStringList captions;
  for (const QAction* entry : screen.menuBar()->actions()) captions << entry->text();
  EXPECT_EQ((QStringList{"PARALLILI  DESMH", "END", "WAVES", "BACK TO MENU"}), captions);
}

TEST_F(ElSahlScreen, OptionsStandInOneRowAndShowTheirWholeText) {
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
  QTest::mouseClick(&c.kymataYESNO, Qt::LeftButton);
  EXPECT_TRUE(shared.onlyWavesAsked);
  screen.RAYSANDWAVES_Click();
  EXPECT_TRUE(shared.onlyWavesAsked);
  press(130, 50);
  EXPECT_FALSE(shared.onlyWavesAsked);
}

TEST_F(ElSahlScreen, OptionsAreReadAtTheNextDrawing) {
  press(108, 25);
  const QImage both = picture();
  c.onlyrays.click();
  EXPECT_EQ(both, picture());
  press(108, 25);
  const QImage rays = picture();
  EXPECT_NE(both, rays);
  c.kymataYESNO.click();
  press(108, 25);
  EXPECT_NE(both, picture());
  EXPECT_NE(rays, picture());
  EXPECT_TRUE(lastScene().asked.onlyWaves);
}

TEST_F(ElSahlScreen, BackToMenuClearsAndLeaves) {
  press(100, 10);
  ASSERT_FALSE(blank());
  c.BACKKELMO.trigger();
  EXPECT_TRUE(blank());
  EXPECT_EQ(std::vector<std::string>{"leaveIbnSahl"}, t.moves.made);
  EXPECT_EQ(100, shared.pigiX.value());
  EXPECT_EQ(10, shared.pigiY.value());
}

TEST_F(ElSahlScreen, TheCloseBoxIsBackToMenu) {
  press(100, 10);
  screen.close();
  EXPECT_TRUE(blank());
  EXPECT_EQ(std::vector<std::string>{"leaveIbnSahl"}, t.moves.made);
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(ElSahlScreen, EndEndsTheProgram) {
  c.TELOS.trigger();
  EXPECT_EQ(std::vector<std::string>{"End"}, t.moves.made);
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
