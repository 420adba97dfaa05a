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
  KelmoControls(Form& form, Clock& clock);

  // Puts every control at its place along the edges of a drawing area of this size, in pixels.
  void arrange(int width, int height);

  MenuEntry singleray;
  MenuEntry EPANALIPSI;
  MenuEntry SAHLIC;
  MenuEntry parallilakymata;
  MenuEntry kymatachronika;
  MenuEntry TELIOMA;

  ScrollBar aktina1;            // radius of the left circle
  TextBox Text6;                // radius of the left circle
  ScrollBar kentrokykloy2;      // centre of the left circle
  ScrollBar aktina2;            // radius of the right circle
  TextBox Text5;                // radius of the right circle
  ScrollBar kentrokykloy;       // centre of the right circle
  TextBox Text7;                // centre of the right circle
  ScrollBar deiktisdiathlasis;  // index of refraction x 100
  TextBox Text2;                // index of refraction
  ScrollBar desmi1;             // number of spaces between the rays of a bundle
  TextBox Text1;                // number of rays of a fan
  ScrollBar arvimaton;          // multiplier of the fan's step
  Label Label3;                 // multiplier
  CheckBox Check1;              // rays and waves
  CheckBox Check2;              // waves only
  ScrollBar VScroll1;           // lower end of the upper blade, % of the half height
  ScrollBar VScroll2;           // upper end of the lower blade
  ScrollBar HScroll1;           // abscissa of the diaphragm, % of the half width
  TextBox Text3;                // opening of the diaphragm
  TextBox Text4;                // abscissa of the diaphragm
  Label Label1;                 // how to send a fan of rays
  Label Label2;                 // what the mouse can move

  LineControl Line1;  // upper blade
  LineControl Line2;  // lower blade
  Shape pigi;         // light source; its corner is the source
  Shape Shape1;       // marker of the left centre while it is dragged
  Shape Shape2;       // marker of the right centre while it is dragged
  Shape draggedEdge;  // the circle whose edge is dragged
  // Where blade ends and source stand when the drawing area does not show them.
  EdgeMark upperBladeMark;
  EdgeMark lowerBladeMark;
  EdgeMark sourceMark;
  Timer Timer1;  // waves in time
  Timer Timer2;  // plane waves

 private:
  void setRanges();
  void setTexts();
  void setShapes();
  void describeAll();
  void setTabOrder();
};

}  // namespace lensbench
