// Puts the state of a lesson on its screen.
#pragma once

#include "screens/help/Lessons.h"

namespace lensbench {

class Screens;

// The screen of the lesson comes to the front with its lens, index, diaphragm, source, options and
// picture; waves that run stop. What no lesson speaks of stays as it is.
void setUp(Screens& screens, const lessons::Lesson& lesson);

}  // namespace lensbench
