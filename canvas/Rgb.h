// Colours: 24-bit triples with red in the lowest byte, and the system colours among them.
#pragma once

#include <algorithm>
#include <cstdint>

namespace lensbench {

struct Rgb {
  std::uint32_t value = 0;

  constexpr int red() const noexcept { return static_cast<int>(value & 0xFFu); }
  constexpr int green() const noexcept { return static_cast<int>((value >> 8) & 0xFFu); }
  constexpr int blue() const noexcept { return static_cast<int>((value >> 16) & 0xFFu); }
  friend constexpr bool operator==(Rgb a, Rgb b) noexcept { return a.value == b.value; }
  friend constexpr bool operator!=(Rgb a, Rgb b) noexcept { return a.value != b.value; }
};

// Components above 255 count as 255, below 0 as 0.
constexpr Rgb RGB(int r, int g, int b) noexcept {
  const auto byte = [](int c) { return static_cast<std::uint32_t>(std::clamp(c, 0, 255)); };
  return {byte(r) | byte(g) << 8 | byte(b) << 16};
}

constexpr Rgb black = RGB(0, 0, 0);
constexpr Rgb white = RGB(255, 255, 255);

// A value with the high bit set names a colour of the system; 5 is the window background.
constexpr Rgb systemColour(int index) noexcept {
  return {0x80000000u | static_cast<std::uint32_t>(index)};
}

// What is painted for a colour: the system's window background is white here, and so is every
// other system colour, since the screens use no other.
constexpr Rgb painted(Rgb colour) noexcept {
  return (colour.value & 0x80000000u) != 0 ? white : colour;
}

}  // namespace lensbench
