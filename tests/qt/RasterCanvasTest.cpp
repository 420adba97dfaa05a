#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <random>

#include "canvas/RuntimeError.h"
#include "canvas/qt/RasterCanvas.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

constexpr double pi = std::numbers::pi;

// One user unit a pixel, the origin in the middle, y upward.
void centre(RasterCanvas& canvas) {
  const double x = canvas.size().width() / 2.0;
  const double y = canvas.size().height() / 2.0;
  canvas.Scale(-x, y, x, -y);
}

// Fills up to the border as the screens do, solid for the fill alone.
bool fill(RasterCanvas& canvas, QPoint pixel, Rgb colour, Rgb border = black) {
  canvas.FillColor(colour);
  canvas.FillStyle(FillStyle::Solid);
  const bool filled = canvas.FloodFill(pixel.x(), pixel.y(), border);
  canvas.FillStyle(FillStyle::Transparent);
  return filled;
}

TEST(RasterCanvas, IsWhiteAndSizedByRatioAndOversampling) {
  const RasterCanvas canvas({40, 30}, 1.5, 2);
  EXPECT_EQ(canvas.image().size(), QSize(120, 90));
  EXPECT_EQ(count(canvas.image(), white), 120 * 90);
  EXPECT_EQ(RasterCanvas({0, -5}).image().size(), QSize(1, 1));
}

TEST(RasterCanvas, AnArcFromBeforeToAfterAngleZeroRunsThroughIt) {
  RasterCanvas canvas({200, 200});
  centre(canvas);
  canvas.Circle(0, 0, 50, red, 2 * pi - 0.5, 0.5);
  EXPECT_EQ(colourAt(canvas.image(), 150, 100), red);
  EXPECT_EQ(colourAt(canvas.image(), 50, 100), white);
  const QRect drawn = extent(canvas.image(), red);
  EXPECT_GE(drawn.left(), 100 + 50 * std::cos(0.5) - 1);
  EXPECT_NEAR(drawn.top(), 100 - 50 * std::sin(0.5), 1.0);
  EXPECT_NEAR(drawn.bottom(), 100 + 50 * std::sin(0.5), 1.0);
}

TEST(RasterCanvas, AnArcRunsCounterClockwiseOnTheScreen) {
  RasterCanvas canvas({200, 200});
  centre(canvas);
  canvas.Circle(0, 0, 50, red, 0, pi / 2);
  EXPECT_EQ(colourAt(canvas.image(), 150, 100), red);
  EXPECT_EQ(colourAt(canvas.image(), 100, 50), red);
  const QRect drawn = extent(canvas.image(), red);
  EXPECT_GE(drawn.left(), 100);
  EXPECT_LE(drawn.bottom(), 100);
}

TEST(RasterCanvas, ACircleStaysWithinAPixelOfItsRadius) {
  for (const double radius : {1.0, 7.3, 40.0, 200.5, 480.0}) {
    RasterCanvas canvas({1000, 1000});
    centre(canvas);
    canvas.Circle(0.3, -0.2, radius, red);
    int pixels = 0;
    for (int y = 0; y < 1000; ++y) {
      for (int x = 0; x < 1000; ++x) {
        if (colourAt(canvas.image(), x, y) != red) continue;
        ++pixels;
        EXPECT_NEAR(std::hypot(x - 500.3, y - 500.2), radius, 1.0) << radius;
      }
    }
    EXPECT_GT(pixels, 4 * radius);
  }
}

TEST(RasterCanvas, ACircleOfRadiusZeroIsAPoint) {
  RasterCanvas canvas({21, 21});
  centre(canvas);
  canvas.Circle(0, 0, 0, red);
  EXPECT_EQ(count(canvas.image(), red), 1);
}

TEST(RasterCanvas, AFilledCircleHasItsFillInsideAndItsColourAround) {
  RasterCanvas canvas({101, 101});
  centre(canvas);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillColor(green);
  canvas.Circle(0, 0, 30, red);
  EXPECT_EQ(colourAt(canvas.image(), 51, 51), green);
  EXPECT_NEAR(count(canvas.image(), green) + count(canvas.image(), red), pi * 30.5 * 30.5, 60.0);
  EXPECT_EQ(extent(canvas.image(), red).width(), 61);
}

TEST(RasterCanvas, ADotOfWidth15IsARoundDiscOf15Pixels) {
  RasterCanvas canvas({41, 41});
  canvas.Scale(0, 0, 41, 41);
  canvas.DrawWidth(15);
  canvas.PSet(20, 20, red);
  EXPECT_EQ(extent(canvas.image(), red), QRect(13, 13, 15, 15));
  EXPECT_NEAR(count(canvas.image(), red), pi * 7.5 * 7.5, 6.0);
  for (int y = 0; y < 41; ++y) {
    for (int x = 0; x < 41; ++x) {
      EXPECT_EQ(colourAt(canvas.image(), x, y) == red, std::hypot(x - 20, y - 20) <= 7.5);
    }
  }
}

TEST(RasterCanvas, ADotOfOnePixelIsThePixelOfItsPoint) {
  RasterCanvas canvas({20, 20});
  canvas.Scale(0, 0, 20, 20);
  canvas.PSet(7.4, 11.6, red);
  EXPECT_EQ(extent(canvas.image(), red), QRect(7, 12, 1, 1));
  canvas.PSet(19.4, 19.4, blue);
  EXPECT_EQ(colourAt(canvas.image(), 19, 19), blue);
  canvas.PSet(1e300, 3, green);
  EXPECT_EQ(count(canvas.image(), green), 0);
}

TEST(RasterCanvas, DotsAtTheEdgesAreCut) {
  RasterCanvas canvas({20, 20});
  canvas.Scale(0, 0, 20, 20);
  canvas.DrawWidth(5);
  for (const double x : {-1.0, 0.0, 19.0, 20.5}) {
    for (const double y : {-1.0, 0.0, 19.0, 20.5}) canvas.PSet(x, y, red);
  }
  EXPECT_EQ(colourAt(canvas.image(), 0, 0), red);
  EXPECT_EQ(colourAt(canvas.image(), 19, 19), red);
  EXPECT_EQ(colourAt(canvas.image(), 10, 10), white);
}

TEST(RasterCanvas, ALinePaintsBothItsEnds) {
  RasterCanvas canvas({100, 60});
  canvas.Scale(0, 0, 100, 60);
  canvas.Line(10, 20, 70, 33, red);
  EXPECT_EQ(colourAt(canvas.image(), 10, 20), red);
  EXPECT_EQ(colourAt(canvas.image(), 70, 33), red);
  EXPECT_EQ(extent(canvas.image(), red), QRect(QPoint(10, 20), QPoint(70, 33)));
  EXPECT_EQ(count(canvas.image(), red), 61);
  canvas.Line(5, 5, 5, 5, blue);
  EXPECT_EQ(extent(canvas.image(), blue), QRect(5, 5, 1, 1));
}

TEST(RasterCanvas, AWidePenCoversItsWidthAcrossALevelLine) {
  for (const int k : {1, 2, 3}) {
    for (const int width : {2, 3, 4, 5}) {
      RasterCanvas canvas({60, 60}, 1.0, k);
      canvas.Scale(0, 0, 60, 60);
      canvas.DrawWidth(width);
      canvas.Line(20, 30, 40, 30, red);
      EXPECT_EQ(extent(canvas.image(), red).height(), width * k) << width << " at " << k;
      canvas.Cls();
      canvas.Line(30, 20, 30, 40, red);
      EXPECT_EQ(extent(canvas.image(), red).width(), width * k) << width << " at " << k;
    }
  }
}

TEST(RasterCanvas, AtAnOversamplingOfTwoALevelLineFillsWholeDisplayPixels) {
  RasterCanvas canvas({60, 60}, 1.0, 2);
  canvas.Scale(0, 0, 60, 60);
  canvas.Line(0, 30, 60, 30, red);
  EXPECT_EQ(extent(canvas.image(), red), QRect(0, 60, 120, 2));
}

// Random figures of one canvas, the same for one seed.
void scribble(RasterCanvas& canvas, unsigned seed, Rgb colour) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> place(-150.0, 150.0);
  std::uniform_real_distribution<double> angle(0.0, 2 * pi);
  std::uniform_int_distribution<int> width(1, 15);
  for (int i = 0; i < 60; ++i) {
    canvas.DrawWidth(i % 2 == 0 ? 1 : width(random));
    canvas.DrawStyle(i % 5 == 0 ? DrawStyle::Dotted : DrawStyle::Solid);
    const double x = place(random), y = place(random), u = place(random), v = place(random);
    const double a = angle(random), b = angle(random);
    canvas.Line(x, y, u, v, colour);
    canvas.Circle(x, y, std::fabs(u), colour);
    canvas.Circle(u, v, std::fabs(x), colour, a, b);
    canvas.PSet(v, y, colour);
  }
}

TEST(RasterCanvas, WhiteTakesAwayExactlyWhatRedPutThere) {
  for (const int k : {1, 2}) {
    RasterCanvas canvas({200, 200}, 1.0, k);
    centre(canvas);
    const QImage before = canvas.image().copy();
    scribble(canvas, 7, red);
    EXPECT_GT(count(canvas.image(), red), 1000);
    scribble(canvas, 7, white);
    EXPECT_EQ(canvas.image(), before) << "k = " << k;
  }
}

TEST(RasterCanvas, PixelsAreHard) {
  RasterCanvas canvas({200, 200}, 1.0, 2);
  centre(canvas);
  scribble(canvas, 11, red);
  EXPECT_EQ(count(canvas.image(), red) + count(canvas.image(), white), 400 * 400);
}

TEST(RasterCanvas, ALineAndItsReverseCoverTheSamePixels) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> place(-300.0, 300.0);
  for (const int k : {1, 2}) {
    for (int i = 0; i < 400; ++i) {
      RasterCanvas there({120, 90}, 1.0, k);
      RasterCanvas back({120, 90}, 1.0, k);
      for (RasterCanvas* canvas : {&there, &back}) {
        centre(*canvas);
        canvas->DrawWidth(1 + i % 4);
        canvas->DrawStyle(i % 8 == 0 ? DrawStyle::Dotted : DrawStyle::Solid);
      }
      const double x = place(random), y = place(random), u = place(random), v = place(random);
      there.Line(x, y, u, v, red);
      back.Line(u, v, x, y, red);
      ASSERT_EQ(there.image(), back.image()) << x << " " << y << " " << u << " " << v;
    }
  }
}

TEST(RasterCanvas, AFarEndPointDrawsTheRightVisiblePart) {
  for (const int width : {1, 3}) {
    RasterCanvas canvas({200, 200});
    centre(canvas);
    canvas.DrawWidth(width);
    canvas.Line(0, 0, 1e18, 5e17, red);
    EXPECT_EQ(colourAt(canvas.image(), 100, 100), red);
    EXPECT_EQ(colourAt(canvas.image(), 180, 60), red);
    EXPECT_EQ(colourAt(canvas.image(), 20, 140), white);
    canvas.Cls();
    // Both ends far away, on a line through the middle.
    canvas.Line(-1e18, -5e17, 1e18, 5e17, red);
    EXPECT_EQ(colourAt(canvas.image(), 100, 100), red);
    EXPECT_EQ(colourAt(canvas.image(), 180, 60), red);
    EXPECT_EQ(colourAt(canvas.image(), 20, 140), red);
    canvas.Cls();
    canvas.Line(0, 0, 1e308, -1e308, red);
    EXPECT_EQ(colourAt(canvas.image(), 190, 190), red);
    canvas.Cls();
    canvas.Line(1e18, 1e18, 1e18, -1e18, red);
    EXPECT_EQ(count(canvas.image(), red), 0);
  }
}

TEST(RasterCanvas, AVastCircleDrawsItsVisiblePartAtOnce) {
  for (const double radius : {1e5, 1e9, 1e12}) {
    RasterCanvas canvas({200, 200}, 1.0, 2);
    centre(canvas);
    canvas.Circle(radius, 0, radius, red);
    EXPECT_EQ(colourAt(canvas.image(), 200, 200), red) << radius;
    EXPECT_EQ(colourAt(canvas.image(), 200, 10), red) << radius;
    EXPECT_NEAR(extent(canvas.image(), red).width(), 2, 1) << radius;
  }
  RasterCanvas canvas({200, 200});
  for (const double radius : {1e18, 1e100, 1e300, 1e308}) canvas.Circle(0, 0, radius, red);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillColor(green);
  canvas.Circle(100, 100, 1e9, red);
  EXPECT_EQ(count(canvas.image(), green), 200 * 200);
}

TEST(RasterCanvas, OnlyAPenOfWidthOneDots) {
  for (const int k : {1, 2}) {
    RasterCanvas canvas({200, 40}, 1.0, k);
    canvas.Scale(0, 0, 200, 40);
    canvas.DrawStyle(DrawStyle::Dotted);
    canvas.Line(0, 10, 199, 10, red);
    EXPECT_NEAR(count(canvas.image(), red), 200 * k * k / 2, 6 * k * k);
    canvas.Cls();
    canvas.DrawWidth(2);
    canvas.Line(0, 10, 199, 10, red);
    EXPECT_GE(count(canvas.image(), red), 400 * k * k);
  }
}

TEST(RasterCanvas, ADottedCircleIsAboutHalfPainted) {
  RasterCanvas solid({300, 300});
  RasterCanvas dotted({300, 300});
  for (RasterCanvas* canvas : {&solid, &dotted}) centre(*canvas);
  dotted.DrawStyle(DrawStyle::Dotted);
  solid.Circle(0, 0, 120, red);
  dotted.Circle(0, 0, 120, red);
  const double share = count(dotted.image(), red) / double(count(solid.image(), red));
  EXPECT_GT(share, 0.4);
  EXPECT_LT(share, 0.75);
  EXPECT_GT(extent(dotted.image(), red).width(), 236);
}

TEST(RasterCanvas, ADottedFigureWithoutLengthIsAPoint) {
  for (const int k : {1, 2}) {
    RasterCanvas line({50, 50}, 1.0, k);
    RasterCanvas circle({50, 50}, 1.0, k);
    RasterCanvas solid({50, 50}, 1.0, k);
    for (RasterCanvas* canvas : {&line, &circle, &solid}) centre(*canvas);
    for (RasterCanvas* canvas : {&line, &circle}) canvas->DrawStyle(DrawStyle::Dotted);
    line.Line(7, -3, 7, -3, red);
    circle.Circle(7, -3, 0, red);
    solid.Line(7, -3, 7, -3, red);
    EXPECT_GE(count(solid.image(), red), 1);
    EXPECT_EQ(line.image(), solid.image()) << k;
    EXPECT_EQ(circle.image(), solid.image()) << k;
  }
}

TEST(RasterCanvas, TextStandsWithItsUpperLeftCornerAtTheCurrentPoint) {
  RasterCanvas canvas({200, 100});
  canvas.Scale(0, 0, 200, 100);
  canvas.FontSize(20);
  canvas.CurrentX(50);
  canvas.CurrentY(30);
  canvas.Print("F1");
  QRect dark;
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) {
      if (colourAt(canvas.image(), x, y).red() < 128) dark |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_GE(dark.left(), 50);
  EXPECT_LE(dark.left(), 56);
  EXPECT_GE(dark.top(), 30);
  EXPECT_LE(dark.top(), 42);
  EXPECT_GT(canvas.CurrentY(), 30 + 20);
  EXPECT_LT(canvas.CurrentY(), 30 + 50);
}

TEST(RasterCanvas, TextAfterClsStandsAtTheOriginAndGreekIsDrawn) {
  RasterCanvas canvas({200, 100});
  centre(canvas);
  canvas.Cls();
  canvas.Print("Φακός");
  const QImage& image = canvas.image();
  int right = 0;
  for (int y = 50; y < 100; ++y) {
    for (int x = 100; x < 200; ++x) right += colourAt(image, x, y) == white ? 0 : 1;
  }
  EXPECT_GT(right, 20);
  EXPECT_EQ(right, 200 * 100 - count(image, white));
}

TEST(RasterCanvas, AnUnbrokenBorderHoldsTheFillAtEveryRadius) {
  for (const Point offset : {Point{0.0, 0.0}, Point{0.5, 0.5}, Point{0.31, -0.73}}) {
    RasterCanvas canvas({1024, 1024});
    centre(canvas);
    for (int radius = 1; radius <= 500; ++radius) {
      canvas.Cls();
      canvas.Circle(offset.x, offset.y, radius, black);
      const bool filled = fill(canvas, {512, 512}, green);
      ASSERT_EQ(colourAt(canvas.image(), 0, 0), white) << "leaked at radius " << radius;
      if (radius > 2) {
        ASSERT_TRUE(filled) << radius;
        ASSERT_EQ(colourAt(canvas.image(), 512 + radius / 2, 512), green) << radius;
      }
    }
  }
}

TEST(RasterCanvas, AnUnbrokenBorderHoldsTheFillOfAnOversampledImage) {
  RasterCanvas canvas({1040, 1040}, 1.0, 2);
  centre(canvas);
  for (int radius = 1; radius <= 500; ++radius) {
    canvas.Cls();
    canvas.Circle(0.37, 0.11, radius, black);
    EXPECT_TRUE(fill(canvas, {520, 520}, green));
    ASSERT_EQ(colourAt(canvas.image(), 0, 0), white) << "leaked at radius " << radius;
  }
}

TEST(RasterCanvas, TwoArcsThatMeetHoldTheFill) {
  for (const int k : {1, 2}) {
    RasterCanvas canvas({400, 400}, 1.0, k);
    centre(canvas);
    const double half = std::acos(0.5);
    canvas.Circle(-50, 0, 100, black, 2 * pi - half, half);
    canvas.Circle(50, 0, 100, black, pi - half, pi + half);
    EXPECT_TRUE(fill(canvas, {200, 200}, RGB(220, 220, 195)));
    EXPECT_EQ(colourAt(canvas.image(), 0, 0), white);
    EXPECT_EQ(colourAt(canvas.image(), 200 * k, 200 * k), RGB(220, 220, 195));
  }
}

TEST(RasterCanvas, TheFillPassesOtherColoursAndItsOwn) {
  RasterCanvas canvas({50, 50});
  canvas.Scale(0, 0, 50, 50);
  canvas.Line(10, 0, 10, 49, red);
  canvas.Line(20, 0, 20, 49, green);
  canvas.Line(30, 0, 30, 49, black);
  EXPECT_TRUE(fill(canvas, {0, 0}, green));
  EXPECT_EQ(count(canvas.image(), green), 30 * 50);
  EXPECT_EQ(count(canvas.image(), white), 19 * 50);
  EXPECT_EQ(canvas.image().pixel(0, 0), 0xFF00FF00u);
  EXPECT_TRUE(fill(canvas, {40, 40}, black));
  EXPECT_EQ(count(canvas.image(), white), 0);
}

TEST(RasterCanvas, AFillFromTheBorderOrFromOutsideFillsNothing) {
  RasterCanvas canvas({50, 50});
  canvas.Scale(0, 0, 50, 50);
  canvas.Line(0, 25, 49, 25, black);
  EXPECT_FALSE(fill(canvas, {10, 25}, green));
  EXPECT_FALSE(fill(canvas, {-1, 10}, green));
  EXPECT_FALSE(fill(canvas, {10, 50}, green));
  EXPECT_FALSE(fill(canvas, {50, 10}, green));
  EXPECT_EQ(count(canvas.image(), green), 0);
}

TEST(RasterCanvas, ATransparentFillChangesNoPixel) {
  RasterCanvas canvas({50, 50});
  canvas.FillColor(green);
  canvas.takeDirty();
  EXPECT_FALSE(canvas.FloodFill(25, 25, black));
  EXPECT_EQ(count(canvas.image(), white), 50 * 50);
  EXPECT_TRUE(canvas.takeDirty().isEmpty());
}

TEST(RasterCanvas, TellsWhatHasChanged) {
  RasterCanvas canvas({100, 100});
  canvas.Scale(0, 0, 100, 100);
  int told = 0;
  QObject::connect(&canvas, &RasterCanvas::pictureChanged, [&] { ++told; });
  EXPECT_EQ(canvas.takeDirty(), QRegion(0, 0, 100, 100));
  EXPECT_TRUE(canvas.takeDirty().isEmpty());
  canvas.PSet(10, 20, red);
  canvas.Line(12, 20, 30, 25, red);
  EXPECT_EQ(told, 1);
  const QRect dirty = canvas.takeDirty().boundingRect();
  EXPECT_TRUE(dirty.contains(extent(canvas.image(), red)));
  EXPECT_LE(dirty.width(), Tiles::side);
  EXPECT_LE(dirty.height(), Tiles::side);
  canvas.PSet(500, 500, red);
  EXPECT_TRUE(canvas.takeDirty().isEmpty());
}

// Every kind of figure must report all the pixels that it changes.
TEST(RasterCanvas, NothingChangesOutsideWhatIsTold) {
  std::mt19937 random(17);
  std::uniform_real_distribution<double> place(-90.0, 90.0);
  const std::function<void(RasterCanvas&, double, double, double, double)> figures[] = {
      [](RasterCanvas& c, double x, double y, double u, double v) { c.Line(x, y, u, v, red); },
      [](RasterCanvas& c, double x, double y, double u, double) { c.Circle(x, y, u, red); },
      [](RasterCanvas& c, double x, double y, double u, double v) {
        c.Circle(x, y, u, red, std::fabs(v) / 15, std::fabs(u) / 15);
      },
      [](RasterCanvas& c, double x, double y, double, double) { c.PSet(x, y, red); },
      [](RasterCanvas& c, double x, double y, double, double) {
        c.CurrentX(x);
        c.CurrentY(y);
        c.Print("Kύριο H1");
      },
      [](RasterCanvas& c, double x, double, double, double) {
        fill(c, {50 + int(x / 2), 50}, blue, red);
      }};
  RasterCanvas canvas({100, 100}, 1.0, 2);
  centre(canvas);
  for (int i = 0; i < 300; ++i) {
    canvas.DrawWidth(1 + i % 7);
    canvas.DrawStyle(i % 3 == 0 ? DrawStyle::Dotted : DrawStyle::Solid);
    canvas.FillStyle(i % 4 == 0 ? FillStyle::Solid : FillStyle::Transparent);
    const QImage before = canvas.image().copy();
    canvas.takeDirty();
    const double x = place(random), y = place(random), u = place(random), v = place(random);
    figures[i % 6](canvas, x, y, u, v);
    const QRegion told = canvas.takeDirty();
    for (int py = 0; py < 200; ++py) {
      for (int px = 0; px < 200; ++px) {
        if (before.pixel(px, py) != canvas.image().pixel(px, py)) {
          ASSERT_TRUE(told.contains(QPoint(px / 2, py / 2)))
              << "figure " << i % 6 << " at " << px << ", " << py;
        }
      }
    }
    if (i % 30 == 29) canvas.Cls();
  }
}

TEST(RasterCanvas, NumbersThatAreNotFiniteAreOverflow) {
  RasterCanvas canvas({20, 20});
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_THROW(canvas.Line(0, 0, inf, 0, red), RuntimeError);
  EXPECT_THROW(canvas.Circle(0, 0, std::nan("")), RuntimeError);
  EXPECT_EQ(count(canvas.image(), white), 400);
}

}  // namespace
}  // namespace lensbench
