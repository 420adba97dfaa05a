// What is painted on a device looks like what the drawing surface shows.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include <QPainter>
#include <QPicture>

#include "canvas/Recording.h"
#include "canvas/qt/PainterCanvas.h"
#include "canvas/qt/RasterCanvas.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

constexpr QSize logical(200, 160);

// What draw paints, at a number of device pixels a logical pixel.
template <typename Draw>
QImage painted(int ratio, Draw&& draw) {
  QImage image(logical * ratio, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PainterCanvas canvas(painter, QRectF(image.rect()), logical);
  canvas.Scale(-100, 80, 100, -80);
  draw(canvas);
  return image;
}

// How many pixels are nearer to black than to white.
int dark(const QImage& image) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) n += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
  }
  return n;
}

// How many pixels are dark on only one of a painted picture and the surface that draw draws on.
template <typename Draw>
int differing(const QImage& picture, Draw&& draw) {
  RasterCanvas surface(logical, picture.width() / logical.width(), 1);
  surface.Scale(-100, 80, 100, -80);
  draw(surface);
  int n = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const bool onPicture = qGray(picture.pixel(x, y)) < 128;
      n += onPicture == (surface.image().pixel(x, y) != 0xFFFFFFFFu) ? 0 : 1;
    }
  }
  return n;
}

TEST(PainterCanvas, PensAndDotsKeepTheirSizeInLogicalPixels) {
  for (const int ratio : {1, 4}) {
    const QImage line = painted(ratio, [](Canvas& canvas) {
      canvas.DrawWidth(4);
      canvas.Line(-1000, 0, 1000, 0, black);
    });
    EXPECT_NEAR(dark(line), 200 * ratio * 4 * ratio, 200 * ratio) << ratio;
    const QImage dot = painted(ratio, [](Canvas& canvas) {
      canvas.DrawWidth(15);
      canvas.PSet(20, 10, black);
    });
    EXPECT_NEAR(dark(dot), std::numbers::pi * 7.5 * 7.5 * ratio * ratio, 8 * ratio * ratio);
    EXPECT_EQ(colourAt(dot, 120 * ratio, 70 * ratio), black);
  }
}

TEST(PainterCanvas, LooksLikeTheSurface) {
  const auto draw = [](Canvas& canvas) {
    canvas.DrawWidth(3);
    canvas.Line(-90, -70, 1e9, 8e8, black);
    canvas.Circle(20, -10, 40, black);
    canvas.Circle(-20, 10, 60, black, 5.0, 1.0);
    canvas.Circle(1e7, 0, 1e7 - 30, black);
  };
  const QImage vector = painted(2, draw);
  EXPECT_GT(dark(vector), 4000);
  EXPECT_LT(differing(vector, draw), dark(vector) / 20);
}

TEST(PainterCanvas, OnlyAPenOfWidthOneDots) {
  const auto level = [](int width) {
    return [width](Canvas& canvas) {
      canvas.DrawStyle(DrawStyle::Dotted);
      canvas.DrawWidth(width);
      canvas.Line(-100, 0, 100, 0, black);
    };
  };
  EXPECT_NEAR(dark(painted(4, level(1))), 200 * 4 * 4 / 2, 400);
  EXPECT_NEAR(dark(painted(4, level(2))), 200 * 4 * 8, 400);
}

TEST(PainterCanvas, TheDotsOfACircleThatIsSeenInPartsStandWhereTheSurfaceHasThem) {
  const auto draw = [](Canvas& canvas) {
    canvas.DrawStyle(DrawStyle::Dotted);
    canvas.Circle(0, 0, 91.3, black);
    canvas.Circle(31.7, 0, 90.9, black);
  };
  const QImage vector = painted(4, draw);
  EXPECT_GT(dark(vector), 4000);
  EXPECT_LT(differing(vector, draw), dark(vector) / 6);
}

TEST(PainterCanvas, ABodyIsFilledAndItsBorderIsWhole) {
  const double half = std::acos(0.5);
  constexpr double pi = std::numbers::pi;
  const Body lens{{{{-30, 0}, 60, -half, half}, {{30, 0}, 60, pi - half, pi + half}}, 2};
  const auto draw = [&](Canvas& canvas) {
    canvas.DrawWidth(2);
    for (const CircleArc& arc : lens.outline) {
      canvas.Circle(arc.centre.x, arc.centre.y, arc.radius, black, arc.start, arc.end);
    }
    const int edge = dark(painted(1, [](Canvas&) {}));
    EXPECT_EQ(edge, 0);
    canvas.FillColor(green);
    EXPECT_FALSE(canvas.FillBody(100, 80, black, lens));
    canvas.FillStyle(FillStyle::Solid);
    EXPECT_FALSE(canvas.FloodFill(100, 80, black));
    EXPECT_TRUE(canvas.FillBody(100, 80, black, lens));
  };
  const QImage filled = painted(4, draw);
  EXPECT_EQ(colourAt(filled, 400, 320), green);
  EXPECT_EQ(colourAt(filled, 522, 322), black);
  EXPECT_EQ(colourAt(filled, 40, 40), white);
  // The area of the lens is two segments of a circle, less half of its border.
  const double segment = 60.0 * 60.0 * (2 * half - std::sin(2 * half)) / 2.0;
  const double border = 60.0 * 4 * half;
  EXPECT_NEAR(count(filled, green) / 16.0, 2 * segment - border, 0.02 * segment);
}

TEST(PainterCanvas, TextStandsWhereTheSurfaceHasIt) {
  const auto draw = [](Canvas& canvas) {
    canvas.FontSize(20);
    canvas.CurrentX(-50);
    canvas.CurrentY(40);
    canvas.Print("H1");
    EXPECT_NEAR(canvas.CurrentY(), 40 - 20 * 96.0 / 72.0 * 1.15, 3.0);
  };
  RasterCanvas surface(logical, 4.0, 1);
  surface.Scale(-100, 80, 100, -80);
  draw(surface);
  const auto box = [](const QImage& image) {
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 128) all |= QRect(x, y, 1, 1);
      }
    }
    return all;
  };
  const QRect a = box(surface.image());
  const QRect b = box(painted(4, draw));
  EXPECT_NEAR(a.left(), b.left(), 4);
  EXPECT_NEAR(a.top(), b.top(), 4);
  EXPECT_NEAR(a.width(), b.width(), 6);
  EXPECT_NEAR(a.height(), b.height(), 4);
}

TEST(PainterCanvas, StaysInItsTargetAndPutsThePainterBack) {
  QImage image(400, 400, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const QTransform before = painter.transform();
  {
    PainterCanvas canvas(painter, QRectF(100, 50, 200, 160), logical);
    canvas.BackColor(red);
    canvas.Cls();
    canvas.DrawWidth(50);
    canvas.Line(-30000, 0, 30000, 0, red);
  }
  EXPECT_EQ(painter.transform(), before);
  EXPECT_FALSE(painter.hasClipping());
  EXPECT_EQ(extent(image, red), QRect(100, 50, 200, 160));
}

TEST(PainterCanvas, ARecordingIsPlayedOnAVectorDevice) {
  Recording recording(logical.width(), logical.height());
  recording.Scale(-100, 80, 100, -80);
  recording.DrawWidth(4);
  recording.Line(-50, -50, 50, 50, red);
  recording.PSet(0, 10, blue);
  QPicture device;
  QPainter painter(&device);
  {
    PainterCanvas canvas(painter, QRectF(0, 0, 400, 320), logical);
    recording.playOn(canvas);
  }
  painter.end();
  EXPECT_GT(device.size(), 0u);
  QImage image(400, 320, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter on(&image);
  device.play(&on);
  on.end();
  EXPECT_EQ(colourAt(image, 201, 161), red);
}

}  // namespace
}  // namespace lensbench
