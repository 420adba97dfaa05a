#include "app/Screens.h"

#include <cstdlib>

#include "app/Application.h"
#include "canvas/Format.h"
#include "optics/poreiaaktinon/Workbench.h"
#include "optics/protosfakos/SahlState.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Texts.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {
namespace {

template <typename Screen>
Screen& existing(std::unique_ptr<Screen>& screen, Moves& moves) {
  if (!screen) screen = std::make_unique<Screen>(moves);
  return *screen;
}

}  // namespace

Screens::Screens() {
  // The workbench takes the connection over once it is created; this one creates it.
  poreiaaktinon::connectWorkbench(
      [this]() -> poreiaaktinon::Workbench& { return kelmo().workbench(); });
  protosfakos::connectSahlScreen([this]() -> protosfakos::SahlScreen& { return ElSahl().view(); });
}

Screens::~Screens() {
  poreiaaktinon::connectWorkbench({});
  protosfakos::connectSahlScreen({});
}

lensbench::kelmo& Screens::kelmo() { return existing(kelmo_, *this); }
lensbench::moniaktina& Screens::moniaktina() { return existing(moniaktina_, *this); }
lensbench::eisagogiko& Screens::eisagogiko() { return existing(eisagogiko_, *this); }
lensbench::ElSahl& Screens::ElSahl() { return existing(ElSahl_, *this); }

void Screens::openSingleRay() {
  moniaktina().fitDisplay();
  kelmo().Hide();
  moniaktina().drawLens();
  moniaktina().Show();
}

void Screens::openLensMenu() { eisagogiko().Show(); }

void Screens::leaveSingleRay() {
  moniaktina().Hide();
  kelmo().Show();
}

void Screens::leaveLensMenu() {
  eisagogiko().Hide();
  kelmo().Show();
}

void Screens::openIbnSahl() { ElSahl().prepare(); }

void Screens::leaveIbnSahl() {
  ElSahl().Hide();
  eisagogiko().Show();
}

void Screens::End() { endProcess(EXIT_SUCCESS); }

void Main(Screens& screens) {
  screens.ElSahl().strokesAt(200.0);
  screens.kelmo().Show();
  auto& menu = screens.eisagogiko();
  auto& state = protosfakos::state();
  state.deiktisSahl = menu.controls().deiktissahl.Value() / 100.0;
  menu.controls().Label1.Caption(
      labelled("Index of Refraction n=", formatHundredths(state.deiktisSahl)));
  state.deiktisSahl = menu.controls().deiktissahl.Value() / 100.0;
}

}  // namespace lensbench
