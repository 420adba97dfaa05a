// The buttons, scroll bar and label of the lens menu, with their design data.
#pragma once

#include "canvas/qt/CommandButton.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/ScrollBar.h"

namespace lensbench {

struct MenuControls {
  explicit MenuControls(Form& form);

  CommandButton Command1;  // biconvex hyperbolic lens
  CommandButton Command2;  // plano-convex hyperbolic lens
  ScrollBar deiktissahl;   // index of refraction x 100
  CommandButton Command3;  // spherical lenses
  Label Label1;            // index of refraction

 private:
  void setTexts();
  void makeRoom(Form& form);
  void makeRoomForLargeTexts(Form& form);
  void describeAll();
  void setTabOrder();
};

}  // namespace lensbench
