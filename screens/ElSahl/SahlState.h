// All that a step of the history holds of the Ibn Sahl screen.
#pragma once

#include <array>

#include <QString>

#include "optics/light/Stop.h"
#include "optics/protosfakos/Picture.h"

namespace lensbench {

struct SahlState {
  std::array<bool, 3> options{};  // kymataYESNO, RAYSANDWAVES, onlyrays
  light::Diafragma diafragma{};
  QString caption;
  protosfakos::Shown shown;

  friend bool operator==(const SahlState&, const SahlState&) = default;
};

// The state to be kept: scenes are without their traced rays.
inline SahlState kept(SahlState state) {
  state.shown = untraced(std::move(state.shown));
  return state;
}

}  // namespace lensbench
