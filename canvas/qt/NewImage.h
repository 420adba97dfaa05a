// Images of the toolkit that are there when they have been made.
#pragma once

#include <new>

#include <QImage>
#include <QSize>

namespace lensbench {

// An image of 32 bits a pixel, not set to anything. Where memory has run out the toolkit gives one
// without pixels and says nothing; this throws.
inline QImage newImage(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  if (image.isNull() && !size.isEmpty()) throw std::bad_alloc();
  return image;
}

}  // namespace lensbench
