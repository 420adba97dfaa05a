// What the boxes of the workbench set when one turns the wheel over them or types into them, and
// what is said before it ends the program.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "canvas/qt/ValueBox.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/Handlers.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {

using poreiaaktinon::Diafragma;

namespace {

constexpr double hundredth = 0.01;

// How many rays a fan has with so many spaces in a bundle.
int raysWith(const KelmoControls& c, int spaces) {
  return poreiaaktinon::rayCount(poreiaaktinon::pi * c.arvimaton.Value() / spaces);
}

// The spaces that give the number of rays nearest to one; of several the nearest to the present.
int spacesFor(const KelmoControls& c, double rays) {
  const auto away = [&](int spaces) {
    return std::pair(std::abs(raysWith(c, spaces) - rays), std::abs(spaces - c.desmi1.Value()));
  };
  int best = c.desmi1.Min();
  for (int spaces = best; spaces <= c.desmi1.Max(); ++spaces) {
    if (away(spaces) < away(best)) best = spaces;
  }
  return best;
}

Settable rays(KelmoControls& c) {
  Settable count = valueOfBar(c.Text1, c.desmi1);
  count.range = [&c] {
    return ValueRange{static_cast<double>(raysWith(c, c.desmi1.Min())),
                      static_cast<double>(raysWith(c, c.desmi1.Max()))};
  };
  count.set = [&c](double value) { c.desmi1.Value(spacesFor(c, value)); };
  return count;
}

}  // namespace

void kelmo::connectBoxes() {
  KelmoControls& c = controls_;
  new ValueBox(valueOfBar(c.Text6, c.aktina1));
  new ValueBox(valueOfBar(c.Text5, c.aktina2));
  new ValueBox(valueOfBar(c.Text7, c.kentrokykloy));
  new ValueBox(valueOfBar(c.Text2, c.deiktisdiathlasis, hundredth));
  new ValueBox(rays(c));
  new ValueBox(valueOfBar(c.Label3, c.arvimaton));
  Settable opening = valueOfBar(c.Text3, c.VScroll2);
  // Wider at both ends: the upper bar counts from the top.
  opening.move = [this, &c](int steps) {
    const ActionScope scope(context_.actions, c.Text3);
    c.VScroll1.Value(c.VScroll1.Value() - steps);
    c.VScroll2.Value(c.VScroll2.Value() + steps);
  };
  opening.range = [this] {
    const Diafragma d = diafragma();
    const double middle = (d.yA + d.yB) / 2.0;
    const double room = std::min(edges().upper - middle, middle - edges().lower);
    return ValueRange{0.0, std::max(0.0, 2.0 * room)};
  };
  opening.set = [this, &c](double height) {
    const ActionScope scope(context_.actions, c.Text3);
    const Diafragma d = diafragma();
    const double middle = (d.yA + d.yB) / 2.0;
    moveDiaphragm({d.X, middle + height / 2.0, middle - height / 2.0});
  };
  new ValueBox(opening);
  Settable place = valueOfBar(c.Text4, c.HScroll1);
  place.range = [this] { return ValueRange{edges().left, edges().right}; };
  place.set = [this, &c](double X) {
    const ActionScope scope(context_.actions, c.Text4);
    const Diafragma d = diafragma();
    moveDiaphragm({X, d.yA, d.yB});
  };
  new ValueBox(place);
  for (ScrollBar* bar : {&c.desmi1, &c.arvimaton}) {
    connect(bar, &ScrollBar::Change, this, &kelmo::warnOfWaves);
  }
  warnOfWaves();
}

void kelmo::moveDiaphragm(const Diafragma& diafragma) {
  placeDiaphragm(diafragma);
  slidersFollowBlades();
  drawAnew();
}

void kelmo::warnOfWaves() {
  const int rays = poreiaaktinon::rayCount(vima());
  const auto most = poreiaaktinon::mostRays;
  if (static_cast<std::size_t>(rays) <= most) return controls_.kymatachronika.Warning({});
  controls_.kymatachronika.Warning(
      QStringLiteral("Τα κύματα στον χρόνο χωρούν %1 ακτίνες, τώρα είναι %2: με αυτές το πρόγραμμα "
                     "τελειώνει.\n"
                     "Waves in time hold %1 rays, now %2: with these the program ends.")
          .arg(most)
          .arg(rays));
}

}  // namespace lensbench
