#include "tests/screens/moniaktina/MoniaktinaTest.h"

#include <QCoreApplication>

#include "tests/screens/support/PictureOf.h"

namespace lensbench {

namespace single = poreiaaktinon::single;

double asSingle(double v) {
  // GCC 12 drops the rounding of two numbers that it finds side by side.
  volatile float rounded = static_cast<float>(v);
  return rounded;
}

namespace {

Rgb rgb(QRgb pixel) { return RGB(qRed(pixel), qGreen(pixel), qBlue(pixel)); }

}  // namespace

void MoniaktinaTest::open() {
  screen.fitDisplay();
  screen.drawLens();
  screen.Show();
  QCoreApplication::processEvents();
}

QImage MoniaktinaTest::lensPicture(const Lens& lens) {
  const auto outline = single::outlineOf(lens.R1, lens.R2, 0, lens.centre, lens.index);
  return pictureOf(screen, single::Shown{{single::LensAlone{outline}}});
}

QImage MoniaktinaTest::rayPicture(const Lens& lens, double xa, double ya) {
  const Point from{asSingle(middleOfFos().x), asSingle(middleOfFos().y)};
  const Point to{asSingle(xa), asSingle(ya)};
  const poreiaaktinon::Bench bench{{0.0, static_cast<double>(lens.R1),
                                    static_cast<double>(lens.centre), static_cast<double>(lens.R2)},
                                   lens.index,
                                   t.moves.opening};
  const poreiaaktinon::SingleRay ray{from, {asSingle(to.x - from.x), asSingle(to.y - from.y)}};
  const auto outline = single::outlineOf(lens.R1, lens.R2, 0, lens.centre, lens.index);
  return pictureOf(screen,
                   single::Shown{{single::AimLine{from, to}, single::LensUnderRay{outline},
                                  single::Ray{send(bench, ray, light::edgesOf(screen.canvas()))}}});
}

Point MoniaktinaTest::middleOfFos() const {
  const Shape& fos = c.fos;
  return {fos.Left() + fos.Width() / 2.0, fos.Top() - fos.Height() / 2.0};
}

Rgb MoniaktinaTest::colourAt(Point user) {
  const RasterCanvas& canvas = screen.canvas();
  const Point pixel = canvas.mapping().toPixel(user);
  const double k = canvas.oversampling() * canvas.devicePixelRatio();
  return rgb(screen.image().pixel(static_cast<int>((pixel.x + 0.5) * k),
                                  static_cast<int>((pixel.y + 0.5) * k)));
}

bool MoniaktinaTest::hasColour(Rgb colour, Point upperLeft, Point lowerRight) {
  const QImage image = picture();
  const RasterCanvas& canvas = screen.canvas();
  const double k = canvas.oversampling() * canvas.devicePixelRatio();
  const Point a = canvas.mapping().toPixel(upperLeft);
  const Point b = canvas.mapping().toPixel(lowerRight);
  const QRect area = QRectF(QPointF(a.x, a.y) * k, QPointF(b.x, b.y) * k).toRect() & image.rect();
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (rgb(image.pixel(x, y)) == colour) return true;
    }
  }
  return false;
}

}  // namespace lensbench
