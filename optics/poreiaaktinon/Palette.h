// The colours, pen widths and measures of what is drawn of spherical lenses.
#pragma once

#include "canvas/Rgb.h"

namespace lensbench::poreiaaktinon::palette {

inline constexpr Rgb airRay = RGB(255, 0, 0);
inline constexpr Rgb glassRay = RGB(0, 0, 255);
inline constexpr Rgb stop = RGB(255, 0, 255);  // where a blade ends a ray
inline constexpr int stopWidth = 4;

inline constexpr Rgb waveBeforeLens = RGB(5, 0, 250);
inline constexpr Rgb waveInGlass = RGB(0, 155, 0);
inline constexpr Rgb waveBehindLens = RGB(150, 0, 150);
inline constexpr int waveWidth = 2;

inline constexpr Rgb firstFront = RGB(255, 0, 0);
inline constexpr Rgb secondFront = RGB(2, 0, 150);
inline constexpr int frontPointWidth = 3;
inline constexpr int frontPieceWidth = 2;

inline constexpr Rgb face = black;
inline constexpr int faceWidth = 2;
inline constexpr Rgb glass = RGB(220, 220, 195);
inline constexpr Rgb thinFocus = RGB(55, 0, 0);
inline constexpr Rgb centre = RGB(5, 0, 0);
inline constexpr Rgb rim = RGB(0, 255, 0);
inline constexpr int rimWidth = 2;
inline constexpr double rimLineEnd = 200.0;  // the lines along the lens reach from -200 to 200
inline constexpr double markRadius = 3.0;    // of focal circles and centre marks, user units

inline constexpr Rgb focus = RGB(255, 0, 0);
inline constexpr Rgb node = RGB(5, 250, 0);
inline constexpr Rgb construction = RGB(0, 255, 255);
inline constexpr int cardinalWidth = 15;  // of the dots
inline constexpr int constructionWidth = 2;

// Of the single-ray screen.
inline constexpr Rgb outlineFace = RGB(0, 255, 0);
inline constexpr int outlineWidth = 5;
inline constexpr Rgb outlineMark = RGB(255, 0, 0);

}  // namespace lensbench::poreiaaktinon::palette
