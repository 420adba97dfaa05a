// The scenes of the hyperbolic lenses, computed and recorded, beside the bare arithmetic of the
// same rays and wave points with the same lines.
#include <array>
#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

#include "bench/Compare.h"
#include "canvas/Recording.h"
#include "optics/light/Vector.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/Picture.h"

namespace lensbench::protosfakos {
namespace {

constexpr double n = 1.5;
constexpr double a = 12.0;

struct Start {
  Point at;
  double slope;
};

std::vector<Start> fanFrom(Point source) {
  std::vector<Start> rays;
  rays.reserve(61);
  for (int i = 0; i < 61; ++i) rays.push_back({source, (90 - 3 * i) / 100.0});
  return rays;
}

std::vector<Start> bundleOf(int count, double slope) {
  std::vector<Start> rays;
  rays.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) rays.push_back({{130.0, 100.0 - 200.0 * i / (count - 1)}, slope});
  return rays;
}

// Distance along a leftward line from outside to the branch that opens to the right (side 1) or,
// mirrored about x = 48, to the left (side -1).
double toBranch(double b, int side, Point p, Point d) {
  if (side < 0) {
    p.x = 8 * a - p.x;
    d.x = -d.x;
  }
  const double A = d.x * d.x / (a * a) - d.y * d.y / (b * b);
  const double B = p.x * d.x / (a * a) - p.y * d.y / (b * b);
  const double C = p.x * p.x / (a * a) - p.y * p.y / (b * b) - 1;
  const double root = std::sqrt(B * B - A * C);
  return side > 0 ? (-B - root) / A : (-B + root) / A;
}

Point normalAt(double b, int side, Point p) {
  const double x = side < 0 ? 8 * a - p.x : p.x;
  const Point g{side * x / (a * a), -p.y / (b * b)};
  return (1 / length(g)) * g;
}

// normal against d.
bool bend(Point& d, Point normal, double ratio) {
  const double cosI = -dot(normal, d);
  const double squared = 1 - ratio * ratio * (1 - cosI * cosI);
  if (squared <= 0) return false;
  d = ratio * d + (ratio * cosI - std::sqrt(squared)) * normal;
  return true;
}

void line(Canvas& canvas, Point p, Point q, Rgb colour) { canvas.Line(p.x, p.y, q.x, q.y, colour); }

void cross(Canvas& canvas, Point p, Point normal) {
  line(canvas, p, p + 25.0 * normal, RGB(255, 0, 0));
  line(canvas, p, p - 25.0 * normal, RGB(255, 0, 0));
}

void bareOutline(Canvas& canvas, double b, bool amfikyrtos) {
  for (int side = 1; side >= (amfikyrtos ? -1 : 1); side -= 2) {
    Point last;
    for (int i = 0; i <= 150; ++i) {
      const double x = a + 0.02 * a * i;
      const Point next{side > 0 ? x : 8 * a - x, b * std::sqrt(x * x / (a * a) - 1)};
      line(canvas, next, last, RGB(255, 0, 0));
      canvas.Line(next.x, -next.y, last.x, -last.y, RGB(255, 0, 0));
      last = next;
    }
  }
  for (int i = 0; i < 18; ++i) canvas.Line(120, i, 12, i);
}

using Points = std::array<Point, 31>;

// Not inlined, or its lines would be recorded without the virtual calls that ours go through.
[[gnu::noinline]] void bareScene(Canvas& canvas, double b, bool amfikyrtos,
                                 const std::vector<Start>& starts) {
  static std::vector<Points> fronts(starts.size());
  fronts.resize(std::max(fronts.size(), starts.size()));
  bareOutline(canvas, b, amfikyrtos);
  const double rim = b * std::sqrt(15.0);
  std::size_t recorded = 0;
  for (const auto& [start, slope] : starts) {
    Point d = (-1 / std::hypot(1.0, slope)) * Point{1, slope};
    const double t = amfikyrtos ? toBranch(b, -1, start, d) : (48 - start.x) / d.x;
    const Point entry = start + t * d;
    if (!(std::fabs(entry.y) <= rim)) {
      line(canvas, start, start + 100.0 * d, RGB(0, 0, 255));
      continue;
    }
    line(canvas, start, entry, RGB(0, 0, 255));
    const Point entryNormal = amfikyrtos ? -normalAt(b, -1, entry) : Point{1, 0};
    cross(canvas, entry, entryNormal);
    bend(d, entryNormal, 1 / n);
    const double s = toBranch(b, 1, entry, d);
    const Point exit = entry + s * d;
    line(canvas, entry, exit, RGB(0, 255, 255));
    const Point exitNormal = normalAt(b, 1, exit);
    if (!bend(d, exitNormal, n)) continue;
    cross(canvas, exit, exitNormal);
    line(canvas, exit, exit + 530.0 * d, RGB(0, 255, 0));
    Points& points = fronts[recorded++];
    for (int j = 1; j <= 30; ++j) {
      const double path = 4.0 * (j - 1);
      points[static_cast<std::size_t>(j)] = path <= t ? start + (path / t) * (entry - start)
                                            : path - t <= n * s
                                                ? entry + ((path - t) / (n * s)) * (exit - entry)
                                                : exit + (path - t - n * s) * d;
    }
  }
  for (std::size_t j = 1; j <= 30; ++j) {
    for (std::size_t i = 1; i < recorded; ++i) {
      line(canvas, fronts[i - 1][j], fronts[i][j], RGB(0, 0, 255));
    }
  }
}

void measure(benchmark::State& run, const Asked& asked, const std::vector<Start>& starts) {
  const double b = deriveLens(n)->b;
  Recording ours, other;
  compare(
      run,
      [&] {
        ours.forget();
        drawOver(ours, sceneOf(asked));
      },
      [&] {
        other.forget();
        bareScene(other, b, asked.amfikyrtos, starts);
      });
  run.counters["lines"] = static_cast<double>(ours.operations().size());
  run.counters["lines of reference"] = static_cast<double>(other.operations().size());
}

Asked asked(bool amfikyrtos, const Rays& rays) {
  return {.amfikyrtos = amfikyrtos,
          .deiktisSahl = n,
          .rays = rays,
          .diafragma = {.X = 130.0, .yA = 1e9, .yB = -1e9}};
}

void fan(benchmark::State& run, bool amfikyrtos) {
  measure(run, asked(amfikyrtos, Fan{{108, 25}}), fanFrom({108, 25}));
}

void bundle(benchmark::State& run, bool amfikyrtos) {
  measure(run, asked(amfikyrtos, Desmi{0.1}), bundleOf(amfikyrtos ? 201 : 101, 0.1));
}

BENCHMARK_CAPTURE(fan, planoConvex, false)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fan, biconvex, true)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(bundle, planoConvex, false)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(bundle, biconvex, true)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lensbench::protosfakos

BENCHMARK_MAIN();
