// The single-ray screen beside a workbench whose diaphragm the test sets.
#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "canvas/Recording.h"
#include "canvas/qt/RasterCanvas.h"
#include "optics/poreiaaktinon/Workbench.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeMoves.h"

namespace lensbench {

// Only the diaphragm of it concerns the single ray; it stands open unless a test closes it.
class FakeWorkbench : public poreiaaktinon::Workbench {
 public:
  FakeWorkbench();
  ~FakeWorkbench();
  FakeWorkbench(const FakeWorkbench&) = delete;
  FakeWorkbench& operator=(const FakeWorkbench&) = delete;

  Canvas& canvas() override { return canvas_; }
  poreiaaktinon::Diafragma diafragma() const override { return opening; }
  poreiaaktinon::Fakos fakos() const override { return {}; }
  double deiktisdiathlasis() const override { return 1.0; }
  Point pigi() const override { return {}; }
  double vima() const override { return 1.0; }
  poreiaaktinon::Provoli provoli() const override { return {}; }

  poreiaaktinon::Diafragma opening{0.0, 1000.0, -1000.0};

 private:
  Recording canvas_;
};

class MoniaktinaTest : public ::testing::Test {
 protected:
  FakeWorkbench workbench;
  FakeMoves moves;
  moniaktina screen{moves};
  MoniaktinaControls& c = screen.controls();

  // As the workbench opens it.
  void open();
  QImage picture() { return screen.canvas().image(); }
  // The picture that some drawing makes on a cleared canvas of the same size and scale.
  QImage drawn(const std::function<void(Canvas&)>& drawing);
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
