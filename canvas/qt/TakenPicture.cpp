#include "canvas/qt/TakenPicture.h"

#include <cmath>

#include <QBuffer>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/PainterCanvas.h"

namespace lensbench {
namespace {

constexpr double dotsPerInch = 96.0;
constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMetre = 1.0 / 0.0254;

QString titleOf(const TakenPicture& picture) { return picture.form.accessibleName(); }

// Vectors into a rectangle in the painter's units, of the proportions of the picture.
void paint(QPainter& painter, const QRectF& target, const TakenPicture& picture) {
  const RasterCanvas& own = picture.form.canvas();
  {
    PainterCanvas canvas(painter, target, own.size());
    if (own.hasUserScale()) {
      canvas.Scale(own.ScaleLeft(), own.ScaleTop(), own.ScaleLeft() + own.ScaleWidth(),
                   own.ScaleTop() + own.ScaleHeight());
    }
    canvas.BackColor(own.BackColor());
    canvas.ForeColor(own.ForeColor());
    canvas.FontName(own.FontName());
    canvas.FontSize(own.FontSize());
    picture.draw(canvas);
  }
  painter.save();
  painter.translate(target.topLeft());
  painter.scale(target.width() / own.size().width(), target.height() / own.size().height());
  painter.setClipRect(QRectF(QPointF(0.0, 0.0), own.size()), Qt::IntersectClip);
  picture.form.area().paintInPicture(painter);
  painter.restore();
}

}  // namespace

QImage pixelsOf(const TakenPicture& picture) {
  QImage image = picture.form.area().picture();
  // A display of twice as many pixels has them half as large.
  const double perMetre = dotsPerInch * image.devicePixelRatio() * inchesPerMetre;
  image.setDevicePixelRatio(1.0);
  image.setDotsPerMeterX(static_cast<int>(std::lround(perMetre)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  return image;
}

QByteArray png(const TakenPicture& picture) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  pixelsOf(picture).save(&file, "PNG");
  return file.data();
}

QByteArray svg(const TakenPicture& picture) {
  const QRect all(QPoint(0, 0), picture.form.canvas().size());
  QBuffer file;
  QSvgGenerator device;
  device.setOutputDevice(&file);
  device.setTitle(titleOf(picture));
  device.setResolution(static_cast<int>(dotsPerInch));
  device.setSize(all.size());
  device.setViewBox(all);
  QPainter painter(&device);
  paint(painter, all, picture);
  painter.end();
  return file.data();
}

QByteArray pdf(const TakenPicture& picture) {
  const QSizeF size = QSizeF(picture.form.canvas().size()) * (pointsPerInch / dotsPerInch);
  // A page has whole points.
  const QSizeF page(std::ceil(size.width()), std::ceil(size.height()));
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter device(&file);
  device.setTitle(titleOf(picture));
  device.setPageSize(QPageSize(page, QPageSize::Point, {}, QPageSize::ExactMatch));
  device.setPageMargins({});
  printOn(device, picture);
  return file.data();
}

bool printOn(QPagedPaintDevice& paper, const TakenPicture& picture) {
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  // The painter begins at the upper left inside the margins.
  const QSizeF page = paper.pageLayout().paintRectPixels(paper.logicalDpiX()).size();
  const QSizeF size = QSizeF(picture.form.canvas().size()).scaled(page, Qt::KeepAspectRatio);
  const QPointF corner((page.width() - size.width()) / 2.0, (page.height() - size.height()) / 2.0);
  paint(painter, QRectF(corner, size), picture);
  return painter.end();
}

}  // namespace lensbench
