#include "screens/DrawingScreen.h"

namespace lensbench {

DrawingScreen::DrawingScreen(const FormDesign& design, const Context& context)
    : Form(design), context_(context) {}

}  // namespace lensbench
