// The real Ibn Sahl screen, opened as the lens menu opens it, with moves and dialogs of the test.
#pragma once

#include <cmath>
#include <gtest/gtest.h>
#include <optional>

#include <QCoreApplication>
#include <QImage>
#include <QTest>

#include "optics/protosfakos/SahlScreen.h"
#include "optics/protosfakos/SahlState.h"
#include "optics/protosfakos/Scenes.h"
#include "screens/ElSahl/ElSahl.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/FakeMoves.h"

namespace lensbench {

inline const QString biggerIndex = QStringLiteral("δώσε μεγαλύτερο δείκτη");
inline const QString invalidIndex = QStringLiteral("`Ακυρος Δείκτης Διάθλασηςgive a bigger value");

class ElSahlFixture : public ::testing::Test {
 protected:
  ElSahlFixture() {
    state = {};
    state.deiktisSahl = 1.5;
    state.pigiX = 108;
    state.pigiY = 25;
    protosfakos::connectSahlScreen([this]() -> protosfakos::SahlScreen& { return screen.view(); });
    screen.prepare();
    QCoreApplication::processEvents();
  }
  ~ElSahlFixture() override {
    protosfakos::connectSahlScreen({});
    state = {};
  }

  QImage picture() { return screen.canvas().image().copy(); }
  bool blank() {
    QImage empty(screen.canvas().image().size(), QImage::Format_RGB32);
    empty.fill(Qt::white);
    return picture() == empty;
  }

  static double b() {
    const double n = protosfakos::state().deiktisSahl.value();
    return 12.0 * std::sqrt(n * n - 1.0);
  }
  void fan(double x, double y) {
    if (state.amfikyrtosSahl) {
      protosfakos::sxediasiamfikyrtou(12, b(), x, y);
    } else {
      protosfakos::sxediasiepipedokyrtou(12, b(), x, y);
    }
  }
  void bundle(double m) {
    if (state.amfikyrtosSahl) {
      protosfakos::desmiamfikyrtou(12, b(), m);
    } else {
      protosfakos::desmiepipedokyrtou(12, b(), m);
    }
  }
  // Whether the picture is what the drawing gives on a clear screen, and something at all.
  template <typename Drawing>
  ::testing::AssertionResult shows(Drawing drawing) {
    if (blank()) return ::testing::AssertionFailure() << "the picture is blank";
    const QImage seen = picture();
    screen.canvas().Cls();
    drawing();
    if (seen == picture()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "another picture is shown";
  }

  void press(double x, double y) { screen.Form_MouseDown(1, 0, x, y); }
  void release(double x, double y) { screen.Form_MouseUp(1, 0, x, y); }
  // The pixel of the drawing area where a user point is.
  QPoint pixel(double x, double y) {
    const Point p = screen.canvas().mapping().toPixel({x, y});
    return {static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y))};
  }

  void expectEdges(double x, double upper, double lower) {
    const SahlControls& c = screen.controls();
    EXPECT_DOUBLE_EQ(x, c.Line1.X1());
    EXPECT_DOUBLE_EQ(x, c.Line1.X2());
    EXPECT_DOUBLE_EQ(x, c.Line2.X1());
    EXPECT_DOUBLE_EQ(x, c.Line2.X2());
    EXPECT_DOUBLE_EQ(200, c.Line1.Y1());
    EXPECT_DOUBLE_EQ(upper, c.Line1.Y2());
    EXPECT_DOUBLE_EQ(-200, c.Line2.Y1());
    EXPECT_DOUBLE_EQ(lower, c.Line2.Y2());
  }

  protosfakos::SahlState& state = protosfakos::state();
  FakeDialogs dialogs;
  FakeMoves moves;
  ElSahl screen{moves};
};

}  // namespace lensbench
