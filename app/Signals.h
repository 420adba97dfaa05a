// The signals by which a system, a terminal or a person at one asks the program to end.
#pragma once

class QObject;

namespace lensbench {

// Has SIGTERM, SIGINT and SIGHUP end the program between two events, never in the middle of saving
// or drawing, and by that same signal, so that whoever started it can tell. A second one ends it at
// once. A signal that the program was started to ignore stays ignored.
void endBySignals(QObject& application);

}  // namespace lensbench
