// Memory that the program holds, beside an empty window of the same size: after a tour of all
// screens, with the light of a point on the workbench, and while a person goes on working.
//
// The program calls itself once for each measurement, for memory that was held once says little
// about what is needed later.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <QApplication>
#include <QMainWindow>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include "app/Screens.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/support/HandClock.h"
#include "tests/support/Memory.h"

namespace lensbench {
namespace {

constexpr int shownAfter = 150;    // ms, in which a picture has come to the display
constexpr int atRestAfter = 1500;  // ms, in which what nobody needs any more is given back

// What a measurement tells the one that started it.
void tell(double growth = 0.0) {
  QTest::qWait(atRestAfter);
  std::printf("%f %f %f\n", memoryMiB("VmRSS"), memoryMiB("VmHWM"), growth);
}

struct Program {
  FakeDialogs boxes;
  HandClock clock;
  Actions actions;
  Screens screens{boxes, clock, actions};

  Program() {
    Main(screens);
    seen();
  }
  static void seen() { QTest::qWait(shownAfter); }

  void openDiaphragm() {
    screens.kelmo().controls().VScroll1.Value(-90);
    screens.kelmo().controls().VScroll2.Value(90);
    seen();
  }
  // A fan of so many rays as these two settings give.
  void sendFan(int desmi1, int multiplier) {
    screens.kelmo().controls().desmi1.Value(desmi1);
    screens.kelmo().controls().arvimaton.Value(multiplier);
    screens.kelmo().Form_MouseDown(1, 1, -250, 40);
    seen();
  }
  void sendFanOf76() { sendFan(20, 30); }
  void letWavesRun() {
    for (int i = 0; i < 260; ++i) {
      clock.advance(17);
      QCoreApplication::processEvents();
    }
    seen();
  }

  void tourOfTheWorkbench() {
    KelmoControls& c = screens.kelmo().controls();
    openDiaphragm();
    c.Check1.Value(true);
    sendFanOf76();
    c.desmi1.Value(150);
    screens.kelmo().drawBundle(0.35);
    seen();
    c.parallilakymata.trigger();
    letWavesRun();
    c.desmi1.Value(20);
    c.kymatachronika.trigger();
    letWavesRun();
    c.Check1.Value(false);
  }
  void tourOfTheOthers() {
    screens.openSingleRay();
    seen();
    screens.moniaktina().Form_MouseDown(1, 0, -170, 90);
    screens.moniaktina().Form_MouseUp(1, 0, -20, 50);
    seen();
    screens.leaveSingleRay();
    screens.openLensMenu();
    seen();
    for (auto* button :
         {&screens.eisagogiko().controls().Command1, &screens.eisagogiko().controls().Command2}) {
      button->click();
      seen();
      screens.ElSahl().Form_MouseDown(1, 0, 100, -15);
      seen();
      boxes.answer = QStringLiteral("10");
      screens.ElSahl().parallilidesmifotos_Click();
      seen();
      screens.leaveIbnSahl();
      seen();
    }
    screens.leaveLensMenu();
    seen();
  }
};

// Settings that a person changes while the picture follows: steps of bars all over.
double growthOver(int actions, Program& program) {
  KelmoControls& c = program.screens.kelmo().controls();
  ScrollBar* const bars[] = {&c.aktina1, &c.kentrokykloy2, &c.aktina2, &c.kentrokykloy,
                             &c.deiktisdiathlasis};
  const auto act = [&](int count) {
    for (int i = 0; i < count; ++i) {
      ScrollBar& bar = *bars[static_cast<std::size_t>(i) % std::size(bars)];
      bar.Value(bar.Min() + i * 7919 % (bar.Max() - bar.Min() + 1));
      QCoreApplication::processEvents();
    }
    QTest::qWait(atRestAfter);
  };
  program.screens.toggleFollow();
  act(1000);
  const double before = memoryMiB("VmRSS");
  act(actions);
  return memoryMiB("VmRSS") - before;
}

int measureSelf(const QString& what) {
  if (what == QLatin1String("--empty")) {
    QMainWindow window;
    window.setCentralWidget(new QWidget);
    window.setGeometry(window.screen()->availableGeometry());
    window.show();
    tell();
    return EXIT_SUCCESS;
  }
  Program program;
  if (what == QLatin1String("--tour")) {
    program.tourOfTheWorkbench();
    program.tourOfTheOthers();
    program.sendFanOf76();
    tell();
  } else if (what == QLatin1String("--start")) {
    tell();
  } else if (what == QLatin1String("--all")) {
    program.openDiaphragm();
    program.screens.kelmo().controls().Check1.Value(true);
    program.sendFan(150, 5);
    tell();
  } else if (what == QLatin1String("--actions")) {
    program.openDiaphragm();
    program.sendFanOf76();
    const double growth = growthOver(10000, program);
    tell(growth);
  }
  return EXIT_SUCCESS;
}

struct Figures {
  double resident = 0.0, peak = 0.0, growth = 0.0;
};

// Without a display, on one so many pixels high; else on the display that there is.
Figures runSelf(const QString& what, int height) {
  QTemporaryDir folder;
  QProcess process;
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
    const QString file = folder.filePath(QStringLiteral("display.json"));
    std::ofstream(file.toStdString())
        << R"({"screens": [{"name": "Classroom", "x": 0, "y": 0, "width": )" << height * 16 / 9
        << R"(, "height": )" << height
        << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       QStringLiteral("offscreen:configfile=") + file);
    process.setProcessEnvironment(environment);
  }
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), {what});
  process.waitForFinished(-1);
  Figures figures;
  if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf %lf", &figures.resident,
                  &figures.peak, &figures.growth) != 3) {
    qFatal("%s told nothing", qPrintable(what));
  }
  return figures;
}

// Counters in MiB: what is held, by an empty window, above that, and at the highest.
void held(benchmark::State& state, const char* what) {
  const auto height = static_cast<int>(state.range(0));
  if (QGuiApplication::platformName() != QLatin1String("offscreen") &&
      QGuiApplication::primaryScreen()->size().height() != height) {
    return state.SkipWithError("the display has another size");
  }
  for ([[maybe_unused]] auto iteration : state) {
    const Figures empty = runSelf(QStringLiteral("--empty"), height);
    const Figures ours = runSelf(QLatin1String(what), height);
    state.counters["MiB"] = ours.resident;
    state.counters["empty"] = empty.resident;
    state.counters["above"] = ours.resident - empty.resident;
    state.counters["peak"] = ours.peak;
    state.counters["growth"] = ours.growth;
  }
}

void once(benchmark::internal::Benchmark* scene) {
  scene->Iterations(1)->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(held, start, "--start")->Arg(1080)->Arg(2160)->Arg(4320)->Apply(once);
BENCHMARK_CAPTURE(held, afterATour, "--tour")->Arg(1080)->Arg(2160)->Arg(4320)->Apply(once);
BENCHMARK_CAPTURE(held, largestFan, "--all")->Arg(1080)->Arg(2160)->Arg(4320)->Apply(once);
BENCHMARK_CAPTURE(held, tenThousandActions, "--actions")->Arg(1080)->Apply(once);

}  // namespace
}  // namespace lensbench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QString what = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
  for (const char* own : {"--empty", "--start", "--tour", "--all", "--actions"}) {
    if (what == QLatin1String(own)) return lensbench::measureSelf(what);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
