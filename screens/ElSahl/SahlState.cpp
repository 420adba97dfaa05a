// The Ibn Sahl screen as a value, and back; and its scenes, repeated with other values.
#include "screens/ElSahl/SahlState.h"

#include "optics/protosfakos/Repeat.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Shared.h"

namespace lensbench {

SahlState ElSahl::state() const {
  const SahlControls& c = controls_;
  return {{c.kymataYESNO.Value(), c.RAYSANDWAVES.Value(), c.onlyrays.Value()},
          diafragma(),
          Caption(),
          shown()};
}

void ElSahl::restore(const SahlState& state) {
  controls_.kymataYESNO.Value(state.options[0]);
  controls_.RAYSANDWAVES.Value(state.options[1]);
  controls_.onlyrays.Value(state.options[2]);
  Caption(state.caption);
  easel_.show(traced(state.shown));
  placeEdges(state.diafragma);
}

void ElSahl::repeat() {
  // An index without a lens leaves the picture as it is, until there is a lens again.
  if (!hasLens()) return;
  easel_.show(repeated(shown(), askedFan()));
  followWithMarks();
}

bool ElSahl::followValues() {
  if (!context_.shared.follow || shown().layers.empty()) return false;
  repeat();
  return true;
}

}  // namespace lensbench
