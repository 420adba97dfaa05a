#include "canvas/qt/FloodFill.h"

#include <vector>

namespace lensbench {
namespace {

struct Span {
  int y, from, until;
};

constexpr PixelValue alpha = 0xFF000000u;

}  // namespace

QRect floodFill(const Pixels& pixels, int x, int y, PixelValue border, PixelValue fill) {
  if (x < 0 || y < 0 || x >= pixels.width || y >= pixels.height) return {};
  // A pixel that has been filled is told from one that had the fill colour before by its missing
  // alpha, which it gets back at the end.
  const PixelValue done = fill & ~alpha;
  const auto open = [border](PixelValue p) { return p != border && (p & alpha) != 0; };

  std::vector<Span> spans;
  const auto fillRun = [&](int row, int seed) {
    PixelValue* const line = pixels.row(row);
    int from = seed;
    int until = seed + 1;
    while (from > 0 && open(line[from - 1])) --from;
    while (until < pixels.width && open(line[until])) ++until;
    std::fill(line + from, line + until, done);
    spans.push_back({row, from, until});
    return until;
  };

  if (!open(pixels.row(y)[x])) return {};
  fillRun(y, x);
  QRect bounds;
  for (std::size_t next = 0; next < spans.size(); ++next) {
    const Span span = spans[next];
    for (const int row : {span.y - 1, span.y + 1}) {
      if (row < 0 || row >= pixels.height) continue;
      const PixelValue* const line = pixels.row(row);
      for (int i = span.from; i < span.until; ++i) {
        if (open(line[i])) i = fillRun(row, i);
      }
    }
  }
  for (const Span& span : spans) {
    PixelValue* const line = pixels.row(span.y);
    std::fill(line + span.from, line + span.until, done | alpha);
    bounds |= QRect(span.from, span.y, span.until - span.from, 1);
  }
  return bounds;
}

}  // namespace lensbench
