// The controls of the single-ray screen, with their design data.
#pragma once

#include "canvas/qt/CommandButton.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/Shape.h"
#include "canvas/qt/TextBox.h"
#include "screens/EdgeMark.h"

namespace lensbench {

struct MoniaktinaControls {
  explicit MoniaktinaControls(Form& form);

  TextBox Text6;                // radius of circle 1
  ScrollBar aktina1;            // radius of circle 1, whose arc is the right face
  TextBox Text5;                // radius of circle 2
  ScrollBar aktina2;            // radius of circle 2, whose arc is the left face
  TextBox Text2;                // index of refraction
  ScrollBar deiktisdiathlasis;  // index of refraction x 100
  CommandButton Command1;       // back to the workbench
  TextBox Text7;                // abscissa of the centre of circle 2
  ScrollBar kentrokykloy;       // abscissa of the centre of circle 2

  LineControl aim;      // from the source to the mouse while the button is held
  Shape fos;            // light source; its middle is the source
  EdgeMark sourceMark;  // while the source is out of sight

  // The source, user units.
  Point source() const;
  // Moves the source there.
  void placeSource(Point source);

 private:
  void setRanges();
  void setLooks();
  void describeAll();
  void placeRows();
  void makeRoomForTexts();
  void setTabOrder();
};

}  // namespace lensbench
