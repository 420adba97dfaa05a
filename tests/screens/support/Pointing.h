// A pointer without a button pressed on the drawing area of a screen, and what is seen of it.
#pragma once

#include <cmath>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "canvas/qt/Overlay.h"
#include "screens/DrawingScreen.h"

namespace lensbench {

inline QPointF pixelOf(const DrawingScreen& screen, Point user) {
  const Point p = screen.canvas().mapping().toPixel(user);
  return {p.x, p.y};
}

// The point that a mouse event there is told with.
inline Point asTold(const DrawingScreen& screen, Point user) {
  const QPointF pixel = pixelOf(screen, user);
  return screen.canvas().mapping().toUser({pixel.x(), pixel.y()});
}

inline void pointAt(DrawingScreen& screen, Point user) {
  QWidget* const area = screen.drawingArea();
  const QPointF pixel = pixelOf(screen, user);
  QMouseEvent move(QEvent::MouseMove, pixel, area->mapToGlobal(pixel), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(area, &move);
}

// The pointer comes to rest there, at a whole pixel; the text that is shown then.
inline QString restAt(DrawingScreen& screen, Point user) {
  QWidget* const area = screen.drawingArea();
  const QPoint pixel = pixelOf(screen, user).toPoint();
  QHelpEvent rest(QEvent::ToolTip, pixel, area->mapToGlobal(pixel));
  QApplication::sendEvent(area, &rest);
  return QToolTip::text();
}

inline Overlay& haloOf(DrawingScreen& screen) {
  return *screen.drawingArea()->findChild<Overlay*>("halo");
}

inline Qt::CursorShape pointerOf(DrawingScreen& screen) {
  return screen.drawingArea()->cursor().shape();
}

// Whether the pointer, over p without a button, is as what a press there would take wants it, halo
// and tool tip with it.
inline ::testing::AssertionResult tellsWhatIsTaken(DrawingScreen& screen, Point p) {
  pointAt(screen, p);
  const auto taken = screen.takenAt(p);
  if (haloOf(screen).Visible() != taken.has_value()) return ::testing::AssertionFailure() << "halo";
  const QString tip = screen.tipAt(p);
  for (const Thing& thing : screen.things()) {
    if (taken != thing.id) continue;
    if (!tip.startsWith(thing.words)) return ::testing::AssertionFailure() << tip.toStdString();
    if (pointerOf(screen) != thing.shape || thing.shape == Qt::ArrowCursor) {
      return ::testing::AssertionFailure() << "shape " << pointerOf(screen);
    }
    const QRectF outline = thing.outline.boundingRect();
    const double reach = 26.0;  // the band of a blade, and the length of an end
    if (!outline.adjusted(-reach, -reach, reach, reach).contains(pixelOf(screen, p))) {
      return ::testing::AssertionFailure() << "the halo is elsewhere";
    }
    return ::testing::AssertionSuccess();
  }
  if (taken) return ::testing::AssertionFailure() << "no such thing";
  if (pointerOf(screen) != Qt::ArrowCursor) return ::testing::AssertionFailure() << "not an arrow";
  return ::testing::AssertionSuccess();
}

}  // namespace lensbench
