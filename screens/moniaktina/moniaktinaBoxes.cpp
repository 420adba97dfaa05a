// What the boxes of the single-ray screen set when one turns the wheel over them or types into
// them, and what is said before it ends the program.
#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <utility>

#include <QToolTip>

#include "canvas/Format.h"
#include "canvas/qt/Contrast.h"
#include "canvas/qt/ValueBox.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {

namespace single = poreiaaktinon::single;
using single::NoOutline;

namespace {

constexpr double hundredth = 0.01;

QString refusal(NoOutline reason) {
  switch (reason) {
    case NoOutline::None:
      return {};
    case NoOutline::PointCircle:
      return QStringLiteral(
          "Με ακτίνα 0 ο κύκλος γίνεται σημείο και το πρόγραμμα τελειώνει.\n"
          "With a radius of 0 the circle is a point and the program ends.");
    case NoOutline::SameCircle:
      return QStringLiteral(
          "Οι δύο κύκλοι θα συμπέσουν και το πρόγραμμα τελειώνει.\n"
          "The two circles would coincide and the program ends.");
  }
  return {};
}

// Whether an arrow or a click beside the thumb leads to such a value.
bool oneStepAway(const ScrollBar& bar, const std::function<NoOutline(int)>& at) {
  const auto leadsThere = [&](int step) {
    const int to = std::clamp(bar.Value() + step, bar.Min(), bar.Max());
    return to != bar.Value() && at(to) != NoOutline::None;
  };
  const auto steps = {bar.SmallChange(), -bar.SmallChange(), bar.LargeChange(), -bar.LargeChange()};
  return std::any_of(steps.begin(), steps.end(), leadsThere);
}

QString sameCircleWords(int radius1, int radius2, int centre) {
  return QStringLiteral(
             "Ακτίνες %1 και %2, κέντρο στο %3: με ίσες ακτίνες και κέντρο 0 οι κύκλοι συμπίπτουν "
             "και το πρόγραμμα τελειώνει.\n"
             "Radii %1 and %2, centre at %3: with equal radii and the centre at 0 the circles "
             "coincide and the program ends.")
      .arg(radius1)
      .arg(radius2)
      .arg(centre);
}

QString pointCircleWords(int radius2) {
  return QStringLiteral(
             "Η ακτίνα 2 είναι %1: στο 0 το πρόγραμμα τελειώνει.\n"
             "Radius 2 is %1: at 0 the program ends.")
      .arg(radius2);
}

}  // namespace

void moniaktina::connectBoxes() {
  MoniaktinaControls& c = controls_;
  // What is taken for a bar's value, as the outline of the lens is.
  const auto add = [](TextBox& box, ScrollBar& bar, std::function<NoOutline(int)> at) {
    Settable settable = valueOfBar(box, bar);
    settable.end = [at = std::move(at)](double value) {
      return refusal(at(static_cast<int>(std::lround(value))));
    };
    new ValueBox(settable);
  };
  add(c.Text6, c.aktina1, [this](int R1) { return withRadius1(R1); });
  add(c.Text5, c.aktina2, [this](int R2) { return withRadius2(R2); });
  add(c.Text7, c.kentrokykloy, [this](int centre) { return withCentre(centre); });
  new ValueBox(valueOfBar(c.Text2, c.deiktisdiathlasis, hundredth));
  for (ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.kentrokykloy}) {
    connect(bar, &ScrollBar::Change, this, &moniaktina::warnOfLens);
  }
  warnOfLens();
}

NoOutline moniaktina::withRadius1(int R1) const {
  return single::noOutline(R1, controls_.aktina2.Value(), controls_.kentrokykloy.Value());
}
NoOutline moniaktina::withRadius2(int R2) const {
  return single::noOutline(controls_.aktina1.Value(), R2, controls_.kentrokykloy.Value());
}
NoOutline moniaktina::withCentre(int centre) const {
  return single::noOutline(controls_.aktina1.Value(), controls_.aktina2.Value(), centre);
}

void moniaktina::warnOfLens() {
  MoniaktinaControls& c = controls_;
  const int R1 = c.aktina1.Value();
  const int R2 = c.aktina2.Value();
  const int centre = c.kentrokykloy.Value();
  const QString same = sameCircleWords(R1, R2, centre);
  const bool near1 = oneStepAway(c.aktina1, [this](int value) { return withRadius1(value); });
  const bool near2 = oneStepAway(c.aktina2, [this](int value) { return withRadius2(value); });
  const bool nearCentre =
      oneStepAway(c.kentrokykloy, [this](int value) { return withCentre(value); });
  // By dragging a bar every value of it is near; a radius 2 of 0 is named by its tool tip anyway.
  const bool canCoincide = withRadius1(R2) != NoOutline::None && R2 >= c.aktina1.Min();
  const bool nearPoint = R2 <= c.aktina2.LargeChange();
  c.aktina1.Warning(canCoincide ? same : QString(), near1);
  c.aktina2.Warning(nearPoint                            ? pointCircleWords(R2)
                    : withRadius2(R1) != NoOutline::None ? same
                                                         : QString(),
                    near2);
  c.kentrokykloy.Warning(withCentre(0) != NoOutline::None ? same : QString(), nearCentre);
}

QString moniaktina::warning(Point aim) const {
  const double source = controls_.source().x;
  const double pixels = std::fabs((aim.x - source) * canvas().mapping().xPixels);
  if (pixels >= 1.0) return {};
  return QStringLiteral(
             "Η πηγή είναι στο x = %1: αν αφήσεις την ακτίνα ακριβώς πάνω ή κάτω από αυτήν, το "
             "πρόγραμμα τελειώνει.\n"
             "The source stands at x = %1: a release exactly above or below it ends the program.")
      .arg(QString::fromStdString(formatHundredths(source)));
}

void moniaktina::warnOfAim(Point aim) {
  const QString words = warning(aim);
  const QColor orange = warningOn(drawingArea()->palette().color(QPalette::Window));
  controls_.aim.BorderColor(words.isEmpty() ? black
                                            : RGB(orange.red(), orange.green(), orange.blue()));
  controls_.aim.BorderWidth(words.isEmpty() ? 1 : 2);
  if (words.isEmpty()) return QToolTip::hideText();
  const Point p = canvas().mapping().toPixel(aim);
  QToolTip::showText(drawingArea()->mapToGlobal(QPointF(p.x, p.y).toPoint()), words, drawingArea());
}

}  // namespace lensbench
