// Documents of text as PDF files. The reader itself writes none: the build does,
// for the documents that pages link to.
#pragma once

#include <filesystem>
#include <string>

namespace quill::typeset {

// Sets `markdown` (UTF-8; tables and check lists are understood) on A4 pages and
// writes them to `path`. At the foot of each page stand `title`, which is also
// the file's own, and the number of the page. The same text gives the same bytes.
//
// False if the file can't be written; what was there is still. Needs a
// `QtDesktop`, whose fonts it sets the text in; it may be one without a screen.
bool WritePdf(const std::string& markdown, const std::string& title, const std::filesystem::path& path);

}  // namespace quill::typeset
