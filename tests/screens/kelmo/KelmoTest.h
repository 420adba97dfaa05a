// The workbench in a test: the real form, a clock that the test drives, dialogs that it answers,
// moves that are only written down.
#pragma once

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include <QEvent>
#include <QImage>
#include <QSize>
#include <QString>

#include "canvas/qt/TickSource.h"
#include "optics/poreiaaktinon/DrawingArea.h"
#include "screens/kelmo/kelmo.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/FakeMoves.h"

// How a failed test shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace lensbench {

// A clock that ticks when it is told to.
class HandTicks : public TickSource {
 public:
  void start(int every) override {
    interval = every;
    running = true;
    ++starts;
  }
  void stop() override { running = false; }

  int interval = 0;
  bool running = false;
  int starts = 0;
};

// While it lives, every new timer gets such a clock.
class HandClocks {
 public:
  HandClocks();
  ~HandClocks() { useTickSources({}); }
  HandClocks(const HandClocks&) = delete;
  HandClocks& operator=(const HandClocks&) = delete;

  std::vector<HandTicks*> made;  // in order of creation; they belong to their timers
};

enum class Key { None, Shift };

// The form is shown with a drawing area of 1600 x 800 pixels, so that a unit is two pixels and the
// area reaches from (-400, 200) to (400, -200); a pixel of the picture is a pixel of the screen.
class KelmoTest : public ::testing::Test {
 protected:
  KelmoTest();
  ~KelmoTest() override;

  static constexpr QSize usualSize{1600, 800};
  void giveSize(QSize client);

  // The mouse on the drawing area, in user units.
  void press(double x, double y, Key key = Key::None, Qt::MouseButton button = Qt::LeftButton);
  void drag(double x, double y, Qt::MouseButton button = Qt::LeftButton);
  void release(double x, double y, Qt::MouseButton button = Qt::LeftButton);
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

  QImage picture() { return screen.canvas().image().copy(); }
  // The picture after clearing and drawing the lens scene anew; what stood there is lost.
  QImage freshScene();
  Rgb pixelAt(double x, double y);
  poreiaaktinon::Edges edges() { return poreiaaktinon::edgesOf(screen.canvas()); }
  poreiaaktinon::Diafragma blades() { return screen.workbench().diafragma(); }
  // Everything that an action may change, but for the picture: one line for each thing.
  std::vector<std::string> state();

  HandClocks clocks;
  FakeDialogs dialogs;
  FakeMoves moves;
  kelmo screen{moves};
  KelmoControls& c = screen.controls();

 private:
  void send(QEvent::Type type, double x, double y, Qt::MouseButton button, Qt::MouseButtons held,
            Key key);
};

// True when the pictures are the same pixel by pixel.
::testing::AssertionResult samePicture(const QImage& a, const QImage& b);

}  // namespace lensbench
