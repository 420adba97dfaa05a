// Bundles of parallel rays, and the waves that move on the workbench.
#include "canvas/qt/Dialogs.h"
#include "optics/poreiaaktinon/Bundles.h"
#include "optics/poreiaaktinon/Tracing.h"
#include "optics/protosfakos/SahlState.h"
#include "screens/Answers.h"
#include "screens/kelmo/Scene.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

constexpr int lastDrawnStep = 240;
constexpr double longestRun = 500.0;  // interval in ms times ticks

}  // namespace

void kelmo::EPANALIPSI_Click() {
  // Asked first, so that a cancelled question changes nothing at all.
  const auto answer = dialogs().InputBox(
      QStringLiteral("Give angle with horizontal direction: -90<φ<90"), {}, QStringLiteral("0"));
  if (!answer) return;
  const Variant degrees = numberFromAnswer(*answer);
  protosfakos::state().desmiMode = true;
  ticks_ = 0;
  controls_.Timer1.Interval(1500);
  gonia = degrees * (4 * Atn(1)) / 180;
  controls_.Timer1.Enabled(false);
  drawBundle(gonia);
  controls_.kymatachronika.Checked(false);
  controls_.Timer2.Interval(1550);
  controls_.Timer2.Enabled(true);
  controls_.parallilakymata.Checked(true);
}

void kelmo::drawBundle(const Variant& angle) {
  protosfakos::state().desmiMode = true;
  clearAndDraw();
  RaySet set = bundle(angle);
  poreiaaktinon::drawPaths(canvas(), set.rays, workbench_.provoli());
  animation_.start(std::move(set));
}

void kelmo::desmiMinusOne() { drawBundle(-1); }

void kelmo::desmiPlusOne() { drawBundle(1); }

RaySet kelmo::bundle(const Variant& angle) {
  return {poreiaaktinon::bundlePaths(poreiaaktinon::setupOf(workbench_), angle.value(),
                                     controls_.desmi1.Value()),
          false};
}

RaySet kelmo::fan() {
  WaveAnimation::requireRoomFor(static_cast<std::size_t>(poreiaaktinon::rayCount(vima.value())));
  return {
      poreiaaktinon::fanPaths(poreiaaktinon::setupOf(workbench_), workbench_.pigi(), vima.value()),
      true};
}

void kelmo::drawWaveScene() {
  n = controls_.deiktisdiathlasis.Value() / 100.0;
  xc2 = controls_.kentrokykloy.Value();
  xc1 = controls_.kentrokykloy2.Value();
  animation_.drop();
  lensbench::drawWaveScene(workbench_);
}

void kelmo::parallilakymata_Click() {
  startWaves(controls_.Timer2, controls_.Timer1, bundle(gonia));
  controls_.parallilakymata.Checked(true);
  controls_.kymatachronika.Checked(false);
}

void kelmo::kymatachronika_Click() {
  startWaves(controls_.Timer1, controls_.Timer2, fan());
  controls_.kymatachronika.Checked(true);
  controls_.parallilakymata.Checked(false);
}

void kelmo::startWaves(Timer& own, Timer& other, RaySet set) {
  other.Interval(2000);
  drawWaveScene();
  animation_.start(std::move(set));
  ticks_ = 0;
  other.Enabled(false);
  own.Interval(runningInterval);
  own.Enabled(true);
}

void kelmo::Timer1_Timer() { waveTick(controls_.Timer1); }

void kelmo::Timer2_Timer() { waveTick(controls_.Timer2); }

void kelmo::waveTick(Timer& timer) {
  const Variant elapsed = timer.Interval() * ticks_;
  ticks_ = ticks_ + 1;
  if (elapsed > longestRun) {
    ticks_ = 0;
    timer.Interval(0);
    return;
  }
  if (ticks_ <= lastDrawnStep) animation_.draw(workbench_, static_cast<int>(ticks_.value()));
}

}  // namespace lensbench
