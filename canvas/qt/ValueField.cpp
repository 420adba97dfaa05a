#include "canvas/qt/ValueField.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>

#include "canvas/qt/Contrast.h"

namespace lensbench {
namespace {

constexpr int leastWidth = 72;  // of the field, pixels
constexpr int gap = 2;          // between field and note, pixels
constexpr int longest = 40;     // characters, more than any number needs

// In pixels of the window. A label may be much higher than the line that it shows in its middle.
QRect placeOver(const QWidget& box, int lineHeight) {
  QRect place = box.rect();
  if (place.height() > 3 * lineHeight / 2) {
    place.setTop(box.contentsRect().center().y() - lineHeight / 2);
    place.setHeight(lineHeight);
  }
  place.setWidth(std::max(place.width(), leastWidth));
  return place.translated(box.mapTo(box.window(), QPoint()));
}

}  // namespace

// A child of the window and not of the drawing area: it is no control of the form.
ValueField::ValueField(QWidget& box, QWidget& typedIn, const QString& typed, const QString& hint)
    : QLineEdit(box.window()),
      box_(box),
      typedIn_(typedIn),
      note_(new QLabel(box.window())),
      hint_(hint) {
  setObjectName(box.objectName() + QStringLiteral("Field"));
  setAccessibleName(box.accessibleName());
  setMaxLength(longest);
  setFont(box.font());
  setGeometry(placeOver(box, sizeHint().height()));
  note_->setObjectName(objectName() + QStringLiteral("Note"));
  note_->setTextFormat(Qt::PlainText);
  note_->setMargin(3);
  note_->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
  note_->setAutoFillBackground(true);
  note_->setBackgroundRole(QPalette::Base);
  note_->setForegroundRole(QPalette::WindowText);
  note_->setAttribute(Qt::WA_TransparentForMouseEvents);
  setText(typed);
  sayHint();
  connect(this, &QLineEdit::textChanged, this, &ValueField::sayHint);
  box.installEventFilter(this);
  show();
  note_->show();
  raise();
  note_->raise();
  QWidget::setTabOrder(&typedIn, this);
  setFocus();
  deselect();
}

void ValueField::say(const QString& words, const QColor& colour) {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, colour);
  note_->setPalette(colours);
  note_->setText(words);
  const QSize size = note_->sizeHint();
  const QRect room = window()->rect();
  const int below = geometry().bottom() + 1 + gap;
  const bool fits = below + size.height() <= room.bottom();
  note_->setGeometry(QRect({std::max(0, std::min(x(), room.right() - size.width())),
                            fits ? below : y() - gap - size.height()},
                           size));
  note_->setAccessibleName(words);
  setAccessibleDescription(words);
}

void ValueField::sayHint() { say(hint_, palette().color(QPalette::Text)); }

void ValueField::refuse(const QString& words) {
  say(words, warningOn(palette().color(QPalette::Base)));
  selectAll();
  QAccessibleEvent alert(note_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void ValueField::leave() {
  typedIn_.setFocus();
  vanish();
}

void ValueField::vanish() {
  if (std::exchange(gone_, true)) return;
  note_->hide();
  hide();
  note_->deleteLater();
  deleteLater();
}

bool ValueField::event(QEvent* event) {
  // No shortcut of the window takes the keys that the field waits for.
  if (event->type() == QEvent::ShortcutOverride) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) event->accept();
  }
  return QLineEdit::event(event);
}

void ValueField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit entered();
      return;
    case Qt::Key_Escape:
      leave();
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void ValueField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Its own context menu takes the keyboard for a moment only.
  if (event->reason() != Qt::PopupFocusReason) vanish();
}

bool ValueField::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Hide) vanish();
  return QLineEdit::eventFilter(watched, event);
}

}  // namespace lensbench
