// The given routines of the hyperbolic lenses that the pictures do not need.
//
// Kept as public vocabulary: nothing outside this file calls them, and they keep their form. Those
// that draw do so on the Ibn Sahl screen, whatever called them, and by what it shows at that
// moment; the program connects that screen once. They draw over its picture and leave the value
// that it shows alone.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "canvas/Variant.h"
#include "optics/protosfakos/Scene.h"

namespace lensbench::protosfakos {

// The Ibn Sahl screen as these routines find it. Each is called anew at each use, so the screen may
// be made at its first use; one that is not set raises std::bad_function_call.
struct SahlScreen {
  std::function<Canvas&()> canvas;
  // The scene of a press as it would be asked for now: the index deiktisSahl, a fan from (pigiX,
  // pigiY), the diaphragm and the options.
  std::function<Asked()> asked;
  std::function<void(const std::string&)> caption;  // UTF-8
  std::function<void(const std::string&)> message;  // shows a box until it is closed
};
void connectSahlScreen(SahlScreen screen);

// The rays that the scene routines recorded last, with what the wave routines made of them since.
std::span<const Recorded> recordedRays();
// plithos aktinon: their number.
Variant plithosaktinon();

// toxo imitono: arc sine in radians, as Atn(s / Sqr(1 - s·s)). s = 1 or -1 is Division by zero
// (11), beyond that Invalid argument (5). Pictures refract without arc sines.
Variant toxoimitonoSahl(Variant s);

// apostasi: distance of two points, user units. Pictures are traced without it.
Variant apostasiSahl(Variant x1, Variant y1, Variant x2, Variant y2);

// tomi yperbolis: the abscissas where the line y = m·x + q meets the hyperbola x²/a² - y²/b² = 1,
// on either branch. Empty when it does not. For a line parallel to an asymptote both give its one
// intersection; for an asymptote itself (q = 0) that is Division by zero (11). Pictures are traced
// without slopes, since this form loses all digits of a steep line.
Variant tomiyperbolis1(Variant m, Variant q, Variant b, Variant a);
Variant tomiyperbolis2(Variant m, Variant q, Variant b, Variant a);

// poreia amfikyrtou: path through the biconvex lens. (exitX, exitY) is where the ray y = m·x + q,
// travelling leftwards from x = 8a, leaves the lens; both Empty when it does not. Traces as
// pictures are traced.
void poreiaamfikyrtou(Variant a, Variant b, Variant m, Variant q, Variant& exitX, Variant& exitY);

// sxediasi epipedokyrtou, amfikyrtou: drawing of the plano-convex, the biconvex lens with a fan of
// rays from (x0, y0), fronts counted from (pigiX, pigiY). desmi epipedokyrtou, amfikyrtou: the same
// lenses with a bundle of slope m. Each sets the caption, forgets the rays recorded before and
// draws what pictures draw, without clearing. a = 0 and an index of 0 are Division by zero (11). A
// negative index makes optical lengths negative, which a message tells once for a scene.
void sxediasiepipedokyrtou(Variant a, Variant b, Variant x0, Variant y0);
void sxediasiamfikyrtou(Variant a, Variant b, Variant x0, Variant y0);
void desmiepipedokyrtou(Variant a, Variant b, Variant m);
void desmiamfikyrtou(Variant a, Variant b, Variant m);

// kymata pigis: waves of the source. Lays the wave points of recorded ray k from (pigiX, pigiY), as
// those of pictures are laid; k outside 0..500 is Subscript out of range (9).
void kymatapigis(Variant k);
// kymata desmis: waves of the bundle. The same with (x, y) as start; Empty counts as 0.
void kymatadesmis(Variant x, Variant y, Variant k);

}  // namespace lensbench::protosfakos
