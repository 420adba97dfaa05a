// All that a step of the history holds of the workbench.
#pragma once

#include <array>
#include <optional>

#include <QString>

#include "canvas/Rgb.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Repeat.h"

namespace lensbench {

struct KelmoState {
  // A timer with the entry whose mark tells that it moves waves.
  struct Waves {
    bool enabled = false;
    int interval = 0;  // ms
    bool marked = false;

    friend bool operator==(const Waves&, const Waves&) = default;
  };

  std::array<int, 10> bars{};      // values of the scroll bars, in the order of kelmoState.cpp
  std::array<QString, 5> texts{};  // of the boxes that show them
  QString Label3;                  // the multiplier's text
  bool Check1 = false;
  bool Check2 = false;
  poreiaaktinon::Diafragma diafragma{};
  Rgb upperBlade{};  // colour
  Point pigi;
  Variant gonia;
  Waves time;   // Timer1, waves in time
  Waves plane;  // Timer2, plane waves
  int ticks = 0;
  poreiaaktinon::Standing standing{};              // the picture and the set of moving waves
  std::optional<poreiaaktinon::Standing> wiped{};  // what F5 brings back
  light::Edges edges;                              // of the drawing area that the sliders follow

  friend bool operator==(const KelmoState&, const KelmoState&) = default;
};

// The state to be kept: waves that run are at rest, and what is sent is without its traced paths.
KelmoState kept(KelmoState state);

// The state without the fronts of moving waves: how far they have come is no step of its own.
KelmoState withoutFronts(KelmoState state);

}  // namespace lensbench
