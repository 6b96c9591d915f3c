// From CommonMark to a manuscript. docs/AUTHORING.md tells every spelling; what
// CommonMark has and a page can't show is refused with the cure.
//
// Its source is the one that knows the parser, cmark. What the parser's nodes mean
// on a page is `ManuscriptBuilder`'s matter; where names lead is the press's.
#pragma once

#include <string_view>

#include "authoring/manuscript/manuscript.h"

namespace quill::authoring {

// Reads `markdown`, UTF-8 with or without a byte order mark. Never fails: what
// can't be read is among the manuscript's diagnostics.
Manuscript ReadManuscript(std::string_view markdown);

}  // namespace quill::authoring
