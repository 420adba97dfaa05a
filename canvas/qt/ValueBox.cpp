#include "canvas/qt/ValueBox.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "canvas/Format.h"
#include "canvas/qt/Typed.h"

namespace lensbench {
namespace {

QString shown(double value, double unit) {
  return QString::fromStdString(unit < 1.0 ? formatHundredths(value) : formatWhole(value));
}

// A name or a sentence in one of the two languages of "Greek · English".
QString greekOf(const QString& name) { return name.section(QStringLiteral(" · "), 0, 0); }
QString englishOf(const QString& name) { return name.section(QStringLiteral(" · "), -1); }

}  // namespace

Settable valueOfBar(QWidget& box, ScrollBar& bar, double unit) {
  return {
      .box = box,
      .bar = bar,
      .move = [&bar](int steps) { bar.Value(bar.Value() + steps); },
      .range =
          [&bar, unit] {
            return ValueRange{bar.Min() * unit, bar.Max() * unit};
          },
      .set = [&bar, unit](double value) { bar.Value(static_cast<int>(std::lround(value / unit))); },
      .unit = unit};
}

ValueBox::ValueBox(Settable what) : QObject(&what.box), what_(std::move(what)) {
  what_.box.installEventFilter(this);
  if (&typedIn() != &what_.box) typedIn().installEventFilter(this);
}

QWidget& ValueBox::typedIn() const {
  const bool itself = (what_.box.focusPolicy() & Qt::TabFocus) != 0;
  return itself ? what_.box : static_cast<QWidget&>(what_.bar);
}

bool ValueBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && watched == &what_.box) {
    turn(*static_cast<QWheelEvent*>(event));
    return true;
  }
  return event->type() == QEvent::KeyPress && watched == &typedIn() &&
         keyPressed(*static_cast<QKeyEvent*>(event));
}

bool ValueBox::keyPressed(const QKeyEvent& event) {
  constexpr auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (event.modifiers() & others) return false;
  // Point and comma are left to the window, and a bar has a use for the minus itself.
  const bool inBox = &typedIn() == &what_.box;
  const QString begins = inBox ? QStringLiteral("0123456789-−") : QStringLiteral("0123456789");
  if (event.text().size() == 1 && begins.contains(event.text())) {
    open(event.text());
    return true;
  }
  if (!inBox) return false;
  // With Shift the sideways arrows select text.
  const bool sideways = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
  if (sideways && (event.modifiers() & Qt::ShiftModifier)) return false;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      move(1);
      return true;
    case Qt::Key_Down:
    case Qt::Key_Left:
      move(-1);
      return true;
    case Qt::Key_PageUp:
      move(largeStep());
      return true;
    case Qt::Key_PageDown:
      move(-largeStep());
      return true;
    default:
      return false;
  }
}

// As over the bar itself: so many steps for a notch as lines are scrolled, no more than a large
// step, which Control and Shift make.
void ValueBox::turn(const QWheelEvent& event) {
  constexpr int notch = 120;
  turned_ += event.angleDelta().y();
  const int notches = turned_ / notch;
  turned_ -= notches * notch;
  const bool large = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
  const int lines = std::min(QApplication::wheelScrollLines(), largeStep());
  if (notches != 0) move(notches * (large ? largeStep() : lines));
}

void ValueBox::move(int steps) {
  const int to = std::clamp(what_.bar.Value() + steps, what_.bar.Min(), what_.bar.Max());
  const QString end = what_.end(to * what_.unit);
  if (end.isEmpty()) return what_.move(steps);
  QToolTip::showText(what_.box.mapToGlobal(QPoint(0, what_.box.height())), end, &what_.box);
}

void ValueBox::open(const QString& typed) {
  const auto [least, most] = what_.range();
  const QString name = what_.box.accessibleName();
  const QString hint =
      QStringLiteral("%1: %3 έως %4\n%2: %3 to %4")
          .arg(greekOf(name), englishOf(name), shown(least, what_.unit), shown(most, what_.unit));
  field_ = new ValueField(what_.box, typedIn(), typed, hint);
  connect(field_, &ValueField::entered, this, &ValueBox::take);
}

void ValueBox::take() {
  const NumberRead read = readNumber(numberTyped(field_->text()));
  const auto [least, most] = what_.range();
  if (read.kind == NumberRead::Kind::None) {
    return field_->refuse(QStringLiteral("Δεν είναι αριθμός· χρειάζεται ένας από %1 έως %2.\n"
                                         "Not a number; one from %1 to %2 is needed.")
                              .arg(shown(least, what_.unit), shown(most, what_.unit)));
  }
  const double value = std::clamp(read.value, least, most);
  const QString end = what_.end(value);
  if (!end.isEmpty()) return field_->refuse(end);
  field_->leave();
  what_.set(value);
}

}  // namespace lensbench
