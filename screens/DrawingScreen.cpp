#include "screens/DrawingScreen.h"

#include "canvas/qt/DrawingArea.h"

namespace lensbench {

DrawingScreen::DrawingScreen(const FormDesign& design, const Context& context)
    : Form(design), context_(context) {
  area().describeBy([this] { return inWords(); });
}

}  // namespace lensbench
