// What can be taken on the Ibn Sahl screen: pointer, halo, tool tip and press agree.
#include <random>

#include "tests/screens/ElSahl/ElSahlFixture.h"
#include "tests/screens/support/Pointing.h"

namespace lensbench {
namespace {

class ElSahlThingsTest : public ElSahlFixture {
 protected:
  double between(double lowest, double highest) {
    return std::uniform_real_distribution<double>(lowest, highest)(random_);
  }

  void mouse(QEvent::Type type, Point p) {
    const QPointF pixel = pixelOf(screen, p);
    QWidget* const area = screen.drawingArea();
    const bool released = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, pixel, area->mapToGlobal(pixel),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &event);
  }

 private:
  std::mt19937 random_{7};
};

TEST_F(ElSahlThingsTest, PointerHaloAndTipSayWhatAPressTakesAndLeavingThatPutsAllBack) {
  int edges = 0;
  int sources = 0;
  for (int i = 0; i < 400; ++i) {
    if (i % 40 == 0) {
      screen.strokesAt(between(-100.0, 130.0));
      screen.put(ElSahl::UpperEdge, {screen.diafragma().X, between(2.0, 60.0)});
      screen.put(ElSahl::Source, {between(60.0, 140.0), between(-60.0, 60.0)});
    }
    const double X = screen.diafragma().X;
    const Point p{i % 2 == 0 ? between(-118.0, 148.0) : between(X - 6.0, X + 6.0),
                  between(-115.0, 85.0)};
    EXPECT_TRUE(tellsWhatIsTaken(screen, p)) << p.x << ", " << p.y;
    EXPECT_EQ(screen.MousePointer(), screen.takenAt(p) ? 2 : 1);
    const auto taken = screen.takenAt(p);
    const SahlState before = screen.state();
    const double sourceBefore = shared.pigiX.value();
    mouse(QEvent::MouseButtonPress, p);
    EXPECT_EQ(screen.syromenigrammi1, taken == ElSahl::UpperEdge);
    EXPECT_EQ(screen.syromenigrammi2, taken == ElSahl::LowerEdge);
    EXPECT_NEAR(shared.pigiX.value(), taken ? sourceBefore : p.x, 1e-9);
    mouse(QEvent::MouseMove, {p.x + 7.0, p.y + 3.0});
    EXPECT_TRUE(screen.leaveDrag());
    EXPECT_FALSE(screen.leaveDrag());
    mouse(QEvent::MouseButtonRelease, {p.x + 7.0, p.y + 3.0});
    EXPECT_TRUE(screen.state() == before);
    EXPECT_EQ(shared.pigiX.value(), sourceBefore);
    ++(taken ? edges : sources);
  }
  EXPECT_GT(edges, 50);
  EXPECT_GT(sources, 50);
}

TEST_F(ElSahlThingsTest, WhatIsPutIsAsTheMouseLetsItGo) {
  for (int i = 0; i < 30; ++i) {
    screen.strokesAt(between(-60.0, 120.0));
    screen.drawFan();
    for (const Thing& thing : screen.things()) {
      const Point to{between(-110.0, 140.0), between(-110.0, 80.0)};
      // A press there would take an edge.
      if (thing.id == ElSahl::Source && screen.takenAt(to)) continue;
      const SahlState before = screen.state();
      const double outward = thing.id == ElSahl::UpperEdge ? 1.0 : -1.0;
      mouse(QEvent::MouseButtonPress,
            thing.id == ElSahl::Source ? to : Point{thing.at.x, thing.at.y + outward});
      mouse(QEvent::MouseMove, to);
      mouse(QEvent::MouseButtonRelease, to);
      const SahlState dragged = screen.state();
      screen.restore(before);
      screen.put(thing.id, asTold(screen, to));
      EXPECT_TRUE(screen.state() == dragged) << thing.name.toStdString();
      screen.restore(before);
    }
  }
}

TEST_F(ElSahlThingsTest, EnterAtTheSourceDrawsItsFan) {
  screen.drawFan();
  const protosfakos::Shown fan = screen.shown();
  t.dialogs.answer = "10";
  c.parallilidesmifotos.trigger();
  ASSERT_FALSE(screen.shown() == fan);
  screen.enter(ElSahl::Source);
  EXPECT_TRUE(screen.shown() == fan);
}

TEST_F(ElSahlThingsTest, TheLawIsToldWhereARayMeetsAFace) {
  screen.drawFan();
  const auto& paths = lastScene().traced->paths;
  int told = 0;
  for (const light::RayPath& path : paths) {
    if (path.count < 3) continue;
    const QString tip = screen.tipAt(path.pieces[0].to);
    EXPECT_TRUE(tip.contains("n1")) << tip.toStdString();
    ++told;
  }
  EXPECT_GT(told, 10);
}

}  // namespace
}  // namespace lensbench
