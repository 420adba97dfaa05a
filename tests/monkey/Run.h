// A run: so many actions of one seed, and what came of them.
#pragma once

#include <functional>

#include <QString>

namespace lensbench {

struct Outcome {
  int done = 0;     // actions, the last of them the one that went wrong, if one did
  int ended = 0;    // actions that ended the program, each as it is known to
  QString digest;   // of all actions: the same for the same run
  QString failure;  // the last action and what was wrong after it; empty when nothing was
};

// Does actions, beginning on a program just started and until something goes wrong. Each is told in
// words before it is done.
Outcome runMonkey(
    unsigned seed, int actions,
    const std::function<void(const QString&)>& tell = [](const QString&) {});

}  // namespace lensbench
