// The given routines of the spherical lenses that the pictures do not need, by their given names.
//
// The pictures are values and are traced by the engine of optics/light; no picture, no screen and
// nothing else calls anything here. Each routine says which of two kinds it is:
//   public vocabulary - computes by its own given formula, in Variants and Singles;
//   as the pictures   - does by name what the pictures do, through the same code.
// Lengths are in user units, angles in radians. No routine raises an error of its own; a division
// by zero that a routine does not test is Division by zero (11).
#pragma once

#include <cstdint>
#include <functional>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench::poreiaaktinon {

// The workbench, which the routines without a screen argument draw on and read. Each function is
// called when a routine needs it, so the screen may be made at its first use.
struct ConnectedWorkbench {
  std::function<Canvas&()> canvas;
  std::function<Bench()> bench;      // lens, index of refraction and diaphragm
  std::function<double()> vima;      // step of the fan, degrees
  std::function<Provoli()> provoli;  // what is drawn of fans
  std::function<Point()> pigi;       // (xpigi, ypigi), the light source
};
// Called once by the program; an empty one disconnects.
void connectWorkbench(ConnectedWorkbench workbench);

// Two Singles: the parts of a vector along x and y.
struct SinglePair {
  float x = 0.0f;
  float y = 0.0f;
};

// apostasi: distance of the points (x1, y1) and (x2, y2). Public vocabulary.
double apostasi(Variant x1, Variant y1, Variant x2, Variant y2);

// kathetos: outward normal at (px, py) of the circle (cx, cy), r; of length 1 on the circle. Public
// vocabulary.
SinglePair kathetos(Variant px, Variant py, Variant cx, Variant cy, Variant r);

// prosimo: sign of v, 1, -1 or 0. Public vocabulary.
Variant prosimo(Variant v);

// gonia: pi/2 less the angle between two vectors, in radians; where b is the tangent of a surface,
// the signed angle of a to the surface normal. Public vocabulary.
Variant gonia(Variant ax, Variant ay, Variant bx, Variant by);

// Whether the two points that the slope form finds may stand for points of a circle of radius r, by
// their distances from its centre: the first within 1.00005 r, the second within 1.000005 r. Kept
// on purpose: the second ten times tighter, or lines would be found that this vocabulary misses.
bool nearCircle(Variant first, Variant second, Variant r);

// tomieytheiaskyklou: the line through (px, py) along (dx, dy) with the circle (cx, cy), r; the
// point of larger x first, of larger y on a vertical line. A tangent counts as not found; then both
// points are (px, py), or (0, 0) for a vertical line. Slope form: a steep line loses digits, and
// points too far from the circle (nearCircle) make it not found. Public vocabulary.
SimeiaTomis tomieytheiaskyklou(Variant cx, Variant cy, Variant r, Variant dx, Variant dy,
                               Variant px, Variant py);

// klasmaothonis: (x, y) as fractions of the drawing area, 0 at its left and bottom edges, 1 at its
// right and top edges. Public vocabulary.
SinglePair klasmaothonis(const Canvas& canvas, Variant x, Variant y);

// orioothonis: where a ray from (x0, y0) along (dx, dy) leaves the drawing area of a canvas whose y
// grows upward; (0, 0) for the zero direction. A start outside the area is not treated specially,
// so the point may lie behind it. As the pictures.
SinglePair orioothonis(const Canvas& canvas, Variant x0, Variant y0, Variant dx, Variant dy);

// sxetikosdeiktis: relative index for a ray along (dx, dy) that crosses the circle (cx, cy), r at
// (px, py): n into the circle, 1/n out of it or along its tangent. Public vocabulary.
Variant sxetikosdeiktis(Variant dx, Variant dy, Variant px, Variant py, Variant cx, Variant cy,
                        Variant r, Variant n);

// DiathlasiApotelesma: unit direction of the refracted ray; ok false, direction (0, 0), at total
// internal reflection.
struct DiathlasiApotelesma {
  float dx = 0.0f;
  float dy = 0.0f;
  Boolean ok = 0;
};
// diathlasi: Snell's law, n1 sin a1 = n2 sin a2, for a ray along (dx, dy), of any length, that
// meets the circle (cx, cy), r at (px, py); n is the index inside over that outside. r = 0, n = 0
// or a zero direction is Division by zero (11). Public vocabulary.
DiathlasiApotelesma diathlasi(Variant dx, Variant dy, Variant px, Variant py, Variant cx,
                              Variant cy, Variant r, Variant n);

// DiafragmaApotelesma: the point where a ray is stopped, or its own start when it passes.
struct DiafragmaApotelesma {
  float x = 0.0f;
  float y = 0.0f;
  Boolean blocked = 0;
};
// elegxosdiafragmatos: whether the line of a ray from (x0, y0) along (dx, dy) misses the opening
// from yB to yA, ends included, of a diaphragm on x = X. The whole line is tested, behind the start
// too; a vertical ray is tested at its start, and one so steep that its slope is no number is
// Overflow (6). As the pictures, save that an opening of height 0 lets its one point through.
DiafragmaApotelesma elegxosdiafragmatos(Variant X, Variant yA, Variant yB, Variant x0, Variant y0,
                                        Variant dx, Variant dy);

// DiadromiApotelesma: the point where a ray meets the lens, the start point when it does not.
struct DiadromiApotelesma {
  double x = 0.0;
  double y = 0.0;
  Boolean found = 0;
  std::int16_t tag = 0;  // the caller's, handed back; 0 when the circles do not cross
};
// diadromiaktinas: the next point where the ray from (px, py) along (dx, dy) meets the lens. Kept
// on purpose: a point of exactly (0, 0) counts as not found, as the search marks no answer. Sets
// the workbench's DrawWidth to 1 when the ray's line meets both circles. A tag beyond 16 bits is
// Overflow (6). As the pictures.
void diadromiaktinas(DiadromiApotelesma& result, Variant xc1, Variant xc2, Variant R1, Variant R2,
                     Variant dx, Variant dy, Variant px, Variant py, Variant tag);
// diadromiaktinas2: the same search; no tag, and it leaves the workbench alone. As the pictures.
void diadromiaktinas2(DiadromiApotelesma& result, Variant xc1, Variant xc2, Variant R1, Variant R2,
                      Variant dx, Variant dy, Variant px, Variant py);

// sxediasidesmis: traces and draws one ray of a fan or a bundle from (px, py) along (dx, dy), with
// the diaphragm of the workbench. As the pictures.
void sxediasidesmis(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy, Variant xc1,
                    Variant xc2, Variant R1, Variant R2, Variant n);

// sxediasikymaton: the wave points along the same ray; phase is the optical path at its start, 0
// for a fan. As the pictures.
void sxediasikymaton(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy, Variant xc1,
                     Variant xc2, Variant R1, Variant R2, Variant n, Variant phase = 0);

// bentaliaaktinon: draws the fan from the source (xs, ys) on the workbench, with its index, step
// and diaphragm, as rays, waves or both. Returns the rays. As the pictures.
Sent bentaliaaktinon(Variant xc1, Variant xc2, Variant R1, Variant R2, Variant xs, Variant ys);

// poreiamiasaktinas: traces one ray from (px, py) along (dx, dy) and draws it in red on a canvas of
// its own, with circle 1 about the origin and the diaphragm of the workbench. mode has no effect.
// As the pictures.
void poreiamiasaktinas(Canvas& canvas, Variant px, Variant py, Variant dx, Variant dy, Variant mode,
                       Variant xc2, Variant R1, Variant R2, Variant n);

// sxediasitoxou1: draws the right face, an arc of circle 1, on the workbench in black at width 2;
// nothing when there is no lens. (X2, Y2) is the lower end of the upper blade: the blade stands
// before the lens and hides nothing of it. As the pictures.
void sxediasitoxou1(Variant xc1, Variant R1, Variant xc2, Variant R2, Variant X2, Variant Y2);
// sxediasitoxou2: the left face likewise, an arc of circle 2; xroma is its colour as a number with
// red in the lowest byte, 0 for black; below 0 or beyond 32 bits it is Overflow (6). As the
// pictures.
void sxediasitoxou2(Variant xc1, Variant R1, Variant xc2, Variant R2, Variant X2, Variant Y2,
                    Variant xroma);

// xaraktiristikasimeia: marks, construction for the light source, and labels of the workbench's
// lens, on the workbench. Tests nothing, and takes light to travel to the right. As the pictures.
void xaraktiristikasimeia();

}  // namespace lensbench::poreiaaktinon
