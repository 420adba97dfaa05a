#include "app/Signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace lensbench {
namespace {

// A signal interrupts anything, so its handler may only write its number where the event loop
// reads.
std::array<int, 2> pipeEnds{-1, -1};

void passOn(int signal) {
  const int interrupted = errno;
  const auto number = static_cast<unsigned char>(signal);
  [[maybe_unused]] const auto written = ::write(pipeEnds[1], &number, 1);
  errno = interrupted;
}

void endBySignal() {
  unsigned char number = 0;
  if (::read(pipeEnds[0], &number, 1) != 1) return;
  std::fflush(nullptr);
  std::signal(number, SIG_DFL);
  std::raise(number);
}

void listenTo(int signal) {
  struct sigaction action {};
  if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = passOn;
  // Back to the system's own way once it is handled, and no call of the toolkit fails for it.
  action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
  ::sigaction(signal, &action, nullptr);
}

}  // namespace

void endBySignals(QObject& application) {
  if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, &application);
  QObject::connect(notifier, &QSocketNotifier::activated, &application, endBySignal);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) listenTo(signal);
}

}  // namespace lensbench
