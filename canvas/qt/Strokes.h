// Rastering: one-pixel lines, round pens, dots and discs, each written straight into the image.
//
// Coordinates are image pixels; the pixel (i, j) covers [i, i + 1) x [j, j + 1). Pixels are hard:
// painted or not, so that the same figure in the background's colour takes away what it painted.
#pragma once

#include <vector>

#include "canvas/qt/Clipping.h"
#include "canvas/qt/Pixels.h"

namespace lensbench {

// An unbroken (8-connected) chain from the pixel of one end to the pixel of the other, the same in
// both directions. Both ends must lie in the image.
void strokeThin(const Pixels& pixels, const Segment& line, PixelValue colour);

// Every pixel whose middle is within radius of the line; what lies outside the image is left out.
void strokeRound(const Pixels& pixels, const Segment& line, double radius, PixelValue colour);

void fillDisc(const Pixels& pixels, Point centre, double radius, PixelValue colour);

// A round dot of whole pixels, the same shape wherever it is put.
class DotStamp {
 public:
  explicit DotStamp(int diameter);
  int diameter() const noexcept { return static_cast<int>(inset_.size()); }
  // left, top: the upper-left pixel of its square.
  void paint(const Pixels& pixels, int left, int top, PixelValue colour) const noexcept;

 private:
  std::vector<int> inset_;  // per row, how many pixels of the square stay free at each side
};

}  // namespace lensbench
