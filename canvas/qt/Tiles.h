// The pixels of the drawing surface, in square tiles of which only those rows are written that
// something has been drawn on.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include <QImage>
#include <QRegion>
#include <QSize>

#include "canvas/qt/Pixels.h"

namespace lensbench {

// A tile is a page of memory: a line in any direction stays on few pages and few cache lines. All
// pages are reserved at once, but the system provides one only when it is written to. Rows on which
// nothing has been drawn are plain: they show the tile's ground, a page of one colour that all such
// tiles share.
class Tiles {
 public:
  static constexpr int side = 32;
  // The tile of a column or row of pixels, and its place in it.
  static constexpr int tileOf(int pixel) noexcept { return pixel >> 5; }
  static constexpr int inTile(int pixel) noexcept { return pixel & (side - 1); }
  // A bit for each row of a tile, the first row lowest.
  using Rows = std::uint32_t;
  static constexpr bool has(Rows rows, int row) noexcept { return ((rows >> row) & 1u) != 0; }

  Tiles(QSize size, PixelValue colour);

  int width() const noexcept { return width_; }
  int height() const noexcept { return height_; }
  int across() const noexcept { return across_; }
  int down() const noexcept { return down_; }

  // One colour everywhere. The memory of earlier pictures is kept for the next ones.
  void clear(PixelValue colour);
  // Gives the memory of earlier pictures back, as far as the present one does not need it.
  void giveBackSpare();
  // What there is stays where it is, a new strip has the colour.
  void resize(QSize size, PixelValue colour);

  // The row y of the tiles in a column, as it is.
  const PixelValue* row(int column, int y) const noexcept {
    const std::size_t tile = index(column, tileOf(y));
    const Page& page = has(tiles_[tile].drawn, inTile(y)) ? pages_[tile] : *tiles_[tile].ground;
    return page.row(inTile(y));
  }
  PixelValue at(int x, int y) const noexcept { return row(tileOf(x), y)[inTile(x)]; }
  // Which rows of a tile something has been drawn on, and the colour of the others.
  Rows drawnRows(int column, int tileRow) const noexcept {
    return tiles_[index(column, tileRow)].drawn;
  }
  PixelValue ground(int column, int tileRow) const noexcept {
    return tiles_[index(column, tileRow)].ground->front();
  }

  // The same row, to be painted.
  PixelValue* paint(int column, int y) {
    const std::size_t tile = index(column, tileOf(y));
    if (!has(tiles_[tile].ready, inTile(y))) open(tile, inTile(y));
    return pages_[tile].row(inTile(y));
  }
  // A tile of one colour.
  void fillTile(int column, int tileRow, PixelValue colour);
  void set(int x, int y, PixelValue colour) { paint(tileOf(x), y)[inTile(x)] = colour; }
  // Columns from to until - 1 of a row; not empty and in the image.
  void fill(int y, int from, int until, PixelValue colour) {
    const int first = tileOf(from);
    if (first == tileOf(until - 1)) {
      fillRun(paint(first, y) + inTile(from), until - from, colour);
    } else {
      fillAcross(y, from, until, colour);
    }
  }

  // The part of a band that lies in the image; its rows do.
  void fillBand(const Band& band, PixelValue colour);

  // Whether something has changed since takeChanged, and what: tiles, and narrow gaps between them.
  bool changed() const noexcept { return changed_; }
  QRegion takeChanged();

  // Brings an image to the size and the pixels of the tiles, at the cost of those that have been
  // painted since it was last brought up to date; it must be given the same image every time.
  void copyTo(QImage& image);

 private:
  // Where a page of the system begins, or else a tile alone would keep two of them.
  struct alignas(side* side * sizeof(PixelValue)) Page {
    // Not set to anything, so that nothing is written.
    Page() {}  // NOLINT(modernize-use-equals-default, cppcoreguidelines-pro-type-member-init)
    PixelValue front() const noexcept { return pixels[0]; }
    const PixelValue* row(int j) const noexcept { return pixels.data() + j * side; }
    PixelValue* row(int j) noexcept { return pixels.data() + j * side; }
    std::array<PixelValue, side * side> pixels;
  };
  struct Tile {
    const Page* ground = nullptr;
    Rows drawn = 0;
    Rows ready = 0;  // of those, the ones whose tile is marked as changed
  };
  enum Flag : std::uint8_t { ToShow = 1, ToCopy = 2 };

  std::size_t index(int column, int tileRow) const noexcept {
    return static_cast<std::size_t>(tileRow) * static_cast<std::size_t>(across_) +
           static_cast<std::size_t>(column);
  }
  static void fillRun(PixelValue* first, int count, PixelValue colour) noexcept;
  void fillAcross(int y, int from, int until, PixelValue colour);
  int columnOf(const Band& band, int rows) const noexcept;
  // The first rows of a band, which lie in one tile.
  void fillInTile(int column, const Band& band, int rows, PixelValue colour);
  // Makes a row one that can be painted.
  void open(std::size_t tile, int row);
  const Page* plainPage(PixelValue colour);
  void fillTile(std::size_t tile, const Page* plain);
  void mark(std::size_t tile) noexcept;

  int width_;
  int height_;
  int across_;
  int down_;
  bool changed_ = true;
  std::unique_ptr<Page[]> pages_;
  std::vector<Tile> tiles_;
  std::vector<std::uint8_t> flags_;
  std::vector<std::unique_ptr<Page>> plains_;
};

// Runs of few pixels are what lines consist of: stores that overlap cost less than a loop.
inline void Tiles::fillRun(PixelValue* first, int count, PixelValue colour) noexcept {
  const std::array<PixelValue, 4> four{colour, colour, colour, colour};
  if (count > 4) {
    for (int i = 0; i < count - 4; i += 4) std::memcpy(first + i, four.data(), sizeof four);
    std::memcpy(first + count - 4, four.data(), sizeof four);
  } else if (count > 1) {
    std::memcpy(first, four.data(), sizeof four / 2);
    std::memcpy(first + count - 2, four.data(), sizeof four / 2);
  } else {
    *first = colour;
  }
}

}  // namespace lensbench
