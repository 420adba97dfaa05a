// Speed of the drawing surface, each figure beside the bare pixel loop that paints the same.
//
// The time shown is the canvas's own; "reference" is the bare loop's in ms, "ratio" ours over it.
#include <cmath>
#include <numbers>
#include <vector>

#include "bench/Compare.h"
#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/Pixels.h"
#include "canvas/qt/RasterCanvas.h"

namespace lensbench {
namespace {

constexpr QSize display(1920, 1080);
constexpr int oversampling = 2;
constexpr Rgb red = RGB(255, 0, 0);

// One user unit a display pixel, the origin in the middle; a bare image of the same size.
struct Bench {
  RasterCanvas canvas{display, 1.0, oversampling};
  QImage bare{display * oversampling, QImage::Format_RGB32};
  Bench() {
    canvas.Scale(-960, 540, 960, -540);
    bare.fill(Qt::white);
  }
};

// Two image pixels a step along the longer direction: the least a line of this width can cost.
void bareLine(const Pixels& pixels, Point from, Point to, PixelValue colour) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const bool level = std::fabs(dx) > std::fabs(dy);
  const int steps = static_cast<int>(std::fmax(std::fabs(dx), std::fabs(dy)));
  constexpr double one = 65536.0;
  auto x = static_cast<std::int64_t>(from.x * one);
  auto y = static_cast<std::int64_t>(from.y * one);
  const auto stepX = static_cast<std::int64_t>(dx * one / steps);
  const auto stepY = static_cast<std::int64_t>(dy * one / steps);
  const std::ptrdiff_t beside = level ? pixels.stride : 1;
  for (int i = 0; i <= steps; ++i, x += stepX, y += stepY) {
    PixelValue* const pixel = pixels.row(static_cast<int>(y >> 16)) + (x >> 16);
    pixel[0] = colour;
    pixel[beside] = colour;
  }
}

// The largest fan: rays from a point left of the middle to near the edges.
void lines(benchmark::State& state) {
  Bench bench;
  std::vector<Point> ends;
  const auto count = static_cast<int>(state.range(0));
  for (int i = 0; i < count; ++i) {
    const double angle = 2.0 * std::numbers::pi * i / count;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double toSide = (c > 0 ? 1350.0 : 550.0) / std::fmax(std::fabs(c), 1e-9);
    const double reach = std::fmin(toSide, 530.0 / std::fmax(std::fabs(s), 1e-9));
    ends.push_back({-400.0 + reach * c, reach * s});
  }
  const auto inImage = [](Point p) { return Point{2 * (p.x + 960), 2 * (540 - p.y)}; };
  compare(
      state,
      [&] {
        for (const Point& end : ends) bench.canvas.Line(-400, 0, end.x, end.y, red);
      },
      [&] {
        const Pixels pixels(bench.bare);
        for (const Point& end : ends) {
          bareLine(pixels, inImage({-400, 0}), inImage(end), opaque(red));
        }
      });
}

void dots(benchmark::State& state) {
  Bench bench;
  const auto width = static_cast<int>(state.range(0));
  const auto count = static_cast<int>(state.range(1));
  bench.canvas.DrawWidth(width);
  std::vector<Point> places;
  for (int i = 0; i < count; ++i) {
    const double angle = 0.001 * i;
    const double radius = 20.0 + 500.0 * i / count;
    places.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  const int size = width * oversampling;
  compare(
      state,
      [&] {
        for (const Point& p : places) bench.canvas.PSet(p.x, p.y, red);
      },
      [&] {
        const Pixels pixels(bench.bare);
        for (const Point& p : places) {
          const int left = static_cast<int>(2 * (p.x + 960)) - size / 2;
          const int top = static_cast<int>(2 * (540 - p.y)) - size / 2;
          for (int j = 0; j < size; ++j) {
            PixelValue* const row = pixels.row(top + j) + left;
            for (int i = 0; i < size; ++i) row[i] = opaque(red);
          }
        }
      });
}

void circles(benchmark::State& state) {
  Bench bench;
  compare(
      state,
      [&] {
        for (int r = 10; r < 500; r += 5) bench.canvas.Circle(0, 0, r, red);
      },
      [&] {
        const Pixels pixels(bench.bare);
        for (int r = 20; r < 1000; r += 10) {
          const int chords = 2 * r;
          Point last{1920.0 + r, 1080.0};
          for (int i = 1; i <= chords; ++i) {
            const double angle = 2.0 * std::numbers::pi * i / chords;
            const Point next{1920.0 + r * std::cos(angle), 1080.0 - r * std::sin(angle)};
            bareLine(pixels, last, next, opaque(red));
            last = next;
          }
        }
      });
}

void clear(benchmark::State& state) {
  Bench bench;
  compare(
      state, [&] { bench.canvas.Cls(); }, [&] { bench.bare.fill(opaque(white)); });
}

void fill(benchmark::State& state) {
  Bench bench;
  bench.canvas.Circle(0, 0, 200, black);
  int turn = 0;
  compare(
      state,
      [&] {
        bench.canvas.FillColor(RGB(220, ++turn % 2 * 100, 195));
        bench.canvas.FloodFill(960, 540, black);
      },
      [&] {
        const Pixels pixels(bench.bare);
        for (int j = -400; j < 400; ++j) {
          const int half = static_cast<int>(std::sqrt(400.0 * 400.0 - j * j));
          pixels.fill(1080 + j, 1920 - half, 1920 + half, opaque(red));
        }
      });
}

void filter(benchmark::State& state) {
  Bench bench;
  bench.canvas.Circle(0, 0, 200, red);
  QImage shown(display, QImage::Format_RGB32);
  QImage bareShown(display, QImage::Format_RGB32);
  compare(
      state, [&] { boxFilter(bench.canvas.image(), shown, shown.rect(), oversampling); },
      [&] {
        const Pixels source(bench.bare);
        const Pixels target(bareShown);
        for (int y = 0; y < target.height; ++y) {
          const PixelValue* const upper = source.row(2 * y);
          const PixelValue* const lower = source.row(2 * y + 1);
          PixelValue* const out = target.row(y);
          for (int x = 0; x < target.width; ++x) {
            PixelValue mean = 0xFF000000u;
            for (int shift = 0; shift < 24; shift += 8) {
              const PixelValue sum =
                  (upper[2 * x] >> shift & 255u) + (upper[2 * x + 1] >> shift & 255u) +
                  (lower[2 * x] >> shift & 255u) + (lower[2 * x + 1] >> shift & 255u);
              mean |= (sum + 2) / 4 << shift;
            }
            out[x] = mean;
          }
        }
      });
}

BENCHMARK(lines)->Arg(76)->Arg(3437)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(dots)
    ->Args({1, 3000000})
    ->Args({2, 500000})
    ->Args({3, 3000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(circles)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(clear)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(fill)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lensbench

BENCHMARK_MAIN();
