// An array with indices from 0 to a last one, where any other index is an error.
#pragma once

#include <cstddef>
#include <vector>

#include "canvas/RuntimeError.h"

namespace lensbench::protosfakos {

// Kept on the heap; an index outside 0..Last is Subscript out of range (9).
template <class T, int Last>
class CheckedArray {
 public:
  T& operator[](int index) { return items_[checked(index)]; }
  const T& operator[](int index) const { return items_[checked(index)]; }
  void clear() { items_.assign(items_.size(), T{}); }

 private:
  static std::size_t checked(int index) {
    if (index < 0 || index > Last) throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
    return static_cast<std::size_t>(index);
  }

  std::vector<T> items_ = std::vector<T>(static_cast<std::size_t>(Last) + 1);
};

}  // namespace lensbench::protosfakos
