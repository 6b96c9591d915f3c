// The layout of a glossary entry: one block of wrapped text. It is simpler than
// that of a page: no links, no columns, no tabs, no gap behind a sentence. One
// thing differs to the eye: where blanks follow each other, the gap is the one
// blank and, for each further one, the width of the word before.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/graphics.h"

namespace quill::render {

// Where things lie, in pixels of the window.
inline constexpr base::Rect kEntryCanvas = {2, 2, 459, 356};
inline constexpr base::Rect kEntryClose = {378, 327, 59, 24};

// A word, the left end of its base line at `x`, `y`.
struct EntryWord {
  std::string text;
  std::int32_t x = 0;
  std::int32_t y = 0;
};

// Where the text lies, in pixels of the canvas.
struct EntryMargins {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;  // where a word with its blank must end
};

inline constexpr EntryMargins kEntryMargins = {10, 30, kEntryCanvas.width - 10};

// Lays out `text` in that face. Text that doesn't fit runs on below; a word
// wider than the margins moves to a new line and runs past the right one.
// Takes time linear in the text; what leaves int32 saturates.
std::vector<EntryWord> LayOutEntry(std::string_view text, const EntryMargins& margins,
                                   const host::TextFace& face, host::FontMetrics& metrics);

}  // namespace quill::render
