// The real Ibn Sahl screen, opened as the lens menu opens it, with all that the program hands it in
// the hands of the test.
#pragma once

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

#include <QCoreApplication>
#include <QImage>
#include <QTest>

#include "screens/ElSahl/ElSahl.h"
#include "tests/screens/support/PictureOf.h"
#include "tests/screens/support/TestContext.h"

namespace lensbench {

inline const QString biggerIndex = QStringLiteral("δώσε μεγαλύτερο δείκτη");
inline const QString invalidIndex = QStringLiteral("`Ακυρος Δείκτης Διάθλασηςgive a bigger value");

class ElSahlFixture : public ::testing::Test {
 protected:
  ElSahlFixture() {
    shared.deiktisSahl = 1.5;
    shared.pigiX = 108;
    shared.pigiY = 25;
    screen.prepare();
    QCoreApplication::processEvents();
  }

  QImage picture() { return screen.image().copy(); }
  bool blank() {
    QImage empty(picture().size(), QImage::Format_RGB32);
    empty.fill(Qt::white);
    return picture() == empty;
  }
  void resizeTo(int width, int height) {
    screen.setWindowState(Qt::WindowNoState);
    screen.resize(width, height);
    QCoreApplication::processEvents();
  }

  // Scenes of the shared lens with the diaphragm and the options as they stand.
  protosfakos::Scene scene(const protosfakos::Rays& rays) {
    protosfakos::Asked asked = screen.askedFan();
    asked.rays = rays;
    return protosfakos::sceneOf(asked);
  }
  protosfakos::Scene fan(double x, double y) { return scene(protosfakos::Fan{{x, y}}); }
  protosfakos::Scene bundle(double slope) { return scene(protosfakos::Desmi{slope}); }
  // Whether the picture is what these layers give on a clear screen, and something at all.
  ::testing::AssertionResult shows(const std::vector<protosfakos::Layer>& layers) {
    if (blank()) return ::testing::AssertionFailure() << "the picture is blank";
    if (picture() == pictureOf(screen, protosfakos::Shown{layers})) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "another picture is shown";
  }
  // The scene that was drawn last, and its number of recorded rays.
  const protosfakos::Scene& lastScene() {
    const auto& layers = screen.shown().layers;
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
      if (const auto* scene = std::get_if<protosfakos::Scene>(&*layer)) return *scene;
    }
    throw std::logic_error("no scene is shown");
  }
  int rays() { return lastScene().traced->plithosaktinon(); }

  void press(double x, double y) { screen.Form_MouseDown(1, 0, x, y); }
  void release(double x, double y) { screen.Form_MouseUp(1, 0, x, y); }
  // The pixel of the drawing area where a user point is.
  QPoint pixel(double x, double y) {
    const Point p = screen.canvas().mapping().toPixel({x, y});
    return {static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y))};
  }

  void expectEdges(double x, double upper, double lower) {
    EXPECT_DOUBLE_EQ(x, c.Line1.X1());
    EXPECT_DOUBLE_EQ(x, c.Line1.X2());
    EXPECT_DOUBLE_EQ(x, c.Line2.X1());
    EXPECT_DOUBLE_EQ(x, c.Line2.X2());
    EXPECT_DOUBLE_EQ(200, c.Line1.Y1());
    EXPECT_DOUBLE_EQ(upper, c.Line1.Y2());
    EXPECT_DOUBLE_EQ(-200, c.Line2.Y1());
    EXPECT_DOUBLE_EQ(lower, c.Line2.Y2());
  }
  void expectOpeningScale() {
    EXPECT_EQ(-120, screen.canvas().ScaleLeft());
    EXPECT_EQ(120, screen.canvas().ScaleTop());
    EXPECT_EQ(270, screen.canvas().ScaleWidth());
    EXPECT_EQ(-240, screen.canvas().ScaleHeight());
  }

  TestContext t;
  Shared& shared = t.shared;
  FakeDialogs& dialogs = t.dialogs;
  ElSahl screen{t.context};
  SahlControls& c = screen.controls();
};

}  // namespace lensbench
