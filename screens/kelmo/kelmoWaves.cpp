// Fans and bundles of rays, and the waves that they carry over the workbench.
#include <algorithm>
#include <utility>

#include "canvas/qt/Dialogs.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/Answers.h"
#include "screens/Shared.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

using poreiaaktinon::Desmi;
using poreiaaktinon::Fan;
using poreiaaktinon::Fronts;
using poreiaaktinon::Sent;
using poreiaaktinon::Shown;
using poreiaaktinon::WaveScene;

// The interval of waves that are running, ms: as fast as they can be seen.
constexpr int runningInterval = 1;
constexpr int lastDrawnStep = 240;
constexpr int longestRun = 500;  // interval in ms times ticks

}  // namespace

void kelmo::EPANALIPSI_Click() {
  // Asked first, so that a cancelled question changes nothing at all.
  const auto answer = context_.dialogs.InputBox(
      QStringLiteral("Give angle with horizontal direction: -90<φ<90"), {}, QStringLiteral("0"));
  if (!answer) return;
  gonia = numberFromAnswer(*answer) * poreiaaktinon::pi / 180;
  ticks_ = 0;
  controls_.Timer1.Interval(1500);
  controls_.Timer1.Enabled(false);
  drawBundle(gonia);
  controls_.kymatachronika.Checked(false);
  controls_.Timer2.Interval(1550);
  controls_.Timer2.Enabled(true);
  controls_.parallilakymata.Checked(true);
}

void kelmo::drawBundle(Variant angle) {
  context_.shared.desmiMode = true;
  clearAndDraw();
  sendRays(Desmi{angle.value(), controls_.desmi1.Value()});
}

void kelmo::desmiMinusOne() { drawBundle(-1); }

void kelmo::desmiPlusOne() { drawBundle(1); }

void kelmo::startFan(Point source) {
  // The source moves before the scene is drawn, so that the construction of the image starts from
  // the very point that the rays start from.
  placeSource(source);
  clearAndDraw();
  controls_.parallilakymata.Checked(false);
  controls_.Timer2.Interval(11500);
  controls_.Timer2.Enabled(false);
  ticks_ = 0;
  sendRays(Fan{source, vima()});
}

void kelmo::sendRays(const poreiaaktinon::Rays& rays) {
  Sent sent = poreiaaktinon::send(bench(), rays, edges());
  add(poreiaaktinon::Light{sent, provoli()});
  if (sent.paths->size() <= poreiaaktinon::mostRays) set_ = std::move(sent);
}

void kelmo::moveFan() {
  if (!set_) return;
  if (const auto* fan = std::get_if<Fan>(&set_->rays)) {
    set_ = poreiaaktinon::send(bench(), Fan{pigi(), fan->vima}, edges());
  }
}

void kelmo::prepareWavesInTime() {
  controls_.kymatachronika.Checked(true);
  controls_.parallilakymata.Checked(false);
  controls_.Timer2.Interval(1500);
  controls_.Timer2.Enabled(false);
  controls_.Timer1.Interval(1500);
}

void kelmo::drawWaveScene() {
  clear();
  add(WaveScene{fakos(), n()});
}

void kelmo::parallilakymata_Click() { startWaves(Desmi{gonia.value(), controls_.desmi1.Value()}); }

void kelmo::kymatachronika_Click() {
  poreiaaktinon::requireRoomFor(static_cast<std::size_t>(poreiaaktinon::rayCount(vima())));
  startWaves(Fan{pigi(), vima()});
}

void kelmo::startWaves(const poreiaaktinon::Rays& rays) {
  const bool plane = std::holds_alternative<Desmi>(rays);
  Timer& own = plane ? controls_.Timer2 : controls_.Timer1;
  Timer& other = plane ? controls_.Timer1 : controls_.Timer2;
  other.Interval(2000);
  drawWaveScene();
  set_ = poreiaaktinon::send(bench(), rays, edges());
  ticks_ = 0;
  context_.shared.paused = false;
  other.Enabled(false);
  own.Interval(runningInterval);
  own.Enabled(true);
  controls_.parallilakymata.Checked(plane);
  controls_.kymatachronika.Checked(!plane);
}

void kelmo::Timer1_Timer() { waveTick(controls_.Timer1, controls_.kymatachronika); }

void kelmo::Timer2_Timer() { waveTick(controls_.Timer2, controls_.parallilakymata); }

void kelmo::waveTick(Timer& timer, MenuEntry& entry) {
  if (paused()) return;
  const int elapsed = timer.Interval() * ticks_;
  ++ticks_;
  if (elapsed > longestRun) {
    ticks_ = 0;
    timer.Interval(0);
    entry.Checked(false);
    return;
  }
  if (ticks_ <= lastDrawnStep && set_) showFronts();
}

bool kelmo::paused() const { return context_.shared.paused && running(); }

bool kelmo::pauseWaves() {
  if (!running()) return false;
  context_.shared.paused = !context_.shared.paused;
  return true;
}

bool kelmo::stepWaves(int steps) {
  if (!paused()) return false;
  // Since the last step that was drawn the waves have stood still.
  ticks_ = std::clamp(std::min(ticks_, lastDrawnStep) + steps, 0, lastDrawnStep);
  showFronts();
  return true;
}

bool kelmo::restartWaves() {
  if (!set_ || !showsWaveScene()) return false;
  // Copied, because a start drops the set.
  startWaves(poreiaaktinon::Rays(set_->rays));
  return true;
}

void kelmo::showFronts() {
  set_ = poreiaaktinon::resent(*set_, bench(), edges());
  Shown next = shown();
  if (showsWaveScene()) {
    next.layers = {WaveScene{fakos(), n()}};
  } else {
    std::erase_if(next.layers,
                  [](const auto& layer) { return std::holds_alternative<Fronts>(layer); });
  }
  if (ticks_ > 0) next.layers.emplace_back(Fronts{*set_, std::min(ticks_, lastDrawnStep)});
  easel_.show(std::move(next));
}

void kelmo::passFronts(const poreiaaktinon::Diafragma& before) {
  Shown next = shown();
  for (poreiaaktinon::Layer& layer : next.layers) {
    auto* fronts = std::get_if<Fronts>(&layer);
    if (fronts == nullptr) continue;
    poreiaaktinon::Bench bench = fronts->sent.bench;
    bench.diafragma = before;
    set_ = fronts->sent = poreiaaktinon::resent(fronts->sent, bench, edges());
  }
  easel_.show(std::move(next));
}

bool kelmo::showsWaveScene() const {
  return !shown().layers.empty() && std::holds_alternative<WaveScene>(shown().layers.front());
}

bool kelmo::running() const {
  const auto runs = [](const Timer& timer) {
    return timer.Enabled() && timer.Interval() == runningInterval;
  };
  return set_ && showsWaveScene() && (runs(controls_.Timer1) || runs(controls_.Timer2));
}

void kelmo::endRun() {
  for (const auto& [timer, entry] : {std::pair{&controls_.Timer1, &controls_.kymatachronika},
                                     {&controls_.Timer2, &controls_.parallilakymata}}) {
    if (timer->Interval() != runningInterval) continue;
    timer->Interval(0);
    entry->Checked(false);
  }
}

}  // namespace lensbench
