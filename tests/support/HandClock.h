// A clock that a test drives by hand.
#pragma once

#include <memory>
#include <vector>

#include "canvas/qt/Clock.h"

namespace lensbench {

class HandTicks : public TickSource {
 public:
  void start(int every) override {
    interval = every;
    left_ = every;
    running = true;
    ++starts;
  }
  void stop() override { running = false; }

  int interval = 0;
  bool running = false;
  int starts = 0;

 private:
  friend class HandClock;
  void advance() {
    if (!running || --left_ > 0) return;
    left_ = interval;
    onTick();
  }

  int left_ = 0;  // ms to the next tick
};

class HandClock : public Clock {
 public:
  std::unique_ptr<TickSource> tickSource() override {
    auto ticks = std::make_unique<HandTicks>();
    made.push_back(ticks.get());
    return ticks;
  }
  // Winds forward. The timers that it was made for must live still.
  void advance(int ms) {
    for (int i = 0; i < ms; ++i) {
      for (HandTicks* ticks : made) ticks->advance();
    }
  }

  std::vector<HandTicks*> made;  // in order of creation; they belong to their timers
};

}  // namespace lensbench
