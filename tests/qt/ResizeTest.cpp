#include <gtest/gtest.h>

#include "canvas/qt/RasterCanvas.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

TEST(Resize, KeepsThePictureAtTheUpperLeftAndFillsTheNewStrip) {
  RasterCanvas canvas({100, 80});
  canvas.Scale(0, 0, 100, 80);
  canvas.Circle(50, 40, 30, red);
  canvas.Line(0, 0, 99, 79, blue);
  const QImage before = canvas.image().copy();
  canvas.BackColor(green);
  canvas.resize({140, 90}, 1.0);
  EXPECT_EQ(canvas.image().copy(0, 0, 100, 80), before);
  EXPECT_EQ(count(canvas.image(), green), 140 * 90 - 100 * 80);
  canvas.resize({60, 50}, 1.0);
  EXPECT_EQ(canvas.image(), before.copy(0, 0, 60, 50));
}

TEST(Resize, KeepsPixelsPerUnitAndTheCorner) {
  RasterCanvas canvas({200, 100});
  canvas.Scale(-50, 25, 50, -25);
  canvas.resize({300, 180}, 1.0);
  EXPECT_DOUBLE_EQ(canvas.ScaleLeft(), -50.0);
  EXPECT_DOUBLE_EQ(canvas.ScaleTop(), 25.0);
  EXPECT_DOUBLE_EQ(canvas.ScaleWidth(), 150.0);
  EXPECT_DOUBLE_EQ(canvas.ScaleHeight(), -90.0);
  canvas.PSet(0, 0, red);
  EXPECT_EQ(extent(canvas.image(), red), QRect(100, 50, 1, 1));
}

TEST(Resize, ASizeOfNothingIsOnePixel) {
  RasterCanvas canvas({10, 10});
  canvas.resize({0, 0}, 1.0);
  EXPECT_EQ(canvas.size(), QSize(1, 1));
  canvas.Line(-100, -100, 100, 100, red);
  canvas.Circle(0, 0, 50, red);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FloodFill(0, 0, black);
  canvas.Print("x");
}

TEST(Resize, AnotherOversamplingOrPixelRatioLosesThePicture) {
  RasterCanvas canvas({60, 60});
  canvas.Scale(0, 0, 60, 60);
  int lost = 0;
  QObject::connect(&canvas, &RasterCanvas::pictureLost, [&] { ++lost; });
  canvas.Circle(30, 30, 20, red);
  canvas.BackColor(green);
  canvas.setOversampling(2);
  EXPECT_EQ(lost, 1);
  EXPECT_EQ(canvas.image().size(), QSize(120, 120));
  EXPECT_EQ(count(canvas.image(), green), 120 * 120);
  canvas.Line(0, 0, 60, 60, red);
  canvas.resize({60, 60}, 2.0);
  EXPECT_EQ(lost, 2);
  EXPECT_EQ(canvas.image().size(), QSize(240, 240));
  EXPECT_EQ(count(canvas.image(), green), 240 * 240);
  canvas.PSet(5, 5, blue);
  EXPECT_EQ(extent(canvas.image(), blue), QRect(20, 20, 4, 4));
}

TEST(Resize, ANewSizeAndANewScaleLoseThePictureAndTheSameOnesDoNot) {
  RasterCanvas canvas({60, 60});
  int lost = 0;
  QObject::connect(&canvas, &RasterCanvas::pictureLost, [&] { ++lost; });
  canvas.resize({60, 60}, 1.0);
  canvas.setOversampling(1);
  EXPECT_EQ(lost, 0);
  canvas.resize({61, 60}, 1.0);
  EXPECT_EQ(lost, 1);
  canvas.Scale(0, 0, 61, 60);
  EXPECT_EQ(lost, 2);
  canvas.Scale(0, 0, 61, 60);
  EXPECT_EQ(lost, 2);
}

TEST(Resize, PixelsThatAreGivenUpAreThoseOfTheBackground) {
  RasterCanvas canvas({60, 60}, 1.0, 2);
  canvas.Line(0, 0, 60 * 15, 60 * 15, red);
  canvas.BackColor(green);
  int lost = 0;
  QObject::connect(&canvas, &RasterCanvas::pictureLost, [&] { ++lost; });
  canvas.giveUpPixels();
  EXPECT_EQ(lost, 1);
  EXPECT_EQ(count(canvas.image(), green), 120 * 120);
  EXPECT_EQ(canvas.takeDirty(), QRegion(0, 0, 60, 60));
  canvas.PSet(0, 0, red);
  EXPECT_EQ(count(canvas.image(), red), 4);
}

}  // namespace
}  // namespace lensbench
