#include "screens/moniaktina/moniaktina.h"

#include <utility>

#include <QGuiApplication>
#include <QScreen>

#include "canvas/Format.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/DisplayScale.h"
#include "screens/Handlers.h"
#include "screens/Moves.h"
#include "screens/Texts.h"

namespace lensbench {

namespace single = poreiaaktinon::single;
using poreiaaktinon::toSingle;

namespace {

const FormDesign design{"moniaktina", "ΜΙΑ ΑΚΤΙΝΑ", 60, 315, 6630, 3225, RGB(255, 255, 255)};

QString radius1Text(int value) { return labelled("Ακτίνα 1 =", formatWhole(value)); }
QString radius2Text(int value) { return labelled("Ακτίνα 2 =", formatWhole(value)); }
QString centreText(int value) { return labelled("Κέντρο δεξιά=", formatWhole(value)); }

Point inSingles(Point p) { return {toSingle(p.x), toSingle(p.y)}; }

// Whether the diaphragm has stopped the ray that was drawn last.
bool stopped(const single::Shown& shown) {
  const auto* ray = std::get_if<single::Ray>(&shown.layers.back());
  return ray != nullptr && ray->sent.paths->front().ending == light::Ending::Diaphragm;
}

}  // namespace

moniaktina::moniaktina(const Context& context) : DrawingScreen(design, context), controls_(*this) {
  setAccessibleName("Μία ακτίνα · One ray");
  drawingArea()->setAccessibleName("Σχέδιο με μία ακτίνα · Picture of one ray");
  drawingArea()->setToolTip(
      "Πάτησε για να βάλεις την πηγή, σύρε και άφησε για να στείλεις την ακτίνα. "
      "Τη σταματά το διάφραγμα των σφαιρικών φακών, αν είναι κλειστό.\n"
      "Press to place the source, drag and release to send the ray. "
      "The diaphragm of the spherical lenses stops it while it is closed.");
  connectHandlers();
  Form_Load();
  connectBoxes();
}

void moniaktina::connectHandlers() {
  MoniaktinaControls& c = controls_;
  Actions& actions = context_.actions;
  on<Form>(actions, *this, &Form::MouseDown, *this, &moniaktina::Form_MouseDown);
  on<Form>(actions, *this, &Form::MouseMove, *this, &moniaktina::Form_MouseMove);
  on<Form>(actions, *this, &Form::MouseUp, *this, &moniaktina::Form_MouseUp);
  on<Form>(actions, *this, &Form::DragEnded, *this, &moniaktina::dragEnded);
  on<Form>(actions, *this, &Form::Resized, *this, &moniaktina::resized, By::Itself);
  on<Form>(actions, *this, &Form::CloseBox, *this, &moniaktina::Command1_Click);
  on(actions, c.aktina1, &ScrollBar::Change, *this, &moniaktina::aktina1_Change);
  on(actions, c.aktina2, &ScrollBar::Change, *this, &moniaktina::aktina2_Change);
  on(actions, c.kentrokykloy, &ScrollBar::Change, *this, &moniaktina::kentrokykloy_Change);
  on(actions, c.deiktisdiathlasis, &ScrollBar::Change, *this,
     &moniaktina::deiktisdiathlasis_Change);
  on(actions, c.Command1, &CommandButton::Click, *this, &moniaktina::Command1_Click);
}

void moniaktina::fitDisplay() {
  const bool firstTime = !canvas().hasUserScale();
  const double x = controls_.fos.Left() + controls_.fos.Width() / 2.0;
  const double y = controls_.fos.Top() + controls_.fos.Height() / 2.0;
  fillDisplay();
  resized();
  if (!firstTime) return;
  // The window is as large as the display only once it is shown; there the source stands where it
  // is designed, in twips down from the upper left.
  const QSizeF display = twipsPerPixel * QGuiApplication::primaryScreen()->availableSize();
  const double unit = (display.width() + display.height()) / 1200.0;
  controls_.placeSource({(x - display.width() / 2.0) / unit, (display.height() / 2.0 - y) / unit});
}

void moniaktina::resized() {
  const Point source = controls_.source();
  const Point aimedAt{controls_.aim.X2(), controls_.aim.Y2()};
  scaleToClientArea(*this);
  controls_.placeSource(source);
  controls_.aim.between(source, aimedAt);
  easel_.show(poreiaaktinon::fittedTo(light::edgesOf(canvas()), easel_.shown()));
}

void moniaktina::dragEnded() { controls_.aim.Visible(false); }

void moniaktina::push(single::Layer layer) {
  single::Shown next = easel_.shown();
  next.layers.push_back(std::move(layer));
  easel_.show(std::move(next));
}

void moniaktina::drawLens() {
  sxediasifakoy(controls_.aktina1.Value(), controls_.aktina2.Value(), 0,
                controls_.kentrokykloy.Value());
}

void moniaktina::sxediasifakoy(Variant R1, Variant R2, Variant xc1, Variant xc2) {
  easel_.show({});
  push(single::LensAlone{single::outlineOf(R1, R2, xc1, xc2, deiktis)});
}

void moniaktina::miaaktina(float xs, float ys, float xa, float ya) {
  deiktis = controls_.deiktisdiathlasis.Value() / 100.0;
  kentro2 = controls_.kentrokykloy.Value();
  aktinaR1 = controls_.aktina1.Value();
  aktinaR2 = controls_.aktina2.Value();
  push(single::LensUnderRay{single::outlineOf(aktinaR1, aktinaR2, 0, kentro2, deiktis)});
  canvas().FontName("Arial Greek");
  const poreiaaktinon::Bench bench{{0.0, aktinaR1.value(), kentro2.value(), aktinaR2.value()},
                                   deiktis.value(),
                                   context_.moves.diafragma()};
  const poreiaaktinon::SingleRay ray{inSingles(controls_.source()),
                                     single::aimedDirection(xs, ys, xa, ya)};
  push(single::Ray{poreiaaktinon::send(bench, ray, light::edgesOf(canvas()))});
}

void moniaktina::sendRay(Point aim) {
  easel_.show({});
  const Point source = controls_.source();
  push(single::AimLine{inSingles(source), inSingles(aim)});
  miaaktina(toSingle(source.x), toSingle(source.y), toSingle(aim.x), toSingle(aim.y));
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
  sendRay({c.fos.Left() / 2.0, c.fos.Top() / 2.0});
}

void moniaktina::Form_MouseDown(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  beforePress_ = state();
  controls_.fos.Left(X);
  controls_.fos.Top(Y);
  controls_.sourceMark.follow(controls_.source());
  controls_.aim.between(controls_.source(), {X, Y});
  warnOfAim({X, Y});
  controls_.aim.Visible(true);
}

void moniaktina::Form_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  if (!controls_.aim.Visible()) return;
  controls_.aim.between(controls_.source(), {X, Y});
  warnOfAim({X, Y});
}

void moniaktina::Form_MouseUp(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  controls_.aim.Visible(false);
  aimed_ = Point{X, Y};
  sendRay({X, Y});
  // Once a ray has passed, the hint would only cover the picture.
  if (!stopped(easel_.shown())) drawingArea()->setToolTip({});
}

void moniaktina::lensChanged() {
  aktinaR1 = controls_.aktina1.Value();
  aktinaR2 = controls_.aktina2.Value();
  kentro1 = 0;
  kentro2 = controls_.kentrokykloy.Value();
  if (followValues()) return;
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
  deiktis = controls_.deiktisdiathlasis.Value() / 100.0;
  // Kept on purpose: not the spelling of Form_Load, but no capital and no blank before the sign.
  controls_.Text2.Text(labelled("Index of refraction n= ", formatHundredths(deiktis)));
  followValues();
}

void moniaktina::Command1_Click() { context_.moves.leaveSingleRay(); }

}  // namespace lensbench
