// The single-ray screen as a value, and back; and its ray, sent again with other values.
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/ControlValues.h"
#include "screens/Shared.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {

namespace single = poreiaaktinon::single;

namespace {

template <class Controls>
auto barsOf(Controls& c) {
  return std::array{&c.aktina1, &c.aktina2, &c.deiktisdiathlasis, &c.kentrokykloy};
}

template <class Controls>
auto boxesOf(Controls& c) {
  return std::array{&c.Text6, &c.Text5, &c.Text2, &c.Text7};
}

// Where the ray on the picture is aimed; nothing without one.
std::optional<Point> aimOf(const single::Shown& shown) {
  if (shown.layers.empty()) return {};
  const auto* aim = std::get_if<single::AimLine>(&shown.layers.front());
  return aim == nullptr ? std::nullopt : std::optional(aim->to);
}

}  // namespace

MoniaktinaState moniaktina::state() const {
  const MoniaktinaControls& c = controls_;
  MoniaktinaState state;
  state.bars = valuesOf(barsOf(c));
  state.texts = textsOf(boxesOf(c));
  state.read = {aktinaR1, aktinaR2, kentro1, kentro2, deiktis};
  state.source = c.source();
  state.corner = {c.fos.Left(), c.fos.Top()};
  state.aim = aimed_;
  state.shown = shown();
  state.edges = light::edgesOf(canvas());
  return state;
}

void moniaktina::restore(const MoniaktinaState& state) {
  MoniaktinaControls& c = controls_;
  setQuietly(barsOf(c), state.bars);
  setTexts(boxesOf(c), state.texts);
  aktinaR1 = state.read[0];
  aktinaR2 = state.read[1];
  kentro1 = state.read[2];
  kentro2 = state.read[3];
  deiktis = state.read[4];
  const light::Edges edges = light::edgesOf(canvas());
  c.placeSource(state.source);
  if (state.edges == edges) {
    c.fos.Left(state.corner.x);
    c.fos.Top(state.corner.y);
  }
  aimed_ = state.aim;
  easel_.show(poreiaaktinon::fittedTo(edges, state.shown));
  warnOfLens();
}

bool moniaktina::sendAgain(const std::optional<Point>& aim) {
  // A ray straight up or down would end the program.
  using poreiaaktinon::toSingle;
  if (!aim || toSingle(aim->x) == toSingle(controls_.source().x)) return false;
  sendRay(*aim);
  return true;
}

void moniaktina::repeat() {
  const auto aim = aimOf(shown());
  sendAgain(aim ? aim : aimed_);
}

bool moniaktina::followValues() { return context_.shared.follow && sendAgain(aimOf(shown())); }

}  // namespace lensbench
