// The four scenes of the Ibn Sahl screen, and the path of one ray through the biconvex lens.
//
// A scene sets the caption, forgets the rays of the one before, draws outline, ideal bundle and
// marks, then each ray as it is traced, and the wavefronts at the end. It does not clear the
// screen. The index of refraction is deiktisSahl; 0 is Division by zero (11).
#pragma once

#include "canvas/Variant.h"

namespace lensbench::protosfakos {

// sxediasi epipedokyrtou, amfikyrtou: drawing of the plano-convex, the biconvex lens with a fan of
// 61 rays from (x0, y0). The fan travels rightwards from a source left of the lens, otherwise
// leftwards. Its fronts are counted from (pigiX, pigiY).
void sxediasiepipedokyrtou(const Variant& a, const Variant& b, const Variant& x0,
                           const Variant& y0);
void sxediasiamfikyrtou(const Variant& a, const Variant& b, const Variant& x0, const Variant& y0);

// desmi epipedokyrtou, amfikyrtou: the same lenses with a bundle of parallel rays of slope m from
// x = 130 leftwards, 101 or 201 of them from y = 100 down to -100. Its fronts are counted from the
// plane through (130, 0) square to the rays.
void desmiepipedokyrtou(const Variant& a, const Variant& b, const Variant& m);
void desmiamfikyrtou(const Variant& a, const Variant& b, const Variant& m);

// poreia amfikyrtou: path through the biconvex lens. (exitX, exitY) is where the ray y = m·x + q,
// travelling leftwards, leaves the lens; both Empty when it does not.
void poreiaamfikyrtou(const Variant& a, const Variant& b, const Variant& m, const Variant& q,
                      Variant& exitX, Variant& exitY);

}  // namespace lensbench::protosfakos
