#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/Chords.h"
#include "canvas/qt/Strokes.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

// Distance of a point from a segment.
double distance(Point p, const Segment& s) {
  const double dx = s.to.x - s.from.x;
  const double dy = s.to.y - s.from.y;
  const double square = dx * dx + dy * dy;
  double t = square > 0 ? ((p.x - s.from.x) * dx + (p.y - s.from.y) * dy) / square : 0.0;
  t = std::clamp(t, 0.0, 1.0);
  return std::hypot(p.x - s.from.x - t * dx, p.y - s.from.y - t * dy);
}

// A plain image of which a pixel outside, or a run without pixels, is never painted.
struct Page {
  explicit Page(int w, int h) : image(w, h, QImage::Format_RGB32) { image.fill(opaque(white)); }

  int width() const { return image.width(); }
  int height() const { return image.height(); }
  void set(int x, int y, PixelValue colour) { fill(y, x, x + 1, colour); }
  void fill(int y, int from, int until, PixelValue colour) {
    inside = inside && y >= 0 && y < height() && from >= 0 && from < until && until <= width();
    if (!inside) return;
    auto* const row = reinterpret_cast<PixelValue*>(image.scanLine(y));
    std::fill(row + from, row + until, colour);
  }

  void fillBand(const Band& band, PixelValue colour) {
    Fixed left = band.left;
    Fixed right = band.right;
    for (int y = band.top; y < band.bottom; ++y, left += band.step, right += band.step) {
      const int from = std::max(whole(left), 0);
      const int until = std::min(whole(right), width());
      if (from < until) fill(y, from, until, colour);
    }
  }

  QImage image;
  bool inside = true;
};

TEST(Strokes, ARoundPenPaintsWhatIsWithinItsRadius) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> place(-20.0, 80.0);
  std::uniform_real_distribution<double> size(0.5, 9.0);
  for (int i = 0; i < 300; ++i) {
    Page page(60, 60);
    Segment line{{place(random), place(random)}, {place(random), place(random)}};
    if (i % 10 == 0) line.to.x = line.from.x;
    if (i % 10 == 1) line.to.y = line.from.y;
    if (i % 10 == 2) line.to = line.from;
    if (i % 10 == 3) line.to.y = line.from.y + 1e-13;
    const double radius = size(random);
    strokeRound(page, line, radius, opaque(red));
    ASSERT_TRUE(page.inside);
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) {
        const double off = distance({x + 0.5, y + 0.5}, line);
        if (std::fabs(off - radius) < 0.01) continue;
        ASSERT_EQ(colourAt(page.image, x, y) == red, off < radius)
            << x << ", " << y << " case " << i;
      }
    }
  }
}

TEST(Strokes, AThinLineIsAnUnbrokenChainNearTheTrueLine) {
  std::mt19937 random(6);
  std::uniform_real_distribution<double> place(0.0, 50.0);
  for (int i = 0; i < 2000; ++i) {
    Page page(50, 50);
    const QImage& image = page.image;
    Segment line{{place(random), place(random)}, {place(random), place(random)}};
    if (i % 2 == 0) {
      line.to = {std::clamp(line.from.x + (line.to.x - 25) / 10, 0.0, 49.9),
                 std::clamp(line.from.y + (line.to.y - 25) / 10, 0.0, 49.9)};
    }
    strokeThin(page, line, opaque(red));
    const int columns = std::abs(int(line.to.x) - int(line.from.x));
    const int rows = std::abs(int(line.to.y) - int(line.from.y));
    ASSERT_EQ(count(image, red), std::max(columns, rows) + 1);
    ASSERT_EQ(colourAt(image, int(line.from.x), int(line.from.y)), red);
    ASSERT_EQ(colourAt(image, int(line.to.x), int(line.to.y)), red);
    for (int y = 0; y < 50; ++y) {
      for (int x = 0; x < 50; ++x) {
        if (colourAt(image, x, y) != red) continue;
        ASSERT_LT(distance({x + 0.5, y + 0.5}, line), 1.5);
        int neighbours = 0;
        for (int v = std::max(y - 1, 0); v <= std::min(y + 1, 49); ++v) {
          for (int u = std::max(x - 1, 0); u <= std::min(x + 1, 49); ++u) {
            neighbours += colourAt(image, u, v) == red ? 1 : 0;
          }
        }
        const bool end = (x == int(line.from.x) && y == int(line.from.y)) ||
                         (x == int(line.to.x) && y == int(line.to.y));
        ASSERT_GE(neighbours, columns + rows == 0 ? 1 : end ? 2 : 3);
      }
    }
  }
}

TEST(Strokes, AThinLineThatARoundingPutOutsideStaysInTheImage) {
  Page page(50, 50);
  for (const double off : {-1e-19, 50.0}) {
    const int border = off < 0.0 ? 0 : 49;
    page.image.fill(opaque(white));
    strokeThin(page, {{3.0, off}, {40.0, off}}, opaque(red));
    EXPECT_EQ(extent(page.image, red), QRect(3, border, 38, 1));
    page.image.fill(opaque(white));
    strokeThin(page, {{off, 3.0}, {off, 40.0}}, opaque(red));
    EXPECT_EQ(extent(page.image, red), QRect(border, 3, 1, 38));
    page.image.fill(opaque(white));
    strokeThin(page, {{3.0, off}, {40.0, off < 0.0 ? 0.9 : 49.1}}, opaque(red));
    EXPECT_EQ(extent(page.image, red), QRect(3, border, 38, 1));
    page.image.fill(opaque(white));
    strokeThin(page, {{off, 3.0}, {off < 0.0 ? 0.9 : 49.1, 40.0}}, opaque(red));
    EXPECT_EQ(extent(page.image, red), QRect(border, 3, 1, 38));
  }
  EXPECT_TRUE(page.inside);
}

TEST(Strokes, CirclesAcrossTheBordersStayInTheImage) {
  std::mt19937 random(9);
  std::uniform_real_distribution<double> fraction(0.0, 1.0);
  for (const int k : {1, 2}) {
    Page page(1600 * k, 800 * k);
    const double margin = k == 1 ? 0.0 : 2.0;  // as wide as the pen, which is k wide
    const Box box{-margin, -margin, page.width() + margin, page.height() + margin};
    int chords = 0;
    for (int radius = 50; radius <= 500; ++radius) {
      for (const Point about :
           {Point{800.0, 400.0}, Point{0.0, 400.0}, Point{800.0, double(radius)},
            Point{1600.0 - radius, 800.0 - radius}}) {
        const Point centre{k * (about.x + fraction(random) - 0.5),
                           k * (about.y + fraction(random) - 0.5)};
        Chords({centre, double(k * radius), 0.0, 2.0 * std::numbers::pi})
            .visitNear(box, [&](const Segment& chord, double) {
              const auto visible =
                  clipped({chord.from.x, chord.from.y}, {chord.to.x, chord.to.y}, box);
              if (!visible) return;
              ++chords;
              for (const Point end : {visible->from, visible->to}) {
                ASSERT_TRUE(end.x >= box.left && end.x <= box.right && end.y >= box.top &&
                            end.y <= box.bottom);
              }
              if (k == 1) {
                strokeThin(page, *visible, opaque(red));
              } else {
                strokeRound(page, *visible, k / 2.0, opaque(red));
              }
            });
      }
      ASSERT_TRUE(page.inside) << "radius " << radius << " at " << k;
    }
    EXPECT_GT(chords, 50000);
    EXPECT_GT(count(page.image, red), 300000);
  }
}

TEST(Strokes, ADotStampIsSymmetric) {
  for (int diameter = 1; diameter <= 30; ++diameter) {
    Page page(diameter, diameter);
    const QImage& image = page.image;
    DotStamp(diameter).paint(page, 0, 0, opaque(red));
    EXPECT_EQ(image, image.mirrored(true, false)) << diameter;
    EXPECT_EQ(image, image.mirrored(false, true)) << diameter;
    EXPECT_EQ(extent(image, red), image.rect()) << diameter;
  }
}

TEST(Clipping, KeepsWhatIsInsideToTheLastBit) {
  const Box box{0, 0, 10, 10};
  const auto inside = clipped({0.1, 0.2}, {9.7, 3.3}, box);
  ASSERT_TRUE(inside);
  EXPECT_EQ(inside->from.x, 0.1);
  EXPECT_EQ(inside->to.y, 3.3);
  const auto across = clipped({-10, 5}, {20, 5}, box);
  ASSERT_TRUE(across);
  EXPECT_EQ(across->from.x, 0.0);
  EXPECT_EQ(across->to.x, 10.0);
  EXPECT_FALSE(clipped({-1, 0}, {-1, 10}, box));
  EXPECT_FALSE(clipped({-10, 5}, {5, 25}, box));
  EXPECT_TRUE(clipped({3, 3}, {3, 3}, box));
  EXPECT_FALSE(clipped({13, 3}, {13, 3}, box));
}

TEST(Clipping, ACutEndIsInTheBoxHoweverItIsRounded) {
  const Box box{0, 0, 10, 10};
  std::mt19937 random(10);
  std::uniform_real_distribution<double> place(-10.0, 20.0);
  int cut = 0;
  for (int i = 0; i < 200000; ++i) {
    const auto visible =
        clipped({place(random), place(random)}, {place(random), place(random)}, box);
    if (!visible) continue;
    ++cut;
    for (const Point end : {visible->from, visible->to}) {
      ASSERT_TRUE(end.x >= 0.0 && end.x <= 10.0 && end.y >= 0.0 && end.y <= 10.0) << i;
    }
  }
  EXPECT_GT(cut, 10000);
}

TEST(BoxFilter, TakesTheRoundedMeanOfEachSquareOfTheArea) {
  std::mt19937 random(8);
  for (const int k : {1, 2, 3}) {
    // Drawn on in part, so that some tiles are plain.
    Tiles source(QSize(80, 60) * k, opaque(green));
    for (int y = 20; y < 50 * k; ++y) {
      for (int x = 7; x < 70 * k; ++x) source.set(x, y, 0xFF000000u | (random() & 0xFFFFFFu));
    }
    for (const QRect& area : {QRect(0, 0, 80, 60), QRect(13, 5, 41, 37)}) {
      QImage target(area.size(), QImage::Format_RGB32);
      boxFilter(source, target, area.topLeft(), k);
      QImage all;
      source.copyTo(all);
      EXPECT_EQ(target, filtered(all, k).copy(area)) << k;
    }
  }
}

}  // namespace
}  // namespace lensbench
