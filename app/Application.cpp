#include "app/Application.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include <QThread>

#include "canvas/qt/Dialogs.h"
#include "screens/Handlers.h"

namespace lensbench {
namespace {

// Bytes; of addresses rather than of memory, since nothing is ever written there.
constexpr std::size_t reserve = 16 << 20;

}  // namespace

Application::Application(int& argc, char** argv, Dialogs& dialogs, const Actions& actions)
    : QApplication(argc, argv),
      dialogs_(dialogs),
      actions_(actions),
      reserve_(std::make_unique_for_overwrite<std::byte[]>(reserve)) {
  setApplicationName(QStringLiteral("lensbench"));
}

template <typename Work>
auto Application::guarded(Work work) -> decltype(work()) {
  try {
    return work();
  } catch (const RuntimeError& error) {
    if (!ending_) endWith(error);
  } catch (const std::bad_alloc&) {
    // Boxes belong to the thread of the windows; the toolkit's others have to tell for themselves.
    if (QThread::currentThread() != thread()) throw;
    if (!ending_) {
      reserve_.reset();
      endWith(outOfMemory());
    }
  }
  // Behind the box of an error, which says enough.
  return decltype(work())();
}

bool Application::notify(QObject* receiver, QEvent* event) {
  return guarded([&] { return QApplication::notify(receiver, event); });
}

void Application::run(const std::function<void()>& work) { guarded(work); }

void Application::endWith(const RuntimeError& error) noexcept {
  ending_ = true;
  dialogs_.Critical({}, errorHeadline(error), errorSentence(error, actions_.current()));
  endProcess(EXIT_FAILURE);
}

RuntimeError outOfMemory() {
  return RuntimeError(RuntimeError::Code::OutOfMemory,
                      "Ο υπολογιστής δεν έχει άλλη μνήμη να δώσει· ένα μικρότερο παράθυρο και "
                      "λιγότερες ακτίνες χρειάζονται λιγότερη. "
                      "The computer has no more memory to give; a smaller window and fewer rays "
                      "need less.");
}

QString errorHeadline(const RuntimeError& error) {
  return QStringLiteral("Σφάλμα %1: %2 · Error %1: %3")
      .arg(error.number())
      .arg(QString::fromUtf8(error.greek()), QString::fromUtf8(error.english()));
}

QString errorSentence(const RuntimeError& error, const QString& action) {
  // An action is named in both languages, the Greek name first.
  const QString between = QStringLiteral(" · ");
  QString sentence = action.isEmpty()
                         ? QStringLiteral(
                               "Συνέβη στο ξεκίνημα και το πρόγραμμα τελειώνει. "
                               "It happened at start-up, and the program ends.")
                         : QStringLiteral(
                               "Συνέβη στην ενέργεια «%1» και το πρόγραμμα τελειώνει. "
                               "It happened at the action “%2”, and the program ends.")
                               .arg(action.section(between, 0, 0), action.section(between, -1));
  if (error.detail().empty()) return sentence;
  return QString::fromStdString(error.detail()) + QLatin1Char('\n') + sentence;
}

void endProcess(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace lensbench
