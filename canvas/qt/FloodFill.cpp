#include "canvas/qt/FloodFill.h"

#include <bit>
#include <cstdint>
#include <vector>

namespace lensbench {
namespace {

constexpr int side = Tiles::side;

// A row of a tile, a bit a pixel, the first pixel lowest.
using Bits = std::uint32_t;
using Mask = std::array<Bits, side>;
static_assert(side == 32);

bool isWhole(const Mask& mask) {
  Bits all = ~Bits{0};
  for (const Bits bits : mask) all &= bits;
  return all == ~Bits{0};
}

// What the fill knows of a tile.
struct Visit {
  int column, tileRow;
  Mask open;    // pixels that are not of the border colour
  Mask filled;  // of those, the ones that have been reached
  bool waiting = false;
};

// All open pixels of a row that hang together with the seeds. Adding a seed to the run of ones that
// it lies in carries to the end of the run.
Bits spread(Bits seeds, Bits open) {
  seeds &= open;
  const Bits upwards = seeds | (((seeds + open) ^ open) & open);
  // A seed inside a run has left the pixels below it out.
  Bits all = upwards;
  for (int step = 1; step < side; step *= 2) {
    all |= open & (all >> step);
    open &= open >> step;
  }
  return all;
}

class Fill {
 public:
  Fill(Tiles& tiles, PixelValue border)
      : tiles_(tiles),
        border_(border),
        visitOf_(static_cast<std::size_t>(tiles.across() * tiles.down()), -1) {}

  bool start(int x, int y) {
    reach(x / side, y / side, y % side, Bits{1} << (x % side));
    if (queue_.empty()) return false;
    while (!queue_.empty()) {
      const int visit = queue_.back();
      queue_.pop_back();
      grow(visit);
    }
    return true;
  }

  void paint(PixelValue colour) {
    for (const Visit& visit : visits_) {
      if (isWhole(visit.filled)) {
        tiles_.fillTile(visit.column, visit.tileRow, colour);
        continue;
      }
      for (int j = 0; j < side; ++j) paintRow(visit, j, colour);
    }
  }

 private:
  std::size_t indexOf(int column, int tileRow) const {
    return static_cast<std::size_t>(tileRow) * static_cast<std::size_t>(tiles_.across()) +
           static_cast<std::size_t>(column);
  }

  // Adds pixels of one row of a tile to what has been reached.
  void reach(int column, int tileRow, int row, Bits seeds) {
    if (column < 0 || tileRow < 0 || column >= tiles_.across() || tileRow >= tiles_.down()) return;
    int& number = visitOf_[indexOf(column, tileRow)];
    if (number < 0) {
      number = static_cast<int>(visits_.size());
      visits_.push_back({column, tileRow, openPixels(column, tileRow), {}});
    }
    Visit& visit = visits_[static_cast<std::size_t>(number)];
    const auto j = static_cast<std::size_t>(row);
    const Bits fresh = seeds & visit.open[j] & ~visit.filled[j];
    if (fresh == 0) return;
    visit.filled[j] |= fresh;
    if (!visit.waiting) queue_.push_back(number);
    visit.waiting = true;
  }

  Mask openPixels(int column, int tileRow) const {
    Mask open{};
    const int columns = std::min(side, tiles_.width() - column * side);
    const int rows = std::min(side, tiles_.height() - tileRow * side);
    const Bits inside = ~Bits{0} >> (side - columns);
    const Tiles::Rows drawn = tiles_.drawnRows(column, tileRow);
    const Bits ground = tiles_.ground(column, tileRow) == border_ ? 0 : inside;
    for (int j = 0; j < rows; ++j) {
      if (!Tiles::has(drawn, j)) {
        open[static_cast<std::size_t>(j)] = ground;
        continue;
      }
      const PixelValue* const pixels = tiles_.row(column, tileRow * side + j);
      Bits bits = 0;
      for (int i = 0; i < side; ++i) bits |= Bits{pixels[i] != border_} << i;
      open[static_cast<std::size_t>(j)] = bits & inside;
    }
    return open;
  }

  // Lets what has been reached of a tile grow to the borders, and on into its neighbours.
  void grow(int number) {
    // A copy, because a neighbour that is reached for the first time may move the list.
    Visit visit = visits_[static_cast<std::size_t>(number)];
    visit.waiting = false;
    Mask& filled = visit.filled;
    const bool free = isWhole(visit.open);
    if (free) filled = visit.open;
    for (bool more = !free; more;) {
      more = false;
      const auto pass = [&](std::size_t j, Bits beside) {
        const Bits next = spread(filled[j] | beside, visit.open[j]);
        more = more || next != filled[j];
        filled[j] = next;
      };
      for (std::size_t j = 0; j < side; ++j) pass(j, j > 0 ? filled[j - 1] : 0);
      for (std::size_t j = side - 1; j-- > 0;) pass(j, filled[j + 1]);
    }
    visits_[static_cast<std::size_t>(number)] = visit;
    reach(visit.column, visit.tileRow - 1, side - 1, filled.front());
    reach(visit.column, visit.tileRow + 1, 0, filled.back());
    for (int j = 0; j < side; ++j) {
      const Bits bits = filled[static_cast<std::size_t>(j)];
      if ((bits & 1) != 0) reach(visit.column - 1, visit.tileRow, j, Bits{1} << (side - 1));
      if (bits >> (side - 1) != 0) reach(visit.column + 1, visit.tileRow, j, 1);
    }
  }

  void paintRow(const Visit& visit, int j, PixelValue colour) {
    Bits bits = visit.filled[static_cast<std::size_t>(j)];
    const int y = visit.tileRow * side + j;
    while (bits != 0) {
      const int from = std::countr_zero(bits);
      const int length = std::countr_one(bits >> from);
      const int left = visit.column * side + from;
      tiles_.fill(y, left, left + length, colour);
      bits &= from + length < side ? ~Bits{0} << (from + length) : 0;
    }
  }

  Tiles& tiles_;
  PixelValue border_;
  std::vector<int> visitOf_;  // per tile, its place in the list of visits
  std::vector<Visit> visits_;
  std::vector<int> queue_;
};

}  // namespace

bool floodFill(Tiles& tiles, int x, int y, PixelValue border, PixelValue fill) {
  if (x < 0 || y < 0 || x >= tiles.width() || y >= tiles.height()) return false;
  Fill area(tiles, border);
  if (!area.start(x, y)) return false;
  area.paint(fill);
  return true;
}

}  // namespace lensbench
