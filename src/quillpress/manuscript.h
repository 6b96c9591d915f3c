// A manuscript: what an author writes in CommonMark, read into pages, columns and
// the runs of words that lead somewhere or are styled. Names of other pages are
// kept as names; the press finds what they stand for. docs/AUTHORING.md tells
// every spelling.
//
// Text is in the program's encoding, Mac Roman, and in the form that the reader
// lays out: paragraphs parted by line feeds, words by single blanks, an indent as
// a tab at the head of a word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quillpress/problem.h"

namespace quill::quillpress {

// What a link leads to.
enum class Goal { kNone, kPage, kEntry, kDocument, kNotes, kMode, kLife };

struct Target {
  Goal goal = Goal::kNone;
  std::int32_t type = 0;  // the link's type; of a styled run its style
  std::string name;       // of page, entry or life; of the file; the mode's number
};

// Words that belong together, in one paragraph.
struct Run {
  std::size_t word = 0;     // place of its first word in the column, from 0
  std::int32_t length = 0;  // characters to its end, the blanks between counted
  Target target;
  int line = 1;
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
  Problems problems;  // by line; pages are to be trusted only if there are none
};

// Never fails: what can't be read is among the problems. `markdown` is UTF-8.
Manuscript ReadManuscript(std::string_view markdown);

}  // namespace quill::quillpress
