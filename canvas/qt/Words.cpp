#include "canvas/qt/Words.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/NewImage.h"

namespace lensbench {

double drawWords(Tiles& tiles, Point corner, std::string_view words, const QFont& face,
                 PixelValue colour) {
  // Metrics as an image has them, of whatever size.
  QImage page(1, 1, QImage::Format_RGB32);
  const QFontMetricsF metrics(face, &page);
  const QString text = QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
  const QPointF baseline(corner.x, corner.y + metrics.ascent());
  const QRectF bounds = metrics.boundingRect(text).translated(baseline);
  const QRectF all(0.0, 0.0, tiles.width(), tiles.height());
  const QRectF touched = bounds.adjusted(-2, -2, 2, 2) & all;
  if (!isFinite(corner) || touched.isEmpty()) return metrics.lineSpacing();
  // Copied out, drawn on, and put back.
  const QRect area = touched.toAlignedRect() & all.toRect();
  page = newImage(area.size());
  boxFilter(tiles, page, area.topLeft(), 1);
  QPainter painter(&page);
  painter.translate(-area.topLeft());
  painter.setFont(face);
  painter.setPen(QColor::fromRgb(colour));
  painter.drawText(baseline, text);
  painter.end();
  for (int y = 0; y < page.height(); ++y) {
    const auto* const row = reinterpret_cast<const PixelValue*>(page.constScanLine(y));
    for (int x = 0; x < page.width(); ++x) {
      if (tiles.at(area.left() + x, area.top() + y) == row[x]) continue;
      tiles.set(area.left() + x, area.top() + y, row[x]);
    }
  }
  return metrics.lineSpacing();
}

}  // namespace lensbench
