#include "host/qt/qt_look.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quill::host {
namespace {

constexpr double kHighContrast = 7;

// Relative luminance, as WCAG 2.1 defines it.
double LuminanceOf(base::Color color) {
  const auto linear = [](std::uint8_t part) {
    const double value = part / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

// `color` with so many 16ths of white in it.
base::Color Lightened(base::Color color, int parts) {
  const auto mix = [parts](std::uint8_t part) {
    return static_cast<std::uint8_t>(part + (255 - part) * parts / 16);
  };
  return base::RGB(mix(color.red), mix(color.green), mix(color.blue));
}

}  // namespace

double ContrastOf(base::Color a, base::Color b) {
  const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
  return (light + 0.05) / (dark + 0.05);
}

base::Color InkFor(const QtLook& look, base::Color color) {
  if (!look.high_contrast) return color;
  int parts = 0;
  while (parts < 16 && ContrastOf(Lightened(color, parts), base::kBlack) < kHighContrast) ++parts;
  return Lightened(color, parts);
}

base::Color GroundFor(const QtLook& look, base::Color color) {
  return look.high_contrast ? base::kBlack : color;
}

}  // namespace quill::host
