#include "screens/ElSahl/SahlView.h"

#include "canvas/qt/Dialogs.h"
#include "screens/ElSahl/ElSahl.h"

namespace lensbench {
namespace {

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

Canvas& SahlView::canvas() { return screen_.canvas(); }

void SahlView::caption(std::string_view utf8) { screen_.Caption(text(utf8)); }

protosfakos::Diafragma SahlView::diafragma() const {
  const SahlControls& controls = screen_.controls();
  return {controls.Line1.X1(), controls.Line1.Y2(), controls.Line2.Y2()};
}

bool SahlView::onlyRays() const { return screen_.controls().onlyrays.Value(); }

bool SahlView::onlyWaves() const { return screen_.controls().kymataYESNO.Value(); }

void SahlView::message(std::string_view utf8) { dialogs().MsgBox(text(utf8)); }

}  // namespace lensbench
