// What a window shows at the pixel ratio that the environment gives the toolkit.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/Shape.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

struct Window {
  Window() {
    form.canvas().Scale(-100, 80, 100, -80);
    form.canvas().Circle(0.3, 0.2, 60, red);
    form.canvas().DrawWidth(3);
    form.canvas().Line(-97, -71, 95, 60, blue);
    form.canvas().Print("Φως");
  }
  QImage shown() const {
    QImage image = form.drawingArea()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);
    return image;
  }

  Form form{{"f", "", 0, 0, 3000, 2400, white}};
};

TEST(PixelRatio, ThePictureIsShownDevicePixelByDevicePixel) {
  Window window;
  const double ratio = window.form.drawingArea()->devicePixelRatioF();
  EXPECT_EQ(window.form.canvas().devicePixelRatio(), ratio);
  const int k = window.form.canvas().oversampling();
  EXPECT_EQ(k, ratio >= 2.0 ? 1 : 2);
  EXPECT_EQ(window.shown(), filtered(window.form.image(), k));
}

TEST(PixelRatio, APartOfTheWindowIsPaintedAsTheWhole) {
  Window window;
  LineControl line(window.form, "Line1", {0, 0, 0, 0});
  line.BorderWidth(4);
  line.between({10, 70}, {10, -70});
  Shape shape(window.form, "pigi", {1500, 900, 300, 300});
  shape.FillStyle(FillStyle::Solid);
  const double ratio = window.form.drawingArea()->devicePixelRatioF();
  const QImage whole = window.shown();
  for (const QRect& part : {QRect(33, 17, 71, 64), QRect(0, 0, 200, 3), QRect(101, 41, 1, 90)}) {
    QImage image(whole.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    image.setDevicePixelRatio(ratio);
    window.form.drawingArea()->render(&image, part.topLeft(), QRegion(part));
    image.setDevicePixelRatio(1.0);
    // Device pixels that lie in the part as a whole.
    for (int y = int(std::ceil(part.y() * ratio)); y < int((part.bottom() + 1) * ratio); ++y) {
      for (int x = int(std::ceil(part.x() * ratio)); x < int((part.right() + 1) * ratio); ++x) {
        ASSERT_EQ(image.pixel(x, y), whole.pixel(x, y)) << x << ", " << y << " at " << ratio;
      }
    }
  }
}

TEST(PixelRatio, ABladeHasWholePixels) {
  Window window;
  LineControl line(window.form, "Line1", {0, 0, 0, 0});
  line.BorderColor(green);
  for (const int width : {1, 3, 4}) {
    line.BorderWidth(width);
    line.between({-50, 75}, {-50, 65});
    const QImage picture = window.shown();
    const double ratio = window.form.drawingArea()->devicePixelRatioF();
    const QRect drawn = extent(picture, green);
    EXPECT_EQ(drawn.width(), std::lround(width * ratio));
    EXPECT_EQ(count(picture, green), drawn.width() * drawn.height());
    EXPECT_EQ(colourAt(picture, drawn.left() - 1, drawn.center().y()), white);
    EXPECT_EQ(colourAt(picture, drawn.right() + 1, drawn.center().y()), white);
  }
}

}  // namespace
}  // namespace lensbench
