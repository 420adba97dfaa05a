// Drawing of rays and wave points, and the named routines that trace a ray and draw it.
#pragma once

#include <span>
#include <vector>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/RayPath.h"

namespace lensbench::poreiaaktinon {

// A traced ray at width 1: red in air, blue in the glass; a dot of width 4 where a blade stops it.
void drawPath(Canvas& canvas, const RayPath& path);

// Dots of width 2 at the whole tens of the optical path, in a colour for each region; only those
// that the drawing area shows.
void drawWavePoints(Canvas& canvas, const RayPath& path);

// Ray after ray, each with its wave points on it.
void drawPaths(Canvas& canvas, std::span<const RayPath> paths, const Provoli& provoli);

// sxediasidesmis: traces and draws one ray of a fan or a bundle from (px, py) along (dx, dy), with
// the diaphragm of the workbench.
void sxediasidesmis(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                    const Variant& dy, const Variant& xc1, const Variant& xc2, const Variant& R1,
                    const Variant& R2, const Variant& n);

// sxediasikymaton: the wave points along the same ray; phase is the optical path at its start, 0
// for a fan.
void sxediasikymaton(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                     const Variant& dy, const Variant& xc1, const Variant& xc2, const Variant& R1,
                     const Variant& R2, const Variant& n, const Variant& phase = 0);

// bentaliaaktinon: draws the fan from the source (xs, ys) on the workbench, with its index, step
// and diaphragm, as rays, waves or both. Returns the rays, which moving waves go on with.
std::vector<RayPath> bentaliaaktinon(const Variant& xc1, const Variant& xc2, const Variant& R1,
                                     const Variant& R2, const Variant& xs, const Variant& ys);

// poreiamiasaktinas: traces one ray from (px, py) along (dx, dy) and draws it in red on a canvas of
// its own, with circle 1 about the origin and the diaphragm of the workbench. mode has no effect.
void poreiamiasaktinas(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                       const Variant& dy, const Variant& mode, const Variant& xc2,
                       const Variant& R1, const Variant& R2, const Variant& n);

}  // namespace lensbench::poreiaaktinon
