// The moves between screens, as the screens ask for them, and what one screen needs of another: no
// screen knows another.
#pragma once

#include "optics/light/Stop.h"

namespace lensbench {

class Moves {
 public:
  virtual ~Moves() = default;

  // Workbench, "AKTINA RAY": the single-ray screen, sized and with its lens drawn, takes its place.
  virtual void openSingleRay() = 0;
  // Workbench, "IBN SAHL": the lens menu opens in front of it.
  virtual void openLensMenu() = 0;
  // Single-ray screen, "Πίσω".
  virtual void leaveSingleRay() = 0;
  // Lens menu, spherical lenses.
  virtual void leaveLensMenu() = 0;
  // Lens menu, a hyperbolic lens: the Ibn Sahl screen gets its size, scale and strokes, and opens.
  virtual void openIbnSahl() = 0;
  // Lens menu, after it: the Ibn Sahl screen clears itself and shows the fan of the shared source
  // through the shared lens.
  virtual void drawIbnSahl() = 0;
  // Ibn Sahl screen, "BACK TO MENU", after it has cleared itself.
  virtual void leaveIbnSahl() = 0;
  // Both "END" entries: the process ends at once, with exit status 0.
  virtual void End() = 0;

  // One step back and forth in the history of the whole program; nothing where there is none.
  virtual void undo() = 0;
  virtual void redo() = 0;
  // The window of keys and of what can be taken on the screen in front.
  virtual void help() = 0;
  // Turns following on and off, for all screens: every change repeats what stands on the picture.
  virtual void toggleFollow() = 0;
  // Lens menu: while following, the open Ibn Sahl screen repeats its scene with the shared index.
  virtual void followIndex() = 0;

  // The diaphragm of the workbench, which stops the ray of the single-ray screen too.
  virtual light::Diafragma diafragma() = 0;

 protected:
  Moves() = default;
  Moves(const Moves&) = default;
  Moves& operator=(const Moves&) = default;
};

}  // namespace lensbench
