// Holds what a drawing screen shows, and keeps its drawing area up to date with it.
#pragma once

#include <optional>
#include <utility>

#include <QObject>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"

namespace lensbench {

// Shown is a value that the functions draw(Canvas&, const Shown&) and redraw(Canvas&, const Shown&
// from, const Shown& to) beside it draw. A handler makes the next value at once; it is drawn when
// the picture is next painted or read.
template <class Shown>
class Easel {
 public:
  explicit Easel(Form& form) : form_(form) {
    form_.area().drawBy([this] { bringUpToDate(); },
                        [this](Canvas& canvas) { draw(canvas, shown_); });
    // The area asks for the drawing by itself.
    lost_ = QObject::connect(&form_.canvas(), &RasterCanvas::pictureLost, &form_,
                             [this] { drawn_.reset(); });
  }
  ~Easel() {
    QObject::disconnect(lost_);
    form_.area().drawBy({});
  }
  Easel(const Easel&) = delete;
  Easel& operator=(const Easel&) = delete;

  const Shown& shown() const noexcept { return shown_; }
  void show(Shown next) {
    shown_ = std::move(next);
    form_.area().stale();
  }

 private:
  void bringUpToDate() {
    // Until it is drawn to its end the canvas holds neither the one value nor the other.
    if (const auto before = std::exchange(drawn_, std::nullopt)) {
      redraw(form_.canvas(), *before, shown_);
    } else {
      draw(form_.canvas(), shown_);
    }
    drawn_ = shown_;
  }

  Form& form_;
  Shown shown_;
  std::optional<Shown> drawn_;  // what the canvas holds; nothing: it has to be drawn from nothing
  QMetaObject::Connection lost_;
};

}  // namespace lensbench
