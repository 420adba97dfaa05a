// The screens together as one value, and back.
#include "app/ProgramState.h"
#include "app/Screens.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {
namespace {

template <class Screen>
auto stateOf(const std::unique_ptr<Screen>& screen) {
  ScreenState<decltype(kept(screen->state()))> state;
  if (screen) state = {kept(screen->state()), screen->isVisible()};
  return state;
}

template <class Screen, class State>
void restoreValues(const std::unique_ptr<Screen>& screen, const ScreenState<State>& state) {
  if (screen && state.values) screen->restore(*state.values);
}

// Those that come into sight first, so that some window is always there.
template <class Screen, class State>
void showOrHide(const std::unique_ptr<Screen>& screen, const ScreenState<State>& state, bool show) {
  if (!screen || state.visible != show || screen->isVisible() == show) return;
  if (show) {
    screen->Show();
  } else {
    screen->Hide();
  }
}

template <class Screen, class State>
void bringToFront(const std::unique_ptr<Screen>& screen, const ScreenState<State>& before,
                  const ScreenState<State>& after) {
  if (before == after || !after.visible) return;
  if (!screen->isActiveWindow() || screen->isMinimized()) screen->Show();
}

}  // namespace

ProgramState Screens::state() const {
  ProgramState state{shared_, stateOf(kelmo_), stateOf(moniaktina_), stateOf(ElSahl_),
                     stateOf(eisagogiko_)};
  state.shared.follow = false;
  state.shared.paused = false;
  return state;
}

void Screens::restore(const ProgramState& to) {
  const ProgramState before = state();
  const bool follow = shared_.follow;
  shared_ = to.shared;
  shared_.follow = follow;
  const auto each = [&](const auto& what) {
    what(kelmo_, &ProgramState::kelmo);
    what(moniaktina_, &ProgramState::moniaktina);
    what(ElSahl_, &ProgramState::ElSahl);
    what(eisagogiko_, &ProgramState::eisagogiko);
  };
  each([&](const auto& screen, auto part) { restoreValues(screen, to.*part); });
  for (const bool show : {true, false}) {
    each([&](const auto& screen, auto part) { showOrHide(screen, to.*part, show); });
  }
  const ProgramState after = state();
  each([&](const auto& screen, auto part) { bringToFront(screen, before.*part, after.*part); });
}

}  // namespace lensbench
