// Runs a piece of work beside its bare reference, in turn, so that both meet the same machine.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <vector>

namespace lensbench {

// Seconds that the work takes.
template <typename Work>
double seconds(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The middle one of some times, s.
inline double median(std::vector<double> times) {
  if (times.empty()) return 0.0;
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

// Counters, all from medians: "ms" ours, "reference" the other's, "ratio" ours over it. The
// benchmark must have been registered with UseManualTime.
template <typename Ours, typename Reference>
void compare(benchmark::State& state, Ours&& ours, Reference&& reference) {
  std::vector<double> times;
  std::vector<double> referenceTimes;
  for ([[maybe_unused]] auto iteration : state) {
    times.push_back(seconds(ours));
    state.SetIterationTime(times.back());
    referenceTimes.push_back(seconds(reference));
  }
  state.counters["ms"] = 1e3 * median(times);
  state.counters["reference"] = 1e3 * median(referenceTimes);
  state.counters["ratio"] = median(times) / median(referenceTimes);
}

}  // namespace lensbench
