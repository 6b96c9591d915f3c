#include "render/page_geometry.h"

#include "base/numbers.h"

namespace quill::render {
namespace {

constexpr std::int32_t kPageMargin = 30;

}  // namespace

void PageGeometry::SetMargins(std::int32_t columns, std::int32_t canvas_width) {
  LeftMargin[0] = kPageMargin;
  RightMargin[0] = canvas_width - LeftMargin[0];
  if (columns < 1 || columns > 3) return;
  const std::int32_t text_width = canvas_width - 2 * LeftMargin[0];
  const std::int32_t column_width = base::ToInt32(text_width / static_cast<double>(columns));
  std::int32_t left = LeftMargin[0];
  for (std::size_t n = 1; n <= static_cast<std::size_t>(columns); ++n) {
    LeftMargin[n] = left;
    RightMargin[n] = left + column_width;
    left = RightMargin[n];
  }
}

}  // namespace quill::render
