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

namespace lensbench {
namespace {

constexpr double dotsPerInch = 96.0;
constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMetre = 1.0 / 0.0254;

}  // namespace

QImage pixelsOf(Form& form) {
  QImage image = form.area().picture();
  // A display of twice as many pixels has them half as large.
  const double perMetre = dotsPerInch * image.devicePixelRatio() * inchesPerMetre;
  image.setDevicePixelRatio(1.0);
  image.setDotsPerMeterX(static_cast<int>(std::lround(perMetre)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  return image;
}

QByteArray png(Form& form) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  pixelsOf(form).save(&file, "PNG");
  return file.data();
}

QByteArray svg(Form& form) {
  const QRect all(QPoint(0, 0), form.canvas().size());
  QBuffer file;
  QSvgGenerator device;
  device.setOutputDevice(&file);
  device.setTitle(form.accessibleName());
  device.setResolution(static_cast<int>(dotsPerInch));
  device.setSize(all.size());
  device.setViewBox(all);
  QPainter painter(&device);
  form.area().paintVectors(painter, all);
  painter.end();
  return file.data();
}

QByteArray pdf(Form& form) {
  const QSizeF size = QSizeF(form.canvas().size()) * (pointsPerInch / dotsPerInch);
  // A page has whole points.
  const QSizeF page(std::ceil(size.width()), std::ceil(size.height()));
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter device(&file);
  device.setTitle(form.accessibleName());
  device.setPageSize(QPageSize(page, QPageSize::Point, {}, QPageSize::ExactMatch));
  device.setPageMargins({});
  printOn(device, form);
  return file.data();
}

bool printOn(QPagedPaintDevice& paper, Form& form) {
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  // The painter begins at the upper left inside the margins.
  const QSizeF page = paper.pageLayout().paintRectPixels(paper.logicalDpiX()).size();
  const QSizeF size = QSizeF(form.canvas().size()).scaled(page, Qt::KeepAspectRatio);
  const QPointF corner((page.width() - size.width()) / 2.0, (page.height() - size.height()) / 2.0);
  form.area().paintVectors(painter, QRectF(corner, size));
  return painter.end();
}

}  // namespace lensbench
