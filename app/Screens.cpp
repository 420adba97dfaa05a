#include "app/Screens.h"

#include <cstdlib>

#include "app/Application.h"
#include "app/Help.h"
#include "app/LessonSetup.h"
#include "app/Steps.h"
#include "canvas/Format.h"
#include "canvas/qt/Dialogs.h"
#include "optics/poreiaaktinon/Named.h"
#include "optics/protosfakos/Named.h"
#include "screens/DisplayScale.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/Texts.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {

// The routines that take no screen find theirs here, and make it when they are the first to.
Screens::Screens(Dialogs& dialogs, Clock& clock, Actions& actions)
    : context_{*this, dialogs, clock, actions, shared_},
      help_(std::make_unique<Help>([this](std::size_t lesson) { startLesson(lesson); })),
      steps_(std::make_unique<Steps>(*this, actions)) {
  poreiaaktinon::connectWorkbench({.canvas = [this]() -> Canvas& { return kelmo().canvas(); },
                                   .bench = [this] { return kelmo().bench(); },
                                   .vima = [this] { return kelmo().vima(); },
                                   .provoli = [this] { return kelmo().provoli(); },
                                   .pigi = [this] { return kelmo().pigi(); }});
  protosfakos::connectSahlScreen(
      {.canvas = [this]() -> Canvas& { return ElSahl().canvas(); },
       .asked = [this] { return ElSahl().askedFan(); },
       .caption =
           [this](const std::string& utf8) { ElSahl().Caption(QString::fromStdString(utf8)); },
       .message =
           [this](const std::string& utf8) {
             context_.dialogs.MsgBox(QString::fromStdString(utf8));
           }});
}

Screens::~Screens() {
  poreiaaktinon::connectWorkbench({});
  protosfakos::connectSahlScreen({});
}

template <typename Screen>
Screen& Screens::existing(std::unique_ptr<Screen>& screen) {
  if (!screen) {
    screen = std::make_unique<Screen>(context_);
    tellFollow(*screen);
  }
  return *screen;
}

lensbench::kelmo& Screens::kelmo() { return existing(kelmo_); }
lensbench::moniaktina& Screens::moniaktina() { return existing(moniaktina_); }
lensbench::eisagogiko& Screens::eisagogiko() { return existing(eisagogiko_); }
lensbench::ElSahl& Screens::ElSahl() { return existing(ElSahl_); }

void Screens::openSingleRay() {
  moniaktina().fitDisplay();
  kelmo().Hide();
  moniaktina().drawLens();
  moniaktina().Show();
}

void Screens::openLensMenu() {
  // So that the index and the picture can be in sight together.
  placeBeside(eisagogiko(), squareSide());
  eisagogiko().Show();
}

void Screens::leaveSingleRay() {
  moniaktina().Hide();
  kelmo().Show();
}

void Screens::leaveLensMenu() {
  eisagogiko().Hide();
  kelmo().Show();
}

void Screens::openIbnSahl() { ElSahl().prepare(); }

void Screens::drawIbnSahl() { ElSahl().drawFan(); }

void Screens::leaveIbnSahl() {
  ElSahl().Hide();
  openLensMenu();
}

void Screens::End() { endProcess(EXIT_SUCCESS); }

void Screens::startHistory() { steps_->start(); }

std::vector<DrawingScreen*> Screens::drawingScreens() const {
  std::vector<DrawingScreen*> made;
  if (kelmo_) made.push_back(kelmo_.get());
  if (moniaktina_) made.push_back(moniaktina_.get());
  if (ElSahl_) made.push_back(ElSahl_.get());
  return made;
}

// A drag in progress is left first, for it is no step yet.
void Screens::undo() {
  for (DrawingScreen* screen : drawingScreens()) screen->leaveDrag();
  steps_->undo();
}

void Screens::redo() {
  for (DrawingScreen* screen : drawingScreens()) screen->leaveDrag();
  steps_->redo();
}

void Screens::toggleFollow() {
  shared_.follow = !shared_.follow;
  for (DrawingScreen* screen : drawingScreens()) tellFollow(*screen);
}

void Screens::tellFollow(Form& screen) const {
  if (&screen == eisagogiko_.get()) return;
  screen.titleNote(shared_.follow ? QStringLiteral(" · η εικόνα ακολουθεί · the picture follows")
                                  : QString());
}

void Screens::followIndex() {
  if (ElSahl_ && ElSahl_->isVisible()) ElSahl_->followValues();
}

void Screens::help() { help_->open(); }

void Screens::startLesson(std::size_t number) {
  // One step of the history.
  const ActionScope scope(context_.actions, kelmo());
  setUp(*this, lessons::all()[number]);
}

light::Diafragma Screens::diafragma() { return kelmo().diafragma(); }

void Main(Screens& screens) {
  screens.ElSahl().strokesAt(200.0);
  screens.kelmo().Show();
  auto& menu = screens.eisagogiko();
  Variant& deiktisSahl = screens.shared().deiktisSahl;
  deiktisSahl = menu.controls().deiktissahl.Value() / 100.0;
  menu.controls().Label1.Caption(labelled("Index of Refraction n=", formatHundredths(deiktisSahl)));
  deiktisSahl = menu.controls().deiktissahl.Value() / 100.0;
  screens.startHistory();
}

}  // namespace lensbench
