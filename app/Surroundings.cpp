#include "app/Surroundings.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <new>

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>

#include "app/Application.h"

namespace lensbench {
namespace {

// Two threads of the toolkit's may meet the same loss; the first one speaks, the other waits for
// the end.
[[noreturn]] void endFor(const char* reason) {
  static std::mutex once;
  once.lock();
  std::fprintf(stderr, "Lens Bench: %s\n", reason);
  endProcess(EXIT_FAILURE);
}

QtMessageHandler toolkitsOwn = nullptr;

// The toolkit says in messages only that it finds no display, before it aborts, or that it has lost
// its display, before it exits from wherever it is. While it looks for a display it also tells of
// each that it could not have, though the next may do.
void watch(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool lookingForDisplay = QGuiApplication::primaryScreen() == nullptr;
  if (lookingForDisplay && type == QtFatalMsg) {
    endFor(
        "Δεν ανοίγει καμιά οθόνη (X11 ή Wayland) και το πρόγραμμα τελειώνει. · "
        "No display (X11 or Wayland) can be opened, and the program ends.");
  }
  if (message.startsWith(QLatin1String("The X11 connection")) ||
      message.startsWith(QLatin1String("The Wayland connection"))) {
    endFor(
        "Η οθόνη χάθηκε και το πρόγραμμα τελειώνει. · "
        "The display was lost, and the program ends.");
  }
  if (!lookingForDisplay) toolkitsOwn(type, context, message);
}

std::terminate_handler endOtherwise = nullptr;

void endWithoutMemory() {
  try {
    if (const auto error = std::current_exception()) std::rethrow_exception(error);
  } catch (const std::bad_alloc&) {
    endFor(
        "Η μνήμη τελείωσε και το πρόγραμμα τελειώνει. · "
        "Memory has run out, and the program ends.");
  } catch (...) {
  }
  endOtherwise();
}

}  // namespace

void needDisplay() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  toolkitsOwn = qInstallMessageHandler(watch);
  // A display that is gone is met by whoever writes to it next: as an error, not as a signal.
  std::signal(SIGPIPE, SIG_IGN);
}

void useOnlyDesktopBus() {
  constexpr const char* address = "DBUS_SESSION_BUS_ADDRESS";
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  // Where a session's bus is found that is not told by its address.
  const bool found = !runtime.isEmpty() && QFile::exists(runtime + QLatin1String("/bus"));
  if (qEnvironmentVariableIsEmpty(address) && !found) qputenv(address, "disabled:");
}

void needMemory() { endOtherwise = std::set_terminate(endWithoutMemory); }

void needGreekFont() {
  if (!QFontDatabase::families(QFontDatabase::Greek).isEmpty()) return;
  endFor(
      "Δεν βρέθηκε γραμματοσειρά με ελληνικά γράμματα· εγκαταστήστε μια, όπως το πακέτο "
      "fonts-liberation. · "
      "No font with Greek letters was found; install one, such as the package fonts-liberation.");
}

}  // namespace lensbench
