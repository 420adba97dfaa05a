// What the screens share. One such value is made by the program and handed to every screen.
#pragma once

#include "canvas/Variant.h"

namespace lensbench {

struct Shared {
  Variant deiktisSahl;          // index of refraction of the hyperbolic lenses
  bool amfikyrtosSahl = false;  // amfikyrtos: biconvex; false is the plano-convex lens
  Variant pigiX, pigiY;         // pigi: source of the fan on the Ibn Sahl screen, user units
  bool desmiMode = false;       // desmi: bundle; what the workbench sent last
  bool onlyWavesAsked = false;  // "ONLY WAVES" was chosen and no press came after it
  bool follow = false;          // every change repeats what stands on the picture
  bool paused = false;          // the waves that run stand still; a new run ends the pause

  friend bool operator==(const Shared&, const Shared&) = default;
};

}  // namespace lensbench
