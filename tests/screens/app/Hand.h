// The hand of a person on the real screens: presses, drags and releases in user units.
#pragma once

#include <gtest/gtest.h>
#include <vector>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>

#include "app/ProgramState.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"
#include "tests/screens/support/PictureOf.h"

namespace lensbench {

inline void mouse(Form& form, QEvent::Type type, Point at, bool shift = false) {
  const Point pixel = form.canvas().mapping().toPixel(at);
  const QPointF local(pixel.x, pixel.y);
  QWidget* const area = form.drawingArea();
  const bool moves = type == QEvent::MouseMove;
  QMouseEvent event(type, local, area->mapToGlobal(local), moves ? Qt::NoButton : Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    shift ? Qt::ShiftModifier : Qt::NoModifier);
  QApplication::sendEvent(area, &event);
}
inline void press(Form& form, Point at, bool shift = false) {
  mouse(form, QEvent::MouseButtonPress, at, shift);
}
inline void moveTo(Form& form, Point at, bool shift = false) {
  mouse(form, QEvent::MouseMove, at, shift);
}
inline void release(Form& form, Point at, bool shift = false) {
  mouse(form, QEvent::MouseButtonRelease, at, shift);
}
inline void click(Form& form, Point at, bool shift = false) {
  press(form, at, shift);
  release(form, at, shift);
}
// The button goes up where the window does not see it.
inline void loseRelease(Form& form) {
  QMouseEvent event(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton,
                    Qt::NoModifier);
  QApplication::sendEvent(form.drawingArea(), &event);
}

// The program as it stands after start-up, with every screen sized as it will be.
class HandTest : public ::testing::Test {
 protected:
  HandTest() {
    boxes.answer.reset();
    boxes.messages.clear();
    Main(screens);
    screens.openSingleRay();
    QApplication::processEvents();
    screens.leaveSingleRay();
    screens.openLensMenu();
    screens.openIbnSahl();
    screens.ElSahl().Hide();
    screens.leaveLensMenu();
    QApplication::processEvents();
    screens.startHistory();
  }

  bool tick() {
    bool any = false;
    for (HandTicks* ticks : program.clock.made) {
      if (!ticks->running) continue;
      ticks->onTick();
      any = true;
    }
    return any;
  }
  void sendBundle(const QString& angle) {
    boxes.answer = angle;
    bench.controls().EPANALIPSI.trigger();
  }
  void openDiaphragm() {
    bench.controls().VScroll1.Value(-100);
    bench.controls().VScroll2.Value(100);
  }
  // A point of the workbench where a press with Shift sends a fan.
  static constexpr Point outside{-150.0, 40.0};

  FakeDialogs& boxes = Shell::instance->boxes;
  Program program;
  Screens& screens = program.screens;
  kelmo& bench = screens.kelmo();
  Shared& shared = screens.shared();
};

}  // namespace lensbench
