// A fan that follows the mouse while its press is held: at the release all is as after a press
// there.
#include <random>

#include "tests/screens/app/Hand.h"

namespace lensbench {
namespace {

class LiveSource : public HandTest {
 protected:
  LiveSource() { openDiaphragm(); }

  // The program after a drag from one point over others, or after a press at the last alone.
  struct After {
    ProgramState state;
    QImage picture;
    std::vector<int> timers;
  };
  After after(Form& form) {
    return {screens.state(),
            form.image().copy(),
            {c.Timer1.Enabled(), c.Timer1.Interval(), c.Timer2.Enabled(), c.Timer2.Interval()}};
  }
  void expectSame(const After& a, const After& b) {
    EXPECT_TRUE(a.state == b.state);
    EXPECT_EQ(a.picture, b.picture);
    EXPECT_EQ(a.timers, b.timers);
  }
  KelmoControls& c = bench.controls();
};

TEST_F(LiveSource, LeavesAtItsReleaseWhatAPressThereLeaves) {
  std::mt19937 random(3);
  const auto point = [&] {
    return Point{static_cast<double>(random() % 400) - 200.0 + 0.5,
                 static_cast<double>(random() % 200) - 100.0 + 0.25};
  };
  const auto sends = [&](Point p) {
    return !insideLens(p, bench.fakos()) &&
           grabAt(p, bench.diafragma(), bench.fakos(), light::edgesOf(bench.canvas())) ==
               Grab::None &&
           isOnPicture(bench, p);
  };
  int dragged = 0;
  for (int i = 0; i < 40; ++i) {
    if (i % 4 == 0) c.Check2.click();
    if (i % 5 == 0) c.parallilakymata.trigger();
    if (i % 7 == 0) sendBundle("10");
    const ProgramState start = screens.state();
    const auto timers = after(bench).timers;
    Point last = outside;
    press(bench, outside, true);
    for (int k = 0; k < 5; ++k) {
      const Point p = point();
      moveTo(bench, p, true);
      if (sends(p)) last = p;
      ASSERT_NEAR(bench.pigi().x, last.x, 1e-9);
      ASSERT_NEAR(bench.pigi().y, last.y, 1e-9);
    }
    release(bench, last, true);
    dragged += last.x != outside.x;
    const After live = after(bench);
    // The same start, with the timers as they were.
    screens.restore(start);
    c.Timer1.Enabled(timers[0] != 0);
    c.Timer1.Interval(timers[1]);
    c.Timer2.Enabled(timers[2] != 0);
    c.Timer2.Interval(timers[3]);
    click(bench, last, true);
    expectSame(live, after(bench));
  }
  EXPECT_GT(dragged, 30);
}

TEST_F(LiveSource, NeedsMoreThanTheDragDistanceAndTheShiftKey) {
  press(bench, outside, true);
  const Point pixel = bench.canvas().mapping().toPixel(outside);
  const int distance = QApplication::startDragDistance();
  const Point near = bench.canvas().mapping().toUser({pixel.x + distance, pixel.y});
  const Point far = bench.canvas().mapping().toUser({pixel.x + distance + 1, pixel.y});
  moveTo(bench, near, true);
  EXPECT_NEAR(bench.pigi().x, outside.x, 1e-9);
  moveTo(bench, far, false);
  EXPECT_NEAR(bench.pigi().x, outside.x, 1e-9);
  moveTo(bench, far, true);
  EXPECT_NEAR(bench.pigi().x, far.x, 1e-9);
  // Once on its way it stays so.
  moveTo(bench, outside, true);
  EXPECT_NEAR(bench.pigi().x, outside.x, 1e-9);
  moveTo(bench, far, false);
  release(bench, far, false);
  EXPECT_NEAR(bench.pigi().x, outside.x, 1e-9);
}

TEST_F(LiveSource, FollowsOnlyAFanThatThePressHasSent) {
  press(bench, {-10.0, 20.0}, true);
  moveTo(bench, outside, true);
  release(bench, outside, true);
  EXPECT_NEAR(bench.pigi().x, -200.0, 1e-9);
  press(bench, outside);
  moveTo(bench, {-120.0, 30.0}, true);
  release(bench, {-120.0, 30.0}, true);
  EXPECT_NEAR(bench.pigi().x, -200.0, 1e-9);
}

TEST_F(LiveSource, PutsEverythingBackWhenItIsLost) {
  sendBundle("15");
  c.parallilakymata.trigger();
  for (int i = 0; i < 20; ++i) tick();
  const ProgramState start = screens.state();
  const After before = after(bench);
  press(bench, outside, true);
  moveTo(bench, {-120.0, 60.0}, true);
  ASSERT_NEAR(bench.pigi().x, -120.0, 1e-9);
  loseRelease(bench);
  expectSame(before, after(bench));
  EXPECT_TRUE(shared.desmiMode);
  EXPECT_TRUE(screens.state() == start);
  EXPECT_TRUE(tick());
  // Without a drag the fan of the press stays.
  press(bench, outside, true);
  loseRelease(bench);
  EXPECT_NEAR(bench.pigi().x, outside.x, 1e-9);
  EXPECT_EQ(bench.shown().layers.size(), 2u);
}

TEST_F(LiveSource, IsOneStepOfTheHistory) {
  const ProgramState start = screens.state();
  press(bench, outside, true);
  for (int i = 0; i < 10; ++i) moveTo(bench, {-150.0 - 3.0 * i, 60.0}, true);
  release(bench, {-177.0, 60.0}, true);
  ASSERT_NEAR(bench.pigi().x, -177.0, 1e-9);
  screens.undo();
  EXPECT_TRUE(screens.state() == start);
}

TEST_F(LiveSource, FollowsOnTheIbnSahlScreenWithoutShift) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command2.click();
  auto& sahl = screens.ElSahl();
  sahl.controls().kymataYESNO.click();
  const ProgramState start = screens.state();
  const Shared modes = shared;
  press(sahl, {100.0, 20.0});
  moveTo(sahl, {90.0, -35.0});
  EXPECT_NEAR(shared.pigiX.value(), 90.0, 1e-9);
  // On an edge of the diaphragm a press would take it.
  moveTo(sahl, {130.0, 60.0});
  EXPECT_NEAR(shared.pigiX.value(), 90.0, 1e-9);
  moveTo(sahl, {-60.0, 15.0});
  release(sahl, {-60.0, 15.0});
  const After live = after(sahl);
  shared = modes;
  screens.restore(start);
  click(sahl, {-60.0, 15.0});
  expectSame(live, after(sahl));
  screens.restore(start);
  press(sahl, {100.0, 20.0});
  moveTo(sahl, {90.0, -35.0});
  loseRelease(sahl);
  EXPECT_TRUE(screens.state() == start);
  EXPECT_TRUE(showsItsValue(sahl));
}

}  // namespace
}  // namespace lensbench
