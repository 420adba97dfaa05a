// What the program cannot do without on the machine it is started on. Where it is missing, one
// plain line on the standard error stream says so, and the program ends with exit status 1.
#pragma once

namespace lensbench {

// A display, to be asked for before there is an application: X11 where it can be reached, for only
// there a program places its windows, and Wayland elsewhere. Watched over from then on, for a
// display can be lost too.
void needDisplay();

// The desktop's message bus where one runs, to be settled before there is an application; the only
// one of these that may be missing. Left to itself, the bus library would then start a bus of its
// own, which outlives the program and leaves a file at home.
void useOnlyDesktopBus();

// Memory, wherever the error boundary does not reach: in the toolkit's threads, in the midst of
// what may not fail, or where there is none left for its box.
void needMemory();

// A font with Greek letters, to be asked for once there is an application: boxes teach nobody.
void needGreekFont();

}  // namespace lensbench
