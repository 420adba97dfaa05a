// The path of one ray through a lens, traced once into a value that pictures, waves and answers
// read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "canvas/Canvas.h"

namespace lensbench::light {

enum class Medium : std::uint8_t { Air, Glass };

// The two faces of a lens by where they stand; None where a ray has met no face.
enum class Side : std::uint8_t { None, Left, Right };

// How a path ends: nothing ends it within what is traced, on the diaphragm, at a face that reflects
// it totally, or at the edge of the glass where no face lets it out.
enum class Ending : std::uint8_t { Open, Diaphragm, TotalReflection, Trapped };

// A straight piece of a path, user units.
struct Piece {
  Point from;
  Point to;
  Point direction;  // of unit length
  Medium medium = Medium::Air;
};

// What a ray does at a face.
struct Meeting {
  Side face = Side::None;
  Point normal;          // of unit length, out of the glass
  bool refracts = true;  // false at the vertex of a hyperbola, which light goes straight through
};

struct RayPath {
  std::array<Piece, 3> pieces;
  std::array<Meeting, 2> meetings;  // meetings[i] stands at the end of pieces[i]
  int count = 0;                    // of pieces
  Ending ending = Ending::Open;
  double n = 1.0;      // index of the glass over that of the air around it
  double phase = 0.0;  // optical path at the start, user units

  std::span<const Piece> way() const { return {pieces.data(), static_cast<std::size_t>(count)}; }
  Point start() const { return pieces[0].from; }
  Point end() const { return pieces[static_cast<std::size_t>(count) - 1].to; }
  // True when the ray runs past the lens.
  bool missed() const {
    return count == 1 && pieces[0].medium == Medium::Air && ending == Ending::Open;
  }
};

}  // namespace lensbench::light
