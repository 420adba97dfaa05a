// The buttons, scroll bar and label of the lens menu, with their design data.
#pragma once

#include "canvas/qt/CommandButton.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/ScrollBar.h"

namespace lensbench {

struct MenuControls {
 private:
  Form& form_;

 public:
  explicit MenuControls(Form& form);

  CommandButton Command1{form_, "Command1", {120, 600, 2220, 855}};  // biconvex hyperbolic lens
  // Plano-convex hyperbolic lens.
  CommandButton Command2{form_, "Command2", {2280, 600, 2295, 855}};
  // Index of refraction x 100.
  ScrollBar deiktissahl{form_, "deiktissahl", Qt::Horizontal, {360, 2280, 2535, 375}};
  CommandButton Command3{form_, "Command3", {4680, 600, 2175, 855}};  // spherical lenses
  Label Label1{form_, "Label1", {3120, 2160, 1575, 735}};             // index of refraction

 private:
  void setTexts();
  void makeRoom(Form& form);
  void makeRoomForLargeTexts(Form& form);
  void describeAll();
  void setTabOrder();
};

}  // namespace lensbench
