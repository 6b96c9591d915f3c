// The words that there are in the library: which of them go on from what was typed,
// and which are near to what stands nowhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "search/library.h"
#include "search/tokens.h"

namespace quill::search {

struct Word {
  std::string word;  // as `Token` has it
  std::string stem;
  std::int64_t count = 0;  // of the places where it stands
};

class Vocabulary {
 public:
  // `words` must be in the order of their bytes.
  explicit Vocabulary(std::vector<Word> words);

  const std::vector<Word>& Words() const { return words_; }

  // Whether the word, or one that `beginning` takes it for the beginning of, stands
  // somewhere in whatever form.
  bool Knows(const Token& word, bool beginning) const;

  // Returns words that begin so, one for each stem.
  std::vector<std::string> StartingWith(std::string_view beginning) const;

  // Returns up to `most` words that differ from `word` by few letters put in, left out,
  // changed or swapped, the nearest first, of equals the more frequent. Of a `beginning`
  // only as much of a word is looked at as fits best. None for short words, to which
  // every other is near.
  std::vector<std::string> Nearest(std::string_view word, bool beginning, std::size_t most) const;

 private:
  std::vector<Word>::const_iterator FirstFrom(std::string_view word) const;

  std::vector<Word> words_;
  std::unordered_set<std::string> stems_;
};

// Returns the words of all titles and bodies, in the order of their bytes.
std::vector<Word> WordsOf(const Library& library);

}  // namespace quill::search
