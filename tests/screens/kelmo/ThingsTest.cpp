// What can be taken on the workbench: pointer, halo, tool tip and press agree; keys and fingers
// take the same.
#include <map>
#include <random>

#include <QTest>

#include "tests/screens/kelmo/KelmoTest.h"
#include "tests/screens/support/Pointing.h"

namespace lensbench {
namespace {

class ThingsTest : public KelmoTest {
 protected:
  double between(double lowest, double highest) {
    return std::uniform_real_distribution<double>(lowest, highest)(random_);
  }
  int whole(int lowest, int highest) {
    return std::uniform_int_distribution<int>(lowest, highest)(random_);
  }

  // Some lens, some open diaphragm, some source.
  void setUp() {
    c.aktina1.Value(whole(50, 300));
    c.aktina2.Value(whole(0, 300));
    c.kentrokykloy2.Value(whole(-150, -1));
    c.kentrokykloy.Value(whole(1, 150));
    c.deiktisdiathlasis.Value(whole(110, 250));
    c.HScroll1.Value(whole(-40, 40));
    c.VScroll1.Value(whole(-60, -10));
    c.VScroll2.Value(whole(10, 60));
    // In a narrower window it may be out of sight.
    const bool narrow = whole(0, 2) == 0;
    const Point source{narrow ? between(330.0, 380.0) : between(-380.0, 380.0),
                       between(-150.0, 150.0)};
    press(source.x, source.y, Qt::ShiftModifier);
    release(source.x, source.y);
    giveSize(narrow ? QSize(900, 800) : usualSize);
  }

  // Somewhere on the picture that no control covers, half of the times near a thing.
  Point somewhere() {
    for (;;) {
      const light::Edges e = edges();
      Point p{between(e.left, e.right), between(e.lower, e.upper)};
      if (whole(0, 1) == 0) {
        const auto things = screen.things();
        const Thing& thing = things[static_cast<std::size_t>(whole(0, 7))];
        const QRectF around = thing.outline.boundingRect().adjusted(-9.0, -9.0, 9.0, 9.0);
        p = screen.canvas().mapping().toUser(
            {between(around.left(), around.right()), between(around.top(), around.bottom())});
      }
      const QPoint pixel = pixelOf(screen, p).toPoint();
      if (!screen.drawingArea()->rect().contains(pixel)) continue;
      if (screen.drawingArea()->childAt(pixel) == nullptr) return p;
    }
  }

  // What a press takes, as a drag to a place between the blades shows it.
  Grab seenTaken(Point p) {
    const poreiaaktinon::Diafragma before = blades();
    const Point source = screen.pigi();
    press(p.x, p.y);
    drag(p.x + 9.0, before.yB + 0.75 * (before.yA - before.yB));
    if (c.Shape1.Visible()) return Grab::LeftCentre;
    if (c.Shape2.Visible()) return Grab::RightCentre;
    if (c.draggedEdge.Visible()) {
      const double middle = c.draggedEdge.Left() + c.draggedEdge.Width() / 2.0;
      return middle == screen.xc1() ? Grab::LeftEdge : Grab::RightEdge;
    }
    if (blades().yA != before.yA) return Grab::UpperBlade;
    if (blades().yB != before.yB) return Grab::LowerBlade;
    if (blades().X != before.X) return Grab::Diaphragm;
    if (screen.xpigi() != source.x || screen.ypigi() != source.y) return Grab::Source;
    return Grab::None;
  }

 private:
  std::mt19937 random_{20240607};
};

TEST_F(ThingsTest, PointerHaloAndTipSayWhatAPressTakesAndLeavingThatPutsAllBack) {
  std::map<Grab, int> seen;
  for (int bench = 0; bench < 120; ++bench) {
    setUp();
    for (int i = 0; i < 40; ++i) {
      const Point p = somewhere();
      EXPECT_TRUE(tellsWhatIsTaken(screen, p)) << p.x << ", " << p.y;
      const KelmoState before = screen.state();
      const int taken = screen.takenAt(p).value_or(static_cast<int>(Grab::None));
      const Grab grab = seenTaken(p);
      EXPECT_EQ(taken, static_cast<int>(grab)) << p.x << ", " << p.y;
      EXPECT_FALSE(haloOf(screen).Visible());
      EXPECT_TRUE(screen.leaveDrag());
      EXPECT_FALSE(screen.leaveDrag());
      EXPECT_TRUE(screen.state() == before);
      release(p.x, p.y);
      EXPECT_TRUE(screen.state() == before) << "a drag that was left is let go without effect";
      ++seen[grab];
    }
  }
  for (const Grab grab : {Grab::None, Grab::UpperBlade, Grab::LowerBlade, Grab::Diaphragm,
                          Grab::LeftCentre, Grab::RightCentre, Grab::LeftEdge, Grab::RightEdge}) {
    EXPECT_GT(seen[grab], 10) << static_cast<int>(grab);
  }
  EXPECT_GT(seen[Grab::Source], 0);
}

TEST_F(ThingsTest, WhatIsPutIsAsTheMouseLetsItGo) {
  int compared = 0;
  for (int bench = 0; bench < 25; ++bench) {
    setUp();
    for (const Thing& thing : screen.things()) {
      if (screen.takenAt(asTold(screen, thing.at)) != thing.id) continue;
      const Point to{thing.at.x + between(-60.0, 60.0), thing.at.y + between(-60.0, 60.0)};
      const KelmoState before = screen.state();
      dragFromTo(thing.at, to);
      const KelmoState dragged = screen.state();
      screen.restore(before);
      screen.put(thing.id, asTold(screen, to));
      EXPECT_TRUE(screen.state() == dragged) << thing.name.toStdString();
      screen.restore(before);
      ++compared;
    }
  }
  EXPECT_GT(compared, 100);
}

TEST_F(ThingsTest, EnterAtTheSourceSendsTheFanAsShiftAndAPressDo) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  const KelmoState sent = screen.state();
  press(-300.0, -100.0);
  release(-300.0, -100.0);
  ASSERT_FALSE(screen.state() == sent);
  screen.enter(static_cast<int>(Grab::Source));
  EXPECT_TRUE(screen.shown() == sent.standing.shown);
  screen.enter(static_cast<int>(Grab::UpperBlade));
  EXPECT_TRUE(screen.shown() == sent.standing.shown);
}

TEST_F(ThingsTest, TheHaloFollowsAndGoesWithThePointer) {
  openDiaphragm();
  const Overlay& halo = haloOf(screen);
  EXPECT_FALSE(halo.InPicture());
  const QImage bare = picture();
  pointAt(screen, {screen.xc1(), 0.0});
  ASSERT_TRUE(halo.Visible());
  EXPECT_EQ(picture(), bare) << "the picture itself does not change";
  const QRectF before = halo.bounds();
  // What moves under a resting pointer takes the halo along, or loses it.
  c.kentrokykloy2.Value(c.kentrokykloy2.Value() + 2);
  QApplication::processEvents();
  ASSERT_TRUE(halo.Visible());
  EXPECT_EQ(halo.bounds(), before.translated(4.0, 0.0));
  c.kentrokykloy2.Value(c.kentrokykloy2.Value() - 30);
  QApplication::processEvents();
  EXPECT_FALSE(halo.Visible());
  EXPECT_EQ(pointerOf(screen), Qt::ArrowCursor);
  pointAt(screen, {screen.xc1(), 0.0});
  EXPECT_TRUE(halo.Visible());
  EXPECT_EQ(pointerOf(screen), Qt::SizeHorCursor);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(screen.drawingArea(), &leave);
  EXPECT_FALSE(halo.Visible());
  // A control that stands on the picture is no part of it.
  pointAt(screen, {screen.xc1(), 0.0});
  QEnterEvent enter({1.0, 1.0}, {1.0, 1.0}, {1.0, 1.0});
  QApplication::sendEvent(&c.aktina1, &enter);
  EXPECT_FALSE(halo.Visible());
}

TEST_F(ThingsTest, ATipNamesWhatThePointerRestsOnAndGoesWhenItLeaves) {
  EXPECT_TRUE(restAt(screen, {300.0, 60.0}).startsWith("F1: βοήθεια"));
  EXPECT_TRUE(restAt(screen, {-200.0, 0.0}).startsWith("Φωτεινή πηγή στο (-200, 0)"));
  const QString blade = restAt(screen, {0.0, 100.0});
  EXPECT_TRUE(blade.contains("Upper blade: its end at (0, 0), opening 0.")) << blade.toStdString();
  EXPECT_TRUE(QToolTip::isVisible());
  pointAt(screen, {1.0, 101.0});
  EXPECT_EQ(QToolTip::text(), blade) << "still on it";
  pointAt(screen, {300.0, 60.0});
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 3000));
  // Where a ray ends on a blade both are named.
  press(-200.0, 50.0, Qt::ShiftModifier);
  release(-200.0, 50.0);
  const auto& light = std::get<poreiaaktinon::Light>(screen.shown().layers.back());
  int stopped = 0;
  for (const light::RayPath& path : *light.sent.paths) {
    if (path.ending != light::Ending::Diaphragm || std::abs(path.end().y) > 100.0) continue;
    const QString tip = restAt(screen, path.end());
    EXPECT_TRUE(tip.contains("blade: its end at")) << tip.toStdString();
    EXPECT_TRUE(tip.contains("stopped by the diaphragm")) << tip.toStdString();
    ++stopped;
  }
  EXPECT_GT(stopped, 2);
}

TEST_F(ThingsTest, WhatStandsInTheOpeningIsNamedBesideTheDiaphragm) {
  openDiaphragm();
  const QString centre = screen.tipAt({screen.xc1(), 0.0});
  EXPECT_EQ(centre.count('\n'), 1) << centre.toStdString();
  // The bar moves the diaphragm through the left centre, which is within its reach then.
  c.HScroll1.Value(-12);
  ASSERT_EQ(screen.takenAt({screen.xc1(), 0.0}), static_cast<int>(Grab::Diaphragm));
  const QString tip = screen.tipAt({screen.xc1(), 0.0});
  EXPECT_TRUE(tip.contains("Diaphragm at x = -48")) << tip.toStdString();
  EXPECT_TRUE(tip.contains("centre of the left circle")) << tip.toStdString();
}

TEST_F(ThingsTest, AFingerTakesAndDragsWhatItComesNearTo) {
  // The toolkit keeps it in its list of devices for good.
  static QPointingDevice* const finger = QTest::createTouchDevice();
  openDiaphragm();
  const poreiaaktinon::Diafragma before = blades();
  QWidget* const area = screen.drawingArea();
  // Beyond the band in which the mouse takes the diaphragm, which is 800/120 units to each side.
  const QPoint beside = pixelOf(screen, {before.X + 12.0, 20.0}).toPoint();
  ASSERT_FALSE(screen.takenAt({before.X + 12.0, 20.0}));
  QTest::touchEvent(area, finger).press(0, beside, area);
  QTest::touchEvent(area, finger).move(0, beside + QPoint(60, 0), area);
  QTest::touchEvent(area, finger).move(0, beside + QPoint(120, 0), area);
  QTest::touchEvent(area, finger).release(0, beside + QPoint(120, 0), area);
  EXPECT_NEAR(blades().X, before.X + 60.0, 6.7);
  EXPECT_EQ(blades().yA, before.yA);
  // The mouse there takes nothing.
  const poreiaaktinon::Diafragma after = blades();
  dragFromTo({after.X + 12.0, 20.0}, {after.X + 72.0, 20.0});
  EXPECT_EQ(blades(), after);
}

}  // namespace
}  // namespace lensbench
