// What a picture says of a point of it.
#pragma once

#include <string>

#include "canvas/Canvas.h"

namespace lensbench {

// Something drawn, named for a person.
struct Answer {
  std::string text;       // UTF-8: Greek lines, then the same in English
  Point at;               // the point of it that is nearest, user units
  double distance = 0.0;  // from the point that was asked about to there, user units
  bool event = false;     // whether something happens to a ray there
};

}  // namespace lensbench
