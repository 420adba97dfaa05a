// What a picture of a spherical lens shows at a point of it, in words.
#pragma once

#include <optional>

#include "canvas/Answer.h"
#include "optics/poreiaaktinon/Picture.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"

namespace lensbench::poreiaaktinon {

// What is drawn within reach of p, both in user units; nothing where nothing is. Points where rays
// are refracted, reflected or stopped come before marked points, those before the lines of a lens,
// then fronts, then rays; among equals the nearest, and of those the one drawn last. Reads the
// value and traces nothing.
std::optional<Answer> ask(const Shown& shown, Point p, double reach);

}  // namespace lensbench::poreiaaktinon

namespace lensbench::poreiaaktinon::single {

// The same of the single-ray screen.
std::optional<Answer> ask(const Shown& shown, Point p, double reach);

}  // namespace lensbench::poreiaaktinon::single
