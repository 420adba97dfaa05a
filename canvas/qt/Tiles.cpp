#include "canvas/qt/Tiles.h"

#include <bit>
#include <cstddef>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

#include <QRect>

#include "canvas/qt/NewImage.h"

namespace lensbench {
namespace {

int tilesFor(int pixels) { return (pixels + Tiles::side - 1) / Tiles::side; }

// Runs of tiles of one row, as first and last column.
using Runs = std::vector<std::pair<int, int>>;

}  // namespace

Tiles::Tiles(QSize size, PixelValue colour)
    : width_(size.width()),
      height_(size.height()),
      across_(tilesFor(width_)),
      down_(tilesFor(height_)) {
  const std::size_t count = index(0, down_);
  pages_ = std::make_unique<Page[]>(count);
  // A huge page would bring in hundreds of tiles on which nothing is drawn.
  ::madvise(pages_.get(), count * sizeof(Page), MADV_NOHUGEPAGE);
  tiles_.assign(count, Tile{plainPage(colour)});
  flags_.assign(count, ToShow | ToCopy);
}

void Tiles::mark(std::size_t tile) noexcept {
  flags_[tile] = ToShow | ToCopy;
  changed_ = true;
}

const Tiles::Page* Tiles::plainPage(PixelValue colour) {
  for (const auto& page : plains_) {
    if (page->front() == colour) return page.get();
  }
  plains_.push_back(std::make_unique<Page>());
  plains_.back()->pixels.fill(colour);
  return plains_.back().get();
}

void Tiles::open(std::size_t tile, int row) {
  Tile& opened = tiles_[tile];
  if (!has(opened.drawn, row)) {
    std::fill_n(pages_[tile].row(row), side, opened.ground->front());
    opened.drawn |= Rows{1} << row;
  }
  if (opened.ready == 0) mark(tile);
  opened.ready = opened.drawn;
}

void Tiles::fillTile(std::size_t tile, const Page* plain) {
  tiles_[tile] = Tile{plain};
  mark(tile);
}

void Tiles::fillTile(int column, int tileRow, PixelValue colour) {
  fillTile(index(column, tileRow), plainPage(colour));
}

void Tiles::clear(PixelValue colour) {
  const Page* const plain = plainPage(colour);
  for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
    if (tiles_[tile].drawn != 0 || tiles_[tile].ground != plain) fillTile(tile, plain);
  }
  std::erase_if(plains_, [plain](const auto& page) { return page.get() != plain; });
}

void Tiles::giveBackSpare() {
  // A page of the system may hold several tiles, and goes with the last of them.
  const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  auto* const memory = reinterpret_cast<std::byte*>(pages_.get());
  const auto begin = reinterpret_cast<std::uintptr_t>(memory);
  const auto address = [begin](std::size_t tile) { return begin + tile * sizeof(Page); };
  for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
    const std::size_t first = tile;
    while (tile < tiles_.size() && tiles_[tile].drawn == 0) ++tile;
    const std::uintptr_t from = (address(first) + page - 1) / page * page;
    const std::uintptr_t until = address(tile) / page * page;
    if (from < until) ::madvise(memory + (from - begin), until - from, MADV_DONTNEED);
  }
}

void Tiles::resize(QSize size, PixelValue colour) {
  Tiles old(size, colour);
  std::swap(*this, old);
  for (int j = 0; j < std::min(down_, old.down_); ++j) {
    for (int i = 0; i < std::min(across_, old.across_); ++i) {
      const std::size_t from = old.index(i, j);
      const std::size_t to = index(i, j);
      tiles_[to] = {plainPage(old.tiles_[from].ground->front()), old.tiles_[from].drawn};
      for (int row = 0; row < side; ++row) {
        if (!has(tiles_[to].drawn, row)) continue;
        std::copy_n(old.pages_[from].row(row), side, pages_[to].row(row));
      }
    }
  }
  // What the old image did not have of the tiles at its edges.
  const auto fillStrip = [&](int left, int top, int right, int bottom) {
    for (int y = top; y < bottom; ++y) {
      for (int x = left; x < right; ++x) {
        if (at(x, y) != colour) set(x, y, colour);
      }
    }
  };
  fillStrip(old.width_, 0, std::min(width_, old.across_ * side), std::min(height_, old.height_));
  fillStrip(0, old.height_, std::min(width_, old.across_ * side),
            std::min(height_, old.down_ * side));
}

void Tiles::fillAcross(int y, int from, int until, PixelValue colour) {
  for (int column = tileOf(from); from < until; ++column) {
    const int next = std::min(until, (column + 1) * side);
    fillRun(paint(column, y) + inTile(from), next - from, colour);
    from = next;
  }
}

void Tiles::fillBand(const Band& band, PixelValue colour) {
  // Steep lines stay in a tile for many rows, and what is known of all of these need not be asked
  // for each.
  constexpr int few = 8;
  Band rest = band;
  while (rest.top < rest.bottom) {
    const int inThisTile = std::min(rest.bottom - rest.top, side - inTile(rest.top));
    int rows = inThisTile;
    int column = columnOf(rest, rows);
    if (column < 0 && rows > few) {
      rows = few;
      column = columnOf(rest, rows);
    }
    if (column >= 0) {
      fillInTile(column, rest, rows, colour);
    } else {
      for (int row = 0; row < rows; ++row) {
        const int from = std::max(whole(rest.left + row * rest.step), 0);
        const int until = std::min(whole(rest.right + row * rest.step), width_);
        if (from < until) fill(rest.top + row, from, until, colour);
      }
    }
    rest.top += rows;
    rest.left += rows * rest.step;
    rest.right += rows * rest.step;
  }
}

// The column of tiles in which the first rows of a band lie as a whole, none of them empty; or -1.
int Tiles::columnOf(const Band& band, int rows) const noexcept {
  const Fixed over = (rows - 1) * band.step;
  const int from = whole(band.left + std::min<Fixed>(over, 0));
  const int until = whole(band.right + std::max<Fixed>(over, 0));
  const bool inside = from >= 0 && until <= width_ && whole(band.right - band.left) > 0;
  return inside && tileOf(from) == tileOf(until - 1) ? tileOf(from) : -1;
}

void Tiles::fillInTile(int column, const Band& band, int rows, PixelValue colour) {
  const std::size_t tile = index(column, tileOf(band.top));
  const Rows all = (~Rows{0} >> (side - rows)) << inTile(band.top);
  while (const Rows missing = all & ~tiles_[tile].ready) open(tile, std::countr_zero(missing));

  PixelValue* line = pages_[tile].row(inTile(band.top));
  PixelValue* const end = line + rows * side;
  Fixed left = band.left;
  Fixed right = band.right;
  const int least = whole(right - left);
  if (least >= 2 && least < 4) {
    // Two to four pixels in each row: two stores of two, which may overlap.
    const std::array<PixelValue, 2> two{colour, colour};
    for (; line < end; line += side, left += band.step, right += band.step) {
      std::memcpy(line + inTile(whole(left)), two.data(), sizeof two);
      std::memcpy(line + inTile(whole(right) - 2), two.data(), sizeof two);
    }
  } else {
    for (; line < end; line += side, left += band.step, right += band.step) {
      fillRun(line + inTile(whole(left)), whole(right) - whole(left), colour);
    }
  }
}

QRegion Tiles::takeChanged() {
  if (!changed_) return {};
  changed_ = false;
  // Showing a few more tiles costs less than showing a rectangle more.
  constexpr int narrow = 4;
  std::vector<QRect> rects;
  Runs above;
  std::size_t firstOfAbove = 0;
  for (int j = 0; j < down_; ++j) {
    Runs runs;
    for (int i = 0; i < across_; ++i) {
      const std::size_t tile = index(i, j);
      if ((flags_[tile] & ToShow) == 0) continue;
      flags_[tile] &= static_cast<std::uint8_t>(~ToShow);
      tiles_[tile].ready = 0;
      if (!runs.empty() && i - runs.back().second <= narrow) {
        runs.back().second = i;
      } else {
        runs.emplace_back(i, i);
      }
    }
    const int top = j * side;
    const int bottom = std::min(top + side, height_) - 1;
    if (!runs.empty() && runs == above) {
      for (std::size_t r = firstOfAbove; r < rects.size(); ++r) rects[r].setBottom(bottom);
    } else {
      firstOfAbove = rects.size();
      for (const auto& [first, last] : runs) {
        rects.emplace_back(QPoint(first * side, top),
                           QPoint(std::min((last + 1) * side, width_) - 1, bottom));
      }
      above = std::move(runs);
    }
  }
  QRegion region;
  region.setRects(rects.data(), static_cast<int>(rects.size()));
  return region;
}

void Tiles::copyTo(QImage& image) {
  const bool all = image.size() != QSize(width_, height_);
  if (all) image = newImage({width_, height_});
  const auto stride = image.bytesPerLine() / static_cast<qsizetype>(sizeof(PixelValue));
  PixelValue* first = nullptr;
  for (int j = 0; j < down_; ++j) {
    for (int i = 0; i < across_; ++i) {
      const std::size_t tile = index(i, j);
      if (!all && (flags_[tile] & ToCopy) == 0) continue;
      flags_[tile] &= static_cast<std::uint8_t>(~ToCopy);
      tiles_[tile].ready = 0;
      // Taken late, so that an image that is shared and not changed is not copied.
      if (first == nullptr) first = reinterpret_cast<PixelValue*>(image.bits());
      const auto columns = static_cast<std::size_t>(std::min(side, width_ - i * side));
      for (int y = j * side; y < std::min((j + 1) * side, height_); ++y) {
        std::memcpy(first + stride * y + i * side, row(i, y), columns * sizeof(PixelValue));
      }
    }
  }
}

}  // namespace lensbench
