// All that a screen is given, in a test: moves that are only written down, boxes and a clock that
// the test answers and drives.
#pragma once

#include "screens/Context.h"
#include "screens/Handlers.h"
#include "screens/Shared.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/FakeMoves.h"
#include "tests/support/HandClock.h"

namespace lensbench {

struct TestContext {
  TestContext() = default;
  TestContext(const TestContext&) = delete;
  TestContext& operator=(const TestContext&) = delete;

  FakeMoves moves;
  FakeDialogs dialogs;
  HandClock clock;
  Actions actions;
  Shared shared;
  Context context{moves, dialogs, clock, actions, shared};
};

}  // namespace lensbench
