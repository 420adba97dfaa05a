#include "tests/screens/kelmo/KelmoTest.h"

#include <sstream>

#include <QApplication>
#include <QLocale>
#include <QMouseEvent>
#include <QTest>

#include "optics/poreiaaktinon/RayDrawing.h"
#include "tests/screens/support/PictureOf.h"

namespace lensbench {

KelmoTest::KelmoTest() {
  QLocale::setDefault(QLocale::c());
  screen.canvas().setOversampling(1);
  screen.setWindowState(Qt::WindowNoState);
  screen.show();
  // A window that has become an ordinary one is fitted to the display a moment later.
  QTest::qWait(130);
  giveSize(usualSize);
  // Larger than the display, but not out of its reach: it is not fitted to it when it comes back.
  screen.move(-usualSize.width() / 4, 0);
}

void KelmoTest::giveSize(QSize client) {
  screen.resize(screen.size() + client - screen.drawingArea()->size());
  QApplication::processEvents();
}

void KelmoTest::send(QEvent::Type type, double x, double y, Qt::MouseButton button,
                     Qt::KeyboardModifiers keys) {
  const Point pixel = screen.canvas().mapping().toPixel({x, y});
  const QPointF local(pixel.x, pixel.y);
  QWidget* const area = screen.drawingArea();
  QMouseEvent event(type, local, area->mapToGlobal(local), button, held_, keys);
  QApplication::sendEvent(area, &event);
}

void KelmoTest::press(double x, double y, Qt::KeyboardModifiers keys, Qt::MouseButton button) {
  held_ |= button;
  send(QEvent::MouseButtonPress, x, y, button, keys);
}

void KelmoTest::drag(double x, double y) { send(QEvent::MouseMove, x, y, Qt::NoButton); }

void KelmoTest::release(double x, double y, Qt::MouseButton button) {
  held_ &= ~button;
  send(QEvent::MouseButtonRelease, x, y, button);
}

void KelmoTest::dragFromTo(Point from, Point to) {
  press(from.x, from.y);
  drag(to.x, to.y);
  release(to.x, to.y);
}

const HandTicks& KelmoTest::clockOf(const Timer& timer) const {
  return *program.clock.made.at(&timer == &c.Timer1 ? 0 : 1);
}

bool KelmoTest::tick(const Timer& timer) {
  const HandTicks& clock = clockOf(timer);
  if (!clock.running) return false;
  clock.onTick();
  return true;
}

int KelmoTest::ticks(const Timer& timer, int count) {
  int done = 0;
  while (done < count && tick(timer)) ++done;
  return done;
}

void KelmoTest::openDiaphragm() {
  c.VScroll1.Value(-100);
  c.VScroll2.Value(100);
}

void KelmoTest::sendBundle(const QString& angle) {
  dialogs.answer = angle;
  c.EPANALIPSI.trigger();
}

QImage KelmoTest::drawn(const poreiaaktinon::Shown& shown,
                        const std::function<void(Canvas&)>& over) {
  const auto canvas = canvasLike(screen.canvas());
  draw(*canvas, shown);
  if (over) over(*canvas);
  return canvas->image();
}

void KelmoTest::drawRay(Canvas& canvas, Point start, Point direction,
                        poreiaaktinon::Provoli provoli, double phase) {
  const auto sent =
      poreiaaktinon::send(screen.bench(), poreiaaktinon::SingleRay{start, direction}, edges());
  light::RayPath path = sent.paths->front();
  path.phase = phase;
  if (provoli.rays) poreiaaktinon::drawPath(canvas, path);
  if (provoli.waves) poreiaaktinon::drawWavePoints(canvas, path);
}

poreiaaktinon::Shown KelmoTest::sceneAlone() {
  return {{poreiaaktinon::LensScene{screen.fakos(), screen.n(), screen.pigi()}}};
}

::testing::AssertionResult KelmoTest::showsSceneOnly() {
  if (!(screen.shown() == sceneAlone())) return ::testing::AssertionFailure() << "other layers";
  return samePicture(picture(), drawn(sceneAlone()));
}

const std::vector<light::RayPath>& KelmoTest::set() {
  static const std::vector<light::RayPath> none;
  return screen.set() ? *screen.set()->paths : none;
}

Rgb KelmoTest::pixelAt(double x, double y) {
  const Point p = screen.canvas().mapping().toPixel({x, y});
  const QColor colour = screen.image().pixelColor(static_cast<int>(p.x), static_cast<int>(p.y));
  return RGB(colour.red(), colour.green(), colour.blue());
}

std::vector<std::string> KelmoTest::state() {
  std::vector<std::string> lines;
  const auto note = [&lines](const auto&... parts) {
    std::ostringstream line;
    line.precision(17);
    ((line << parts << ' '), ...);
    lines.push_back(line.str());
  };
  for (const ScrollBar* bar :
       {&c.aktina1, &c.aktina2, &c.kentrokykloy, &c.kentrokykloy2, &c.deiktisdiathlasis, &c.desmi1,
        &c.arvimaton, &c.HScroll1, &c.VScroll1, &c.VScroll2}) {
    note(bar->objectName().toStdString(), bar->Value());
  }
  for (const TextBox* box :
       {&c.Text1, &c.Text2, &c.Text3, &c.Text4, &c.Text5, &c.Text6, &c.Text7}) {
    note(box->objectName().toStdString(), box->Text().toStdString(), box->FontName().toStdString());
  }
  note("Label3", c.Label3.Caption().toStdString());
  note("checks", c.Check1.Value(), c.Check2.Value());
  for (const LineControl* blade : {&c.Line1, &c.Line2}) {
    note(blade->objectName().toStdString(), blade->X1(), blade->Y1(), blade->X2(), blade->Y2(),
         blade->BorderColor().value, blade->BorderWidth());
  }
  for (const Shape* shape :
       std::initializer_list<const Shape*>{&c.pigi, &c.Shape1, &c.Shape2, &c.draggedEdge,
                                           &c.upperBladeMark, &c.lowerBladeMark, &c.sourceMark}) {
    note(shape->objectName().toStdString(), shape->Visible());
    if (shape->Visible()) note(shape->Left(), shape->Top(), shape->Width(), shape->Height());
  }
  for (const Timer* timer : {&c.Timer1, &c.Timer2}) {
    note(timer->objectName().toStdString(), timer->Enabled(), timer->Interval(),
         clockOf(*timer).starts, clockOf(*timer).running);
  }
  for (const MenuEntry* entry : {&c.singleray, &c.EPANALIPSI, &c.SAHLIC, &c.parallilakymata,
                                 &c.kymatachronika, &c.TELIOMA}) {
    note(entry->objectName().toStdString(), entry->Checked(), entry->isEnabled());
  }
  note("gonia", screen.gonia.value(), screen.gonia.isEmpty());
  note("desmiMode", shared.desmiMode);
  note("set", set().size());
  note("layers", screen.shown().layers.size());
  return lines;
}

::testing::AssertionResult samePicture(const QImage& a, const QImage& b) {
  if (a == b) return ::testing::AssertionSuccess();
  if (a.size() != b.size()) return ::testing::AssertionFailure() << "the sizes differ";
  int differing = 0;
  QPoint first;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) == b.pixel(x, y)) continue;
      if (differing++ == 0) first = {x, y};
    }
  }
  return ::testing::AssertionFailure()
         << differing << " pixels differ, the first at (" << first.x() << ", " << first.y()
         << "): " << a.pixelColor(first).name().toStdString() << " against "
         << b.pixelColor(first).name().toStdString();
}

}  // namespace lensbench
