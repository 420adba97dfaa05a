#include "screens/eisagogiko/eisagogiko.h"

#include "canvas/Format.h"
#include "canvas/qt/Dialogs.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/SahlScreen.h"
#include "optics/protosfakos/SahlState.h"
#include "optics/protosfakos/Scenes.h"
#include "screens/Handlers.h"
#include "screens/Texts.h"

namespace lensbench {

using protosfakos::state;

namespace {

constexpr const char* captionAtLoad = "INDEX OF REFRACTION Δείκτης Διάθλασης= ";
constexpr const char* captionAtChange = "INDEX  OF REFRACTION Δείκτης Διάθλασης= ";

// Where the source of the fan stands when a lens is opened, user units.
constexpr int sourceX = protosfakos::semiAxis * 9;
constexpr int sourceY = 25;

const FormDesign design{"eisagogiko", "CHOOSE  LENS", 60, 405, 7485, 5520, {}};

}  // namespace

eisagogiko::eisagogiko(Moves& moves) : Form(design), moves_(moves), controls_(*this) {
  setAccessibleName("Κατάλογος φακών · Lens menu");
  connectHandlers();
  Form_Load();
}

void eisagogiko::connectHandlers() {
  MenuControls& c = controls_;
  on<Form>(*this, &Form::CloseBox, *this, &eisagogiko::Command3_Click);
  on(c.deiktissahl, &ScrollBar::Change, *this, &eisagogiko::deiktissahl_Change);
  on(c.Command1, &CommandButton::Click, *this, &eisagogiko::Command1_Click);
  on(c.Command2, &CommandButton::Click, *this, &eisagogiko::Command2_Click);
  on(c.Command3, &CommandButton::Click, *this, &eisagogiko::Command3_Click);
}

void eisagogiko::Form_Load() {
  state().deiktisSahl = index();
  controls_.Label1.Caption(labelled(captionAtLoad, formatHundredths(state().deiktisSahl)));
}

double eisagogiko::index() const { return controls_.deiktissahl.Value() / 100.0; }

void eisagogiko::deiktissahl_Change() {
  controls_.Label1.Caption(labelled(captionAtChange, formatHundredths(index())));
  state().deiktisSahl = index();
}

void eisagogiko::Command1_Click() {
  moves_.openIbnSahl();
  openLens(true);
}

void eisagogiko::Command2_Click() {
  moves_.openIbnSahl();
  state().onlyWavesAsked = false;
  openLens(false);
}

void eisagogiko::openLens(bool biconvex) {
  const auto lens = protosfakos::deriveLens(state().deiktisSahl);
  if (!lens) {
    dialogs().MsgBox(QStringLiteral("`Ακυρος Δείκτης Διάθλασηςgive a bigger value"));
    return;
  }
  state().pigiX = sourceX;
  state().pigiY = sourceY;
  protosfakos::sahlScreen().canvas().Cls();
  if (biconvex) {
    protosfakos::sxediasiamfikyrtou(lens->a, lens->b, sourceX, sourceY);
  } else {
    protosfakos::sxediasiepipedokyrtou(lens->a, lens->b, sourceX, sourceY);
  }
  state().amfikyrtosSahl = biconvex;
}

void eisagogiko::Command3_Click() { moves_.leaveLensMenu(); }

}  // namespace lensbench
