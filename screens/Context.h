// All that a screen is given by the program: no screen reaches for anything else, and none knows
// another.
#pragma once

namespace lensbench {

class Actions;
class Clock;
class Dialogs;
class Moves;
struct Shared;

// References to what outlives every screen.
struct Context {
  Moves& moves;      // from screen to screen
  Dialogs& dialogs;  // message and input boxes
  Clock& clock;      // what timers tick by
  Actions& actions;  // which action is running, for the error boundary
  Shared& shared;    // values that more than one screen reads
};

}  // namespace lensbench
