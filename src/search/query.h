// What was typed into Find, taken apart:
//
//   inciting inc        words; the last one is a beginning
//   "two words"         stand together; without the second quote the last is a beginning
//   V.O. half-hour      so do the words of one spelling
//   area:tv             narrows to the areas whose name begins so
//
// Anything may be typed. What is no word parts words and means nothing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "search/tokens.h"

namespace quill::search {

// Of longer queries the beginning counts.
inline constexpr std::size_t kMostQueryBytes = 1000;
inline constexpr std::size_t kMostQueryWords = 32;

// Words that stand together, one at least.
struct Term {
  std::vector<Token> words;
  bool beginning = false;  // the last word may go on

  // Stems of words that go on from it, when they don't begin with it themselves: "join"
  // of "joini". Only an index knows them, and fills this.
  std::vector<std::string> stems = {};
};

// A page must have all terms.
struct Query {
  std::vector<Term> terms;
  std::vector<std::string> areas;  // beginnings of their names, upper case; empty for all
};

// `typed` is UTF-8; bytes that aren't part words.
Query ParseQuery(std::string_view typed);

}  // namespace quill::search
