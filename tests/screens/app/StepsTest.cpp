// The history of the program: what is a step, and that going back and forth brings back every
// value and every picture.
#include <algorithm>
#include <random>

#include <QTest>

#include "tests/screens/app/Hand.h"

namespace lensbench {
namespace {

class Steps : public HandTest {
 protected:
  // How many steps can be taken back from here; ends where it began.
  int stepsBack() {
    int count = 0;
    for (;; ++count) {
      const ProgramState before = screens.state();
      screens.undo();
      if (screens.state() == before) break;
    }
    for (int i = 0; i < count; ++i) screens.redo();
    return count;
  }
  KelmoControls& c = bench.controls();
};

TEST_F(Steps, HasNothingToTakeBackAtStart) {
  const ProgramState start = screens.state();
  screens.undo();
  screens.redo();
  EXPECT_TRUE(screens.state() == start);
}

TEST_F(Steps, TakesBackAClickThatWipedThePicture) {
  openDiaphragm();
  click(bench, outside, true);
  const auto fan = bench.shown();
  const QImage picture = bench.image().copy();
  click(bench, {0.0, 60.0});
  ASSERT_FALSE(bench.shown() == fan);
  screens.undo();
  EXPECT_TRUE(bench.shown() == fan);
  EXPECT_EQ(bench.image(), picture);
  ASSERT_TRUE(bench.set());
  EXPECT_EQ(bench.set()->paths->size(),
            std::get<poreiaaktinon::Light>(fan.layers[1]).sent.paths->size());
  screens.redo();
  EXPECT_EQ(bench.shown().layers.size(), 1u);
}

TEST_F(Steps, BringsBackValuesAndTheirTextsAsTheyStood) {
  const QString radius = c.Text6.Text();
  const QString rays = c.Text1.Text();
  c.aktina1.Value(200);
  c.desmi1.Value(77);
  screens.undo();
  EXPECT_EQ(c.desmi1.Value(), 20);
  EXPECT_EQ(c.Text1.Text(), rays);
  screens.undo();
  EXPECT_EQ(c.aktina1.Value(), 100);
  EXPECT_EQ(c.Text6.Text(), radius);
  EXPECT_EQ(bench.fakos().R1, 100.0);
}

TEST_F(Steps, CountsADragAsOneStep) {
  press(bench, {0.0, 150.0});
  for (int i = 0; i < 20; ++i) moveTo(bench, {2.0 * i, 150.0});
  release(bench, {38.0, 150.0});
  EXPECT_NE(bench.diafragma().X, 0.0);
  EXPECT_EQ(stepsBack(), 1);
  screens.undo();
  EXPECT_EQ(bench.diafragma(), (poreiaaktinon::Diafragma{0.0, 0.0, 0.0}));
}

TEST_F(Steps, CountsADraggedThumbAndAHeldArrowKeyAsOneStepEach) {
  c.aktina2.setSliderDown(true);
  mouse(bench, QEvent::MouseButtonPress, {500.0, 500.0});
  for (int value = 91; value < 120; ++value) c.aktina2.setSliderPosition(value);
  mouse(bench, QEvent::MouseButtonRelease, {500.0, 500.0});
  c.aktina2.setSliderDown(false);
  QApplication::processEvents();
  ASSERT_EQ(stepsBack(), 1);
  for (int i = 0; i < 9; ++i) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, {}, i > 0);
    QApplication::sendEvent(&c.aktina2, &down);
  }
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier);
  QApplication::sendEvent(&c.aktina2, &up);
  EXPECT_EQ(c.aktina2.Value(), 128);
  EXPECT_EQ(stepsBack(), 2);
  QTest::keyClick(&c.aktina2, Qt::Key_Right);
  QTest::keyClick(&c.aktina2, Qt::Key_Right);
  EXPECT_EQ(stepsBack(), 4);
}

TEST_F(Steps, CountsNoStepsForTicksAndStopsTheWavesThatItTakesBack) {
  openDiaphragm();
  c.kymatachronika.trigger();
  for (int i = 0; i < 30; ++i) tick();
  c.aktina1.Value(150);
  for (int i = 0; i < 5; ++i) tick();
  EXPECT_EQ(std::get<poreiaaktinon::Fronts>(bench.shown().layers.back()).step, 35);
  EXPECT_TRUE(c.kymatachronika.Checked());
  EXPECT_EQ(stepsBack(), 4);
  EXPECT_FALSE(tick());
}

TEST_F(Steps, LeavesRestoredWavesAtRestWithTheFrontsThatStoodThere) {
  c.kymatachronika.trigger();
  for (int i = 0; i < 30; ++i) tick();
  const QImage fronts = bench.image().copy();
  click(bench, outside, true);
  screens.undo();
  EXPECT_EQ(bench.image(), fronts);
  EXPECT_FALSE(c.kymatachronika.Checked());
  EXPECT_FALSE(tick());
  EXPECT_EQ(bench.image(), fronts);
  c.kymatachronika.trigger();
  EXPECT_TRUE(tick());
}

TEST_F(Steps, ShowsTheScreenConcerned) {
  c.aktina1.Value(180);
  c.singleray.trigger();
  ASSERT_FALSE(bench.isVisible());
  screens.undo();
  screens.undo();
  EXPECT_TRUE(bench.isVisible());
  EXPECT_FALSE(screens.moniaktina().isVisible());
  EXPECT_EQ(c.aktina1.Value(), 100);
  screens.redo();
  screens.redo();
  EXPECT_TRUE(screens.moniaktina().isVisible());
  EXPECT_FALSE(bench.isVisible());
}

TEST_F(Steps, GoesOverAHundredStepsBack) {
  for (int i = 0; i < 150; ++i) c.aktina1.Value(101 + i);
  for (int i = 0; i < 150; ++i) screens.undo();
  EXPECT_EQ(c.aktina1.Value(), 100);
  for (int i = 0; i < 150; ++i) screens.redo();
  EXPECT_EQ(c.aktina1.Value(), 250);
}

TEST_F(Steps, FitsAPictureToAWindowThatHasAnotherSizeNow) {
  click(bench, outside, true);
  c.aktina1.Value(150);
  bench.setWindowState(Qt::WindowNoState);
  bench.resize(700, 500);
  QApplication::processEvents();
  screens.undo();
  const auto& light = std::get<poreiaaktinon::Light>(bench.shown().layers.at(1));
  EXPECT_EQ(light.sent.edges, light::edgesOf(bench.canvas()));
  EXPECT_TRUE(showsItsValue(bench));
  screens.redo();
  EXPECT_EQ(c.aktina1.Value(), 150);
}

TEST_F(Steps, DropWhatCouldBeDoneAgainAtTheNextStep) {
  c.aktina1.Value(150);
  screens.undo();
  c.aktina2.Value(50);
  screens.redo();
  EXPECT_EQ(c.aktina1.Value(), 100);
  EXPECT_EQ(c.aktina2.Value(), 50);
}

TEST_F(Steps, LeaveADragThatIsNoStepYet) {
  c.aktina1.Value(150);
  press(bench, {0.0, 150.0});
  moveTo(bench, {40.0, 150.0});
  ASSERT_NEAR(bench.diafragma().X, 40.0, 1e-9);
  screens.undo();
  EXPECT_NEAR(bench.diafragma().X, 0.0, 1e-9);
  EXPECT_EQ(c.aktina1.Value(), 100);
  release(bench, {60.0, 150.0});
  EXPECT_NEAR(bench.diafragma().X, 0.0, 1e-9);
  screens.redo();
  EXPECT_EQ(c.aktina1.Value(), 150);
}

TEST_F(Steps, AreNotMadeOrEndedByKeysWhileTheMouseHoldsSomething) {
  c.aktina1.Value(150);
  press(bench, {0.0, 150.0});
  moveTo(bench, {40.0, 150.0});
  QTest::keyClick(&bench, Qt::Key_A);
  QTest::keyClick(&bench, Qt::Key_Shift);
  moveTo(bench, {60.0, 150.0});
  release(bench, {60.0, 150.0});
  QApplication::processEvents();
  EXPECT_NEAR(bench.diafragma().X, 60.0, 1e-9);
  screens.undo();
  EXPECT_NEAR(bench.diafragma().X, 0.0, 1e-9);
  EXPECT_EQ(c.aktina1.Value(), 150);
}

TEST_F(Steps, LeaveNothingOfADragThatAKeyLeft) {
  c.aktina1.Value(150);
  press(bench, {0.0, 150.0});
  moveTo(bench, {40.0, 150.0});
  QTest::keyClick(&bench, Qt::Key_Escape);
  release(bench, {60.0, 150.0});
  QApplication::processEvents();
  EXPECT_NEAR(bench.diafragma().X, 0.0, 1e-9);
  QTest::keyClick(&bench, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NEAR(bench.diafragma().X, 0.0, 1e-9);
  EXPECT_EQ(c.aktina1.Value(), 100);
}

TEST_F(Steps, CoverTheLensMenuAndTheIbnSahlScreen) {
  c.SAHLIC.trigger();
  auto& menu = screens.eisagogiko();
  menu.controls().deiktissahl.Value(220);
  menu.controls().Command1.click();
  auto& sahl = screens.ElSahl();
  const QImage first = sahl.image().copy();
  const QString caption = sahl.Caption();
  click(sahl, {100.0, 60.0});
  sahl.controls().BACKKELMO.trigger();
  ASSERT_FALSE(sahl.isVisible());
  screens.undo();
  EXPECT_TRUE(sahl.isVisible());
  screens.undo();
  EXPECT_EQ(sahl.image(), first);
  EXPECT_EQ(sahl.Caption(), caption);
  EXPECT_EQ(shared.pigiX.value(), 108.0);
  screens.undo();
  screens.undo();
  EXPECT_EQ(shared.deiktisSahl.value(), 1.5);
  EXPECT_EQ(menu.controls().deiktissahl.Value(), 150);
}

// Random work on all screens; every value and every picture comes back, twice over.
class AnyWork : public Steps, public ::testing::WithParamInterface<unsigned> {
 protected:
  struct Record {
    ProgramState state;
    std::vector<QImage> pictures;
  };
  Record record() {
    Record now{screens.state(), {}};
    for (Form* form : {static_cast<Form*>(&bench), static_cast<Form*>(&screens.moniaktina()),
                       static_cast<Form*>(&screens.ElSahl())}) {
      now.pictures.push_back(form->isVisible() ? form->image().copy() : QImage());
    }
    return now;
  }
  // How far waves have moved is no step of its own.
  static bool sameButForFronts(ProgramState a, ProgramState b) {
    a.kelmo.values = withoutFronts(std::move(*a.kelmo.values));
    b.kelmo.values = withoutFronts(std::move(*b.kelmo.values));
    return a == b;
  }
  static std::string whatDiffers(const ProgramState& a, const ProgramState& b) {
    std::string names;
    if (!(a.shared == b.shared)) names += " shared";
    if (!(a.kelmo == b.kelmo)) names += " kelmo";
    if (!(a.moniaktina == b.moniaktina)) names += " moniaktina";
    if (!(a.ElSahl == b.ElSahl)) names += " ElSahl";
    if (!(a.eisagogiko == b.eisagogiko)) names += " eisagogiko";
    return names;
  }
  int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  Point somewhere() { return {below(400) - 200.0 + 0.5, below(240) - 120.0 + 0.25}; }
  void drag(Form& form) {
    const bool shift = below(2) == 0;
    Point at = somewhere();
    if (below(3) == 0) at.x = bench.diafragma().X;
    if (below(3) == 0) at.y = 0.25;
    press(form, at, shift);
    for (int i = below(4); i > 0; --i) moveTo(form, somewhere(), shift);
    release(form, somewhere(), shift);
  }
  void slide(ScrollBar& bar) {
    const int least = &bar == &screens.moniaktina().controls().aktina2 ||
                              &bar == &screens.moniaktina().controls().kentrokykloy
                          ? 5
                          : bar.Min();
    bar.Value(least + below(bar.Max() - least + 1));
  }
  void workAtBench() {
    ScrollBar* const bars[] = {&c.aktina1,   &c.aktina2,          &c.kentrokykloy, &c.kentrokykloy2,
                               &c.desmi1,    &c.HScroll1,         &c.VScroll1,     &c.VScroll2,
                               &c.arvimaton, &c.deiktisdiathlasis};
    switch (below(12)) {
      case 0:
        return c.Check1.click();
      case 1:
        return c.Check2.click();
      case 2:
        return sendBundle(QString::number(below(160) - 80));
      case 3:
        return c.parallilakymata.trigger();
      case 4:
        if (poreiaaktinon::rayCount(bench.vima()) <= 1501) c.kymatachronika.trigger();
        return;
      case 5:
        return c.singleray.trigger();
      case 6:
        return c.SAHLIC.trigger();
      case 7:
      case 8:
      case 9:
        return drag(bench);
      default:
        return slide(*bars[below(10)]);
    }
  }
  void workAtRay() {
    MoniaktinaControls& m = screens.moniaktina().controls();
    ScrollBar* const bars[] = {&m.aktina1, &m.aktina2, &m.kentrokykloy, &m.deiktisdiathlasis};
    switch (below(4)) {
      case 0:
        return drag(screens.moniaktina());
      case 1:
        return m.Command1.click();
      default:
        return slide(*bars[below(4)]);
    }
  }
  void workAtSahl() {
    SahlControls& s = screens.ElSahl().controls();
    switch (below(8)) {
      case 0:
        return s.kymataYESNO.click();
      case 1:
        return s.onlyrays.click();
      case 2:
        return s.kymatikosahl.trigger();
      case 3:
        boxes.answer = QString::number(below(60) - 30);
        return s.parallilidesmifotos.trigger();
      case 4:
        return s.BACKKELMO.trigger();
      default:
        return drag(screens.ElSahl());
    }
  }
  void workAtMenu() {
    MenuControls& m = screens.eisagogiko().controls();
    switch (below(4)) {
      case 0:
        return m.Command1.click();
      case 1:
        return m.Command2.click();
      case 2:
        return m.Command3.click();
      default:
        return slide(m.deiktissahl);
    }
  }
  void work() {
    for (;;) {
      const int where = below(4);
      if (where == 0 && bench.isVisible()) return workAtBench();
      if (where == 1 && screens.moniaktina().isVisible()) return workAtRay();
      if (where == 2 && screens.ElSahl().isVisible()) return workAtSahl();
      if (where == 3 && screens.eisagogiko().isVisible()) return workAtMenu();
    }
  }
  std::mt19937 random_{GetParam()};
};

TEST_P(AnyWork, ComesBackStepByStepAndIsDoneAgain) {
  bench.Show();
  std::vector<Record> records{record()};
  for (int i = 0; i < 60; ++i) {
    if (below(15) == 0) screens.toggleFollow();
    work();
    QApplication::processEvents();
    const ProgramState now = screens.state();
    if (sameButForFronts(now, records.back().state)) {
      records.back() = record();
    } else {
      records.push_back(record());
    }
    if (below(3) == 0 && tick()) records.back() = record();
  }
  ASSERT_GT(records.size(), 25u);
  const bool follow = shared.follow;
  boxes.messages.clear();
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = records.size() - 1; i-- > 0;) {
      screens.undo();
      QApplication::processEvents();
      const Record now = record();
      ASSERT_TRUE(now.state == records[i].state) << "back to " << i << " of " << records.size()
                                                 << whatDiffers(now.state, records[i].state);
      ASSERT_TRUE(now.pictures == records[i].pictures) << "back to " << i;
      ASSERT_TRUE(showsItsValue(bench));
      ASSERT_FALSE(tick());
    }
    screens.undo();
    ASSERT_TRUE(screens.state() == records.front().state);
    for (std::size_t i = 1; i < records.size(); ++i) {
      screens.redo();
      QApplication::processEvents();
      const Record now = record();
      ASSERT_TRUE(now.state == records[i].state) << "again to " << i << " of " << records.size()
                                                 << whatDiffers(now.state, records[i].state);
      ASSERT_TRUE(now.pictures == records[i].pictures) << "again to " << i;
    }
    screens.redo();
    ASSERT_TRUE(screens.state() == records.back().state);
  }
  EXPECT_TRUE(boxes.messages.isEmpty());
  EXPECT_EQ(shared.follow, follow);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyWork, ::testing::Range(1u, 7u));

}  // namespace
}  // namespace lensbench
