// The two sets of rays that the workbench sends: the fan of a point source and the parallel bundle.
#pragma once

#include <vector>

#include "optics/poreiaaktinon/RayPath.h"

namespace lensbench::poreiaaktinon {

// Rays of a fan of the given step: Int(360 / vima).
int rayCount(double vima);

// Ray k of a fan leaves the source at k * vima degrees, counter-clockwise from positive x; optical
// paths are counted from the source.
std::vector<RayPath> fanPaths(const OpticalSetup& setup, Point source, double vima);

// desmi1 + 1 parallel rays at an angle with the horizontal in radians, starting at
// (-200 - k tan(angle), k / cos(angle)) for k = 200 - i * 400 / desmi1. Optical paths are counted
// from the plane through (-200, 0) square to the rays, on which those starts do not stand.
std::vector<RayPath> bundlePaths(const OpticalSetup& setup, double angle, int desmi1);

}  // namespace lensbench::poreiaaktinon
