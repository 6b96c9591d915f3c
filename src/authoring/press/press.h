// The press: from a manuscript that was read to the bytes of a content file. It
// finds what names stand for, learns each word's offset from the layout itself,
// and builds the file with the store's own `AddPage` and `AddLink`. It reads and
// writes no file of the disk.
//
// What was pressed is loaded again before it is handed out, so that a file that
// comes from here holds what its author wrote, to the letter.
#pragma once

#include <optional>
#include <string>

#include "authoring/manuscript/manuscript.h"

namespace quill::authoring {

// The manuscripts that links may lead to. Null: there is none.
struct Neighbours {
  const Manuscript* glossary = nullptr;
  const Manuscript* lives = nullptr;
};

// The content file. None, and then `diagnostics` says why, by line, if a name stands
// for nothing or a page can't be set; `manuscript` must have been read without
// diagnostics. Makes the desktop in memory the current one while it works.
std::optional<std::string> Press(const Manuscript& manuscript, const Neighbours& neighbours,
                                 Diagnostics& diagnostics);

// What keeps a manuscript from being a glossary, whose window shows plain words
// alone: columns, links, styles, indents.
Diagnostics DiagnoseGlossary(const Manuscript& manuscript);

}  // namespace quill::authoring
