// The steps of a person's work as values, to go back and forth among.
#pragma once

#include <cstddef>
#include <deque>
#include <utility>

namespace lensbench {

// Holds the present value, what was before it, and, after going back, what came after it.
template <class Value>
class History {
 public:
  // How many steps can be taken back; older ones are forgotten.
  static constexpr std::size_t mostSteps = 200;

  explicit History(Value first) { values_.push_back(std::move(first)); }

  const Value& present() const { return values_[present_]; }
  std::size_t stepsBack() const { return present_; }
  std::size_t stepsForth() const { return values_.size() - 1 - present_; }

  // A step: the next value is the present one, and what could be done again is gone.
  void push(Value next) {
    while (stepsForth() > 0) values_.pop_back();
    values_.push_back(std::move(next));
    if (values_.size() > mostSteps + 1) values_.pop_front();
    present_ = values_.size() - 1;
  }
  // No step: the present value has changed by itself.
  void amend(Value now) { values_[present_] = std::move(now); }

  // False, and nothing changes, at the end.
  bool back() { return present_ > 0 && (--present_, true); }
  bool forth() { return stepsForth() > 0 && (++present_, true); }

 private:
  std::deque<Value> values_;
  std::size_t present_ = 0;
};

}  // namespace lensbench
