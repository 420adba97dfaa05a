// Speed of the drawing surface, at 1920 x 1080 and 3840 x 2160 with two image pixels a display
// pixel, each figure beside what paints the same in the plainest way: pixel loops on a flat image
// or, for whole pictures, the toolkit's painter on such an image and a plain filter.
//
// The time shown is the surface's own; "reference" is the other's in ms, "ratio" ours over it.
#include <algorithm>
#include <cmath>
#include <vector>

#include <QPainter>

#include "bench/Compare.h"
#include "canvas/qt/RasterCanvas.h"

namespace lensbench {
namespace {

constexpr int oversampling = 2;
constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb blue = RGB(0, 0, 255);

// A flat image, written directly.
struct Flat {
  explicit Flat(QImage& image)
      : first(reinterpret_cast<PixelValue*>(image.bits())),
        stride(image.bytesPerLine() / static_cast<qsizetype>(sizeof(PixelValue))) {}
  PixelValue* row(int y) const { return first + stride * y; }

  PixelValue* first;
  std::ptrdiff_t stride;
};

void plainFilter(QImage& source, QImage& target) {
  const Flat from(source);
  const Flat to(target);
  constexpr PixelValue even = 0x00FF00FFu;
  const int width = target.width();
  for (int y = 0; y < target.height(); ++y) {
    const PixelValue* const upper = from.row(2 * y);
    const PixelValue* const lower = from.row(2 * y + 1);
    PixelValue* const out = to.row(y);
    for (int x = 0; x < width; ++x) {
      const PixelValue a = upper[2 * x];
      const PixelValue b = upper[2 * x + 1];
      const PixelValue c = lower[2 * x];
      const PixelValue d = lower[2 * x + 1];
      const PixelValue redBlue = (a & even) + (b & even) + (c & even) + (d & even);
      const PixelValue green =
          (a >> 8 & 255u) + (b >> 8 & 255u) + (c >> 8 & 255u) + (d >> 8 & 255u);
      out[x] = 0xFF000000u | ((redBlue + 0x00020002u) >> 2 & even) | (green + 2) >> 2 << 8;
    }
  }
}

// One user unit a display pixel, the origin in the middle; a flat image of the same size.
struct Bench {
  explicit Bench(std::int64_t height)
      : size(static_cast<int>(height) * 16 / 9, static_cast<int>(height)),
        halfWidth(size.width() / 2.0),
        halfHeight(size.height() / 2.0),
        canvas(size, 1.0, oversampling),
        shown(size, QImage::Format_RGB32),
        bare(size * oversampling, QImage::Format_RGB32),
        bareShown(size, QImage::Format_RGB32) {
    canvas.Scale(-halfWidth, halfHeight, halfWidth, -halfHeight);
    bare.fill(Qt::white);
    shown.fill(Qt::white);
    bareShown.fill(Qt::white);
  }

  Point inImage(Point p) const { return {2 * (p.x + halfWidth), 2 * (halfHeight - p.y)}; }

  // Brings the display up to date as a drawing area does: strip by strip of what has changed.
  void show() {
    for (const QRect& part : canvas.takeDirty()) {
      for (int y = part.top(); y <= part.bottom(); y += 32) {
        const QSize strip(part.width(), std::min(32, part.bottom() + 1 - y));
        QImage target(shown.scanLine(y) + 4 * part.left(), strip.width(), strip.height(),
                      shown.bytesPerLine(), QImage::Format_RGB32);
        canvas.showIn(target, {part.left(), y});
      }
    }
  }

  QSize size;
  double halfWidth, halfHeight;
  RasterCanvas canvas;
  QImage shown;
  QImage bare;
  QImage bareShown;
};

// Rays of a parallel beam through a thick lens to its focus and on to the edge: three pieces each.
struct Piece {
  Point from, to;
  Rgb colour;
};
std::vector<Piece> beam(const Bench& bench, int rays) {
  const double focus = 0.45 * bench.halfWidth;
  std::vector<Piece> pieces;
  for (int i = 0; i < rays; ++i) {
    const double y = 0.85 * bench.halfHeight * (2.0 * (i + 0.5) / rays - 1.0);
    const Point entry{-40.0, y};
    const Point exit{40.0, 0.95 * y};
    const double reach = bench.halfWidth - exit.x;
    pieces.push_back({{-bench.halfWidth, y}, entry, red});
    pieces.push_back({entry, exit, blue});
    pieces.push_back({exit, {bench.halfWidth, exit.y * (1.0 - reach / focus)}, red});
  }
  return pieces;
}

// A whole picture from nothing to the display.
void picture(benchmark::State& state) {
  Bench bench(state.range(0));
  const auto pieces = beam(bench, static_cast<int>(state.range(1)));
  compare(
      state,
      [&] {
        bench.canvas.Cls();
        for (const Piece& p : pieces) {
          bench.canvas.Line(p.from.x, p.from.y, p.to.x, p.to.y, p.colour);
        }
        bench.show();
      },
      [&] {
        bench.bare.fill(Qt::white);
        QPainter painter(&bench.bare);
        QPen pen(Qt::red, oversampling, Qt::SolidLine, Qt::RoundCap);
        for (const Piece& p : pieces) {
          const QColor colour = QColor::fromRgb(opaque(p.colour));
          if (pen.color() != colour) {
            pen.setColor(colour);
            painter.setPen(pen);
          }
          const Point from = bench.inImage(p.from);
          const Point to = bench.inImage(p.to);
          painter.drawLine(QLineF(from.x, from.y, to.x, to.y));
        }
        plainFilter(bench.bare, bench.bareShown);
      });
}

void dots(benchmark::State& state) {
  Bench bench(state.range(0));
  const auto width = static_cast<int>(state.range(1));
  const auto count = static_cast<int>(state.range(2));
  bench.canvas.DrawWidth(width);
  std::vector<Point> places;
  for (int i = 0; i < count; ++i) {
    const double angle = 0.001 * i;
    const double radius = 20.0 + (bench.halfHeight - 30.0) * i / count;
    places.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  const int size = width * oversampling;
  compare(
      state, [&] { bench.canvas.PSets(places, red); },
      [&] {
        const Flat pixels(bench.bare);
        for (const Point& p : places) {
          const Point middle = bench.inImage(p);
          const int left = static_cast<int>(middle.x) - size / 2;
          const int top = static_cast<int>(middle.y) - size / 2;
          for (int j = 0; j < size; ++j) {
            PixelValue* const row = pixels.row(top + j) + left;
            for (int i = 0; i < size; ++i) row[i] = opaque(red);
          }
        }
      });
}

// Clearing what a beam has drawn.
void clear(benchmark::State& state) {
  Bench bench(state.range(0));
  const auto pieces = beam(bench, static_cast<int>(state.range(1)));
  for ([[maybe_unused]] auto iteration : state) {
    for (const Piece& p : pieces) bench.canvas.Line(p.from.x, p.from.y, p.to.x, p.to.y, p.colour);
    const double time = seconds([&] { bench.canvas.Cls(); });
    state.SetIterationTime(time);
    state.counters["reference"] = 1e3 * seconds([&] { bench.bare.fill(Qt::white); });
  }
}

// Showing what a beam has drawn.
void show(benchmark::State& state) {
  Bench bench(state.range(0));
  const auto pieces = beam(bench, static_cast<int>(state.range(1)));
  bench.show();
  for ([[maybe_unused]] auto iteration : state) {
    bench.canvas.Cls();
    bench.canvas.takeDirty();
    for (const Piece& p : pieces) bench.canvas.Line(p.from.x, p.from.y, p.to.x, p.to.y, p.colour);
    state.SetIterationTime(seconds([&] { bench.show(); }));
    state.counters["reference"] = 1e3 * seconds([&] { plainFilter(bench.bare, bench.bareShown); });
  }
}

// A lens-like body of a third of the height; the reference paints its rows.
void fill(benchmark::State& state) {
  Bench bench(state.range(0));
  const int radius = bench.size.height() / 3;
  bench.canvas.Circle(0, 0, radius, black);
  bench.canvas.FillStyle(FillStyle::Solid);
  int turn = 0;
  compare(
      state,
      [&] {
        bench.canvas.FillColor(RGB(220, ++turn % 2 * 100, 195));
        bench.canvas.FloodFill(bench.size.width() / 2, bench.size.height() / 2, black);
      },
      [&] {
        const Flat pixels(bench.bare);
        const int reach = radius * oversampling;
        for (int j = -reach; j < reach; ++j) {
          const auto half = static_cast<int>(std::sqrt(double(reach) * reach - double(j) * j));
          PixelValue* const middle = pixels.row(bench.size.height() + j) + bench.size.width();
          std::fill(middle - half, middle + half, opaque(red));
        }
      });
}

void sizes(benchmark::internal::Benchmark* one, const std::vector<std::vector<std::int64_t>>& all) {
  for (const std::int64_t height : {1080, 2160}) {
    for (std::vector<std::int64_t> arguments : all) {
      arguments.insert(arguments.begin(), height);
      one->Args(arguments);
    }
  }
  one->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(picture)->Apply([](auto* b) { sizes(b, {{10}, {76}, {100}, {1000}, {10000}}); });
BENCHMARK(dots)->Apply([](auto* b) { sizes(b, {{1, 500000}, {2, 500000}, {3, 3000}}); });
BENCHMARK(clear)->Apply([](auto* b) { sizes(b, {{10}, {76}, {1000}}); });
BENCHMARK(show)->Apply([](auto* b) { sizes(b, {{10}, {76}, {1000}}); });
BENCHMARK(fill)->Apply([](auto* b) { sizes(b, {{}}); });

}  // namespace
}  // namespace lensbench

BENCHMARK_MAIN();
