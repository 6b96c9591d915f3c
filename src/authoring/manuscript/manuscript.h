// A manuscript as it was read: pages, columns and the runs of words that lead
// somewhere or are styled. Names of other pages are kept as names; the press finds
// what they stand for. The lines of an index are among the words, as if its author had
// written them. Plain values; `manuscript_reader.h` makes them, and whoever called it
// owns them.
//
// Nothing here counts as the layout does: a run names its first word by its index,
// and only the press asks the layout for that word's offset.
//
// Text is in the program's encoding, Mac Roman, and in the form that the reader
// lays out: paragraphs parted by line feeds, words by single blanks, an indent as
// a tab at the head of a word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "authoring/manuscript/diagnostic.h"

namespace quill::authoring {

// What the author has written a link to lead to.
struct Target {
  enum class Kind { kNone, kPage, kEntry, kDocument, kNotes, kMode, kLife };

  Kind kind = Kind::kNone;
  std::int32_t type = 0;  // the link's type; of a styled run its style
  std::string name;       // of page, entry or life; of the file; the mode's number; UTF-8
};

// Words that belong together, in one paragraph.
struct Run {
  std::size_t word = 0;     // index of its first word in the column
  std::int32_t length = 0;  // characters to its end, the blanks between counted
  Target target;
  int line = 1;  // of the manuscript, for what is wrong with its target
};

struct Column {
  std::string text;
  std::vector<Run> runs;       // in the order of the text
  std::size_t paragraphs = 0;  // an empty first one leaves no trace in `text`
  std::size_t words = 0;       // as the layout counts them: a tab alone is one
};

struct ManuscriptPage {
  std::string title;
  std::string name;  // UTF-8; empty if nobody can link to it
  int line = 1;      // of the title
  std::vector<Column> columns;
};

struct Manuscript {
  std::string application = "Quillmere";
  std::string version = "1.0";
  bool gutter = false;  // paragraphs of columns 2 and 3 stand one stop in
  std::vector<ManuscriptPage> pages;
  Diagnostics diagnostics;  // by line; pages are to be trusted only if there are none
};

}  // namespace quill::authoring
