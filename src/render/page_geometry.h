// The numbers that place text on a page: margins of the page and its columns.
#pragma once

#include <array>
#include <cstdint>

namespace quill::render {

// From base line to base line inside a paragraph, in line heights.
inline constexpr double kLineStep = 1.5;

// Pixels from the canvas's upper left corner. Index 0 of each array is the whole
// page, 1 to 3 are the columns; left edges lie inside, right edges are where a
// word with its trailing blank must end.
struct PageGeometry {
  std::array<std::int32_t, 4> LeftMargin = {};
  std::array<std::int32_t, 4> RightMargin = {};
  std::int32_t TopMargin = 0;  // where every column starts

  // Divides a canvas of that width between `columns` columns, 1 to 3, with no
  // gap between neighbours. Elements of columns that the page doesn't have keep
  // what they held; any other number of columns sets the page's own alone.
  void SetMargins(std::int32_t columns, std::int32_t canvas_width);
};

}  // namespace quill::render
