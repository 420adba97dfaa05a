// The option buttons, menu entries and diaphragm edges of the Ibn Sahl screen, with their design
// data.
#pragma once

#include "canvas/qt/Form.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/OptionButton.h"
#include "screens/EdgeMark.h"
#include "screens/ElSahl/Edges.h"

namespace lensbench {

struct SahlControls {
  explicit SahlControls(Form& form);

  OptionButton onlyrays;      // rays without wavefronts
  OptionButton RAYSANDWAVES;  // rays and wavefronts
  OptionButton kymataYESNO;   // wavefronts without rays

  DiaphragmEdge Line2;  // lower edge of the diaphragm; its second end is the inner one
  DiaphragmEdge Line1;  // upper edge
  EdgeMark mark2;       // while the lower edge is out of sight
  EdgeMark mark1;       // while the upper edge is
  EdgeMark sourceMark;  // while the source is

  MenuEntry parallilidesmifotos;  // bundle of parallel rays
  MenuEntry TELOS;                // end of the program
  MenuEntry kymatikosahl;         // wavefronts
  MenuEntry BACKKELMO;            // back to the lens menu

  // Whether the mouse is on an edge or on its mark; user units.
  bool onUpperEdge(Point p) const { return Line1.isAt(p) || mark1.isAt(p); }
  bool onLowerEdge(Point p) const { return Line2.isAt(p) || mark2.isAt(p); }
  // Puts the option buttons into an area of this width; all figures in logical pixels.
  void placeOptions(int width);
  // Where the option buttons end.
  double optionsBottom() const;

 private:
  void setTexts();
  void describeAll();
};

}  // namespace lensbench
