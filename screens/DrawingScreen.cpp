#include "screens/DrawingScreen.h"

#include "canvas/qt/DrawingArea.h"

namespace lensbench {

DrawingScreen::DrawingScreen(const FormDesign& design, const Context& context)
    : Form(design), context_(context) {
  area().describeBy([this] {
    // What the keyboard is on comes first, for that is what was asked about.
    const auto thing = thingFocus_.thing();
    return (thing ? thing->words + QLatin1Char('\n') : QString()) + inWords();
  });
  connect(&thingFocus_, &ThingFocus::Moved, &area(), &DrawingArea::tellWords);
}

}  // namespace lensbench
