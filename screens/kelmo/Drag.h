// What the mouse can grab on the workbench, and where the grabbed thing goes when it is released.
// All points and lengths in user units.
#pragma once

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/DrawingArea.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench {

enum class Grab {
  None,
  UpperBlade,
  LowerBlade,
  Diaphragm,  // both blades with the opening between them
  LeftCentre,
  RightCentre,
  LeftEdge,
  RightEdge
};

// What a press at p takes: blades before the opening, centres before edges.
Grab grabAt(Point p, const poreiaaktinon::Diafragma& diafragma, const poreiaaktinon::Fakos& fakos,
            const poreiaaktinon::Edges& edges);

// Inside the glass, faces included.
bool insideLens(Point p, const poreiaaktinon::Fakos& fakos);

// The diaphragm after the grabbed part of it is let go at p. A single end follows p and stops at
// the other end; the whole keeps its opening and moves down in tenths of the area's height until p
// is no longer below it. Both ends stay in the drawing area.
poreiaaktinon::Diafragma releasedDiaphragm(Grab grab, Point p,
                                           const poreiaaktinon::Diafragma& before,
                                           const poreiaaktinon::Edges& edges);

// The scroll-bar value of a centre let go at abscissa x: the nearest whole number, halves to even,
// never across the origin from its side, within lowest..highest.
int releasedCentre(double x, int lowest, int highest);
// The scroll-bar value of a radius let go at abscissa x: the distance to the centre, clamped, then
// the whole number below it.
int releasedRadius(double x, double centre, int lowest, int highest);

}  // namespace lensbench
