// What stands in a screen's bars and boxes, as arrays, and back.
#pragma once

#include <array>
#include <cstddef>

#include <QSignalBlocker>
#include <QString>

#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/TextBox.h"

namespace lensbench {

template <class Bar, std::size_t N>
std::array<int, N> valuesOf(const std::array<Bar*, N>& bars) {
  std::array<int, N> values{};
  for (std::size_t i = 0; i < N; ++i) values[i] = bars[i]->Value();
  return values;
}

// No handler hears of it.
template <std::size_t N>
void setQuietly(const std::array<ScrollBar*, N>& bars, const std::array<int, N>& values) {
  for (std::size_t i = 0; i < N; ++i) {
    const QSignalBlocker quiet(bars[i]);
    bars[i]->Value(values[i]);
  }
}

template <class Box, std::size_t N>
std::array<QString, N> textsOf(const std::array<Box*, N>& boxes) {
  std::array<QString, N> texts;
  for (std::size_t i = 0; i < N; ++i) texts[i] = boxes[i]->Text();
  return texts;
}

template <std::size_t N>
void setTexts(const std::array<TextBox*, N>& boxes, const std::array<QString, N>& texts) {
  for (std::size_t i = 0; i < N; ++i) boxes[i]->Text(texts[i]);
}

}  // namespace lensbench
