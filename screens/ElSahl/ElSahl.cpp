#include "screens/ElSahl/ElSahl.h"

#include <QGuiApplication>
#include <QScreen>

#include "canvas/qt/Dialogs.h"
#include "optics/protosfakos/Fronts.h"
#include "optics/protosfakos/SahlState.h"
#include "optics/protosfakos/Scenes.h"
#include "screens/Answers.h"
#include "screens/Handlers.h"

namespace lensbench {

using protosfakos::Diafragma;
using protosfakos::HyperbolaAxes;
using protosfakos::SahlState;
using protosfakos::state;

namespace {

constexpr int arrow = 1;
constexpr int cross = 2;
constexpr double scaleLeft = -120.0;
constexpr double scaleTop = 120.0;
constexpr double scaleRight = 150.0;
constexpr double scaleBottom = -120.0;
constexpr double strokeX = 130.0;
constexpr double halfOpening = 10.0;
constexpr double outerEnd = 200.0;

const FormDesign design{"ElSahl", "Φακός Ιμπν Σαχλ 2 υπεροβλές", 165, 855, 15240, 3525, white};

}  // namespace

ElSahl::ElSahl(Moves& moves) : Form(design), moves_(moves), controls_(*this), view_(*this) {
  setAccessibleName("Υπερβολικός φακός · Hyperbolic lens");
  drawingArea()->setAccessibleName(
      QStringLiteral("Υπερβολικός φακός, πάτησε για να βάλεις την πηγή · "
                     "Hyperbolic lens, press to place the source"));
  drawingArea()->setToolTip(
      "Πάτησε για να βάλεις την πηγή. Σύρε μια μπλε ακμή για να μετακινήσεις το διάφραγμα· "
      "στην αρχή στέκεται πίσω από την πηγή.\n"
      "Press to place the source. Drag a blue edge to move the diaphragm; "
      "at first it stands behind the source.");
  connectHandlers();
  Form_Load();
}

void ElSahl::connectHandlers() {
  SahlControls& c = controls_;
  on<Form>(*this, &Form::MouseDown, *this, &ElSahl::Form_MouseDown);
  on<Form>(*this, &Form::MouseMove, *this, &ElSahl::Form_MouseMove);
  on<Form>(*this, &Form::MouseUp, *this, &ElSahl::Form_MouseUp);
  on<Form>(*this, &Form::Resized, *this, &ElSahl::resized);
  on<Form>(*this, &Form::CloseBox, *this, &ElSahl::BACKKELMO_Click);
  on(c.kymataYESNO, &OptionButton::Click, *this, &ElSahl::kymataYESNO_Click);
  on(c.RAYSANDWAVES, &OptionButton::Click, *this, &ElSahl::RAYSANDWAVES_Click);
  // The picture stands until the next drawing, which reads the options anew.
  for (OptionButton* option : {&c.kymataYESNO, &c.RAYSANDWAVES, &c.onlyrays}) {
    on(*option, &OptionButton::Click, *this, &ElSahl::touched);
  }
  on(c.kymatikosahl, &MenuEntry::Click, *this, &ElSahl::kymatikosahl_Click);
  on(c.parallilidesmifotos, &MenuEntry::Click, *this, &ElSahl::parallilidesmifotos_Click);
  on(c.BACKKELMO, &MenuEntry::Click, *this, &ElSahl::BACKKELMO_Click);
  on(c.TELOS, &MenuEntry::Click, *this, &ElSahl::TELOS_Click);
}

void ElSahl::Form_Load() { strokesAt(strokeX); }

void ElSahl::prepare() {
  touched();
  // A screen that was left by the keyboard during a drag saw no release.
  syromenigrammi1 = false;
  syromenigrammi2 = false;
  AutoRedraw(true);
  Top(0);
  Left(0);
  Height(QGuiApplication::primaryScreen()->geometry().height() * twipsPerPixel / 1.5);
  Width(Height());
  Show();
  // Only a window that is shown has the client area that the scale is for.
  setScale();
  strokesAt(strokeX);
  openingIndex_ = state().deiktisSahl;
}

void ElSahl::resized() {
  // The window manager settles the size of a new window only after it is shown; until something is
  // done by hand the scene fits itself to every size. Later the picture stays, and so does one of
  // an index that the lens menu has changed since.
  if (!openingIndex_ || *openingIndex_ != state().deiktisSahl || state().pigiX.isEmpty()) return;
  setScale();
  strokesAt(strokeX);
  redrawFan();
}

void ElSahl::strokesAt(double x) { placeEdges({x, halfOpening, -halfOpening}); }

void ElSahl::placeEdges(const Diafragma& diafragma) {
  controls_.Line1.between({diafragma.X, outerEnd}, {diafragma.X, diafragma.upper});
  controls_.Line2.between({diafragma.X, -outerEnd}, {diafragma.X, diafragma.lower});
}

void ElSahl::setScale() { canvas().Scale(scaleLeft, scaleTop, scaleRight, scaleBottom); }

Point ElSahl::inLensScale(Point p) {
  const Canvas& surface = canvas();
  if (surface.ScaleLeft() == scaleLeft && surface.ScaleTop() == scaleTop &&
      surface.ScaleWidth() == scaleRight - scaleLeft &&
      surface.ScaleHeight() == scaleBottom - scaleTop) {
    return p;
  }
  const UserMapping before = canvas().mapping();
  setScale();
  return canvas().mapping().toUser(before.toPixel(p));
}

void ElSahl::Form_MouseDown(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  touched();
  state().onlyWavesAsked = false;
  const Diafragma beforePress = view_.diafragma();
  const Point p = inLensScale({X, Y});
  atPress_ = view_.diafragma();
  syromenigrammi1 = liesOn(p, controls_.Line1);
  syromenigrammi2 = !syromenigrammi1 && liesOn(p, controls_.Line2);
  if (syromenigrammi1 || syromenigrammi2) return;
  const auto lens = lensOr(QStringLiteral("δώσε μεγαλύτερο δείκτη"));
  if (!lens) return;
  // In a resized window the scene gets another scale here; the diaphragm goes with it.
  placeEdges(beforePress);
  canvas().Cls();
  hintUsed();
  state().pigiX = p.x;
  state().pigiY = p.y;
  drawFan(*lens);
}

void ElSahl::Form_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  const Point p{X, Y};
  if (syromenigrammi1 || syromenigrammi2) dragTo(p);
  const bool onEdge = syromenigrammi1 || liesOn(p, controls_.Line1) || liesOn(p, controls_.Line2);
  MousePointer(onEdge ? cross : arrow);
}

void ElSahl::Form_MouseUp(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  const Point p = inLensScale({X, Y});
  if (!syromenigrammi1 && !syromenigrammi2) return;
  dragTo(p);
  syromenigrammi1 = false;
  syromenigrammi2 = false;
  hintUsed();
  redrawFan();
}

void ElSahl::dragTo(Point p) {
  placeEdges(released(syromenigrammi1 ? Edge::Upper : Edge::Lower, p, atPress_, reach()));
}

Reach ElSahl::reach() const {
  const RasterCanvas& surface = canvas();
  const double belowOptions = controls_.onlyrays.geometry().bottom() + 1.0;
  return {surface.ScaleLeft(), surface.ScaleLeft() + surface.ScaleWidth(),
          surface.ScaleTop() + surface.ScaleHeight(),
          surface.mapping().toUser({0.0, belowOptions}).y};
}

void ElSahl::hintUsed() { drawingArea()->setToolTip({}); }

void ElSahl::kymataYESNO_Click() {
  state().onlyWavesAsked = true;
  controls_.kymataYESNO.Value(true);
  controls_.RAYSANDWAVES.Value(false);
}

void ElSahl::RAYSANDWAVES_Click() {
  controls_.kymataYESNO.Value(false);
  controls_.RAYSANDWAVES.Value(true);
}

void ElSahl::kymatikosahl_Click() {
  touched();
  const auto lens = lensOr(QStringLiteral("δώσε μεγαλύτερο δείκτη"));
  if (!lens) return;
  drawFan(*lens);
  const int rays = static_cast<int>(state().plithosaktinon.value());
  for (int k = 1; k < rays; ++k) {
    if (state().desmiMode) {
      protosfakos::kymatadesmis({}, {}, k);
    } else {
      protosfakos::kymatapigis(k);
    }
  }
  protosfakos::drawFronts(canvas(), {});
}

void ElSahl::parallilidesmifotos_Click() {
  const auto answer = dialogs().InputBox(QStringLiteral("DIRECTION IN  RESPECT TO HORIZONTAL"),
                                         QStringLiteral("Angle in °"), QStringLiteral("0"));
  if (!answer) return;
  touched();
  const auto lens = lensOr(QStringLiteral("`Ακυρος Δείκτης Διάθλασηςgive a bigger value"));
  if (!lens) return;
  const Variant pi = 4 * Atn(1);
  const Variant m = Tan(pi * (numberFromAnswer(*answer) / 180));
  canvas().Cls();
  if (state().amfikyrtosSahl) {
    protosfakos::desmiamfikyrtou(lens->a, lens->b, m);
  } else {
    protosfakos::desmiepipedokyrtou(lens->a, lens->b, m);
  }
}

void ElSahl::BACKKELMO_Click() {
  touched();
  canvas().Cls();
  moves_.leaveIbnSahl();
}

void ElSahl::TELOS_Click() { moves_.End(); }

void ElSahl::drawFan(const HyperbolaAxes& lens) {
  const SahlState& shared = state();
  if (shared.amfikyrtosSahl) {
    protosfakos::sxediasiamfikyrtou(lens.a, lens.b, shared.pigiX, shared.pigiY);
  } else {
    protosfakos::sxediasiepipedokyrtou(lens.a, lens.b, shared.pigiX, shared.pigiY);
  }
}

void ElSahl::redrawFan() {
  const auto lens = protosfakos::deriveLens(state().deiktisSahl);
  if (!lens) return;
  canvas().Cls();
  drawFan(*lens);
}

std::optional<HyperbolaAxes> ElSahl::lensOr(const QString& message) {
  const auto lens = protosfakos::deriveLens(state().deiktisSahl);
  if (!lens) dialogs().MsgBox(message);
  return lens;
}

}  // namespace lensbench
