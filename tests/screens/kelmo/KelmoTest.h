// The workbench in a test: the real form, a clock that the test drives, dialogs that it answers,
// moves that are only written down.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include <QEvent>
#include <QImage>
#include <QSize>
#include <QString>

#include "screens/kelmo/kelmo.h"
#include "tests/screens/support/TestContext.h"

// How a failed test shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace lensbench {

// The form is shown with a drawing area of 1600 x 800 pixels, so that a unit is two pixels and the
// area reaches from (-400, 200) to (400, -200); a pixel of the picture is a pixel of the screen.
class KelmoTest : public ::testing::Test {
 protected:
  KelmoTest();

  static constexpr QSize usualSize{1600, 800};
  void giveSize(QSize client);

  // The mouse on the drawing area, in user units.
  void press(double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier,
             Qt::MouseButton button = Qt::LeftButton);
  void drag(double x, double y);
  void release(double x, double y, Qt::MouseButton button = Qt::LeftButton);
  // The button goes up where the window does not see it.
  void loseRelease() { held_ = Qt::NoButton; }
  // Press, move and release in one.
  void dragFromTo(Point from, Point to);

  // One tick of a running timer; false, and nothing happens, when it does not run.
  bool tick(const Timer& timer);
  int ticks(const Timer& timer, int count);
  const HandTicks& clockOf(const Timer& timer) const;

  // Opens the diaphragm as far as it goes.
  void openDiaphragm();
  // The answer to the angle of the bundle, and the bundle.
  void sendBundle(const QString& angle);

  // The picture as anyone reads it.
  QImage picture() { return screen.image().copy(); }
  // A value, drawn from nothing on a canvas like that of the screen, and what is drawn over it.
  QImage drawn(const poreiaaktinon::Shown& shown, const std::function<void(Canvas&)>& over = {});
  // One ray through the present bench, with its wave points counted from a phase.
  void drawRay(Canvas& canvas, Point start, Point direction, poreiaaktinon::Provoli provoli,
               double phase = 0.0);
  // What the screen shows when it has been cleared and its lens scene drawn.
  poreiaaktinon::Shown sceneAlone();
  // True when the picture is that and holds no trace of anything else.
  ::testing::AssertionResult showsSceneOnly();
  // Puts something into the picture that any clearing takes away.
  void clutter() { screen.desmiPlusOne(); }

  Rgb pixelAt(double x, double y);
  static Point centreOf(const Shape& shape) {
    return {shape.Left() + shape.Width() / 2.0, shape.Top() - shape.Height() / 2.0};
  }
  light::Edges edges() { return light::edgesOf(screen.canvas()); }
  poreiaaktinon::Diafragma blades() { return screen.diafragma(); }
  // The paths of the rays that carry moving waves; none without a set.
  const std::vector<light::RayPath>& set();
  // Everything that an action may change, but for the picture: one line for each thing.
  std::vector<std::string> state();

  TestContext program;
  FakeDialogs& dialogs = program.dialogs;
  FakeMoves& moves = program.moves;
  Shared& shared = program.shared;
  kelmo screen{program.context};
  KelmoControls& c = screen.controls();

 private:
  void send(QEvent::Type type, double x, double y, Qt::MouseButton button,
            Qt::KeyboardModifiers keys = Qt::NoModifier);

  Qt::MouseButtons held_ = Qt::NoButton;
};

// True when the pictures are the same pixel by pixel.
::testing::AssertionResult samePicture(const QImage& a, const QImage& b);

}  // namespace lensbench
