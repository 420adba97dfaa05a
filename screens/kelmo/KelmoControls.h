// The controls, menu entries, shapes and timers of the workbench, with their design data.
#pragma once

#include "canvas/qt/CheckBox.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/Shape.h"
#include "canvas/qt/TextBox.h"
#include "canvas/qt/Timer.h"
#include "screens/EdgeMark.h"

namespace lensbench {

struct KelmoControls {
 private:
  Form& form_;
  Clock& clock_;
  static constexpr Rgb bladeColour = RGB(100, 100, 0);

 public:
  KelmoControls(Form& form, Clock& clock);

  // Puts every control at its place along the edges of a drawing area of this size, in pixels.
  void arrange(int width, int height);

  // Controls whose place is {} get one from the size of the drawing area.
  MenuEntry singleray{form_, "singleray", "AKTINA RAY"};
  MenuEntry EPANALIPSI{form_, "EPANALIPSI", "// BUNDLE  DESMH"};
  MenuEntry SAHLIC{form_, "SAHLIC", "IBN SAHL"};
  MenuEntry parallilakymata{form_, "parallilakymata", "// WAVES  KYMATA"};
  MenuEntry kymatachronika{form_, "kymatachronika", "WAVES IN  TIME  XPONIKA"};
  MenuEntry TELIOMA{form_, "TELIOMA", "END"};

  ScrollBar aktina1{form_, "aktina1", Qt::Horizontal, {}};  // radius of the left circle
  TextBox Text6{form_, "Text6", {}};                        // radius of the left circle
  // Centre of the left circle.
  ScrollBar kentrokykloy2{form_, "kentrokykloy2", Qt::Horizontal, {}};
  ScrollBar aktina2{form_, "aktina2", Qt::Horizontal, {}};  // radius of the right circle
  TextBox Text5{form_, "Text5", {}};                        // radius of the right circle
  // Centre of the right circle.
  ScrollBar kentrokykloy{form_, "kentrokykloy", Qt::Horizontal, {}};
  TextBox Text7{form_, "Text7", {}};  // centre of the right circle
  // Index of refraction x 100.
  ScrollBar deiktisdiathlasis{form_, "deiktisdiathlasis", Qt::Horizontal, {}};
  TextBox Text2{form_, "Text2", {}};  // index of refraction
  // Number of spaces between the rays of a bundle.
  ScrollBar desmi1{form_, "desmi1", Qt::Horizontal, {}};
  TextBox Text1{form_, "Text1", {}};                            // number of rays of a fan
  ScrollBar arvimaton{form_, "arvimaton", Qt::Horizontal, {}};  // multiplier of the fan's step
  Label Label3{form_, "Label3", {}};                            // multiplier
  CheckBox Check1{form_, "Check1", {}};                         // rays and waves
  CheckBox Check2{form_, "Check2", {}};                         // waves only
  // Lower end of the upper blade, % of the half height.
  ScrollBar VScroll1{form_, "VScroll1", Qt::Vertical, {}};
  ScrollBar VScroll2{form_, "VScroll2", Qt::Vertical, {}};  // upper end of the lower blade
  // Abscissa of the diaphragm, % of the half width.
  ScrollBar HScroll1{form_, "HScroll1", Qt::Horizontal, {}};
  TextBox Text3{form_, "Text3", {}};  // opening of the diaphragm
  TextBox Text4{form_, "Text4", {}};  // abscissa of the diaphragm
  Label Label1{form_, "Label1", {}};  // how to send a fan of rays
  Label Label2{form_, "Label2", {}};  // what the mouse can move

  LineControl Line1{form_, "Line1", {}};      // upper blade
  LineControl Line2{form_, "Line2", {}};      // lower blade
  Shape pigi{form_, "pigi", {0, 0, 75, 75}};  // light source; its corner is the source
  // Marker of the left centre while it is dragged.
  Shape Shape1{form_, "Shape1", {0, 0, 135, 135}};
  // Marker of the right centre while it is dragged.
  Shape Shape2{form_, "Shape2", {0, 0, 135, 135}};
  Shape draggedEdge{form_, "draggedEdge", {}};  // the circle whose edge is dragged
  // Where blade ends and source stand when the drawing area does not show them.
  EdgeMark upperBladeMark{form_, "upperBladeMark", bladeColour};
  EdgeMark lowerBladeMark{form_, "lowerBladeMark", bladeColour};
  EdgeMark sourceMark{form_, "sourceMark", sourceColour};
  Timer Timer1{form_, "Timer1", clock_};  // waves in time
  Timer Timer2{form_, "Timer2", clock_};  // plane waves

 private:
  void setRanges();
  void setTexts();
  void setShapes();
  void describeAll();
  void setTabOrder();
};

}  // namespace lensbench
