// Time from the start of the process to its first paint, beside an empty window of the toolkit.
//
// The program calls itself once for each measurement, so that loading, the application object and
// the first screen are all in it.
#include <cstdlib>

#include <QApplication>
#include <QMainWindow>
#include <QProcess>
#include <QWidget>

#include "app/Screens.h"
#include "bench/Compare.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"
#include "screens/Handlers.h"

namespace lensbench {
namespace {

// Leaves the process as soon as anything has been painted.
class UntilPainted : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painting_) {
      painting_ = true;
      QCoreApplication::sendEvent(watched, event);
      std::_Exit(EXIT_SUCCESS);
    }
    return false;
  }

 private:
  bool painting_ = false;
};

int showEmptyWindow() {
  QMainWindow window;
  window.setCentralWidget(new QWidget);
  window.showMaximized();
  return QApplication::exec();
}

int showProgram() {
  QtClock clock;
  QtDialogs dialogs(clock);
  Actions actions;
  Screens screens(dialogs, clock, actions);
  Main(screens);
  return QApplication::exec();
}

void runSelf(const char* what) {
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(), {what});
  process.waitForFinished();
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != EXIT_SUCCESS) {
    qFatal("%s did not paint", what);
  }
}

void firstPaint(benchmark::State& state) {
  compare(
      state, [] { runSelf("--program"); }, [] { runSelf("--empty"); });
}
BENCHMARK(firstPaint)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lensbench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  lensbench::UntilPainted untilPainted;
  if (arguments.contains("--program") || arguments.contains("--empty")) {
    application.installEventFilter(&untilPainted);
    return arguments.contains("--empty") ? lensbench::showEmptyWindow() : lensbench::showProgram();
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
