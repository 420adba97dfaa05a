#include "canvas/qt/Timer.h"

#include <algorithm>

#include "canvas/qt/Form.h"

namespace lensbench {
namespace {

// The shortest time between two ticks in whole ms: one frame of a display that shows 60 a second.
constexpr int frame = 17;

}  // namespace

Timer::Timer(Form& form, const QString& name, Clock& clock)
    : QObject(&form), source_(clock.tickSource()) {
  setObjectName(name);
  source_->onTick = [this, &clock] {
    if (!clock.held()) emit Tick();
  };
}

Timer::~Timer() = default;

void Timer::Enabled(bool enabled) {
  enabled_ = enabled;
  restart();
}

void Timer::Interval(int milliseconds) {
  interval_ = std::max(0, milliseconds);
  restart();
}

void Timer::restart() {
  source_->stop();
  if (enabled_ && interval_ > 0) source_->start(std::max(interval_, frame));
}

}  // namespace lensbench
