#include "screens/kelmo/WorkbenchView.h"

#include "screens/kelmo/kelmo.h"

namespace lensbench {

Canvas& WorkbenchView::canvas() { return screen_.canvas(); }

poreiaaktinon::Diafragma WorkbenchView::diafragma() const {
  const KelmoControls& controls = screen_.controls();
  return {controls.Line1.X2(), controls.Line1.Y2(), controls.Line2.Y2()};
}

poreiaaktinon::Fakos WorkbenchView::fakos() const {
  const KelmoControls& controls = screen_.controls();
  return {static_cast<double>(controls.kentrokykloy2.Value()),
          static_cast<double>(controls.aktina1.Value()),
          static_cast<double>(controls.kentrokykloy.Value()),
          static_cast<double>(controls.aktina2.Value())};
}

double WorkbenchView::deiktisdiathlasis() const {
  return screen_.controls().deiktisdiathlasis.Value() / 100.0;
}

Point WorkbenchView::pigi() const { return {screen_.xpigi.value(), screen_.ypigi.value()}; }

double WorkbenchView::vima() const { return screen_.vima.value(); }

poreiaaktinon::Provoli WorkbenchView::provoli() const {
  const bool only = screen_.controls().Check2.Value();
  return {!only, only || screen_.controls().Check1.Value()};
}

}  // namespace lensbench
