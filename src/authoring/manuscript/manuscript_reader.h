// From CommonMark to a manuscript. docs/AUTHORING.md tells every spelling; what
// CommonMark has and a page can't show is refused with the cure.
#pragma once

#include <string_view>

#include "authoring/manuscript/manuscript.h"

namespace quill::authoring {

// Never fails: what can't be read is among the manuscript's diagnostics.
// `markdown` is UTF-8.
Manuscript ReadManuscript(std::string_view markdown);

}  // namespace quill::authoring
