// A soft glow around what the mouse would take; no part of the picture.
#pragma once

#include <QPainterPath>

#include "canvas/qt/Overlay.h"

namespace lensbench {

class Halo : public Overlay {
 public:
  explicit Halo(Form& form);

  // Logical pixels of the drawing area; not seen around an empty outline.
  void around(const QPainterPath& outline);

  QRectF bounds() const override;
  void paint(QPainter& painter) const override;
  void convert(const UserMapping& /*from*/, const UserMapping& /*to*/) override {}

 private:
  QPainterPath outline_;
};

}  // namespace lensbench
