// Runs a piece of work beside its bare reference, in turn, so that both meet the same machine.
#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

namespace lensbench {

// Seconds that the work takes.
template <typename Work>
double seconds(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The time shown is ours; "reference" is the other's in ms, "ratio" ours over it. The benchmark
// must have been registered with UseManualTime.
template <typename Ours, typename Reference>
void compare(benchmark::State& state, Ours&& ours, Reference&& reference) {
  double sum = 0.0;
  double referenceSum = 0.0;
  for ([[maybe_unused]] auto iteration : state) {
    const double time = seconds(ours);
    state.SetIterationTime(time);
    sum += time;
    referenceSum += seconds(reference);
  }
  state.counters["reference"] = 1e3 * referenceSum / static_cast<double>(state.iterations());
  state.counters["ratio"] = sum / referenceSum;
}

}  // namespace lensbench
