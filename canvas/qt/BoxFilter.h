// Bringing an oversampled image down to the pixels of the display.
#pragma once

#include <QImage>
#include <QRect>

namespace lensbench {

// Sets the pixels of target inside area to the mean of the k x k pixels of source that stand for
// each, rounded to the nearest. Both images are 32-bit; source is k times as wide and as high.
void boxFilter(const QImage& source, QImage& target, const QRect& area, int k);

}  // namespace lensbench
