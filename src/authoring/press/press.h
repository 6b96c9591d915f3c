// The press: from a manuscript that was read to the bytes of a content file. It
// finds what names stand for, learns each word's offset from the layout itself,
// and builds the file with the store's own `AddPage` and `AddLink`. It reads and
// writes no file of the disk.
//
// What was pressed is loaded again before it is handed out, so that a file that
// comes from here holds what its author wrote, to the letter. How a page looks is no
// matter here: a link that runs past its column is pressed, and the check tells.
#pragma once

#include <optional>
#include <string>

#include "authoring/manuscript/manuscript.h"
#include "authoring/press/neighbours.h"

namespace quill::authoring {

// Returns the bytes of the content file. None, and then `diagnostics` says why, if a
// name stands for nothing or a page can't be kept; `manuscript` must have been read
// without diagnostics, and `diagnostics` be empty. Makes the desktop in memory the
// current one while it works.
std::optional<std::string> Press(const Manuscript& manuscript, const Neighbours& neighbours,
                                 Diagnostics& diagnostics);

// What keeps a manuscript from being a glossary, whose window shows plain words
// alone: columns, links, styles, indents.
Diagnostics DiagnoseGlossary(const Manuscript& manuscript);

}  // namespace quill::authoring
