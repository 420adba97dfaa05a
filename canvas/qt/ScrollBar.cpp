#include "canvas/qt/ScrollBar.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyleOptionSlider>

#include "canvas/qt/Contrast.h"

namespace lensbench {

ScrollBar::ScrollBar(Form& form, const QString& name, Qt::Orientation orientation,
                     const Place& place)
    : Control(form, name, place, orientation) {
  setFocusPolicy(Qt::StrongFocus);
  // The toolkit's scroll bars take the right arrow key for less; these hold quantities.
  if (orientation == Qt::Horizontal) setInvertedControls(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  connect(this, &QScrollBar::valueChanged, this, &ScrollBar::Change);
}

void ScrollBar::range(int least, int most, int largeStep, int value) {
  Min(least);
  Max(most);
  LargeChange(largeStep);
  SmallChange(1);
  Value(value);
}

void ScrollBar::Warning(const QString& words, bool oneStepAway) {
  if (!warned_) calm_ = toolTip();
  if (warned_ || !words.isEmpty()) {
    const QString tip = words.isEmpty() ? calm_ : withWarning(calm_, words);
    setToolTip(tip);
    setAccessibleDescription(tip);
  }
  warned_ = !words.isEmpty();
  oneStepAway_ = oneStepAway;
  update();
}

void ScrollBar::initStyleOption(QStyleOptionSlider* option) const {
  QScrollBar::initStyleOption(option);
  const QPalette::ColorGroup group = option->palette.currentColorGroup();
  option->palette = colours_;
  option->palette.setCurrentColorGroup(group);
}

bool ScrollBar::event(QEvent* event) {
  const bool done = QScrollBar::event(event);
  const QEvent::Type type = event->type();
  // Styles that leave something of a bar free take that back; here it is painted.
  if (type == QEvent::Polish || type == QEvent::StyleChange) setAttribute(Qt::WA_OpaquePaintEvent);
  if (type == QEvent::Polish || type == QEvent::PaletteChange) takeColours();
  return done;
}

// The styles draw the arrows in the colour of text on the background, which here is the form's own
// and light; but they stand on buttons of the desktop's colour.
void ScrollBar::takeColours() {
  colours_ = palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    colours_.setColor(group, QPalette::WindowText, colours_.color(group, QPalette::ButtonText));
  }
}

void ScrollBar::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), palette().color(QPalette::Window));
  QScrollBar::paintEvent(event);
  QPainter painter(this);
  QRect free = rect();
  const auto edge = [&](const QColor& colour) {
    painter.setPen(QPen(colour, 2));
    painter.drawRect(free.adjusted(1, 1, -1, -1));
    free.adjust(2, 2, -2, -2);
  };
  if (oneStepAway_) edge(warningOn(palette().color(QPalette::Window)));
  // The styles show no focus on a scroll bar, yet who works it by keyboard must see it.
  if (hasFocus()) edge(palette().color(QPalette::Highlight));
}

void ScrollBar::focusInEvent(QFocusEvent* event) {
  QScrollBar::focusInEvent(event);
  update();
}

void ScrollBar::focusOutEvent(QFocusEvent* event) {
  QScrollBar::focusOutEvent(event);
  update();
}

}  // namespace lensbench
