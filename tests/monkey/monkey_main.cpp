// The long mode of the random input; monkey.sh says what it is given and what it leaves behind.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <set>
#include <string>

#include <QApplication>

#include "tests/monkey/Run.h"
#include "tests/support/Memory.h"

namespace {

using lensbench::Outcome;

constexpr int actionsOfARun = 1000;
// Seconds, after which a run counts as one that hangs.
constexpr unsigned longestRun = 3600;
// What the toolkit keeps by itself is there after so many runs; from then on memory may grow by no
// more than this.
constexpr int runsUntilWarm = 8;
constexpr long allowedGrowth = 16;  // MiB

// Of this process, with what has been freed given back; MiB.
long residentMemory() {
  malloc_trim(0);
  return static_cast<long>(lensbench::memoryMiB("VmRSS"));
}

std::set<int> runsIn(const std::string& results) {
  std::set<int> runs;
  std::ifstream file(results);
  for (std::string line; std::getline(file, line);) runs.insert(std::atoi(line.c_str()));
  return runs;
}

// The run with its actions in a file that stays when it does not end well.
Outcome runWithActions(int run, const std::string& actions) {
  std::ofstream file(actions);
  const Outcome outcome =
      lensbench::runMonkey(static_cast<unsigned>(run), actionsOfARun, [&](const QString& action) {
        file << action.toStdString() << '\n' << std::flush;
      });
  if (outcome.failure.isEmpty()) std::remove(actions.c_str());
  return outcome;
}

// The platform without windows says at each turn what it cannot do; all else is worth a look.
void sayWarning(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (words.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", qPrintable(words));
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(sayWarning);
  const QApplication application(argc, argv);
  if (argc != 5) {
    std::fprintf(stderr, "monkey FOLDER FIRST LAST STEP\n");
    return 2;
  }
  const std::string folder = argv[1];
  const std::string results = folder + "/results.tsv";
  const int last = std::atoi(argv[3]);
  const int step = std::atoi(argv[4]);
  const std::set<int> known = runsIn(results);
  int status = EXIT_SUCCESS;
  int runs = 0;
  long warm = 0;
  for (int run = std::atoi(argv[2]); run <= last; run += step) {
    if (known.count(run) != 0) continue;
    alarm(longestRun);
    const std::string actions = folder + "/run-" + std::to_string(run) + ".txt";
    const Outcome outcome = runWithActions(run, actions);
    const long memory = residentMemory();
    if (++runs <= runsUntilWarm) warm = std::max(warm, memory);
    std::string failure = outcome.failure.toStdString();
    if (memory > warm + allowedGrowth) {
      failure += " memory has grown from " + std::to_string(warm) + " to " +
                 std::to_string(memory) + " MiB";
    }
    if (!failure.empty()) {
      std::fprintf(stderr, "run %d, action %d of %s: %s\n", run, outcome.done, actions.c_str(),
                   failure.c_str());
      status = EXIT_FAILURE;
      continue;
    }
    // One write, for others add to the file too.
    std::ofstream(results, std::ios::app)
        << std::to_string(run) + '\t' + std::to_string(outcome.done) + '\t' +
               std::to_string(outcome.ended) + '\t' + outcome.digest.toStdString() + '\t' +
               std::to_string(memory) + '\n';
  }
  return status;
}
