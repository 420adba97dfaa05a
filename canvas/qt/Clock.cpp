#include "canvas/qt/Clock.h"

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

}  // namespace

std::unique_ptr<TickSource> QtClock::tickSource() { return std::make_unique<QtTickSource>(); }

}  // namespace lensbench
