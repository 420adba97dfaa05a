// What stands on the picture of the Ibn Sahl screen, once more with other values.
#pragma once

#include "optics/protosfakos/Picture.h"

namespace lensbench::protosfakos {

// The same layers with the lens, diaphragm and options of what is asked: its fan in place of each
// fan, and bundles of their own slope. What does not change is not traced again.
Shown repeated(const Shown& stood, const Asked& now);

}  // namespace lensbench::protosfakos
