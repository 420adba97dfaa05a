#include "app/Application.h"

#include <cstdio>
#include <cstdlib>

#include "canvas/qt/Dialogs.h"
#include "screens/Handlers.h"

namespace lensbench {

Application::Application(int& argc, char** argv, Dialogs& dialogs, const Actions& actions)
    : QApplication(argc, argv), dialogs_(dialogs), actions_(actions) {
  setApplicationName(QStringLiteral("lensbench"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RuntimeError& error) {
    endWith(error);
  }
}

void Application::run(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    endWith(error);
  }
}

void Application::endWith(const RuntimeError& error) {
  dialogs_.Critical({}, errorHeadline(error), errorSentence(error, actions_.current()));
  endProcess(EXIT_FAILURE);
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
