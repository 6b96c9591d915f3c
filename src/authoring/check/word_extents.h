// Where each word of a page stands in the window: what the check of a page compares
// with its buttons and with the window's edges. The layout has placed the words;
// here they are measured. It finds nothing wrong itself.
//
// All numbers are pixels of the window, whose canvas begins at its upper left
// corner. Right ends and bottoms are not in: the first pixel beyond.
#pragma once

#include <cstdint>
#include <map>
#include <tuple>

#include "base/geometry.h"
#include "host/graphics.h"
#include "render/page_layout.h"

namespace quill::authoring {

// A word of a page, by the column and the offset at which it starts.
struct WordStart {
  std::int32_t column = 0;  // from 1
  std::int32_t offset = 0;

  friend bool operator<(const WordStart& a, const WordStart& b) {
    return std::tie(a.column, a.offset) < std::tie(b.column, b.offset);
  }
};

struct WordExtent {
  std::int32_t base_line = 0;
  std::int32_t left = 0;
  std::int32_t right = 0;
};

// In the order of the text, column by column.
using WordExtents = std::map<WordStart, WordExtent>;

// The extents of all words of a layout that `settings` have made. The first word of
// a link with a button, which the canvas doesn't show, is as wide as the button.
WordExtents ExtentsOf(const render::PageLayout& layout, const render::LayoutSettings& settings,
                      host::FontMetrics& metrics);

// The area that a link's button covers once it is shown.
base::Rect ButtonOf(const render::PlacedLink& link, const render::LayoutSettings& settings,
                    host::FontMetrics& metrics);

// How far letters such as "g" reach down below their base line.
std::int32_t Descent(const host::TextFace& face, host::FontMetrics& metrics);

std::int32_t Right(const base::Rect& area);
std::int32_t Bottom(const base::Rect& area);

// Rows of pixels that two areas have in common; 0 where they are apart.
std::int32_t CommonRows(const base::Rect& a, const base::Rect& b);

}  // namespace quill::authoring
