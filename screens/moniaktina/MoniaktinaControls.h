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
 private:
  Form& form_;

 public:
  explicit MoniaktinaControls(Form& form);

  TextBox Text6{form_, "Text6", {2760, 360, 1335, 375}};  // radius of circle 1
  // Radius of circle 1, whose arc is the right face.
  ScrollBar aktina1{form_, "aktina1", Qt::Horizontal, {0, 360, 2775, 375}};
  TextBox Text5{form_, "Text5", {2760, 0, 1335, 375}};  // radius of circle 2
  // Radius of circle 2, whose arc is the left face.
  ScrollBar aktina2{form_, "aktina2", Qt::Horizontal, {0, 0, 2775, 375}};
  TextBox Text2{form_, "Text2", {2520, 720, 2175, 375}};  // index of refraction
  // Index of refraction x 100.
  ScrollBar deiktisdiathlasis{form_, "deiktisdiathlasis", Qt::Horizontal, {0, 720, 2415, 375}};
  CommandButton Command1{form_, "Command1", {4200, 120, 1335, 495}};  // back to the workbench
  TextBox Text7{form_, "Text7", {2520, 1080, 3135, 375}};  // abscissa of the centre of circle 2
  // Abscissa of the centre of circle 2.
  ScrollBar kentrokykloy{form_, "kentrokykloy", Qt::Horizontal, {-120, 1080, 2655, 375}};

  // From the source to the mouse while the button is held.
  LineControl aim{form_, "aim", {0, 0, 0, 0}};
  Shape fos{form_, "fos", {1080, 2160, 135, 135}};         // light source; its middle is the source
  EdgeMark sourceMark{form_, "sourceMark", sourceColour};  // while the source is out of sight

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
