// What the hand does to the controls and the drawing area of one screen.
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include "canvas/qt/Form.h"
#include "screens/Keys.h"
#include "tests/monkey/Monkey.h"
#include "tests/support/ByHand.h"

namespace lensbench {
namespace {

void send(QWidget& area, QEvent::Type type, QPoint at, Qt::MouseButton button, bool shift) {
  const bool moves = type == QEvent::MouseMove;
  const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, at, area.mapToGlobal(at), moves ? Qt::NoButton : button, held,
                    shift ? Qt::ShiftModifier : Qt::NoModifier);
  QCoreApplication::sendEvent(&area, &event);
}

}  // namespace

template <typename Part>
Part* Monkey::anyPart(Form& form) {
  QList<Part*> all = form.findChildren<Part*>();
  // The toolkit's own parts: tool tips come and go with time, and the button of a menu bar that is
  // too short opens a menu that waits for a hand.
  all.removeIf([](const Part* part) {
    return part->objectName().isEmpty() || part->objectName().startsWith("qt");
  });
  return all.isEmpty() ? nullptr : all[below(static_cast<int>(all.size()))];
}

void Monkey::slide(Form& form) {
  auto* bar = anyPart<QScrollBar>(form);
  if (bar == nullptr) return say("nothing");
  const int where = below(8);
  // The ends of a range are where things happen.
  const int to = where == 0   ? bar->minimum()
                 : where == 1 ? bar->maximum()
                              : bar->minimum() + below(bar->maximum() - bar->minimum() + 1);
  say(QStringLiteral("%1 to %2").arg(bar->objectName()).arg(to));
  bar->setValue(to);
}

QPoint Monkey::anywhere(const QWidget& area) {
  return {below(area.width() + 100) - 50, below(area.height() + 100) - 50};
}

void Monkey::drag(Form& form) {
  QWidget& area = *form.drawingArea();
  const Qt::MouseButton button = below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
  const bool shift = below(3) == 0;
  QPoint from = anywhere(area);
  if (below(2) == 0) from.setY(area.height() / 2 + below(21) - 10);  // near the axis
  if (below(3) == 0) from.setX(area.width() / 2 + below(21) - 10);   // near the blades
  // Now and then only a part of a drag, so that other things happen in its middle.
  const bool pressed = below(5) != 0;
  const bool released = below(5) != 0;
  std::vector<QPoint> way{below(4) == 0 ? from : anywhere(area)};
  for (int more = below(3); more > 0; --more) way.push_back(anywhere(area));
  QString told = QStringLiteral("%1 button%2")
                     .arg(button == Qt::LeftButton ? "left" : "right", shift ? " with Shift" : "");
  if (pressed) told += QStringLiteral(", pressed at %1,%2").arg(from.x()).arg(from.y());
  for (const QPoint& at : way) told += QStringLiteral(", moved to %1,%2").arg(at.x()).arg(at.y());
  if (released) told += ", released";
  say(told);
  if (pressed) send(area, QEvent::MouseButtonPress, from, button, shift);
  for (const QPoint& at : way) send(area, QEvent::MouseMove, at, button, shift);
  if (released) send(area, QEvent::MouseButtonRelease, way.back(), button, shift);
}

// The pointer comes there without a button, and rests.
void Monkey::hover(Form& form) {
  QWidget& area = *form.drawingArea();
  const QPoint at = anywhere(area);
  say(QStringLiteral("pointer at %1,%2").arg(at.x()).arg(at.y()));
  send(area, QEvent::MouseMove, at, Qt::NoButton, false);
  QHelpEvent rest(QEvent::ToolTip, at, area.mapToGlobal(at));
  QCoreApplication::sendEvent(&area, &rest);
}

void Monkey::trigger(Form& form) {
  auto* entry = anyPart<QAction>(form);
  // These end the program.
  if (entry == nullptr || entry->objectName() == "TELIOMA" || entry->objectName() == "TELOS")
    return say("nothing");
  say(entry->objectName());
  entry->trigger();
}

void Monkey::press(Form& form) {
  auto* button = anyPart<QAbstractButton>(form);
  if (button == nullptr) return say("nothing");
  say(button->objectName());
  button->click();
}

// A key of the program, or one that controls wait for, where the keyboard is.
void Monkey::key(Form& form) {
  static const std::vector<QKeyCombination> ofControls{
      Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_7, Qt::Key_Minus};
  QWidget* at = form.focusWidget();
  if (at == nullptr || below(2) == 0) at = form.drawingArea();
  const int enters = below(6);
  const auto& combinations = below(4) == 0 ? ofControls : anyOf(keys()).combinations;
  const QKeyCombination pressed = anyOf(combinations);
  say(QStringLiteral("key %1 at %2")
          .arg(QKeySequence(pressed).toString(QKeySequence::PortableText), at->objectName()));
  if (enters == 0) at->setFocus(Qt::TabFocusReason);
  QTest::keyClick(at, pressed.key(), pressed.keyboardModifiers());
}

void Monkey::wheel(Form& form) {
  QWidget* over = anyPart<QWidget>(form);
  if (over == nullptr) return say("nothing");
  const int notches = below(9) - 4;
  const Qt::KeyboardModifiers held = below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier;
  say(QStringLiteral("wheel by %1 over %2%3")
          .arg(notches)
          .arg(over->objectName(), held ? " with Ctrl" : ""));
  turnWheel(*over, notches, held);
}

// A number into a box, right or wrong, entered, given up or left standing.
void Monkey::type(Form& form) {
  static const QStringList numbers{"0", "1", "57", "120,5", "-12.25", "1.7", "1e9", "500", "9x"};
  QWidget* box = anyPart<QWidget>(form);
  if (box == nullptr) return say("nothing");
  const QString number = anyOf(numbers);
  const int then = below(4);
  say(QStringLiteral("%1 typed into %2, %3")
          .arg(number, box->objectName(),
               then == 0   ? "given up"
               : then == 1 ? "left"
                           : "entered"));
  typeInto(form, *box, number);
  ValueField* field = fieldOn(form);
  if (field == nullptr || then == 1) return;
  QTest::keyClick(field, then == 0 ? Qt::Key_Escape : Qt::Key_Return);
}

}  // namespace lensbench
