// UTF-8, in which names of files and all text from outside come. Well-formed is
// what the Unicode Standard's table 3-7 says: no overlong form, no surrogate,
// nothing above U+10FFFF.
#pragma once

#include <string>
#include <string_view>

namespace quill::base {

inline constexpr char32_t kMalformed = 0xFFFD;  // stands for bytes that are no character

// Cuts off the character at the head of `text` and returns it. Of a malformed
// sequence one byte is cut off, and `kMalformed` returned. `text` must not be empty.
char32_t TakeUtf8(std::string_view& text);

// `point` must be a code point, at most U+10FFFF.
void AppendUtf8(std::string& text, char32_t point);

}  // namespace quill::base
