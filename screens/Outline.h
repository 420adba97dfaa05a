// Outlines of what can be taken, in logical pixels of the drawing area.
#pragma once

#include <initializer_list>

#include <QPainterPath>

#include "canvas/qt/Shape.h"
#include "canvas/qt/UserMapping.h"

namespace lensbench {

// The straight line between two points in user units.
QPainterPath lineOutline(const UserMapping& map, Point from, Point to);

// A ring of so many logical pixels around a point in user units.
QPainterPath ringOutline(const UserMapping& map, Point middle, double radius = 5.0);

// The dots among these that are seen.
QPainterPath dotOutline(std::initializer_list<const Shape*> dots);

// The arcs within half an angle, radians, of where a circle crosses the horizontal through its
// centre, to the right and to the left; user units.
QPainterPath crossingOutline(const UserMapping& map, Point centre, double radius, double halfAngle);

}  // namespace lensbench
