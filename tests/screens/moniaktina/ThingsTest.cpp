// What can be placed on the single-ray screen, by mouse and otherwise.
#include <random>

#include "tests/screens/moniaktina/MoniaktinaTest.h"
#include "tests/screens/support/Pointing.h"

namespace lensbench {
namespace {

class SingleThingsTest : public MoniaktinaTest {
 protected:
  SingleThingsTest() {
    open();
    screen.show();
    QApplication::processEvents();
  }
  Point at(int thing) { return screen.things()[static_cast<std::size_t>(thing)].at; }
  void mouse(QEvent::Type type, Point p) {
    const QPointF pixel = pixelOf(screen, p);
    QWidget* const area = screen.drawingArea();
    const bool released = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, pixel, area->mapToGlobal(pixel), Qt::LeftButton,
                      released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &event);
  }
};

TEST_F(SingleThingsTest, APressPlacesTheSourceEverywhereSoNothingIsTaken) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> x(-300.0, 300.0);
  std::uniform_real_distribution<double> y(-180.0, 100.0);
  for (int i = 0; i < 60; ++i) {
    const Point p = i == 0 ? c.source() : Point{x(random), y(random)};
    EXPECT_TRUE(tellsWhatIsTaken(screen, p));
    EXPECT_FALSE(screen.takenAt(p));
    const MoniaktinaState before = screen.state();
    mouse(QEvent::MouseButtonPress, p);
    EXPECT_NEAR(at(moniaktina::Source).x, p.x, 1e-9);
    EXPECT_NEAR(at(moniaktina::Source).y, p.y, 1e-9);
    EXPECT_TRUE(screen.leaveDrag());
    EXPECT_FALSE(screen.leaveDrag());
    mouse(QEvent::MouseButtonRelease, {p.x + 30.0, p.y});
    EXPECT_TRUE(screen.state() == before);
    EXPECT_FALSE(c.aim.Visible());
  }
}

TEST_F(SingleThingsTest, SourceAndAimArePutAsTheMousePutsThem) {
  const Point source{-210.0, 40.0};
  const Point aim{15.0, -12.0};
  const MoniaktinaState before = screen.state();
  mouse(QEvent::MouseButtonPress, source);
  mouse(QEvent::MouseButtonRelease, aim);
  const MoniaktinaState byMouse = screen.state();
  screen.restore(before);
  screen.put(moniaktina::Source, at(moniaktina::Source));
  EXPECT_TRUE(screen.state() == before) << "where it stands it stays";
  screen.put(moniaktina::Source, byMouse.corner);
  EXPECT_TRUE(screen.shown() == before.shown) << "no ray without an aim";
  screen.put(moniaktina::Aim, *byMouse.aim);
  EXPECT_TRUE(screen.state() == byMouse);
  EXPECT_FALSE(c.aim.Visible());
  // The same ray once more.
  c.aktina1.Value(c.aktina1.Value() + 1);
  c.aktina1.Value(c.aktina1.Value() - 1);
  ASSERT_FALSE(screen.shown() == byMouse.shown);
  screen.enter(moniaktina::Source);
  EXPECT_TRUE(screen.shown() == byMouse.shown);
}

TEST_F(SingleThingsTest, ATipNamesTheSourceAndTheLawAndElsewhereTheHint) {
  const QString hint = screen.drawingArea()->toolTip();
  ASSERT_FALSE(hint.isEmpty());
  EXPECT_TRUE(screen.tipAt({300.0, -150.0}).startsWith(hint + "\nF1: "));
  mouse(QEvent::MouseButtonPress, {-210.0, 40.0});
  mouse(QEvent::MouseButtonRelease, {20.0, 30.0});
  EXPECT_TRUE(screen.tipAt(at(moniaktina::Source)).startsWith("Φωτεινή πηγή στο ("));
  const auto& ray = std::get<poreiaaktinon::single::Ray>(screen.shown().layers.back());
  const light::RayPath& path = ray.sent.paths->front();
  ASSERT_EQ(path.count, 3);
  for (const int face : {0, 1}) {
    const QString tip = screen.tipAt(path.pieces[static_cast<std::size_t>(face)].to);
    EXPECT_TRUE(tip.contains("n1")) << tip.toStdString();
  }
  EXPECT_TRUE(screen.tipAt({300.0, -150.0}).startsWith("F1: "));
}

}  // namespace
}  // namespace lensbench
