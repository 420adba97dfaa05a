// The diaphragm of the workbench: two blades at one abscissa, and the three sliders that move them.
#include <algorithm>
#include <cmath>

#include "canvas/Format.h"
#include "screens/Texts.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {

using poreiaaktinon::Diafragma;

namespace {

// A slider's place on its half of the drawing area and back; percent of that half.
double alongHalf(double start, double length, double percent) {
  return start + length / 2.0 + length / 2.0 * percent / 100.0;
}

int nearestPercent(double start, double length, double place) {
  return static_cast<int>(std::lround((place - start - length / 2.0) / (length / 2.0) * 100.0));
}

}  // namespace

Diafragma kelmo::diafragma() const {
  return {controls_.Line1.X2(), controls_.Line1.Y2(), controls_.Line2.Y2()};
}

Diafragma kelmo::diaphragmOfSliders() const {
  const Canvas& surface = canvas();
  return {alongHalf(surface.ScaleLeft(), surface.ScaleWidth(), controls_.HScroll1.Value()),
          alongHalf(surface.ScaleTop(), surface.ScaleHeight(), controls_.VScroll1.Value()),
          alongHalf(surface.ScaleTop(), surface.ScaleHeight(), controls_.VScroll2.Value())};
}

void kelmo::placeDiaphragm(const Diafragma& diafragma) {
  const Point upperEnd{diafragma.X, diafragma.yA};
  const Point lowerEnd{diafragma.X, diafragma.yB};
  controls_.Line1.between({diafragma.X, edges().upper}, upperEnd);
  controls_.Line2.between({diafragma.X, edges().lower}, lowerEnd);
  controls_.upperBladeMark.follow(upperEnd);
  controls_.lowerBladeMark.follow(lowerEnd);
  controls_.Text3.Text(labelled("οπή διαφράγματος =", formatWhole(diafragma.yA - diafragma.yB)));
  controls_.Text4.Text(labelled("Θέση διαφράγματος", formatWhole(diafragma.X)));
}

void kelmo::slidersFollowBlades() {
  const Diafragma d = diafragma();
  const Canvas& surface = canvas();
  const auto follow = [](ScrollBar& slider, int value) {
    const QSignalBlocker quiet(slider);
    slider.Value(std::clamp(value, slider.Min(), slider.Max()));
  };
  follow(controls_.HScroll1, nearestPercent(surface.ScaleLeft(), surface.ScaleWidth(), d.X));
  follow(controls_.VScroll1, nearestPercent(surface.ScaleTop(), surface.ScaleHeight(), d.yA));
  follow(controls_.VScroll2, nearestPercent(surface.ScaleTop(), surface.ScaleHeight(), d.yB));
}

void kelmo::HScroll1_Change() {
  Diafragma d = diafragma();
  d.X = diaphragmOfSliders().X;
  placeDiaphragm(d);
  drawAnew();
}

void kelmo::VScroll1_Change() {
  controls_.Line1.BorderColor(RGB(250, 0, 0));
  controls_.Line1.BorderWidth(4);
  Diafragma d = diafragma();
  d.yA = std::max(diaphragmOfSliders().yA, d.yB);
  placeDiaphragm(d);
  drawAnew();
}

void kelmo::VScroll2_Change() {
  Diafragma d = diafragma();
  d.yB = std::min(diaphragmOfSliders().yB, d.yA);
  placeDiaphragm(d);
  drawAnew();
}

}  // namespace lensbench
