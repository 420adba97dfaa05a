// The diaphragm: an opening in a vertical line.
#pragma once

namespace lensbench::light {

// The vertical line x = X lets light through from yB to yA, ends included; user units. An opening
// of height 0 or less lets nothing through.
struct Diafragma {
  double X = 0.0;
  double yA = 0.0;  // inner end of the upper blade
  double yB = 0.0;  // inner end of the lower blade

  friend bool operator==(const Diafragma&, const Diafragma&) = default;
};

}  // namespace lensbench::light
