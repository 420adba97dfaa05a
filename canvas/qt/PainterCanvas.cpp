#include "canvas/qt/PainterCanvas.h"

#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPainterPath>
#include <QString>

#include "canvas/qt/Chords.h"
#include "canvas/qt/Fonts.h"
#include "canvas/qt/Pixels.h"
#include "canvas/qt/UserMapping.h"

namespace lensbench {
namespace {

// Curves and letters are computed this much finer than a logical pixel, because the device may be.
constexpr double detail = 16.0;

QColor colourOf(Rgb colour) { return QColor::fromRgb(opaque(colour)); }

// along: how far the figure begins from where its dots are counted from.
QPen penOf(const Pen& pen, double along) {
  QPen own(colourOf(pen.colour), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (pen.style == lensbench::DrawStyle::Dotted && pen.width == 1) {
    // With its round ends a dot is two pixels long, and so is the gap.
    own.setDashPattern({1.0, 3.0});
    own.setDashOffset(std::fmod(along, 4.0));
  }
  return own;
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const QRectF& target, QSizeF logical)
    : painter_(painter), logical_(logical.expandedTo({1.0, 1.0})) {
  painter_.save();
  painter_.translate(target.topLeft());
  painter_.scale(target.width() / logical_.width(), target.height() / logical_.height());
  painter_.setClipRect(QRectF(QPointF(0.0, 0.0), logical_), Qt::IntersectClip);
  painter_.setRenderHint(QPainter::Antialiasing);
}

PainterCanvas::~PainterCanvas() { painter_.restore(); }

Point PainterCanvas::place(Point user) const {
  const Point pixel = mappingOf(*this).toPixel(user);
  return {pixel.x + 0.5, pixel.y + 0.5};
}

double PainterCanvas::length(double user) const {
  return user * std::fabs(mappingOf(*this).xPixels);
}

double PainterCanvas::angle(double user) const {
  return mappingOf(*this).xPixels < 0.0 ? user + std::numbers::pi : user;
}

void PainterCanvas::clear(Rgb colour) {
  painter_.fillRect(QRectF(QPointF(0.0, 0.0), logical_), colourOf(colour));
}

void PainterCanvas::strokeLine(Point from, Point to, const Pen& pen) {
  const Point first = place(from);
  const Point last = place(to);
  const double margin = pen.width;
  const Box box{-margin, -margin, logical_.width() + margin, logical_.height() + margin};
  const auto visible = clipped({first.x, first.y}, {last.x, last.y}, box);
  if (!visible) return;
  const QLineF line(visible->from.x, visible->from.y, visible->to.x, visible->to.y);
  const double size = line.length();
  // The dots have fixed places along the endless line.
  const double along = size > 0.0 ? (line.x1() * line.dx() + line.y1() * line.dy()) / size : 0.0;
  painter_.setPen(penOf(pen, along));
  painter_.drawLine(line);
}

void PainterCanvas::strokeCircle(Point centre, double radius, const Pen& pen,
                                 std::optional<Rgb> fill) {
  const Point middle = place(centre);
  const double reach = length(radius);
  if (fill && isFinite(middle) && std::isfinite(reach)) paintDisc(middle, reach, *fill);
  strokeArc(centre, radius, pen, 0.0, 2.0 * std::numbers::pi);
}

void PainterCanvas::strokeArc(Point centre, double radius, const Pen& pen, double start,
                              double end) {
  const Point middle = place(centre);
  const double reach = length(radius);
  if (!isFinite(middle) || !std::isfinite(reach)) return;
  const double margin = pen.width + 1.0;
  const Box box{-margin * detail, -margin * detail, (logical_.width() + margin) * detail,
                (logical_.height() + margin) * detail};
  // The chords that are seen, joined where they follow each other; each stretch has its own dots.
  QPainterPath path;
  double firstAlong = 0.0;
  const auto add = [&](const Segment& chord, double along) {
    const QPointF from(chord.from.x / detail, chord.from.y / detail);
    if (path.isEmpty() || path.currentPosition() != from) {
      painter_.strokePath(path, penOf(pen, firstAlong));
      path = QPainterPath(from);
      firstAlong = along / detail;
    }
    path.lineTo(chord.to.x / detail, chord.to.y / detail);
  };
  Chords({{middle.x * detail, middle.y * detail}, reach * detail, angle(start), end - start})
      .visitNear(box, add);
  painter_.strokePath(path, penOf(pen, firstAlong));
}

void PainterCanvas::paintDot(Point centre, const Pen& pen) {
  const Point middle = place(centre);
  if (isFinite(middle)) paintDisc(middle, pen.width / 2.0, pen.colour);
}

void PainterCanvas::paintDisc(Point middle, double radius, Rgb colour) {
  painter_.setPen(Qt::NoPen);
  // A file would say the same brush again for every one of many dots.
  const QBrush brush(colourOf(colour));
  if (painter_.brush() != brush) painter_.setBrush(brush);
  painter_.drawEllipse(QPointF(middle.x, middle.y), radius, radius);
}

double PainterCanvas::paintText(Point upperLeft, std::string_view text, const Font& font,
                                Rgb colour) {
  QFont face(installedFamily(QString::fromStdString(font.name)));
  face.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * 96.0 / 72.0 * detail))));
  // Not those of the device, whose pixels may have another size.
  const QFontMetricsF metrics(face);
  const Point corner = mappingOf(*this).toPixel(upperLeft);
  if (isFinite(corner)) {
    // As outlines, which need no font where they are looked at.
    QPainterPath letters;
    letters.addText(0.0, metrics.ascent(), face,
                    QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    const auto toArea =
        QTransform::fromTranslate(corner.x, corner.y).scale(1.0 / detail, 1.0 / detail);
    painter_.fillPath(toArea.map(letters), colourOf(colour));
  }
  return metrics.lineSpacing() / detail;
}

bool PainterCanvas::fillBody(int, int, Rgb border, Rgb fill, const Body& body) {
  QPainterPath path;
  for (const CircleArc& arc : body.outline) {
    const Point middle = place(arc.centre);
    const double reach = length(arc.radius);
    const double start = angle(arc.start) * 180.0 / std::numbers::pi;
    const double sweep = (arc.end - arc.start) * 180.0 / std::numbers::pi;
    const QRectF around(middle.x - reach, middle.y - reach, 2.0 * reach, 2.0 * reach);
    if (path.isEmpty()) path.arcMoveTo(around, start);
    path.arcTo(around, start, sweep);
  }
  if (path.isEmpty()) return false;
  path.closeSubpath();
  painter_.fillPath(path, colourOf(fill));
  // The fill has covered the inner half of the border.
  painter_.strokePath(path, penOf({border, body.borderWidth}, 0.0));
  return true;
}

}  // namespace lensbench
