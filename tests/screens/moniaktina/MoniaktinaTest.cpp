#include "tests/screens/moniaktina/MoniaktinaTest.h"

#include <QCoreApplication>

#include "optics/poreiaaktinon/Tracing.h"
#include "screens/moniaktina/SingleRayPicture.h"

namespace lensbench {
namespace {

Rgb rgb(QRgb pixel) { return RGB(qRed(pixel), qGreen(pixel), qBlue(pixel)); }

}  // namespace

FakeWorkbench::FakeWorkbench() {
  poreiaaktinon::connectWorkbench([this]() -> poreiaaktinon::Workbench& { return *this; });
}

FakeWorkbench::~FakeWorkbench() { poreiaaktinon::connectWorkbench({}); }

void MoniaktinaTest::open() {
  screen.fitDisplay();
  screen.drawLens();
  screen.Show();
  QCoreApplication::processEvents();
}

QImage MoniaktinaTest::drawn(const std::function<void(Canvas&)>& drawing) {
  const RasterCanvas& real = screen.canvas();
  RasterCanvas other(real.size(), real.devicePixelRatio(), real.oversampling());
  if (real.hasUserScale()) {
    other.Scale(real.ScaleLeft(), real.ScaleTop(), real.ScaleLeft() + real.ScaleWidth(),
                real.ScaleTop() + real.ScaleHeight());
  }
  other.Cls();
  drawing(other);
  return other.image();
}

QImage MoniaktinaTest::lensPicture(const Lens& lens) {
  return drawn(
      [&](Canvas& canvas) { drawLensAlone(canvas, lens.R1, lens.R2, 0, lens.centre, lens.index); });
}

QImage MoniaktinaTest::rayPicture(const Lens& lens, double xa, double ya) {
  return drawn([&](Canvas& canvas) {
    // Points of the screen are Singles.
    const auto single = [](double v) { return static_cast<double>(static_cast<float>(v)); };
    const Point from{single(middleOfFos().x), single(middleOfFos().y)};
    const Point to{single(xa), single(ya)};
    canvas.Line(from.x, from.y, to.x, to.y);
    drawLensUnderRay(canvas, lens.R1, lens.R2, lens.centre, lens.index);
    poreiaaktinon::poreiamiasaktinas(canvas, from.x, from.y, single(to.x - from.x),
                                     single(to.y - from.y), 0, lens.centre, lens.R1, lens.R2,
                                     lens.index);
  });
}

Point MoniaktinaTest::middleOfFos() const {
  const Shape& fos = c.fos;
  return {fos.Left() + fos.Width() / 2.0, fos.Top() - fos.Height() / 2.0};
}

Rgb MoniaktinaTest::colourAt(Point user) {
  const RasterCanvas& canvas = screen.canvas();
  const Point pixel = canvas.mapping().toPixel(user);
  const double k = canvas.oversampling() * canvas.devicePixelRatio();
  return rgb(canvas.image().pixel(static_cast<int>((pixel.x + 0.5) * k),
                                  static_cast<int>((pixel.y + 0.5) * k)));
}

bool MoniaktinaTest::hasColour(Rgb colour, Point upperLeft, Point lowerRight) {
  const RasterCanvas& canvas = screen.canvas();
  const double k = canvas.oversampling() * canvas.devicePixelRatio();
  const Point a = canvas.mapping().toPixel(upperLeft);
  const Point b = canvas.mapping().toPixel(lowerRight);
  const QRect area =
      QRectF(QPointF(a.x, a.y) * k, QPointF(b.x, b.y) * k).toRect() & canvas.image().rect();
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (rgb(canvas.image().pixel(x, y)) == colour) return true;
    }
  }
  return false;
}

}  // namespace lensbench
