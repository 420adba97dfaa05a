#include "screens/moniaktina/moniaktina.h"

#include "canvas/Format.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/Tracing.h"
#include "screens/DisplayScale.h"
#include "screens/Handlers.h"
#include "screens/Texts.h"
#include "screens/moniaktina/SingleRayPicture.h"

namespace lensbench {
namespace {

using poreiaaktinon::SinglePair;
using poreiaaktinon::toSingle;

const FormDesign design{"moniaktina", "ΜΙΑ ΑΚΤΙΝΑ", 60, 315, 6630, 3225, RGB(255, 255, 255)};

QString radius1Text(int value) { return labelled("Ακτίνα 1 =", formatWhole(value)); }
QString radius2Text(int value) { return labelled("Ακτίνα 2 =", formatWhole(value)); }
QString centreText(int value) { return labelled("Κέντρο δεξιά=", formatWhole(value)); }

}  // namespace

moniaktina::moniaktina(Moves& moves) : Form(design), moves_(moves), controls_(*this) {
  setAccessibleName("Μία ακτίνα · One ray");
  drawingArea()->setToolTip(
      "Πάτησε για να βάλεις την πηγή, σύρε και άφησε για να στείλεις την ακτίνα. "
      "Τη σταματά το διάφραγμα των σφαιρικών φακών, αν είναι κλειστό.\n"
      "Press to place the source, drag and release to send the ray. "
      "The diaphragm of the spherical lenses stops it while it is closed.");
  connectHandlers();
  Form_Load();
}

void moniaktina::connectHandlers() {
  MoniaktinaControls& c = controls_;
  on<Form>(*this, &Form::MouseDown, *this, &moniaktina::Form_MouseDown);
  on<Form>(*this, &Form::MouseMove, *this, &moniaktina::Form_MouseMove);
  on<Form>(*this, &Form::MouseUp, *this, &moniaktina::Form_MouseUp);
  on<Form>(*this, &Form::Resized, *this, &moniaktina::resized);
  on<Form>(*this, &Form::CloseBox, *this, &moniaktina::Command1_Click);
  on(c.aktina1, &ScrollBar::Change, *this, &moniaktina::aktina1_Change);
  on(c.aktina2, &ScrollBar::Change, *this, &moniaktina::aktina2_Change);
  on(c.kentrokykloy, &ScrollBar::Change, *this, &moniaktina::kentrokykloy_Change);
  on(c.deiktisdiathlasis, &ScrollBar::Change, *this, &moniaktina::deiktisdiathlasis_Change);
  on(c.Command1, &CommandButton::Click, *this, &moniaktina::Command1_Click);
}

void moniaktina::fitDisplay() {
  justOpened_ = true;
  // A screen that was left by the keyboard during a drag saw no release.
  controls_.aim.Visible(false);
  fillDisplay();
  scaleToClientArea(*this);
}

void moniaktina::resized() {
  // The real size of the window is known only after the window manager has placed it; until the
  // student touches the screen the picture fits itself to every size. Later it stays.
  if (!justOpened_) return;
  scaleToClientArea(*this);
  drawLens();
}

void moniaktina::drawLens() {
  sxediasifakoy(controls_.aktina1.Value(), controls_.aktina2.Value(), 0,
                controls_.kentrokykloy.Value());
}

void moniaktina::sxediasifakoy(const Variant& R1, const Variant& R2, const Variant& xc1,
                               const Variant& xc2) {
  drawLensAlone(canvas(), R1, R2, xc1, xc2, deiktis);
}

void moniaktina::miaaktina(float xs, float ys, float xa, float ya) {
  deiktis = controls_.deiktisdiathlasis.Value() / 100.0;
  kentro2 = controls_.kentrokykloy.Value();
  aktinaR1 = controls_.aktina1.Value();
  aktinaR2 = controls_.aktina2.Value();
  drawLensUnderRay(canvas(), aktinaR1, aktinaR2, kentro2, deiktis);
  canvas().FontName("Arial Greek");
  const SinglePair source = sourceCentre();
  const SinglePair direction = aimedDirection(xs, ys, xa, ya);
  poreiaaktinon::poreiamiasaktinas(canvas(), source.x, source.y, direction.x, direction.y, 0,
                                   kentro2, aktinaR1, aktinaR2, deiktis);
}

SinglePair moniaktina::sourceCentre() const {
  const Shape& fos = controls_.fos;
  return {toSingle(fos.Left() + fos.Width() / 2.0), toSingle(fos.Top() - fos.Height() / 2.0)};
}

void moniaktina::sendRay(float xa, float ya) {
  canvas().Cls();
  const SinglePair source = sourceCentre();
  canvas().Line(source.x, source.y, xa, ya);
  miaaktina(source.x, source.y, xa, ya);
}

void moniaktina::Form_Load() {
  MoniaktinaControls& c = controls_;
  c.Text6.Text(radius1Text(c.aktina1.Value()));
  c.Text5.Text(radius2Text(c.aktina2.Value()));
  c.Text7.Text(centreText(c.kentrokykloy.Value()));
  c.Text2.Text(
      labelled("Index of Refraction n = ", formatHundredths(c.deiktisdiathlasis.Value() / 100.0)));
  AutoRedraw(true);
  drawLens();
  sendRay(toSingle(c.fos.Left() / 2.0), toSingle(c.fos.Top() / 2.0));
}

void moniaktina::Form_MouseDown(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  justOpened_ = false;
  MoniaktinaControls& c = controls_;
  c.fos.Left(X);
  c.fos.Top(Y);
  const SinglePair source = sourceCentre();
  c.aim.between({source.x, source.y}, {X, Y});
  c.aim.Visible(true);
}

void moniaktina::Form_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  if (!controls_.aim.Visible()) return;
  controls_.aim.X2(X);
  controls_.aim.Y2(Y);
}

void moniaktina::Form_MouseUp(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  controls_.aim.Visible(false);
  // Once used, the hint would only cover the picture.
  drawingArea()->setToolTip({});
  sendRay(toSingle(X), toSingle(Y));
}

void moniaktina::lensChanged() {
  justOpened_ = false;
  aktinaR1 = controls_.aktina1.Value();
  aktinaR2 = controls_.aktina2.Value();
  kentro1 = 0;
  kentro2 = controls_.kentrokykloy.Value();
  sxediasifakoy(aktinaR1, aktinaR2, kentro1, kentro2);
}

void moniaktina::aktina1_Change() {
  controls_.Text6.Text(radius1Text(controls_.aktina1.Value()));
  lensChanged();
}

void moniaktina::aktina2_Change() {
  controls_.Text5.Text(radius2Text(controls_.aktina2.Value()));
  lensChanged();
}

void moniaktina::kentrokykloy_Change() {
  controls_.Text7.Text(centreText(controls_.kentrokykloy.Value()));
  lensChanged();
}

void moniaktina::deiktisdiathlasis_Change() {
  justOpened_ = false;
  deiktis = controls_.deiktisdiathlasis.Value() / 100.0;
  // Not the spelling of Form_Load: no capital, no blank before the sign.
  controls_.Text2.Text(labelled("Index of refraction n= ", formatHundredths(deiktis)));
}

void moniaktina::Command1_Click() { moves_.leaveSingleRay(); }

}  // namespace lensbench
