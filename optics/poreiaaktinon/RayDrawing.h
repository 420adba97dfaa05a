// Rays, wave points and moving fronts, drawn from paths that were traced.
#pragma once

#include "canvas/Canvas.h"
#include "optics/light/RayPath.h"
#include "optics/poreiaaktinon/Palette.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench::poreiaaktinon {

// A traced ray at width 1, and a dot of width 4 where a blade stops it.
void drawPath(Canvas& canvas, const light::RayPath& path, Rgb air = palette::airRay,
              Rgb glass = palette::glassRay);

// Optical path from one wave point of a ray to the next, user units.
inline constexpr double waveStep = 10.0;
// Dots of width 2 at the whole tens of the optical path, in a colour for each stretch of the way;
// only those that the drawing area shows.
void drawWavePoints(Canvas& canvas, const light::RayPath& path);

// Ray after ray, each with its wave points on it.
void drawLight(Canvas& canvas, const Light& light);

// Both fronts of moving waves at a step: the first, and from stepsBehind on the second. Drawn again
// in white they are gone.
void drawFronts(Canvas& canvas, const Fronts& fronts, Rgb first = palette::firstFront,
                Rgb second = palette::secondFront);

}  // namespace lensbench::poreiaaktinon
