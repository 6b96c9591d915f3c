// The layout of a page, as a function: texts, links, margins and metrics go in,
// placed words and placed links come out. It draws nothing and touches no
// button; the viewer does both with what comes out.
//
// Text flows word by word. A line feed ends a paragraph, a blank ends a word, a
// tab at the head of a word indents the rest of its paragraph, and a word that
// ends a sentence is followed by a second blank. Every other character is plain
// text; style comes from links alone.
//
// A link names its first word by a count that runs along, `TextOffset`: 0 at
// the top of each column, each word adds its length and 1, a removed tab adds 1
// and each paragraph end adds 1. So in a column of the two paragraphs
//
//     No now.        the words have the offsets  0  3
//     <tab>See it                               10 14
//
// and the count ends at 18. It is no index into the text: blanks that separate
// nothing don't count.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "content/document.h"
#include "host/graphics.h"
#include "render/page_geometry.h"

namespace quill::render {

// A page's links from this index on have no button to show them.
inline constexpr std::size_t kLinkButtons = 61;

// A field of a column's text: what stands between two blanks of a paragraph.
struct FieldIndex {
  std::size_t paragraph = 0;
  std::size_t field = 0;
};

// Text on the canvas: a word of the flow, or an offset label below one. `x`,
// `y` is the left end of its base line, in pixels of the canvas.
struct PlacedWord {
  std::string text;
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::int32_t column = 0;  // from 1
  std::int32_t offset = 0;  // of the word, or of the word that a label names
  FieldIndex field;         // where the word stands in the text
};

// A link that found its word.
struct PlacedLink {
  std::size_t index = 0;  // in the page's list, below `kLinkButtons`
  std::int32_t left = 0;  // upper left corner of its button, on the canvas
  std::int32_t top = 0;
  std::string text;
  bool shown = false;  // false for a styled run, whose button stays hidden
  std::int32_t column = 0;
  std::int32_t offset = 0;  // of its first word
  FieldIndex field;         // where its first word stands in the text
  std::int32_t fields = 1;  // so many of the paragraph's fields are its text
};

struct PageLayout {
  std::vector<PlacedWord> words;
  std::vector<PlacedLink> links;

  // Returns a line for each word and link, in the order they were placed.
  std::string Dump() const;
};

struct LayoutSettings {
  PageGeometry geometry;
  host::TextFace face;           // of plain text; its style flags must be clear
  std::int32_t button_rise = 0;  // from a line's base line up to a button's top, pixels
  double paragraph_step = 1.0;   // space behind a paragraph, in line heights
  bool show_offsets = false;     // write each word's offset below it
};

// Lays out columns 1 to `page.GetColumns()`. Takes time linear in the text and
// the links. Numbers that hostile text drives out of int32 saturate.
PageLayout LayOutPage(const content::Page& page, const LayoutSettings& settings, host::FontMetrics& metrics);

// Draws the words with `graphics`, whose style flags are left as the last word
// set them.
void DrawWords(const PageLayout& layout, host::Graphics& graphics);

}  // namespace quill::render
