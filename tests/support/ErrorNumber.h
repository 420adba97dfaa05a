// The number of the error that an action raises.
#pragma once

#include "canvas/RuntimeError.h"

namespace lensbench {

// 0 when the action raises none.
template <typename Action>
int errorNumber(Action&& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace lensbench
