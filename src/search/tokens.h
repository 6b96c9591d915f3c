// The words of a text, as the index takes them: letters and digits, in lower case
// and without accents, each with its stem. The work is done by SQLite's own
// tokenizers (`unicode61` and `porter`), which the index names too.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quill::search {

struct Token {
  std::string word;
  std::string stem;
  std::size_t begin = 0;  // its bytes in the text, from and up to
  std::size_t end = 0;
};

// Returns the words of `text`, UTF-8; bytes that aren't part words. None if SQLite has
// no such tokenizers.
std::vector<Token> Tokens(std::string_view text);

}  // namespace quill::search
