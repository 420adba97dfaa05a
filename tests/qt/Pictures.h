// Looking at the pixels of an image in tests.
#pragma once

#include <QColor>
#include <QImage>

#include "canvas/Rgb.h"

namespace lensbench {

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb green = RGB(0, 255, 0);
constexpr Rgb blue = RGB(0, 0, 255);

inline Rgb colourAt(const QImage& image, int x, int y) {
  const QColor colour = image.pixelColor(x, y);
  return RGB(colour.red(), colour.green(), colour.blue());
}

inline int count(const QImage& image, Rgb colour) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) n += colourAt(image, x, y) == colour ? 1 : 0;
  }
  return n;
}

// The rectangle around all pixels of a colour.
inline QRect extent(const QImage& image, Rgb colour) {
  QRect all;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (colourAt(image, x, y) == colour) all |= QRect(x, y, 1, 1);
    }
  }
  return all;
}

// The mean, rounded to the nearest, of each k x k pixels.
inline QImage filtered(const QImage& image, int k) {
  QImage small(image.size() / k, QImage::Format_RGB32);
  for (int y = 0; y < small.height(); ++y) {
    for (int x = 0; x < small.width(); ++x) {
      int r = 0, g = 0, b = 0;
      for (int j = 0; j < k; ++j) {
        for (int i = 0; i < k; ++i) {
          const QRgb pixel = image.pixel(x * k + i, y * k + j);
          r += qRed(pixel);
          g += qGreen(pixel);
          b += qBlue(pixel);
        }
      }
      const int n = k * k;
      small.setPixel(x, y, qRgb((r + n / 2) / n, (g + n / 2) / n, (b + n / 2) / n));
    }
  }
  return small;
}

}  // namespace lensbench
