// From the letters of a paragraph to words of a column, with their indents, and
// to the runs that lie on them. It knows the reader's text, and of the
// manuscript's spellings the stop `{2}` alone; links and styles come to it as marks
// on letters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "authoring/manuscript/diagnostic.h"
#include "authoring/manuscript/manuscript.h"

namespace quill::authoring {

// In Mac Roman. To the layout it is a letter like others.
inline constexpr char kNoBreakBlank = static_cast<char>(0xCA);

// What lies on a letter. Neighbours with the same mark are one run.
struct Mark {
  std::int32_t style = 0;  // link type of the style, 3 to 8; 0 for plain letters
  std::int32_t link = -1;  // index among the paragraph's targets, -1 for none

  bool IsPlain() const { return style == 0 && link < 0; }
  friend bool operator==(const Mark&, const Mark&) = default;
};

struct Letter {
  char code = ' ';  // Mac Roman; a line feed is no letter
  int line = 1;
  Mark mark;
  bool verbatim = false;  // taken as it stands: no stop, and no sign of a slip
};

// Where a paragraph begins, in stops: the steps of 25 pixels by which a tab moves
// the margin of the reader's page.
struct Indent {
  std::int32_t gutter = 0;  // stops to the left of what the author counts as stop 0
  std::int32_t stop = 0;
  std::string number;  // stands one stop before; empty for none
};

struct Paragraph {
  std::vector<Letter> letters;
  std::vector<Target> targets;
  Indent indent;
};

// Appends `paragraph` to `column`. One without words is an empty paragraph, whatever
// its indent. A run that can't lie on whole words goes to `diagnostics` instead.
void TypesetParagraph(const Paragraph& paragraph, Column& column, Diagnostics& diagnostics);

}  // namespace quill::authoring
