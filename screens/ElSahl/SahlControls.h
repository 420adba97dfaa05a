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
 private:
  Form& form_;
  static constexpr Rgb edgeColour{0x00C00000};
  static constexpr Place onlyWavesPlace{120, 0, 1455, 375};
  static constexpr Place raysWavesPlace{1560, 0, 1335, 375};
  static constexpr Place onlyRaysPlace{2880, 0, 1215, 375};

 public:
  explicit SahlControls(Form& form);

  OptionButton onlyrays{form_, "onlyrays", onlyRaysPlace};           // rays without wavefronts
  OptionButton RAYSANDWAVES{form_, "RAYSANDWAVES", raysWavesPlace};  // rays and wavefronts
  OptionButton kymataYESNO{form_, "kymataYESNO", onlyWavesPlace};    // wavefronts without rays

  // Lower edge of the diaphragm; its second end is the inner one.
  DiaphragmEdge Line2{form_, "Line2", {1800, 1320, 1920, 2640}};
  DiaphragmEdge Line1{form_, "Line1", {360, 0, 360, 1200}};  // upper edge
  EdgeMark mark2{form_, "mark2", edgeColour};                // while the lower edge is out of sight
  EdgeMark mark1{form_, "mark1", edgeColour};                // while the upper edge is
  EdgeMark sourceMark{form_, "sourceMark", sourceColour};    // while the source is

  // Bundle of parallel rays.
  MenuEntry parallilidesmifotos{form_, "parallilidesmifotos", "PARALLILI  DESMH"};
  MenuEntry TELOS{form_, "TELOS", "END"};                   // end of the program
  MenuEntry kymatikosahl{form_, "kymatikosahl", "WAVES"};   // wavefronts
  MenuEntry BACKKELMO{form_, "BACKKELMO", "BACK TO MENU"};  // back to the lens menu

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
