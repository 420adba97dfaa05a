// Speed of the screens as the student meets them, from the handler to the shown window, with two
// image pixels a display pixel, on displays 1080 and 2160 high: on the workbench a scroll-bar step,
// fans, bundles and ticks; on the Ibn Sahl screen at the size that it has there its four scenes.
//
// The reference is the same list of drawing operations, recorded once and played on a bare canvas
// of the same size: what is left over it is tracing, reading the controls and showing the picture.
#include <cstdint>

#include <QApplication>
#include <QTest>

#include "bench/Compare.h"
#include "canvas/Recording.h"
#include "canvas/qt/RasterCanvas.h"
#include "optics/light/Edges.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/kelmo/kelmo.h"
#include "tests/screens/support/TestContext.h"

namespace lensbench {
namespace {

// Of a display so many pixels high.
QSize displayOf(std::int64_t height) {
  return {static_cast<int>(height) * 16 / 9, static_cast<int>(height)};
}

// Until the display has what the handlers before it asked for, just as the event loop would have
// it: the frame of the drawing area, then the window's update, then an answer of the display.
void untilShown(Form& form) {
  QCoreApplication::sendPostedEvents(form.drawingArea());
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&form, &update);
  qGuiApp->sync();
}

// The workbench on a full display with its diaphragm wide open.
struct Desk {
  TestContext program;
  kelmo bench{program.context};
  RasterCanvas bare;

  explicit Desk(std::int64_t height) : bare(displayOf(height), 1.0, 2) {
    bench.Show();
    // The display answers late.
    QTest::qWait(200);
    bench.showNormal();
    QTest::qWait(200);
    bench.setGeometry(QRect(QPoint(0, 0), displayOf(height)));
    QTest::qWait(200);
    bench.controls().VScroll1.Value(-90);
    bench.controls().VScroll2.Value(90);
    bare.resize(bench.drawingArea()->size(), 1.0);
    scaleLikeTheBench(bare);
  }

  void show() { untilShown(bench); }
  // False, and the benchmark ends, where the display is too small.
  bool fits(benchmark::State& state) {
    if (bench.size() == displayOf(state.range(0))) return true;
    state.SkipWithError("the display is too small");
    return false;
  }

  // What is drawn from nothing for the present picture, or to get to it from another.
  Recording recorded() const {
    Recording list = emptyList();
    draw(list, bench.shown());
    return list;
  }
  Recording recordedFrom(const poreiaaktinon::Shown& before) const {
    Recording list = emptyList();
    redraw(list, before, bench.shown());
    return list;
  }

  // Runs a handler and shows its picture, beside the bare operations of the present one.
  template <typename Handler>
  void measure(benchmark::State& state, Handler handler) {
    const Recording list = recorded();
    compare(
        state,
        [&] {
          handler();
          show();
        },
        [&] { list.playOn(bare); });
    state.counters["operations"] = static_cast<double>(list.operations().size());
  }

 private:
  void scaleLikeTheBench(Canvas& canvas) const {
    const light::Edges edges = light::edgesOf(bench.canvas());
    canvas.Scale(edges.left, edges.upper, edges.right, edges.lower);
  }
  Recording emptyList() const {
    Recording list(bench.drawingArea()->width(), bench.drawingArea()->height());
    scaleLikeTheBench(list);
    list.forget();
    return list;
  }
};

void scrollBarStep(benchmark::State& state) {
  Desk desk(state.range(0));
  if (!desk.fits(state)) return;
  int radius = 100;
  desk.measure(state, [&] {
    radius = 201 - radius;
    desk.bench.controls().aktina1.Value(radius);
  });
}

// A fan from an off-axis source; range(1) desmi1, range(2) the multiplier, range(3) waves too.
void fan(benchmark::State& state) {
  Desk desk(state.range(0));
  if (!desk.fits(state)) return;
  KelmoControls& controls = desk.bench.controls();
  controls.desmi1.Value(static_cast<int>(state.range(1)));
  controls.arvimaton.Value(static_cast<int>(state.range(2)));
  controls.Check1.Value(state.range(3) != 0);
  // What is there already would not be drawn again.
  double y = 40;
  const auto send = [&] {
    y = 81 - y;
    desk.bench.Form_MouseDown(1, 1, -250, y);
  };
  send();
  desk.measure(state, send);
  state.counters["rays"] = poreiaaktinon::rayCount(desk.bench.vima());
}

// A bundle of 151 rays with waves at an angle of range(1) degrees.
void bundle(benchmark::State& state) {
  Desk desk(state.range(0));
  if (!desk.fits(state)) return;
  double angle = static_cast<double>(state.range(1)) / 57.29577951308232;
  double turn = 0.001;  // what is there already would not be drawn again
  desk.bench.controls().desmi1.Value(150);
  desk.bench.controls().Check1.Value(true);
  const auto send = [&] {
    angle += turn;
    turn = -turn;
    desk.bench.drawBundle(angle);
  };
  send();
  desk.measure(state, send);
  state.counters["rays"] = 151;
}

// A tick of the plane waves of 151 rays; the reference draws one such step again and again.
void tick(benchmark::State& state) {
  Desk desk(state.range(0));
  if (!desk.fits(state)) return;
  KelmoControls& controls = desk.bench.controls();
  controls.desmi1.Value(150);
  desk.bench.parallilakymata_Click();
  for (int i = 0; i < 159; ++i) desk.bench.Timer2_Timer();
  const poreiaaktinon::Shown before = desk.bench.shown();
  desk.bench.Timer2_Timer();
  const Recording list = desk.recordedFrom(before);
  draw(desk.bare, before);
  compare(
      state,
      [&] {
        if (controls.Timer2.Interval() == 0) state.SkipWithError("the waves have stopped");
        desk.bench.Timer2_Timer();
        desk.show();
      },
      [&] { list.playOn(desk.bare); });
}

// The Ibn Sahl screen with one of its lenses at n = 1.5, opened as the menu opens it.
struct SahlDesk {
  TestContext t;
  ElSahl sahl{t.context};
  RasterCanvas bare{{1, 1}, 1.0, 2};

  SahlDesk(std::int64_t height, bool amfikyrtos) {
    t.shared.deiktisSahl = 1.5;
    t.shared.amfikyrtosSahl = amfikyrtos;
    sahl.prepare();
    const int side = displayOf(height).height() * 2 / 3;
    sahl.resize(side, side);
    QTest::qWait(200);
    bare.resize(sahl.drawingArea()->size(), 1.0);
    const Canvas& shown = sahl.canvas();
    bare.Scale(shown.ScaleLeft(), shown.ScaleTop(), shown.ScaleLeft() + shown.ScaleWidth(),
               shown.ScaleTop() + shown.ScaleHeight());
  }

  // Two handlers in turn, whose pictures cost alike: none of them finds its picture there already.
  template <typename One, typename Other>
  void measure(benchmark::State& state, One one, Other other) {
    one();
    Recording list;
    draw(list, sahl.shown());
    bool turn = false;
    compare(
        state,
        [&] {
          turn = !turn;
          turn ? other() : one();
          untilShown(sahl);
        },
        [&] { list.playOn(bare); });
    one();
    if (bare.image() != sahl.image()) state.SkipWithError("the pictures differ");
    state.counters["operations"] = static_cast<double>(list.operations().size());
  }
};

// A press that places the source above and below the axis.
void sahlFan(benchmark::State& state, bool amfikyrtos) {
  SahlDesk desk(state.range(0), amfikyrtos);
  desk.measure(
      state, [&] { desk.sahl.Form_MouseDown(1, 0, 108, 25); },
      [&] { desk.sahl.Form_MouseDown(1, 0, 108, -25); });
}

// A bundle along the axis; half a turn more is another value with the same rays.
void sahlBundle(benchmark::State& state, bool amfikyrtos) {
  SahlDesk desk(state.range(0), amfikyrtos);
  const auto ask = [&](const char* angle) {
    desk.t.dialogs.answer = angle;
    desk.sahl.parallilidesmifotos_Click();
  };
  desk.measure(
      state, [&] { ask("0"); }, [&] { ask("180"); });
}

void atBothSizes(benchmark::internal::Benchmark* scene) {
  scene->Arg(1080)->Arg(2160)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(scrollBarStep)->Apply(atBothSizes);
BENCHMARK(fan)
    ->ArgsProduct({{1080, 2160}, {20}, {30}, {0, 1}})
    ->ArgsProduct({{1080, 2160}, {150}, {5}, {0, 1}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(bundle)
    ->ArgsProduct({{1080, 2160}, {0, 20}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
// Few enough ticks to stay among those that draw.
BENCHMARK(tick)->Apply(atBothSizes)->Iterations(70);
BENCHMARK_CAPTURE(sahlFan, planoConvex, false)->Apply(atBothSizes);
BENCHMARK_CAPTURE(sahlFan, biconvex, true)->Apply(atBothSizes);
BENCHMARK_CAPTURE(sahlBundle, planoConvex, false)->Apply(atBothSizes);
BENCHMARK_CAPTURE(sahlBundle, biconvex, true)->Apply(atBothSizes);

}  // namespace
}  // namespace lensbench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" DISPLAY_CONFIGURATION);
  }
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
