#include "screens/eisagogiko/eisagogiko.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "canvas/Format.h"
#include "canvas/qt/Dialogs.h"
#include "canvas/qt/ValueBox.h"
#include "optics/protosfakos/Hyperbola.h"
#include "screens/Handlers.h"
#include "screens/Keys.h"
#include "screens/Moves.h"
#include "screens/Shared.h"
#include "screens/Texts.h"

namespace lensbench {
namespace {

// Kept on purpose: the texts differ in a doubled blank.
constexpr const char* captionAtLoad = "INDEX OF REFRACTION Δείκτης Διάθλασης= ";
constexpr const char* captionAtChange = "INDEX  OF REFRACTION Δείκτης Διάθλασης= ";

// Where the source of the fan stands when a lens is opened, user units.
constexpr int sourceX = protosfakos::semiAxis * 9;
constexpr int sourceY = 25;

const FormDesign design{"eisagogiko", "CHOOSE  LENS", 60, 405, 7485, 5520, {}};

}  // namespace

eisagogiko::eisagogiko(const Context& context) : Form(design), context_(context), controls_(*this) {
  setAccessibleName("Κατάλογος φακών · Lens menu");
  connectHandlers();
  Form_Load();
  // The label shows hundredths, which are the steps of the bar.
  new ValueBox(valueOfBar(controls_.Label1, controls_.deiktissahl, 0.01));
}

void eisagogiko::connectHandlers() {
  MenuControls& c = controls_;
  Actions& actions = context_.actions;
  on<Form>(actions, *this, &Form::CloseBox, *this, &eisagogiko::Command3_Click);
  on(actions, c.deiktissahl, &ScrollBar::Change, *this, &eisagogiko::deiktissahl_Change);
  on(actions, c.Command1, &CommandButton::Click, *this, &eisagogiko::Command1_Click);
  on(actions, c.Command2, &CommandButton::Click, *this, &eisagogiko::Command2_Click);
  on(actions, c.Command3, &CommandButton::Click, *this, &eisagogiko::Command3_Click);
}

void eisagogiko::Form_Load() {
  context_.shared.deiktisSahl = index();
  controls_.Label1.Caption(labelled(captionAtLoad, formatHundredths(index())));
}

MenuState eisagogiko::state() const {
  return {controls_.deiktissahl.Value(), controls_.Label1.Caption()};
}

void eisagogiko::restore(const MenuState& state) {
  const QSignalBlocker quiet(controls_.deiktissahl);
  controls_.deiktissahl.Value(state.deiktissahl);
  controls_.Label1.Caption(state.caption);
}

double eisagogiko::index() const { return controls_.deiktissahl.Value() / 100.0; }

void eisagogiko::deiktissahl_Change() {
  controls_.Label1.Caption(labelled(captionAtChange, formatHundredths(index())));
  context_.shared.deiktisSahl = index();
  if (context_.shared.follow) context_.moves.followIndex();
}

void eisagogiko::Command1_Click() {
  context_.moves.openIbnSahl();
  openLens(true);
}

void eisagogiko::Command2_Click() {
  context_.moves.openIbnSahl();
  context_.shared.onlyWavesAsked = false;
  openLens(false);
}

void eisagogiko::openLens(bool biconvex) {
  Shared& shared = context_.shared;
  if (!protosfakos::deriveLens(shared.deiktisSahl)) {
    context_.dialogs.MsgBox(lensRefused);
    return;
  }
  shared.pigiX = sourceX;
  shared.pigiY = sourceY;
  shared.amfikyrtosSahl = biconvex;
  context_.moves.drawIbnSahl();
}

void eisagogiko::Command3_Click() { context_.moves.leaveLensMenu(); }

void eisagogiko::keyPressEvent(QKeyEvent* event) {
  const Key* key = keyOf(*event);
  if (key == nullptr || event->isAutoRepeat()) return Form::keyPressEvent(event);
  switch (key->command) {
    case Command::Help:
      return context_.moves.help();
    case Command::Undo:
      return context_.moves.undo();
    case Command::Redo:
      return context_.moves.redo();
    case Command::Escape:
      emit CloseBox();
      return;
    default:
      return Form::keyPressEvent(event);
  }
}

}  // namespace lensbench
