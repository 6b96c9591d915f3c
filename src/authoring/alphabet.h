// The characters that reach the page: those that both Mac Roman, in which the
// reader handles text, and ISO 8859-1, in which files hold it, have. All others are
// refused with a word to the author: the reader would replace them in silence.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill::authoring {

// The byte for a character in the program's text. None for one that a page can't
// show; control characters but the tab and the line feed are among those.
std::optional<char> ToProgram(char32_t character);

// Says that a page can't show `character`, and what to write in its place if there
// is something near. `base::kMalformed` stands for bytes that are no character.
std::string CannotShow(char32_t character);

// Program text as UTF-8, in the quotes that messages put around an author's words.
std::string Quoted(std::string_view program_text);

}  // namespace quill::authoring
