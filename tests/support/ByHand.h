// What a person does to a value box.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWheelEvent>

#include "canvas/qt/Form.h"
#include "canvas/qt/ValueField.h"

namespace lensbench {

inline void turnWheel(QWidget& over, int notches, Qt::KeyboardModifiers keys = Qt::NoModifier) {
  const QPointF at = QRectF(over.rect()).center();
  QWheelEvent event(at, over.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, keys,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&over, &event);
}

// The field that stands open on a form; none when there is none.
inline ValueField* fieldOn(const Form& form) {
  for (ValueField* field : form.findChildren<ValueField*>()) {
    if (!field->isHidden()) return field;
  }
  return nullptr;
}

// Types into a box or bar with the keyboard on it; what follows the first character goes into the
// field that it opened.
inline void typeInto(Form& form, QWidget& control, const QString& text) {
  control.setFocus();
  for (const QChar character : text) {
    QWidget* field = fieldOn(form);
    QTest::keyClicks(field == nullptr ? &control : field, QString(character));
  }
}

// The same, and Enter.
inline void enterInto(Form& form, QWidget& control, const QString& text) {
  typeInto(form, control, text);
  if (ValueField* field = fieldOn(form)) QTest::keyClick(field, Qt::Key_Return);
}

}  // namespace lensbench
