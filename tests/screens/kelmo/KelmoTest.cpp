#include "tests/screens/kelmo/KelmoTest.h"

#include <sstream>

#include <QApplication>
#include <QLocale>
#include <QMouseEvent>

#include "optics/protosfakos/SahlState.h"

namespace lensbench {

HandClocks::HandClocks() {
  useTickSources([this] {
    auto clock = std::make_unique<HandTicks>();
    made.push_back(clock.get());
    return clock;
  });
}

KelmoTest::KelmoTest() {
  QLocale::setDefault(QLocale::c());
  protosfakos::state().desmiMode = false;
  screen.canvas().setOversampling(1);
  screen.setWindowState(Qt::WindowNoState);
  screen.show();
  giveSize(usualSize);
}

KelmoTest::~KelmoTest() { poreiaaktinon::connectWorkbench({}); }

void KelmoTest::giveSize(QSize client) {
  screen.resize(screen.size() + client - screen.drawingArea()->size());
  QApplication::processEvents();
}

void KelmoTest::send(QEvent::Type type, double x, double y, Qt::MouseButton button,
                     Qt::MouseButtons held, Key key) {
  const Point pixel = screen.canvas().mapping().toPixel({x, y});
  const QPointF local(pixel.x, pixel.y);
  QWidget* const area = screen.drawingArea();
  QMouseEvent event(type, local, area->mapToGlobal(local), button, held,
                    key == Key::Shift ? Qt::ShiftModifier : Qt::NoModifier);
  QApplication::sendEvent(area, &event);
}

void KelmoTest::press(double x, double y, Key key, Qt::MouseButton button) {
  send(QEvent::MouseButtonPress, x, y, button, button, key);
}

void KelmoTest::drag(double x, double y, Qt::MouseButton button) {
  send(QEvent::MouseMove, x, y, Qt::NoButton, button, Key::None);
}

void KelmoTest::release(double x, double y, Qt::MouseButton button) {
  send(QEvent::MouseButtonRelease, x, y, button, Qt::NoButton, Key::None);
}

void KelmoTest::dragFromTo(Point from, Point to) {
  press(from.x, from.y);
  drag(to.x, to.y);
  release(to.x, to.y);
}

const HandTicks& KelmoTest::clockOf(const Timer& timer) const {
  return *clocks.made.at(&timer == &c.Timer1 ? 0 : 1);
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

QImage KelmoTest::freshScene() {
  screen.canvas().Cls();
  screen.arxinizo();
  return picture();
}

Rgb KelmoTest::pixelAt(double x, double y) {
  const Point p = screen.canvas().mapping().toPixel({x, y});
  const QColor colour =
      screen.canvas().image().pixelColor(static_cast<int>(p.x), static_cast<int>(p.y));
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
  for (const Shape* shape : {&c.pigi, &c.Shape1, &c.Shape2, &c.draggedEdge}) {
    note(shape->objectName().toStdString(), shape->Left(), shape->Top(), shape->Width(),
         shape->Height(), shape->Visible());
  }
  for (const Timer* timer : {&c.Timer1, &c.Timer2}) {
    note(timer->objectName().toStdString(), timer->Enabled(), timer->Interval(),
         clockOf(*timer).starts, clockOf(*timer).running);
  }
  for (const MenuEntry* entry : {&c.singleray, &c.EPANALIPSI, &c.SAHLIC, &c.parallilakymata,
                                 &c.kymatachronika, &c.TELIOMA}) {
    note(entry->objectName().toStdString(), entry->Checked(), entry->isEnabled());
  }
  for (const Variant& v : {screen.R1, screen.R2, screen.xc1, screen.xc2, screen.n, screen.vima,
                           screen.xpigi, screen.ypigi, screen.gonia}) {
    note("variable", v.value(), v.isEmpty());
  }
  note("desmiMode", protosfakos::state().desmiMode);
  note("set", screen.animation().set().rays.size());
  const Canvas& canvas = screen.canvas();
  note("pen", canvas.DrawWidth(), static_cast<int>(canvas.DrawStyle()),
       static_cast<int>(canvas.FillStyle()), canvas.FillColor().value, canvas.FontName(),
       canvas.FontSize(), canvas.CurrentX(), canvas.CurrentY());
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
