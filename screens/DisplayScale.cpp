#include "screens/DisplayScale.h"

namespace lensbench {

void scaleToClientArea(Form& form) {
  const double W = form.drawingArea()->width();
  const double H = form.drawingArea()->height();
  const double right = 600.0 * W / (W + H);
  const double top = 600.0 * H / (W + H);
  form.canvas().Scale(-right, top, right, -top);
}

}  // namespace lensbench
