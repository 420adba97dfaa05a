// The check boxes, the entries that only navigate, and the procedures that nothing calls.
#include <QMenuBar>
#include <QTest>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class CheckBoxesTest : public KelmoTest {
 protected:
  void click(CheckBox& box) {
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
  }
};

TEST_F(CheckBoxesTest, WavesAndRaysTakesTheOtherMarkAwayAndSets140WithoutDrawing) {
  click(c.Check2);
  ASSERT_TRUE(c.Check2.Value());
  clutter();
  const QImage before = picture();
  click(c.Check1);
  EXPECT_TRUE(c.Check1.Value());
  EXPECT_FALSE(c.Check2.Value());
  EXPECT_EQ(c.desmi1.Value(), 140);
  // Int(360 * 140 / (pi * 30))
  EXPECT_EQ(c.Text1.Text(), "Number of Rays Αριθμός ακτινών= 534.00");
  EXPECT_TRUE(samePicture(picture(), before));
}

TEST_F(CheckBoxesTest, OnlyWavesClearsDrawsTakesTheOtherMarkAwayAndSets100) {
  click(c.Check1);
  clutter();
  click(c.Check2);
  EXPECT_TRUE(c.Check2.Value());
  EXPECT_FALSE(c.Check1.Value());
  EXPECT_EQ(c.desmi1.Value(), 100);
  EXPECT_EQ(c.Text1.Text(), "Number of Rays Αριθμός ακτινών= 381.00");
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(CheckBoxesTest, TakingAMarkAwayByHandIsAClickToo) {
  click(c.Check1);
  c.desmi1.Value(20);
  click(c.Check1);
  EXPECT_FALSE(c.Check1.Value());
  EXPECT_EQ(c.desmi1.Value(), 140);
  click(c.Check2);
  c.desmi1.Value(20);
  clutter();
  click(c.Check2);
  EXPECT_FALSE(c.Check2.Value());
  EXPECT_EQ(c.desmi1.Value(), 100);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(CheckBoxesTest, TheSpaceBarWorksThem) {
  QTest::keyClick(&c.Check1, Qt::Key_Space);
  EXPECT_TRUE(c.Check1.Value());
  EXPECT_EQ(c.desmi1.Value(), 140);
}

TEST_F(CheckBoxesTest, WritingAMarkFromCodeFiresNothing) {
  c.Check1.Value(true);
  EXPECT_EQ(c.desmi1.Value(), 20);
  c.Check2.Value(true);
  EXPECT_TRUE(c.Check1.Value());
  EXPECT_EQ(c.desmi1.Value(), 20);
}

TEST_F(CheckBoxesTest, TheFlipTurnsTheMarkOfWavesAndRays) {
  screen.flipCheck1();
  EXPECT_TRUE(c.Check1.Value());
  EXPECT_EQ(c.desmi1.Value(), 20);
  screen.flipCheck1();
  EXPECT_FALSE(c.Check1.Value());
}

TEST_F(CheckBoxesTest, AClickOnTheFormDoesNothing) {
  const auto before = state();
  const QImage shown = picture();
  screen.Form_Click();
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(samePicture(picture(), shown));
}

TEST_F(CheckBoxesTest, EntriesThatNavigateOnlyAskForTheMove) {
  const auto before = state();
  const QImage shown = picture();
  c.singleray.trigger();
  c.SAHLIC.trigger();
  c.TELIOMA.trigger();
  EXPECT_EQ(moves.made, (std::vector<std::string>{"openSingleRay", "openLensMenu", "End"}));
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(samePicture(picture(), shown));
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(dialogs.prompts.isEmpty()) << "END does not ask";
}

TEST_F(CheckBoxesTest, AMenuEntryAnswersAClickOfTheMouse) {
  QMenuBar* const bar = screen.menuBar();
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(&c.SAHLIC).center());
  EXPECT_EQ(moves.made, std::vector<std::string>{"openLensMenu"});
}

TEST_F(CheckBoxesTest, TheEndProcedureAndTheCloseBoxEndTheProgram) {
  screen.end();
  screen.close();
  EXPECT_EQ(moves.made, (std::vector<std::string>{"End", "End"}));
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(CheckBoxesTest, HidingAndShowingKeepsStateAndPicture) {
  sendBundle("10");
  const auto before = state();
  const QImage shown = picture();
  screen.Hide();
  screen.Show();
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(samePicture(picture(), shown));
}

}  // namespace
}  // namespace lensbench
