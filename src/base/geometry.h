// Small values that cross the seam to the desktop.
#pragma once

#include <cstdint>

namespace quill::base {

// A rectangle in whole pixels. `left` and `top` count from its parent's upper
// left corner, x to the right and y downward; its right and bottom edge
// (left + width, top + height) lie outside.
struct Rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  friend bool operator==(const Rect&, const Rect&) = default;
};

// An opaque colour, each part 0 to 255.
struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const Color&, const Color&) = default;
};

constexpr Color RGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) { return {red, green, blue}; }

inline constexpr Color kWhite = RGB(255, 255, 255);
inline constexpr Color kBlack = RGB(0, 0, 0);

}  // namespace quill::base
