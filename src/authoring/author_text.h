// Text as authors type it on a command line, turned into text of the program. Not for
// manuscripts, whose spellings are `authoring/manuscript/`.
#pragma once

#include <string>
#include <string_view>

namespace quill::authoring {

// `utf8` in Mac Roman. Throws `Complaint` for a character that is lost on the way
// to the reader because one of the two encodings lacks it.
std::string ProgramText(std::string_view utf8);

// The same for the text of a page, in which "\n" stands for the end of a
// paragraph, "\t" for a tab and "\\" for a backslash.
std::string ProgramParagraphs(std::string_view utf8);

}  // namespace quill::authoring
