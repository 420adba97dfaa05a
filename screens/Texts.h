// Captions followed by numbers.
#pragma once

#include <string>

#include <QString>

namespace lensbench {

// A caption in UTF-8 with a formatted number right behind it.
inline QString labelled(const char* caption, const std::string& number) {
  return QString::fromUtf8(caption) + QString::fromStdString(number);
}

}  // namespace lensbench
