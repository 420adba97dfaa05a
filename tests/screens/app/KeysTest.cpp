// Keys on all screens of the program.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

class ScreenKeysTest : public ::testing::Test {
 protected:
  ScreenKeysTest() { Main(screens); }

  void openSahl() {
    screens.openLensMenu();
    screens.eisagogiko().controls().Command1.click();
    screens.ElSahl().activateWindow();
    QApplication::processEvents();
  }
  void openRay() {
    screens.kelmo().controls().singleray.trigger();
    screens.moniaktina().activateWindow();
    QApplication::processEvents();
  }
  // With the focus on the picture, at its first thing.
  static void enterPicture(DrawingScreen& screen) {
    screen.drawingArea()->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(screen.thingFocus().thing());
  }
  static void key(DrawingScreen& screen, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(screen.drawingArea(), key, modifiers);
  }

  Program program;
  Screens& screens = program.screens;
};

TEST_F(ScreenKeysTest, EscapeGoesBackAScreenUpToTheWorkbench) {
  openSahl();
  QTest::keyClick(&screens.ElSahl(), Qt::Key_Escape);
  EXPECT_FALSE(screens.ElSahl().isVisible());
  EXPECT_TRUE(screens.eisagogiko().isVisible());
  QTest::keyClick(&screens.eisagogiko(), Qt::Key_Escape);
  EXPECT_FALSE(screens.eisagogiko().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
  openRay();
  EXPECT_FALSE(screens.kelmo().isVisible());
  QTest::keyClick(&screens.moniaktina(), Qt::Key_Escape);
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
  QTest::keyClick(&screens.kelmo(), Qt::Key_Escape);
  EXPECT_TRUE(screens.kelmo().isVisible());
}

TEST_F(ScreenKeysTest, EscapeLeavesFullScreenFirst) {
  openSahl();
  QTest::keyClick(&screens.ElSahl(), Qt::Key_F11);
  EXPECT_TRUE(screens.ElSahl().isFullScreen());
  QTest::keyClick(&screens.ElSahl(), Qt::Key_Escape);
  EXPECT_FALSE(screens.ElSahl().isFullScreen());
  EXPECT_TRUE(screens.ElSahl().isVisible());
}

TEST_F(ScreenKeysTest, TheSourceOfTheIbnSahlScreenMovesWithItsFan) {
  openSahl();
  ElSahl& sahl = screens.ElSahl();
  enterPicture(sahl);
  key(sahl, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(screens.shared().pigiY.value(), 35.0);
  key(sahl, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(screens.shared().pigiX.value(), 108.1);
  const auto* scene = std::get_if<protosfakos::Scene>(&sahl.shown().layers.back());
  ASSERT_NE(scene, nullptr);
  const auto* fan = std::get_if<protosfakos::Fan>(&scene->asked.rays);
  ASSERT_NE(fan, nullptr);
  EXPECT_EQ(fan->source, (Point{108.1, 35.0}));
}

TEST_F(ScreenKeysTest, TheEdgesOfTheIbnSahlScreenMoveTogether) {
  openSahl();
  ElSahl& sahl = screens.ElSahl();
  enterPicture(sahl);
  key(sahl, Qt::Key_Tab);
  key(sahl, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(sahl.diafragma().X, 120.0);
  key(sahl, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(sahl.diafragma().yA, 10.1);
  EXPECT_DOUBLE_EQ(sahl.diafragma().yB, -10.0);
}

TEST_F(ScreenKeysTest, TheSingleRayIsPlacedAimedAndSent) {
  openRay();
  moniaktina& ray = screens.moniaktina();
  enterPicture(ray);
  const Point before = ray.controls().source();
  key(ray, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_NEAR(ray.controls().source().x, before.x + 10.0, 1e-9);
  EXPECT_NEAR(ray.controls().source().y, before.y, 1e-9);
  const auto shown = ray.shown();
  key(ray, Qt::Key_Return);
  EXPECT_FALSE(ray.shown() == shown);
  const auto* sent = std::get_if<poreiaaktinon::single::Ray>(&ray.shown().layers.back());
  ASSERT_NE(sent, nullptr);
  const auto& single = std::get<poreiaaktinon::SingleRay>(sent->sent.rays);
  EXPECT_NEAR(single.source.x, before.x + 10.0, 1e-4);
}

TEST_F(ScreenKeysTest, ThePictureFollowsFullScreenAndBack) {
  kelmo& bench = screens.kelmo();
  QTest::qWait(150);
  const QSize before = bench.drawingArea()->size();
  QTest::keyClick(&bench, Qt::Key_F11);
  QTest::qWait(150);
  EXPECT_EQ(bench.size(), bench.screen()->geometry().size());
  EXPECT_EQ(bench.canvas().size(), bench.drawingArea()->size());
  QTest::keyClick(&bench, Qt::Key_F11);
  QTest::qWait(150);
  EXPECT_EQ(bench.drawingArea()->size(), before);
  EXPECT_EQ(bench.canvas().size(), before);
}

}  // namespace
}  // namespace lensbench
