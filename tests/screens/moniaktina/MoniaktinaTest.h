// The single-ray screen beside a workbench whose diaphragm the test sets.
#pragma once

#include <gtest/gtest.h>

#include "canvas/qt/RasterCanvas.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/TestContext.h"

namespace lensbench {

// Points of the screen are Singles.
double asSingle(double v);

class MoniaktinaTest : public ::testing::Test {
 protected:
  TestContext t;  // t.moves.opening: the diaphragm, wide open unless a test closes it
  moniaktina screen{t.context};
  MoniaktinaControls& c = screen.controls();

  // As the workbench opens it.
  void open();
  QImage picture() { return screen.image().copy(); }
  // The lens alone, and the lens with a ray from the middle of fos towards (xa, ya), put together
  // from the values given.
  struct Lens {
    int R1, R2, centre;
    double index;
  };
  static constexpr Lens design{90, 100, 100, 1.5};
  QImage lensPicture(const Lens& lens);
  QImage rayPicture(const Lens& lens, double xa, double ya);
  Point middleOfFos() const;
  // The colour of the pixel at a user point.
  Rgb colourAt(Point user);
  // Whether any pixel of a colour stands within the rectangle between two user points.
  bool hasColour(Rgb colour, Point upperLeft, Point lowerRight);
};

}  // namespace lensbench
