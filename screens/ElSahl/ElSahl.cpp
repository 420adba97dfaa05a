#include "screens/ElSahl/ElSahl.h"

#include <algorithm>
#include <numbers>
#include <optional>
#include <utility>

#include "canvas/qt/Dialogs.h"
#include "optics/protosfakos/Hyperbola.h"
#include "screens/Answers.h"
#include "screens/DisplayScale.h"
#include "screens/Handlers.h"
#include "screens/Moves.h"
#include "screens/Shared.h"
#include "screens/Texts.h"

namespace lensbench {

using light::Diafragma;
using protosfakos::Asked;
using protosfakos::Scene;

namespace {

constexpr int arrow = 1;
constexpr int cross = 2;
constexpr double strokeX = 130.0;
constexpr double halfOpening = 10.0;
constexpr double outerEnd = 200.0;

const FormDesign design{"ElSahl", "Φακός Ιμπν Σαχλ 2 υπεροβλές", 165, 855, 15240, 3525, white};

constexpr double scaleLeft = -120.0;
constexpr double scaleTop = 120.0;
constexpr double scaleRight = 150.0;
constexpr double scaleBottom = -120.0;

// The source of the fan that was drawn last.
std::optional<Point> sourceOf(const protosfakos::Shown& shown) {
  std::optional<Point> source;
  for (const protosfakos::Layer& layer : shown.layers) {
    if (const auto* scene = std::get_if<Scene>(&layer)) {
      const auto* fan = std::get_if<protosfakos::Fan>(&scene->asked.rays);
      source = fan == nullptr ? std::nullopt : std::optional(fan->source);
    }
  }
  return source;
}

}  // namespace

ElSahl::ElSahl(const Context& context) : DrawingScreen(design, context), controls_(*this) {
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
  Actions& actions = context_.actions;
  on<Form>(actions, *this, &Form::MouseDown, *this, &ElSahl::Form_MouseDown);
  on<Form>(actions, *this, &Form::MouseMove, *this, &ElSahl::Form_MouseMove);
  on<Form>(actions, *this, &Form::MouseUp, *this, &ElSahl::Form_MouseUp);
  on<Form>(actions, *this, &Form::DragEnded, *this, &ElSahl::dragEnded);
  on<Form>(actions, *this, &Form::Resized, *this, &ElSahl::resized, By::Itself);
  on<Form>(actions, *this, &Form::CloseBox, *this, &ElSahl::BACKKELMO_Click);
  on(actions, c.kymataYESNO, &OptionButton::Click, *this, &ElSahl::kymataYESNO_Click);
  on(actions, c.RAYSANDWAVES, &OptionButton::Click, *this, &ElSahl::RAYSANDWAVES_Click);
  on(actions, c.onlyrays, &OptionButton::Click, *this, &ElSahl::onlyrays_Click);
  on(actions, c.kymatikosahl, &MenuEntry::Click, *this, &ElSahl::kymatikosahl_Click);
  on(actions, c.parallilidesmifotos, &MenuEntry::Click, *this, &ElSahl::parallilidesmifotos_Click);
  on(actions, c.BACKKELMO, &MenuEntry::Click, *this, &ElSahl::BACKKELMO_Click);
  on(actions, c.TELOS, &MenuEntry::Click, *this, &ElSahl::TELOS_Click);
}

void ElSahl::Form_Load() { strokesAt(strokeX); }

void ElSahl::prepare() {
  dragEnded();
  AutoRedraw(true);
  Top(0);
  Left(0);
  Height(squareSide());
  Width(Height());
  side_ = Height();
  Show();
  resized();
  strokesAt(strokeX);
}

void ElSahl::resized() {
  controls_.placeOptions(canvas().size().width());
  const Diafragma before = diafragma();
  fitScale();
  placeEdges(before);
}

void ElSahl::fitScale() {
  const QSizeF now = canvas().size();
  if (Width() == side_ && Height() == side_) opening_ = now;
  if (now == opening_) return canvas().Scale(scaleLeft, scaleTop, scaleRight, scaleBottom);
  // The box grows as the window does, in the direction in which that grows less.
  const double growth = std::min(now.width() / opening_.width(), now.height() / opening_.height());
  const double width = (scaleRight - scaleLeft) * now.width() / opening_.width() / growth;
  const double height = (scaleTop - scaleBottom) * now.height() / opening_.height() / growth;
  const double middleX = (scaleLeft + scaleRight) / 2.0;
  const double middleY = (scaleTop + scaleBottom) / 2.0;
  canvas().Scale(middleX - width / 2.0, middleY + height / 2.0, middleX + width / 2.0,
                 middleY - height / 2.0);
}

void ElSahl::clear() {
  easel_.show({});
  followWithMarks();
}

void ElSahl::strokesAt(double x) { placeEdges({x, halfOpening, -halfOpening}); }

void ElSahl::placeEdges(const Diafragma& diafragma) {
  controls_.Line1.between({diafragma.X, outerEnd}, {diafragma.X, diafragma.yA});
  controls_.Line2.between({diafragma.X, -outerEnd}, {diafragma.X, diafragma.yB});
  followWithMarks();
}

Diafragma ElSahl::diafragma() const {
  return {controls_.Line1.X1(), controls_.Line1.Y2(), controls_.Line2.Y2()};
}

void ElSahl::followWithMarks() {
  // An edge is in sight as long as the part of it is that lies nearest to the axis.
  const Reach area = reach();
  const Diafragma d = diafragma();
  controls_.mark1.follow({d.X, std::max(d.yA, area.bottom)});
  controls_.mark2.follow({d.X, std::min(d.yB, area.top)});
  const auto source = sourceOf(easel_.shown());
  controls_.sourceMark.Visible(false);
  if (source) controls_.sourceMark.follow(*source);
}

void ElSahl::Form_MouseDown(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  const Point p{X, Y};
  live_.reset();
  beforePress_ = state();
  onlyWavesBefore_ = std::exchange(context_.shared.onlyWavesAsked, false);
  pigiXBefore_ = context_.shared.pigiX;
  pigiYBefore_ = context_.shared.pigiY;
  take(takenAt(p));
  if (dragging()) return;
  if (hasLens()) live_ = LiveSource{p};
  placeSource(p);
}

void ElSahl::placeSource(Point p) {
  if (!hasLensOr(sceneRefused)) return;
  hintUsed();
  context_.shared.pigiX = p.x;
  context_.shared.pigiY = p.y;
  drawFan();
}

void ElSahl::Form_MouseMove(int Button, int /*Shift*/, double X, double Y) {
  const Point p{X, Y};
  if ((Button & leftButton) != 0) moveLive(p);
  if (dragging()) dragTo(p);
  // Kept on purpose: of the two drags only that of the upper edge holds the cross.
  const bool onEdge = syromenigrammi1 || takenAt(p).has_value();
  MousePointer(onEdge ? cross : arrow);
}

void ElSahl::Form_MouseUp(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  if (live_ && live_->moved) moveLive({X, Y});
  live_.reset();
  if (!dragging()) return;
  dragTo({X, Y});
  syromenigrammi1 = false;
  syromenigrammi2 = false;
  hintUsed();
  if (hasLens() && !followValues()) drawFan();
}

void ElSahl::take(std::optional<int> thing) {
  atPress_ = diafragma();
  syromenigrammi1 = thing == UpperEdge;
  syromenigrammi2 = thing == LowerEdge;
}

void ElSahl::dragTo(Point p) {
  placeEdges(released(syromenigrammi1 ? Edge::Upper : Edge::Lower, p, atPress_, reach()));
  followValues();
}

void ElSahl::moveLive(Point p) {
  if (live_ && live_->goesTo(*this, p) && !takenAt(p)) placeSource(p);
}

void ElSahl::putBack() {
  context_.shared.pigiX = pigiXBefore_;
  context_.shared.pigiY = pigiYBefore_;
  context_.shared.onlyWavesAsked = onlyWavesBefore_;
  restore(beforePress_);
}

void ElSahl::dragEnded() {
  if (live_ && live_->moved) putBack();
  live_.reset();
  if (dragging()) {
    placeEdges(atPress_);
    followValues();
  }
  syromenigrammi1 = false;
  syromenigrammi2 = false;
}

Reach ElSahl::reach() const {
  const RasterCanvas& surface = canvas();
  return {surface.ScaleLeft(), surface.ScaleLeft() + surface.ScaleWidth(),
          surface.ScaleTop() + surface.ScaleHeight(),
          surface.mapping().toUser({0.0, controls_.optionsBottom()}).y};
}

void ElSahl::hintUsed() { drawingArea()->setToolTip({}); }

void ElSahl::kymataYESNO_Click() {
  context_.shared.onlyWavesAsked = true;
  controls_.kymataYESNO.Value(true);
  controls_.RAYSANDWAVES.Value(false);
  followValues();
}

void ElSahl::RAYSANDWAVES_Click() {
  controls_.kymataYESNO.Value(false);
  controls_.RAYSANDWAVES.Value(true);
  followValues();
}

void ElSahl::onlyrays_Click() { followValues(); }

void ElSahl::kymatikosahl_Click() {
  if (!hasLensOr(sceneRefused)) return;
  const Scene scene = drawOver(askedFan());
  push(protosfakos::FrontsAgain{scene, context_.shared.desmiMode});
}

void ElSahl::parallilidesmifotos_Click() {
  const auto answer =
      context_.dialogs.InputBox(QStringLiteral("DIRECTION IN  RESPECT TO HORIZONTAL"),
                                QStringLiteral("Angle in °"), QStringLiteral("0"));
  if (!answer || !hasLensOr(lensRefused)) return;
  drawBundle(numberFromAnswer(*answer));
}

void ElSahl::drawBundle(double degrees) {
  const Variant m = Tan(std::numbers::pi * (degrees / 180));
  clear();
  drawOver(asked(protosfakos::Desmi{m.value()}));
}

void ElSahl::BACKKELMO_Click() {
  clear();
  context_.moves.leaveIbnSahl();
}

void ElSahl::TELOS_Click() { context_.moves.End(); }

Asked ElSahl::asked(const protosfakos::Rays& rays) const {
  return {.amfikyrtos = context_.shared.amfikyrtosSahl,
          .deiktisSahl = context_.shared.deiktisSahl.value(),
          .rays = rays,
          .diafragma = diafragma(),
          .onlyRays = controls_.onlyrays.Value(),
          .onlyWaves = controls_.kymataYESNO.Value()};
}

Asked ElSahl::askedFan() const {
  const Point source{context_.shared.pigiX.value(), context_.shared.pigiY.value()};
  return asked(protosfakos::Fan{source});
}

void ElSahl::drawFan() {
  clear();
  drawOver(askedFan());
}

Scene ElSahl::drawOver(const Asked& asked) {
  Scene scene = protosfakos::sceneOf(asked);
  Caption(QString::fromStdString(protosfakos::captionOf(asked)));
  push(scene);
  if (scene.traced->arnhtiko) context_.dialogs.MsgBox(QStringLiteral("  ARNHTIKO"));
  return scene;
}

void ElSahl::push(protosfakos::Layer layer) {
  protosfakos::Shown next = easel_.shown();
  protosfakos::add(next, std::move(layer));
  easel_.show(std::move(next));
  followWithMarks();
}

bool ElSahl::hasLens() const {
  return protosfakos::deriveLens(context_.shared.deiktisSahl).has_value();
}

bool ElSahl::hasLensOr(const QString& message) {
  const bool exists = hasLens();
  if (!exists) context_.dialogs.MsgBox(message);
  return exists;
}

}  // namespace lensbench
