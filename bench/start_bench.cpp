// Time from the start of the process to its first paint, beside a window with as many of the
// toolkit's own controls in the same fonts, and beside an empty one.
//
// The program calls itself once for each measurement, so that loading, the application object and
// the first screen are all in it.
#include <cstdlib>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QScrollBar>

#include "app/Screens.h"
#include "bench/Compare.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"
#include "canvas/qt/Fonts.h"
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

// As many controls and menu entries of each kind as the workbench has, with texts like its own.
int showStock() {
  constexpr QRect boxes(10, 10, 260, 22);
  QMainWindow window;
  auto* area = new QWidget;
  window.setCentralWidget(area);
  for (const char* entry : {"AKTINA RAY", "// BUNDLE  DESMH", "IBN SAHL", "// WAVES  KYMATA",
                            "WAVES IN  TIME  XPONIKA", "END"}) {
    window.menuBar()->addAction(QString::fromUtf8(entry));
  }
  int row = 0;
  const auto place = [&](QWidget* control, double points) {
    control->setFont(controlFont("Arial", points));
    control->setGeometry(boxes.translated(0, 24 * row++));
  };
  for (int i = 0; i < 10; ++i) place(new QScrollBar(Qt::Horizontal, area), smallestControlText);
  for (int i = 0; i < 7; ++i) {
    auto* box = new QLineEdit(QStringLiteral("Δείκτης Διάθλασης= 1.50"), area);
    box->setReadOnly(true);
    place(box, smallestControlText);
  }
  for (int i = 0; i < 3; ++i) {
    auto* label = new QLabel(QStringLiteral("ΜΠΟΡΕΙΣ ΝΑ ΜΕΤΑΚΙΝΗΣΕΙΣ ΤΑ ΔΙΑΦΡΑΓΜΑΤΑ"), area);
    label->setWordWrap(true);
    place(label, smallestControlText);
  }
  for (int i = 0; i < 2; ++i) {
    place(new QCheckBox(QStringLiteral("SHOW ONLY WAVES"), area), smallestControlText);
  }
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

void firstPaint(benchmark::State& state, const char* reference) {
  compare(
      state, [] { runSelf("--program"); }, [&] { runSelf(reference); });
}
BENCHMARK_CAPTURE(firstPaint, besideStockControls, "--stock")
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstPaint, besideAnEmptyWindow, "--empty")
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lensbench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  lensbench::UntilPainted untilPainted;
  application.installEventFilter(&untilPainted);
  if (arguments.contains("--empty")) return lensbench::showEmptyWindow();
  if (arguments.contains("--stock")) return lensbench::showStock();
  if (arguments.contains("--program")) return lensbench::showProgram();
  application.removeEventFilter(&untilPainted);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
