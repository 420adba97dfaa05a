// All that a step of the history holds of the single-ray screen.
#pragma once

#include <array>
#include <optional>
#include <utility>

#include <QString>

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"

namespace lensbench {

struct MoniaktinaState {
  std::array<int, 4> bars{};       // values of the scroll bars, in the order of the .cpp file
  std::array<QString, 4> texts{};  // of the boxes that show them
  std::array<Variant, 5> read{};   // the values that were read last
  Point source;                    // user units
  Point corner;                    // of its marker, whose size changes with the window
  std::optional<Point> aim;        // of the ray that was sent by hand last
  poreiaaktinon::single::Shown shown;
  light::Edges edges;  // of the drawing area

  friend bool operator==(const MoniaktinaState&, const MoniaktinaState&) = default;
};

// The state to be kept: the ray is without its traced path.
inline MoniaktinaState kept(MoniaktinaState state) {
  state.shown = untraced(std::move(state.shown));
  return state;
}

}  // namespace lensbench
