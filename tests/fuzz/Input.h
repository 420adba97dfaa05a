// What a fuzzer's bytes say, and what every ray must keep.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "optics/light/RayPath.h"
#include "optics/light/Vector.h"

namespace lensbench::fuzz {

// Reads numbers from bytes; zeros once they are used up.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  bool empty() const { return at_ >= size_; }
  std::uint8_t byte() { return empty() ? std::uint8_t{0} : data_[at_++]; }
  bool flag() { return (byte() & 1U) != 0; }
  int below(int limit) { return static_cast<int>(bits() % static_cast<std::uint64_t>(limit)); }
  // Evenly over a range.
  double between(double least, double most) {
    return least + (most - least) * (static_cast<double>(bits()) / 1.8446744073709552e19);
  }
  // Within the range of most, and now and then any finite number up to a million million, tiny ones
  // and both zeros included: further than a window and an angle can bring a ray.
  double coordinate(double most) {
    if ((byte() & 7U) != 0) return between(-most, most);
    const double any = std::bit_cast<double>(bits());
    return std::isfinite(any) ? std::clamp(any, -1e12, 1e12) : 0.0;
  }
  Point point(double most) {
    const double x = coordinate(most);
    return {x, coordinate(most)};
  }

 private:
  std::uint64_t bits() {
    std::uint64_t all = 0;
    for (int i = 0; i < 8; ++i) all = all << 8U | byte();
    return all;
  }

  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

// Ends the program, as a fuzzer wants it, where a law does not hold.
inline void require(bool law, const char* words) {
  if (law) return;
  std::fprintf(stderr, "broken: %s\n", words);
  std::abort();
}

inline bool finite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// How many rays were looked at; said when the program ends.
class RayCount {
 public:
  ~RayCount() {
    if (rays_ > 0) std::fprintf(stderr, "rays: %llu\n", rays_);
  }
  void add() { ++rays_; }

 private:
  unsigned long long rays_ = 0;
};
inline RayCount rayCount;

// One to three joined pieces of finite points, each along a unit vector.
inline void requirePath(const light::RayPath& path) {
  rayCount.add();
  require(path.count >= 1 && path.count <= 3, "a path has one to three pieces");
  const Point* joint = nullptr;
  for (const light::Piece& piece : path.way()) {
    require(finite(piece.from) && finite(piece.to) && finite(piece.direction), "points are finite");
    require(std::fabs(std::hypot(piece.direction.x, piece.direction.y) - 1.0) < 1e-9,
            "directions are of unit length");
    require(joint == nullptr || *joint == piece.from, "pieces are joined");
    joint = &piece.to;
  }
}

}  // namespace lensbench::fuzz
