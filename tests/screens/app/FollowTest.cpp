// Following: every change repeats what stands on the picture, as if it were cleared and the same
// light were sent again.
#include <random>

#include "tests/screens/app/Hand.h"

namespace lensbench {
namespace {

using poreiaaktinon::Desmi;
using poreiaaktinon::Fan;
using poreiaaktinon::Fronts;
using poreiaaktinon::LensScene;
using poreiaaktinon::Light;
using poreiaaktinon::WaveScene;

class Follow : public HandTest {
 protected:
  Follow() { openDiaphragm(); }

  // What only waves, entries, boxes and modes hold.
  std::vector<int> modes() {
    return {c.Timer1.Enabled(),  c.Timer1.Interval(),        c.Timer2.Enabled(),
            c.Timer2.Interval(), c.kymatachronika.Checked(), c.parallilakymata.Checked(),
            c.Check1.Value(),    c.Check2.Value(),           shared.desmiMode};
  }
  std::vector<int> clockStarts() {
    std::vector<int> starts;
    for (const HandTicks* ticks : program.clock.made) starts.push_back(ticks->starts);
    return starts;
  }
  // The scene with these rays through the bench as it is now, sent by hand.
  poreiaaktinon::Shown byHand(const poreiaaktinon::Rays& rays) {
    return {{LensScene{bench.fakos(), bench.n(), bench.pigi()},
             Light{poreiaaktinon::send(bench.bench(), rays, light::edgesOf(bench.canvas())),
                   bench.provoli()}}};
  }
  ::testing::AssertionResult shows(const poreiaaktinon::Shown& expected) {
    if (!(bench.shown() == expected)) return ::testing::AssertionFailure() << "another value";
    const QImage picture = bench.image().copy();
    if (picture != pictureOf(bench, expected)) {
      return ::testing::AssertionFailure() << "another picture";
    }
    return ::testing::AssertionSuccess();
  }
  Fan fan() { return {bench.pigi(), bench.vima()}; }

  KelmoControls& c = bench.controls();
};

TEST_F(Follow, IsOffAtStartAndThenAChangeLeavesTheLensAlone) {
  click(bench, outside, true);
  c.aktina1.Value(180);
  EXPECT_EQ(bench.shown().layers.size(), 1u);
}

TEST_F(Follow, SaysInEachTitleThatItIsOn) {
  const QString title = bench.windowTitle();
  EXPECT_EQ(title, "SPHERICAL  LENSES");
  screens.toggleFollow();
  for (const Form* form : {static_cast<Form*>(&bench), static_cast<Form*>(&screens.moniaktina()),
                           static_cast<Form*>(&screens.ElSahl())}) {
    EXPECT_TRUE(form->windowTitle().startsWith(form->Caption()));
    EXPECT_TRUE(form->windowTitle().endsWith("η εικόνα ακολουθεί · the picture follows"));
  }
  EXPECT_EQ(bench.Caption(), title);
  EXPECT_EQ(screens.eisagogiko().windowTitle(), "CHOOSE  LENS");
  screens.toggleFollow();
  EXPECT_EQ(bench.windowTitle(), title);
}

TEST_F(Follow, RepeatsAFanForEachBarLikeAFanSentByHand) {
  click(bench, outside, true);
  screens.toggleFollow();
  std::mt19937 random(7);
  ScrollBar* const bars[] = {&c.aktina1,   &c.aktina2,          &c.kentrokykloy, &c.kentrokykloy2,
                             &c.desmi1,    &c.HScroll1,         &c.VScroll1,     &c.VScroll2,
                             &c.arvimaton, &c.deiktisdiathlasis};
  const auto before = modes();
  const auto starts = clockStarts();
  for (int i = 0; i < 120; ++i) {
    ScrollBar& bar = *bars[random() % 10];
    bar.Value(bar.Min() +
              static_cast<int>(random() % static_cast<unsigned>(bar.Max() - bar.Min() + 1)));
    ASSERT_TRUE(shows(byHand(fan()))) << bar.objectName().toStdString() << ' ' << bar.Value();
    ASSERT_EQ(bench.set().has_value(), poreiaaktinon::rayCount(bench.vima()) <= 1501);
  }
  EXPECT_EQ(modes(), before);
  EXPECT_EQ(clockStarts(), starts);
}

TEST_F(Follow, RepeatsABundleAtItsAngleAndWithTheBoxes) {
  sendBundle("25");
  screens.toggleFollow();
  const auto starts = clockStarts();
  const double angle = bench.gonia.value();
  c.aktina2.Value(160);
  EXPECT_TRUE(shows(byHand(Desmi{angle, 20})));
  c.deiktisdiathlasis.Value(180);
  EXPECT_TRUE(shows(byHand(Desmi{angle, 20})));
  c.Check1.click();
  EXPECT_TRUE(shows(byHand(Desmi{angle, 140})));
  EXPECT_TRUE(bench.provoli().waves);
  c.Check2.click();
  EXPECT_TRUE(shows(byHand(Desmi{angle, 100})));
  EXPECT_FALSE(bench.provoli().rays);
  EXPECT_EQ(clockStarts(), starts);
  EXPECT_TRUE(c.parallilakymata.Checked());
  ASSERT_TRUE(bench.set());
  EXPECT_TRUE(*bench.set() == std::get<Light>(bench.shown().layers[1]).sent);
}

TEST_F(Follow, TracesWhatItSharesOnce) {
  click(bench, outside, true);
  screens.toggleFollow();
  c.aktina1.Value(170);
  EXPECT_EQ(bench.set()->paths, std::get<Light>(bench.shown().layers[1]).sent.paths);
  const auto paths = bench.set()->paths;
  bench.repeat();
  EXPECT_EQ(bench.set()->paths, paths);
}

TEST_F(Follow, LetsARunGoOnWithTheNewValues) {
  c.kymatachronika.trigger();
  screens.toggleFollow();
  for (int i = 0; i < 50; ++i) tick();
  const auto before = modes();
  const auto starts = clockStarts();
  c.desmi1.Value(60);
  c.aktina1.Value(140);
  const auto* fronts = std::get_if<Fronts>(&bench.shown().layers.back());
  ASSERT_NE(fronts, nullptr);
  EXPECT_EQ(fronts->step, 50);
  EXPECT_EQ(static_cast<int>(fronts->sent.paths->size()), poreiaaktinon::rayCount(bench.vima()));
  EXPECT_EQ(fronts->sent.bench, bench.bench());
  EXPECT_EQ(modes(), before);
  EXPECT_EQ(clockStarts(), starts);
  EXPECT_TRUE(showsItsValue(bench));
  ASSERT_TRUE(tick());
  EXPECT_EQ(std::get<Fronts>(bench.shown().layers.back()).step, 51);
}

TEST_F(Follow, KeepsTheNumberOfRaysOfARunThatHasNoRoomForMore) {
  c.kymatachronika.trigger();
  screens.toggleFollow();
  tick();
  const std::size_t rays = bench.set()->paths->size();
  c.desmi1.Value(150);
  c.arvimaton.Value(5);
  ASSERT_GT(poreiaaktinon::rayCount(bench.vima()), 1501);
  EXPECT_LE(bench.set()->paths->size(), 1501u);
  EXPECT_GE(bench.set()->paths->size(), rays);
  EXPECT_TRUE(tick());
}

TEST_F(Follow, GoesWithADraggedBladeAndComesBackWhenTheDragIsLost) {
  click(bench, outside, true);
  screens.toggleFollow();
  const auto before = bench.shown();
  const poreiaaktinon::Diafragma open = bench.diafragma();
  press(bench, {open.X, open.yA});
  EXPECT_TRUE(bench.shown() == before);
  for (double y = 150.0; y > 10.0; y -= 15.0) {
    moveTo(bench, {-60.0, y});
    ASSERT_NEAR(bench.diafragma().yA, y, 1e-9);
    ASSERT_TRUE(shows(byHand(fan())));
  }
  loseRelease(bench);
  EXPECT_EQ(bench.diafragma(), open);
  EXPECT_TRUE(shows(before));
}

TEST_F(Follow, GoesWithADraggedCentreAndEdge) {
  click(bench, outside, true);
  screens.toggleFollow();
  press(bench, {bench.xc1(), 0.0});
  moveTo(bench, {-80.0, 3.0});
  EXPECT_EQ(std::get<LensScene>(bench.shown().layers[0]).fakos.xc1, -80.0);
  EXPECT_EQ(bench.xc1(), -50.0);
  release(bench, {-80.0, 3.0});
  EXPECT_EQ(bench.xc1(), -80.0);
  EXPECT_TRUE(shows(byHand(fan())));
  press(bench, {bench.xc2() + bench.R2(), 0.0});
  moveTo(bench, {bench.xc2() + bench.R2() + 30.5, 0.0});
  EXPECT_EQ(std::get<Light>(bench.shown().layers[1]).sent.bench.fakos.R2, 120.0);
  loseRelease(bench);
  EXPECT_EQ(bench.R2(), 90.0);
  EXPECT_TRUE(shows(byHand(fan())));
}

TEST_F(Follow, LeavesThePictureToAPressOnNothing) {
  click(bench, outside, true);
  screens.toggleFollow();
  click(bench, {150.0, 90.0});
  c.aktina1.Value(180);
  EXPECT_EQ(bench.shown().layers.size(), 1u);
}

TEST_F(Follow, OnceRepeatsWhatAChangeHasWiped) {
  click(bench, outside, true);
  const Fan sent = fan();
  c.aktina1.Value(180);
  c.deiktisdiathlasis.Value(200);
  ASSERT_EQ(bench.shown().layers.size(), 1u);
  bench.repeat();
  EXPECT_TRUE(shows(byHand(sent)));
  EXPECT_FALSE(shared.follow);
}

TEST_F(Follow, SendsTheSingleRayAgain) {
  screens.openSingleRay();
  auto& screen = screens.moniaktina();
  const Point source{-180.0, 30.0};
  const Point aim{-20.0, 12.0};
  press(screen, source);
  release(screen, aim);
  screens.toggleFollow();
  screen.controls().aktina1.Value(170);
  screen.controls().deiktisdiathlasis.Value(190);
  const auto followed = screen.shown();
  ASSERT_EQ(followed.layers.size(), 3u);
  const QImage picture = screen.image().copy();
  screens.toggleFollow();
  screen.controls().aktina1.Value(171);
  screen.controls().aktina1.Value(170);
  ASSERT_EQ(screen.shown().layers.size(), 1u);
  press(screen, source);
  release(screen, aim);
  EXPECT_TRUE(screen.shown() == followed);
  EXPECT_EQ(screen.image(), picture);
  screen.controls().aktina1.Value(171);
  screen.repeat();
  EXPECT_EQ(screen.shown().layers.size(), 3u);
}

TEST_F(Follow, RepeatsTheIbnSahlSceneForIndexOptionsAndEdges) {
  screens.openLensMenu();
  auto& menu = screens.eisagogiko().controls();
  menu.Command1.click();
  auto& sahl = screens.ElSahl();
  boxes.answer = "12";
  sahl.controls().parallilidesmifotos.trigger();
  const auto scene = [&] { return std::get<protosfakos::Scene>(sahl.shown().layers.at(0)); };
  protosfakos::Asked asked = scene().asked;
  ASSERT_TRUE(std::holds_alternative<protosfakos::Desmi>(asked.rays));
  screens.toggleFollow();
  const auto expected = [&] {
    const protosfakos::Shown shown{{protosfakos::sceneOf(asked)}};
    const QImage picture = sahl.image().copy();
    return sahl.shown() == shown && picture == pictureOf(sahl, shown);
  };
  menu.deiktissahl.Value(210);
  asked.deiktisSahl = 2.1;
  EXPECT_TRUE(expected());
  sahl.controls().onlyrays.click();
  asked.onlyRays = true;
  EXPECT_TRUE(expected());
  sahl.controls().kymataYESNO.click();
  asked.onlyRays = false;
  asked.onlyWaves = true;
  EXPECT_TRUE(expected());
  sahl.controls().RAYSANDWAVES.click();
  asked.onlyWaves = false;
  press(sahl, {130.0, 60.0});
  moveTo(sahl, {118.0, 20.0});
  asked.diafragma = {118.0, 20.0, -10.0};
  EXPECT_EQ(sahl.diafragma(), asked.diafragma);
  EXPECT_TRUE(expected());
  release(sahl, {118.0, 20.0});
  EXPECT_TRUE(expected());
  EXPECT_TRUE(boxes.messages.isEmpty());
  // A hidden screen is left alone.
  sahl.Hide();
  menu.deiktissahl.Value(150);
  EXPECT_EQ(scene().asked.deiktisSahl, 2.1);
}

}  // namespace
}  // namespace lensbench
