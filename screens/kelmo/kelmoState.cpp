// The workbench as a value, and back; and what stands on its picture, repeated with other values.
#include "screens/kelmo/KelmoState.h"

#include <utility>

#include "screens/ControlValues.h"
#include "screens/Shared.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

template <class Controls>
auto barsOf(Controls& c) {
  return std::array{&c.aktina1,           &c.kentrokykloy2, &c.aktina2,   &c.kentrokykloy,
                    &c.deiktisdiathlasis, &c.desmi1,        &c.arvimaton, &c.HScroll1,
                    &c.VScroll1,          &c.VScroll2};
}

template <class Controls>
auto boxesOf(Controls& c) {
  return std::array{&c.Text6, &c.Text5, &c.Text7, &c.Text2, &c.Text1};
}

KelmoState::Waves wavesOf(const Timer& timer, const MenuEntry& entry) {
  return {timer.Enabled(), timer.Interval(), entry.Checked()};
}

void setWaves(const KelmoState::Waves& waves, Timer& timer, MenuEntry& entry) {
  timer.Interval(waves.interval);
  timer.Enabled(waves.enabled);
  entry.Checked(waves.marked);
}

}  // namespace

KelmoState kept(KelmoState state) {
  for (KelmoState::Waves* waves : {&state.time, &state.plane}) {
    if (!waves->enabled || waves->interval == 0) continue;
    *waves = {true, 0, false};
    state.ticks = 0;
  }
  state.standing = untraced(std::move(state.standing));
  if (state.wiped) state.wiped = untraced(std::move(*state.wiped));
  return state;
}

KelmoState withoutFronts(KelmoState state) {
  std::erase_if(state.standing.shown.layers, [](const poreiaaktinon::Layer& layer) {
    return std::holds_alternative<poreiaaktinon::Fronts>(layer);
  });
  state.ticks = 0;
  return state;
}

KelmoState kelmo::state() const {
  const KelmoControls& c = controls_;
  KelmoState state;
  state.bars = valuesOf(barsOf(c));
  state.texts = textsOf(boxesOf(c));
  state.Label3 = c.Label3.Caption();
  state.Check1 = c.Check1.Value();
  state.Check2 = c.Check2.Value();
  state.diafragma = diafragma();
  state.upperBlade = c.Line1.BorderColor();
  state.pigi = pigi();
  state.gonia = gonia;
  state.time = wavesOf(c.Timer1, c.kymatachronika);
  state.plane = wavesOf(c.Timer2, c.parallilakymata);
  state.ticks = ticks_;
  state.standing = standing();
  state.wiped = wiped_;
  state.edges = edges();
  return state;
}

void kelmo::restore(const KelmoState& state) {
  KelmoControls& c = controls_;
  setQuietly(barsOf(c), state.bars);
  setTexts(boxesOf(c), state.texts);
  c.Label3.Caption(state.Label3);
  c.Check1.Value(state.Check1);
  c.Check2.Value(state.Check2);
  placeDiaphragm(state.diafragma);
  if (state.edges != edges()) slidersFollowBlades();
  c.Line1.BorderColor(state.upperBlade);
  placeSource(state.pigi);
  gonia = state.gonia;
  setWaves(state.time, c.Timer1, c.kymatachronika);
  setWaves(state.plane, c.Timer2, c.parallilakymata);
  ticks_ = state.ticks;
  wiped_ = state.wiped;
  showStanding(fittedTo(edges(), state.standing));
  warnOfWaves();
}

void kelmo::showStanding(poreiaaktinon::Standing standing) {
  set_ = std::move(standing.set);
  easel_.show(std::move(standing.shown));
}

poreiaaktinon::Values kelmo::values() const {
  return {bench(), pigi(), vima(), controls_.desmi1.Value(), provoli(), edges()};
}

void kelmo::followValues() {
  if (following()) showStanding(repeated(standing(), values()));
}

bool kelmo::following() const { return context_.shared.follow; }

void kelmo::repeat() {
  const bool stands = !wiped_ || poreiaaktinon::showsMoreThanLens(shown());
  showStanding(repeated(stands ? standing() : *wiped_, values()));
}

}  // namespace lensbench
