// Memory of the process that asks.
#pragma once

#include <fstream>
#include <string>

namespace lensbench {

// What the system says of it, in MiB: "VmRSS" is what it holds, "VmHWM" the most that it has held.
// 0 where the system says nothing.
inline double memoryMiB(const std::string& what) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0.0;
    if (word == what + ":" && status >> kilobytes) return kilobytes / 1024.0;
  }
  return 0.0;
}

}  // namespace lensbench
