#include "canvas/qt/TickSource.h"

#include <utility>

#include <QTimer>

namespace lensbench {
namespace {

class QtTickSource : public TickSource {
 public:
  QtTickSource() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout([this] { onTick(); });
  }
  void start(int interval) override { timer_.start(interval); }
  void stop() override { timer_.stop(); }

 private:
  QTimer timer_;
};

TickSourceMaker& maker() {
  static TickSourceMaker current;
  return current;
}

}  // namespace

std::unique_ptr<TickSource> makeTickSource() {
  return maker() ? maker()() : std::make_unique<QtTickSource>();
}

void useTickSources(TickSourceMaker replacement) { maker() = std::move(replacement); }

}  // namespace lensbench
