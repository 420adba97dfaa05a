// Where the keyboard is among the things of a drawing screen, and the ring that shows it.
#pragma once

#include <optional>

#include <QObject>
#include <QPainterPath>

#include "canvas/qt/Overlay.h"
#include "screens/Thing.h"

namespace lensbench {

class DrawingScreen;

// A line around an outline, seen on any picture.
class FocusRing : public Overlay {
 public:
  explicit FocusRing(Form& form);

  // Logical pixels of the drawing area; the ring stands a little outside of it, and at the nearest
  // edge of the area where it would be out of sight. Without an outline there is no ring.
  void around(const QPainterPath& outline);

  QRectF bounds() const override;
  void paint(QPainter& painter) const override;
  // It is put around its thing anew whenever the area is painted.
  void convert(const UserMapping&, const UserMapping&) override {}

 private:
  Form& form_;
  QPainterPath outline_;
  QPainterPath ring_;
};

class ThingFocus : public QObject {
  Q_OBJECT

 public:
  explicit ThingFocus(DrawingScreen& screen);

  // Lets the Tab key come to the drawing area, between the last control and the first, which keeps
  // the focus at start.
  void open();
  // The thing that keys act on; nothing while the drawing area does not have the focus.
  std::optional<Thing> thing() const;
  // To the next thing or the one before; false, and nothing happens, where there is none.
  bool next() { return step(1); }
  bool previous() { return step(-1); }

 signals:
  // The keyboard has come to another thing, or to one, or has left.
  void Moved();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool step(int by);
  void goTo(std::optional<int> id);
  // Puts the ring around the thing where it stands now.
  void follow();

  DrawingScreen& screen_;
  std::optional<int> id_;
  FocusRing* ring_ = nullptr;  // made when it is first needed, so that it lies above all others
};

}  // namespace lensbench
