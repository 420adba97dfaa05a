// What timers tick by: the toolkit's clock, which a test replaces by one that it drives by hand.
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

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual std::unique_ptr<TickSource> tickSource() = 0;
  // While it is held no timer ticks.
  [[nodiscard]] bool held() const noexcept { return holds_ > 0; }

 protected:
  Clock() = default;
  Clock(const Clock&) = default;
  Clock& operator=(const Clock&) = default;

 private:
  friend class TickHold;
  int holds_ = 0;
};

// Holds a clock for as long as it lives, for example behind a message box.
class TickHold {
 public:
  explicit TickHold(Clock& clock) : clock_(clock) { ++clock_.holds_; }
  ~TickHold() { --clock_.holds_; }
  TickHold(const TickHold&) = delete;
  TickHold& operator=(const TickHold&) = delete;

 private:
  Clock& clock_;
};

// The toolkit's precise timers.
class QtClock : public Clock {
 public:
  std::unique_ptr<TickSource> tickSource() override;
};

}  // namespace lensbench
