#include "host/qt/qt_values.h"

#include <algorithm>

namespace quill::host {
namespace {

// Farthest place and largest size of a widget.
constexpr std::int32_t kFarthest = 1'000'000;
constexpr std::int32_t kLargest = 1'000'000;

}  // namespace

QColor ToQColor(base::Color color) { return {color.red, color.green, color.blue}; }

QRect ToQRect(const base::Rect& frame) {
  return {std::clamp(frame.left, -kFarthest, kFarthest), std::clamp(frame.top, -kFarthest, kFarthest),
          std::clamp(frame.width, 0, kLargest), std::clamp(frame.height, 0, kLargest)};
}

}  // namespace quill::host
