// All that a step of the history holds: the values of all screens, and which of them are in sight.
#pragma once

#include <optional>

#include "screens/ElSahl/SahlState.h"
#include "screens/Shared.h"
#include "screens/eisagogiko/MenuState.h"
#include "screens/kelmo/KelmoState.h"
#include "screens/moniaktina/MoniaktinaState.h"

namespace lensbench {

// A screen that has not been made has no value, and is not in sight.
template <class State>
struct ScreenState {
  std::optional<State> values;
  bool visible = false;

  friend bool operator==(const ScreenState&, const ScreenState&) = default;
};

struct ProgramState {
  Shared shared;  // but for what lives on through the history
  ScreenState<KelmoState> kelmo;
  ScreenState<MoniaktinaState> moniaktina;
  ScreenState<SahlState> ElSahl;
  ScreenState<MenuState> eisagogiko;

  friend bool operator==(const ProgramState&, const ProgramState&) = default;
};

}  // namespace lensbench
