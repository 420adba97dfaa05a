#include "screens/DisplayScale.h"

namespace lensbench {

void scaleToClientArea(Form& form) {
  // The surface's own size: a window that is hidden may already be smaller than its picture.
  const double W = form.canvas().size().width();
  const double H = form.canvas().size().height();
  const double right = 600.0 * W / (W + H);
  const double top = 600.0 * H / (W + H);
  form.canvas().Scale(-right, top, right, -top);
}

}  // namespace lensbench
