// Timer control: ticks at its interval while it is enabled.
#pragma once

#include <memory>

#include <QObject>

#include "canvas/qt/Clock.h"

namespace lensbench {

class Form;

// Ticks no more often than a display shows frames, so that every step of an animation is seen, and
// not at all while its clock is held.
class Timer : public QObject {
  Q_OBJECT

 public:
  Timer(Form& form, const QString& name, Clock& clock);
  ~Timer() override;

  bool Enabled() const noexcept { return enabled_; }
  // Setting either property begins the interval anew, also when it keeps its value.
  void Enabled(bool enabled);
  // Milliseconds; 0 never ticks.
  int Interval() const noexcept { return interval_; }
  void Interval(int milliseconds);

 signals:
  void Tick();

 private:
  void restart();

  std::unique_ptr<TickSource> source_;
  bool enabled_ = true;
  int interval_ = 0;
};

}  // namespace lensbench
