// The pixels in tiles are those of a plain image on which the same is done.
#include <algorithm>
#include <bit>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "canvas/qt/FloodFill.h"
#include "canvas/qt/RasterCanvas.h"
#include "canvas/qt/Strokes.h"
#include "canvas/qt/Tiles.h"
#include "tests/qt/Pictures.h"
#include "tests/support/Memory.h"

namespace lensbench {
namespace {

// The plain image: every pixel at its place, every operation pixel by pixel.
struct Plain {
  Plain(QSize size, PixelValue colour) : image(size, QImage::Format_RGB32) { image.fill(colour); }

  int width() const { return image.width(); }
  int height() const { return image.height(); }
  void set(int x, int y, PixelValue colour) { image.setPixel(x, y, colour); }
  void fill(int y, int from, int until, PixelValue colour) {
    for (int x = from; x < until; ++x) set(x, y, colour);
  }
  void fillBand(const Band& band, PixelValue colour) {
    Fixed left = band.left;
    Fixed right = band.right;
    for (int y = band.top; y < band.bottom; ++y, left += band.step, right += band.step) {
      fill(y, std::max(whole(left), 0), std::min(whole(right), width()), colour);
    }
  }
  void clear(PixelValue colour) { image.fill(colour); }
  void resize(QSize size, PixelValue colour) {
    QImage next(size, QImage::Format_RGB32);
    next.fill(colour);
    for (int y = 0; y < std::min(size.height(), height()); ++y) {
      for (int x = 0; x < std::min(size.width(), width()); ++x) {
        next.setPixel(x, y, image.pixel(x, y));
      }
    }
    image = next;
  }

  QImage image;
};

bool floodFill(Plain& plain, int x, int y, PixelValue border, PixelValue colour) {
  QImage& image = plain.image;
  if (!image.rect().contains(x, y) || image.pixel(x, y) == border) return false;
  std::vector<bool> seen(static_cast<std::size_t>(image.width() * image.height()));
  std::vector<QPoint> waiting{{x, y}};
  while (!waiting.empty()) {
    const QPoint p = waiting.back();
    waiting.pop_back();
    if (!image.rect().contains(p) || image.pixel(p) == border) continue;
    const auto place = static_cast<std::size_t>(p.y() * image.width() + p.x());
    if (seen[place]) continue;
    seen[place] = true;
    for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
      waiting.push_back(p + step);
    }
  }
  for (int j = 0; j < image.height(); ++j) {
    for (int i = 0; i < image.width(); ++i) {
      if (seen[static_cast<std::size_t>(j * image.width() + i)]) image.setPixel(i, j, colour);
    }
  }
  return true;
}

TEST(Surface, AnySequenceOfOperationsLeavesThePixelsOfAPlainImage) {
  std::mt19937 random(31);
  const auto number = [&](int from, int until) {
    return std::uniform_int_distribution<int>(from, until - 1)(random);
  };
  const auto real = [&](double from, double until) {
    return std::uniform_real_distribution<double>(from, until)(random);
  };
  const PixelValue colours[] = {opaque(white), opaque(red), opaque(green), opaque(black)};
  for (int run = 0; run < 40; ++run) {
    const QSize size(number(1, 200), number(1, 150));
    Tiles tiles(size, colours[0]);
    Plain plain(size, colours[0]);
    QImage copy;
    QImage shown = plain.image;
    for (int i = 0; i < 120; ++i) {
      const PixelValue colour = colours[number(0, 4)];
      const int what = number(0, 24);
      const auto both = [&](auto&& act) {
        act(tiles);
        act(plain);
      };
      const double w = plain.width();
      const double h = plain.height();
      const Segment line{{real(-30, w + 30), real(-30, h + 30)},
                         {real(-30, w + 30), real(-30, h + 30)}};
      if (what == 0) {
        both([&](auto& surface) { surface.clear(colour); });
      } else if (what == 1) {
        const QSize next(number(1, 200), number(1, 150));
        both([&](auto& surface) { surface.resize(next, colour); });
        shown = plain.image;
      } else if (what < 8) {
        const int x = number(-2, plain.width() + 2);
        const int y = number(-2, plain.height() + 2);
        const PixelValue border = colours[number(0, 4)];
        EXPECT_EQ(floodFill(tiles, x, y, border, colour), floodFill(plain, x, y, border, colour));
      } else if (what < 11) {
        const DotStamp stamp(number(1, 40));
        const int x = number(-40, plain.width());
        const int y = number(-40, plain.height());
        both([&](auto& surface) { stamp.paint(surface, x, y, colour); });
      } else if (what < 13) {
        const double radius = real(0, 80);
        both([&](auto& surface) { fillDisc(surface, line.from, radius, colour); });
      } else if (what < 16) {
        const auto thin = clipped({line.from.x, line.from.y}, {line.to.x, line.to.y}, {0, 0, w, h});
        if (thin) both([&](auto& surface) { strokeThin(surface, *thin, colour); });
      } else {
        const double radius = what < 20 ? 1.0 : real(0.5, 20);
        both([&](auto& surface) { strokeRound(surface, line, radius, colour); });
      }
      if (number(0, 3) != 0) continue;
      tiles.copyTo(copy);
      ASSERT_EQ(copy, plain.image) << "run " << run << ", operation " << i << " of kind " << what;
      // What is not told as changed is as it was shown last.
      const QRegion changed = tiles.takeChanged();
      for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
          if (plain.image.pixel(x, y) == shown.pixel(x, y)) continue;
          ASSERT_TRUE(changed.contains(QPoint(x, y))) << x << ", " << y << " kind " << what;
        }
      }
      shown = plain.image;
    }
  }
}

TEST(Surface, OnlyRowsThatAreDrawnOnHavePixelsOfTheirOwn) {
  Tiles tiles({320, 320}, opaque(white));
  const auto own = [&] {
    int n = 0;
    for (int j = 0; j < tiles.down(); ++j) {
      for (int i = 0; i < tiles.across(); ++i) n += std::popcount(tiles.drawnRows(i, j));
    }
    return n;
  };
  EXPECT_EQ(own(), 0);
  strokeRound(tiles, {{5, 40}, {100, 40}}, 1.0, opaque(red));
  EXPECT_EQ(own(), 2 * 4);
  tiles.takeChanged();
  tiles.clear(opaque(white));
  EXPECT_EQ(own(), 0);
  // Only what had been drawn on is shown again.
  EXPECT_EQ(tiles.takeChanged(), QRegion(0, 32, 128, 32));
  tiles.clear(opaque(white));
  EXPECT_FALSE(tiles.changed());
  EXPECT_TRUE(floodFill(tiles, 0, 0, opaque(red), opaque(green)));
  EXPECT_EQ(own(), 0);
  EXPECT_EQ(tiles.ground(9, 9), opaque(green));
}

TEST(Surface, WhatOnlyEarlierPicturesNeededIsGivenBack) {
  constexpr int side = 4096;
  constexpr double all = side * side * sizeof(PixelValue) / double{1 << 20};  // MiB
  Tiles tiles({side, side}, opaque(white));
  const double before = memoryMiB("VmRSS");
  for (int y = 0; y < side; y += Tiles::side) tiles.fill(y, 0, side, opaque(red));
  EXPECT_GT(memoryMiB("VmRSS"), before + all / 10 * 9);
  tiles.clear(opaque(white));
  strokeRound(tiles, {{5, 40}, {4000, 1100}}, 1.0, opaque(red));
  strokeRound(tiles, {{60, 4000}, {70, 30}}, 3.0, opaque(green));
  QImage picture;
  tiles.copyTo(picture);
  picture = picture.copy();
  const double full = memoryMiB("VmRSS");
  tiles.giveBackSpare();
  EXPECT_LT(memoryMiB("VmRSS"), full - all / 10 * 9);
  QImage same;
  tiles.copyTo(same);
  EXPECT_EQ(same, picture);
  // What has been given back can be drawn on.
  strokeRound(tiles, {{4000, 5}, {30, 4000}}, 2.0, opaque(black));
  Tiles fresh({side, side}, opaque(white));
  strokeRound(fresh, {{5, 40}, {4000, 1100}}, 1.0, opaque(red));
  strokeRound(fresh, {{60, 4000}, {70, 30}}, 3.0, opaque(green));
  strokeRound(fresh, {{4000, 5}, {30, 4000}}, 2.0, opaque(black));
  QImage drawn;
  fresh.copyTo(drawn);
  tiles.copyTo(same);
  EXPECT_EQ(same, drawn);
}

TEST(Surface, AClearedPictureIsAClearedImage) {
  RasterCanvas canvas({150, 110}, 1.0, 2);
  canvas.Scale(0, 0, 150, 110);
  const QImage empty = canvas.image().copy();
  canvas.DrawWidth(7);
  canvas.Line(-10, -10, 160, 120, red);
  canvas.Print("Φ");
  canvas.Circle(70, 50, 40, black);
  EXPECT_NE(canvas.image(), empty);
  canvas.Cls();
  EXPECT_EQ(canvas.image(), empty);
}

TEST(Surface, ABatchOfDotsIsTheDotsOneByOne) {
  for (const int k : {1, 2}) {
    RasterCanvas one({150, 110}, 1.0, k);
    RasterCanvas batch({150, 110}, 1.0, k);
    std::mt19937 random(4);
    std::uniform_real_distribution<double> place(-20, 170);
    std::vector<Point> points;
    for (int i = 0; i < 400; ++i) points.push_back({place(random), place(random)});
    for (const int width : {1, 2, 3, 15}) {
      for (RasterCanvas* canvas : {&one, &batch}) {
        canvas->Scale(0, 0, 150, 110);
        canvas->DrawWidth(width);
      }
      for (const Point& p : points) one.PSet(p.x, p.y, red);
      batch.PSets(points, red);
      ASSERT_EQ(one.image(), batch.image()) << width << " at " << k;
    }
  }
}

TEST(Surface, WideFiguresAreCutAtAllFourEdges) {
  for (const int k : {1, 2}) {
    // The same figures on a larger canvas, of which the small one is the middle.
    RasterCanvas small({60, 50}, 1.0, k);
    RasterCanvas large({100, 90}, 1.0, k);
    small.Scale(0, 0, 60, 50);
    large.Scale(-20, -20, 80, 70);
    for (RasterCanvas* canvas : {&small, &large}) {
      for (const int width : {2, 5, 15}) {
        canvas->DrawWidth(width);
        for (const double off : {-8.0, -1.5, 0.0, 1.0, 6.3}) {
          canvas->Line(off, -5, off + 2, 55, red);
          canvas->Line(59 - off, -5, 57 - off, 55, green);
          canvas->Line(-5, off, 65, off, blue);
          canvas->Line(-5, 49 - off, 65, 48 - off, black);
          canvas->PSet(off, 20 + off, blue);
          canvas->PSet(59 - off, 30 + off, red);
          canvas->PSet(25 + off, off, black);
          canvas->PSet(35 + off, 49 - off, green);
        }
      }
    }
    EXPECT_EQ(small.image(), large.image().copy(20 * k, 20 * k, 60 * k, 50 * k)) << k;
  }
}

TEST(Surface, ALineOfTextIsAsHighAtEveryOversampling) {
  RasterCanvas plain({200, 100}, 1.0, 1);
  RasterCanvas fine({200, 100}, 1.0, 2);
  for (RasterCanvas* canvas : {&plain, &fine}) {
    canvas->Scale(0, 0, 200, 100);
    canvas->FontSize(13);
    canvas->Print("F1");
  }
  EXPECT_GT(plain.CurrentY(), 13.0 * 96.0 / 72.0);
  EXPECT_NEAR(fine.CurrentY(), plain.CurrentY(), 1.0);
}

}  // namespace
}  // namespace lensbench
