#include "screens/kelmo/kelmo.h"

#include <cmath>

#include "canvas/Format.h"
#include "optics/poreiaaktinon/RayPath.h"
#include "screens/DisplayScale.h"
#include "screens/Handlers.h"
#include "screens/Texts.h"
#include "screens/kelmo/Scene.h"

namespace lensbench {
namespace {

constexpr const char* rayCount = "Number of Rays Αριθμός ακτινών= ";
constexpr const char* indexCaption = "Index of Refraction Δείκτης Διάθλασης= ";
constexpr const char* multiplierCaption = "Πολλαπλασιαστής ακτίνων";
constexpr const char* rightCentreCaption = "Κέντρο δεξί κύκλου=";
constexpr const char* timesGreek = "Times New Roman Greek";

const FormDesign design{"kelmo", "SPHERICAL  LENSES", 165, 735, 11070, 6120, systemColour(5)};

}  // namespace

kelmo::kelmo(Moves& moves) : Form(design), moves_(moves), controls_(*this), workbench_(*this) {
  // The first drawing already asks for the workbench, while it is being created.
  poreiaaktinon::connectWorkbench([this]() -> poreiaaktinon::Workbench& { return workbench_; });
  setAccessibleName("Σφαιρικοί φακοί · Spherical lenses");
  describe(*drawingArea(), "Σχέδιο με τον φακό · Picture of the lens", {});
  // Below this the controls would stand on each other.
  setMinimumSize(640, 480);
  canvas().FontName("Symbol");
  canvas().FontSize(7.5);
  connectHandlers();
  Form_Load();
}

void kelmo::connectHandlers() {
  KelmoControls& c = controls_;
  on<Form>(*this, &Form::MouseDown, *this, &kelmo::Form_MouseDown);
  on<Form>(*this, &Form::MouseMove, *this, &kelmo::Form_MouseMove);
  on<Form>(*this, &Form::MouseUp, *this, &kelmo::Form_MouseUp);
  on<Form>(*this, &Form::Resized, *this, &kelmo::resized);
  on<Form>(*this, &Form::CloseBox, *this, &kelmo::TELIOMA_Click);
  on(c.aktina1, &ScrollBar::Change, *this, &kelmo::aktina1_Change);
  on(c.aktina2, &ScrollBar::Change, *this, &kelmo::aktina2_Change);
  on(c.kentrokykloy, &ScrollBar::Change, *this, &kelmo::kentrokykloy_Change);
  on(c.kentrokykloy2, &ScrollBar::Change, *this, &kelmo::kentrokykloy2_Change);
  on(c.deiktisdiathlasis, &ScrollBar::Change, *this, &kelmo::deiktisdiathlasis_Change);
  on(c.arvimaton, &ScrollBar::Change, *this, &kelmo::arvimaton_Change);
  on(c.desmi1, &ScrollBar::Change, *this, &kelmo::desmi1_Change);
  on(c.HScroll1, &ScrollBar::Change, *this, &kelmo::HScroll1_Change);
  on(c.VScroll1, &ScrollBar::Change, *this, &kelmo::VScroll1_Change);
  on(c.VScroll2, &ScrollBar::Change, *this, &kelmo::VScroll2_Change);
  on(c.Check1, &CheckBox::Click, *this, &kelmo::Check1_Click);
  on(c.Check2, &CheckBox::Click, *this, &kelmo::Check2_Click);
  on(c.singleray, &MenuEntry::Click, *this, &kelmo::singleray_Click);
  on(c.EPANALIPSI, &MenuEntry::Click, *this, &kelmo::EPANALIPSI_Click);
  on(c.SAHLIC, &MenuEntry::Click, *this, &kelmo::SAHLIC_Click);
  on(c.parallilakymata, &MenuEntry::Click, *this, &kelmo::parallilakymata_Click);
  on(c.kymatachronika, &MenuEntry::Click, *this, &kelmo::kymatachronika_Click);
  on(c.TELIOMA, &MenuEntry::Click, *this, &kelmo::TELIOMA_Click);
  on(c.Timer1, &Timer::Tick, *this, &kelmo::Timer1_Timer);
  on(c.Timer2, &Timer::Tick, *this, &kelmo::Timer2_Timer);
}

void kelmo::Form_Load() {
  KelmoControls& c = controls_;
  fillDisplay();
  AutoRedraw(true);
  c.Text1.FontName(timesGreek);
  c.Text2.FontName(timesGreek);
  vima = fanStep();
  c.Text1.Text(labelled(rayCount, formatHundredths(Int(360 / vima))));
  c.Text2.Text(labelled(indexCaption, formatHundredths(c.deiktisdiathlasis.Value() / 100.0)));
  c.Text3.FontName(timesGreek);
  c.Text4.FontName(timesGreek);
  c.Label3.Caption(labelled(multiplierCaption, formatWhole(c.arvimaton.Value())));
  c.Text5.Text(labelled("Ακτίνα2=", formatWhole(c.aktina2.Value())));
  c.Text6.Text(labelled("Ακτίνα1=", formatWhole(c.aktina1.Value())));
  c.Text7.Text(labelled(rightCentreCaption, formatWhole(c.kentrokykloy.Value())));
  placeScene();
}

void kelmo::placeScene() {
  controls_.arrange(drawingArea()->width(), drawingArea()->height());
  scaleToClientArea(*this);
  controls_.pigi.Left(-200);
  controls_.pigi.Top(0);
  xpigi = -200;
  ypigi = 0;
  placeDiaphragm(diaphragmOfSliders());
  clearAndDraw();
}

void kelmo::resized() {
  // The real size of the window is known only after the window manager has placed it; until the
  // student touches the screen the scene fits itself to every size. Later the picture stays.
  if (!hadInput()) {
    placeScene();
    return;
  }
  controls_.arrange(drawingArea()->width(), drawingArea()->height());
  placeDiaphragm(workbench_.diafragma());
  slidersFollowBlades();
}

void kelmo::arxinizo() {
  KelmoControls& c = controls_;
  xpigi = c.pigi.Left();
  ypigi = c.pigi.Top();
  n = c.deiktisdiathlasis.Value() / 100.0;
  reloadLens();
  drawLensScene(workbench_);
}

void kelmo::reloadLens() {
  R1 = controls_.aktina1.Value();
  R2 = controls_.aktina2.Value();
  xc2 = controls_.kentrokykloy.Value();
  xc1 = controls_.kentrokykloy2.Value();
}

void kelmo::clear() {
  canvas().Cls();
  animation_.drop();
}

void kelmo::clearAndDraw() {
  clear();
  arxinizo();
}

Variant kelmo::fanStep() const {
  return 4 * Atn(1) * controls_.arvimaton.Value() / controls_.desmi1.Value();
}

void kelmo::aktina1_Change() {
  controls_.Text6.FontName("Times New Roman");
  controls_.Text6.Text(labelled("Ακτίνα1 =", formatWhole(controls_.aktina1.Value())));
  clearAndDraw();
}

void kelmo::aktina2_Change() {
  controls_.Text5.Text(labelled("Ακτίνα2 =", formatWhole(controls_.aktina2.Value())));
  clearAndDraw();
}

void kelmo::kentrokykloy_Change() {
  controls_.Text7.Text(labelled(rightCentreCaption, formatWhole(controls_.kentrokykloy.Value())));
  clearAndDraw();
}

void kelmo::kentrokykloy2_Change() { clearAndDraw(); }

void kelmo::deiktisdiathlasis_Change() {
  n = controls_.deiktisdiathlasis.Value() / 100.0;
  controls_.Text2.FontName(timesGreek);
  controls_.Text2.Text(labelled(indexCaption, formatHundredths(n)));
}

void kelmo::arvimaton_Change() {
  vima = fanStep();
  controls_.Label3.Caption(labelled(multiplierCaption, formatWhole(controls_.arvimaton.Value())));
}

void kelmo::desmi1_Change() {
  vima = fanStep();
  controls_.Text1.FontName(timesGreek);
  controls_.Text1.Text(labelled(rayCount, formatHundredths(Int(360 / vima))));
}

void kelmo::Check1_Click() {
  controls_.Check2.Value(false);
  controls_.desmi1.Value(140);
}

void kelmo::Check2_Click() {
  clearAndDraw();
  controls_.Check1.Value(false);
  controls_.desmi1.Value(100);
}

void kelmo::flipCheck1() { controls_.Check1.Value(!controls_.Check1.Value()); }

void kelmo::singleray_Click() { moves_.openSingleRay(); }

void kelmo::SAHLIC_Click() { moves_.openLensMenu(); }

void kelmo::TELIOMA_Click() { end(); }

void kelmo::end() { moves_.End(); }

}  // namespace lensbench
