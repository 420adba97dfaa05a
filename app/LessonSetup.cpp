#include "app/LessonSetup.h"

#include <numbers>
#include <variant>

#include "app/Screens.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/ElSahl/SahlState.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/KelmoState.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {
namespace {

using namespace lessons;

constexpr int shiftKey = 1;

// The workbench alone, whatever was in front.
kelmo& workbenchInFront(Screens& screens) {
  kelmo& bench = screens.kelmo();
  bench.Show();
  if (screens.moniaktina().isVisible()) screens.moniaktina().Hide();
  if (screens.ElSahl().isVisible()) screens.ElSahl().BACKKELMO_Click();
  if (screens.eisagogiko().isVisible()) screens.eisagogiko().Hide();
  return bench;
}

// The diaphragm where no slider could put it, and waves at rest.
KelmoState atRest(kelmo& bench, const light::Diafragma& diafragma) {
  KelmoState state = kept(bench.state());
  state.diafragma = diafragma;
  return state;
}

struct Light {
  kelmo& bench;

  void operator()(const Fan&) const { press(bench.pigi()); }
  void operator()(const Bundle& bundle) const {
    bench.gonia = bundle.degrees * std::numbers::pi / 180.0;
    bench.drawBundle(bench.gonia);
  }
  // Asked for in the middle of the glass, which leaves the source where it is.
  void operator()(const Marks&) const {
    const poreiaaktinon::Fakos lens = bench.fakos();
    press({(leftVertex(lens) + rightVertex(lens)) / 2.0, 0.0});
  }

 private:
  void press(Point p) const {
    bench.Form_MouseDown(leftButton, shiftKey, p.x, p.y);
    bench.Form_MouseUp(leftButton, shiftKey, p.x, p.y);
  }
};

void put(Screens& screens, const OnWorkbench& lesson) {
  kelmo& bench = workbenchInFront(screens);
  KelmoControls& controls = bench.controls();
  controls.aktina1.Value(lesson.R1);
  controls.aktina2.Value(lesson.R2);
  controls.kentrokykloy2.Value(lesson.xc1);
  controls.kentrokykloy.Value(lesson.xc2);
  controls.deiktisdiathlasis.Value(lesson.n);
  controls.Check1.Value(false);
  controls.Check2.Value(lesson.onlyWaves);
  // The check boxes write the number of rays.
  controls.desmi1.Value(lesson.desmi1);
  KelmoState state = atRest(bench, lesson.diafragma);
  state.pigi = lesson.source;
  bench.restore(state);
  std::visit(Light{bench}, lesson.light);
}

void put(Screens& screens, const OnSingleRay& lesson) {
  kelmo& bench = workbenchInFront(screens);
  bench.restore(atRest(bench, lesson.diafragma));
  screens.openSingleRay();
  moniaktina& screen = screens.moniaktina();
  MoniaktinaControls& controls = screen.controls();
  // The centre first: circles that stand apart are never one and the same on the way.
  controls.kentrokykloy.Value(lesson.xc2);
  controls.aktina1.Value(lesson.R1);
  controls.aktina2.Value(lesson.R2);
  controls.deiktisdiathlasis.Value(lesson.n);
  // A press puts a corner of the source's mark there, and light starts in its middle.
  const double x = lesson.source.x - (controls.source().x - controls.fos.Left());
  const double y = lesson.source.y - (controls.source().y - controls.fos.Top());
  screen.Form_MouseDown(leftButton, 0, x, y);
  screen.Form_MouseUp(leftButton, 0, lesson.aim.x, lesson.aim.y);
}

void put(Screens& screens, const OnIbnSahl& lesson) {
  workbenchInFront(screens);
  screens.openLensMenu();
  eisagogiko& menu = screens.eisagogiko();
  menu.controls().deiktissahl.Value(lesson.n);
  lesson.amfikyrtos ? menu.Command1_Click() : menu.Command2_Click();
  ElSahl& screen = screens.ElSahl();
  SahlState state = screen.state();
  state.diafragma = lesson.diafragma;
  screen.restore(state);
  screen.controls().onlyrays.Value(true);
  screen.drawBundle(lesson.light.degrees);
}

}  // namespace

void setUp(Screens& screens, const Lesson& lesson) {
  std::visit([&screens](const auto& state) { put(screens, state); }, lesson.setup);
}

}  // namespace lensbench
