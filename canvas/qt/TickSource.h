// The clock behind a timer, which a test replaces by one that it drives by hand.
#pragma once

#include <functional>
#include <memory>

namespace lensbench {

class TickSource {
 public:
  virtual ~TickSource() = default;
  // Ticks once every interval, in ms, the first time after one interval; a call while it runs
  // begins anew.
  virtual void start(int interval) = 0;
  virtual void stop() = 0;

  std::function<void()> onTick;
};

using TickSourceMaker = std::function<std::unique_ptr<TickSource>()>;

// A source of the kind in use: the toolkit's precise timer unless another has been set.
std::unique_ptr<TickSource> makeTickSource();
// For timers created from now on; an empty maker brings the toolkit's back.
void useTickSources(TickSourceMaker maker);

}  // namespace lensbench
