#include "screens/kelmo/kelmo.h"

#include <utility>

#include "canvas/Format.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/DisplayScale.h"
#include "screens/Handlers.h"
#include "screens/Moves.h"
#include "screens/Texts.h"

namespace lensbench {
namespace {

using poreiaaktinon::Layer;
using poreiaaktinon::Shown;

constexpr const char* rayCount = "Number of Rays Αριθμός ακτινών= ";
constexpr const char* indexCaption = "Index of Refraction Δείκτης Διάθλασης= ";
constexpr const char* multiplierCaption = "Πολλαπλασιαστής ακτίνων";
constexpr const char* rightCentreCaption = "Κέντρο δεξί κύκλου=";
constexpr const char* timesGreek = "Times New Roman Greek";

const FormDesign design{"kelmo", "SPHERICAL  LENSES", 165, 735, 11070, 6120, systemColour(5)};

}  // namespace

kelmo::kelmo(const Context& context)
    : DrawingScreen(design, context), controls_(*this, context.clock), easel_(*this) {
  setAccessibleName("Σφαιρικοί φακοί · Spherical lenses");
  describe(*drawingArea(), "Σχέδιο με τον φακό · Picture of the lens", {});
  // Below this the controls would stand on each other.
  setMinimumSize(600, 320);
  canvas().FontName("Symbol");
  canvas().FontSize(7.5);
  connectHandlers();
  Form_Load();
  connectBoxes();
}

void kelmo::connectHandlers() {
  KelmoControls& c = controls_;
  const auto on = [this](auto& sender, auto signal, auto handler, By by = By::Hand) {
    lensbench::on(context_.actions, sender, signal, *this, handler, by);
  };
  Form& form = *this;
  on(form, &Form::MouseDown, &kelmo::Form_MouseDown);
  on(form, &Form::MouseMove, &kelmo::Form_MouseMove);
  on(form, &Form::MouseUp, &kelmo::Form_MouseUp);
  on(form, &Form::DragEnded, &kelmo::dropDrag);
  on(form, &Form::Resized, &kelmo::resized, By::Itself);
  on(form, &Form::CloseBox, &kelmo::TELIOMA_Click);
  on(c.aktina1, &ScrollBar::Change, &kelmo::aktina1_Change);
  on(c.aktina2, &ScrollBar::Change, &kelmo::aktina2_Change);
  on(c.kentrokykloy, &ScrollBar::Change, &kelmo::kentrokykloy_Change);
  on(c.kentrokykloy2, &ScrollBar::Change, &kelmo::kentrokykloy2_Change);
  on(c.deiktisdiathlasis, &ScrollBar::Change, &kelmo::deiktisdiathlasis_Change);
  on(c.arvimaton, &ScrollBar::Change, &kelmo::arvimaton_Change);
  on(c.desmi1, &ScrollBar::Change, &kelmo::desmi1_Change);
  on(c.HScroll1, &ScrollBar::Change, &kelmo::HScroll1_Change);
  on(c.VScroll1, &ScrollBar::Change, &kelmo::VScroll1_Change);
  on(c.VScroll2, &ScrollBar::Change, &kelmo::VScroll2_Change);
  on(c.Check1, &CheckBox::Click, &kelmo::Check1_Click);
  on(c.Check2, &CheckBox::Click, &kelmo::Check2_Click);
  on(c.singleray, &MenuEntry::Click, &kelmo::singleray_Click);
  on(c.EPANALIPSI, &MenuEntry::Click, &kelmo::EPANALIPSI_Click);
  on(c.SAHLIC, &MenuEntry::Click, &kelmo::SAHLIC_Click);
  on(c.parallilakymata, &MenuEntry::Click, &kelmo::parallilakymata_Click);
  on(c.kymatachronika, &MenuEntry::Click, &kelmo::kymatachronika_Click);
  on(c.TELIOMA, &MenuEntry::Click, &kelmo::TELIOMA_Click);
  on(c.Timer1, &Timer::Tick, &kelmo::Timer1_Timer, By::Itself);
  on(c.Timer2, &Timer::Tick, &kelmo::Timer2_Timer, By::Itself);
}

void kelmo::Form_Load() {
  KelmoControls& c = controls_;
  fillDisplay();
  AutoRedraw(true);
  c.Text1.FontName(timesGreek);
  c.Text2.FontName(timesGreek);
  c.Text1.Text(labelled(rayCount, formatHundredths(poreiaaktinon::rayCount(vima()))));
  c.Text2.Text(labelled(indexCaption, formatHundredths(n())));
  c.Text3.FontName(timesGreek);
  c.Text4.FontName(timesGreek);
  c.Label3.Caption(labelled(multiplierCaption, formatWhole(c.arvimaton.Value())));
  // Kept on purpose: without the blank before the sign that the bars write; both texts are exact.
  c.Text5.Text(labelled("Ακτίνα2=", formatWhole(c.aktina2.Value())));
  c.Text6.Text(labelled("Ακτίνα1=", formatWhole(c.aktina1.Value())));
  c.Text7.Text(labelled(rightCentreCaption, formatWhole(c.kentrokykloy.Value())));
  c.arrange(drawingArea()->width(), drawingArea()->height());
  scaleToClientArea(*this);
  placeSource({-200.0, 0.0});
  placeDiaphragm(diaphragmOfSliders());
  clearAndDraw();
}

void kelmo::resized() {
  const poreiaaktinon::Diafragma blades = diafragma();
  const Point source = pigi();
  controls_.arrange(drawingArea()->width(), drawingArea()->height());
  scaleToClientArea(*this);
  placeSource(source);
  placeDiaphragm(blades);
  slidersFollowBlades();
  showDrag();
  if (set_) set_ = poreiaaktinon::resent(*set_, set_->bench, edges());
  easel_.show(poreiaaktinon::fittedTo(edges(), shown(), set_));
}

double kelmo::vima() const {
  // Kept on purpose: formed with pi and read as degrees, so that the fan has as many rays as the
  // count that is shown.
  return poreiaaktinon::pi * controls_.arvimaton.Value() / controls_.desmi1.Value();
}

poreiaaktinon::Provoli kelmo::provoli() const {
  const bool only = controls_.Check2.Value();
  return {!only, only || controls_.Check1.Value()};
}

void kelmo::placeSource(Point source) {
  controls_.pigi.Left(source.x);
  controls_.pigi.Top(source.y);
  controls_.sourceMark.follow(source);
}

void kelmo::arxinizo() { add(poreiaaktinon::LensScene{fakos(), n(), pigi()}); }

void kelmo::add(Layer layer) {
  Shown next = shown();
  next.layers.push_back(std::move(layer));
  easel_.show(std::move(next));
}

void kelmo::clear() {
  if (poreiaaktinon::showsMoreThanLens(shown())) wiped_ = standing();
  set_.reset();
  easel_.show({});
}

void kelmo::clearAndDraw() {
  clear();
  arxinizo();
}

void kelmo::wipe() {
  if (running()) {
    showFronts();
  } else {
    clearAndDraw();
  }
}

void kelmo::drawAnew() {
  if (following()) {
    followValues();
  } else {
    wipe();
  }
}

void kelmo::aktina1_Change() {
  controls_.Text6.FontName("Times New Roman");
  controls_.Text6.Text(labelled("Ακτίνα1 =", formatWhole(R1())));
  drawAnew();
}

void kelmo::aktina2_Change() {
  controls_.Text5.Text(labelled("Ακτίνα2 =", formatWhole(R2())));
  drawAnew();
}

void kelmo::kentrokykloy_Change() {
  controls_.Text7.Text(labelled(rightCentreCaption, formatWhole(xc2())));
  drawAnew();
}

void kelmo::kentrokykloy2_Change() { drawAnew(); }

void kelmo::deiktisdiathlasis_Change() {
  controls_.Text2.FontName(timesGreek);
  controls_.Text2.Text(labelled(indexCaption, formatHundredths(n())));
  followValues();
}

void kelmo::arvimaton_Change() {
  controls_.Label3.Caption(labelled(multiplierCaption, formatWhole(controls_.arvimaton.Value())));
  followValues();
}

void kelmo::desmi1_Change() {
  controls_.Text1.FontName(timesGreek);
  controls_.Text1.Text(labelled(rayCount, formatHundredths(poreiaaktinon::rayCount(vima()))));
  followValues();
}

void kelmo::Check1_Click() {
  controls_.Check2.Value(false);
  controls_.desmi1.Value(140);
  followValues();
}

void kelmo::Check2_Click() {
  if (!following()) clearAndDraw();
  controls_.Check1.Value(false);
  controls_.desmi1.Value(100);
  followValues();
}

void kelmo::flipCheck1() { controls_.Check1.Value(!controls_.Check1.Value()); }

void kelmo::singleray_Click() { context_.moves.openSingleRay(); }

void kelmo::SAHLIC_Click() { context_.moves.openLensMenu(); }

void kelmo::TELIOMA_Click() { end(); }

void kelmo::end() { context_.moves.End(); }

}  // namespace lensbench
