// Which words of a text a query means: where they stand, and the line around them.
// It asks the same tokenizer and stemmer as the index, so that what is marked is
// what was found.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "search/library.h"
#include "search/query.h"

namespace quill::search {

// Characters from index `begin` up to, and without, `end`. They count from 0 and are
// characters of Unicode, not bytes: one each in the program's own text and in UTF-16
// too, so that a range fits the text in whichever form a window holds it.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const Range&) const = default;
};

// Returns the words of `text`, UTF-8, that `query` means, from left to right. Words in
// quotes are marked where they stand together. To mark a page, call it for each
// of its paragraphs.
std::vector<Range> MarkedIn(std::string_view text, const Query& query);
std::vector<Range> MarkedIn(std::string_view text, std::string_view query);

// What a hit shows of a text.
struct Excerpt {
  std::string line;                // the part of the body in which most of the words stand
  std::vector<Range> marked;       // in `line`
  std::vector<std::string> forms;  // the words of title and body that are meant, as `Token` has them
};

// The line is cut between words, with "..." where something is left out; it is the
// body's beginning if the words stand in the title alone. Forms come each once, in
// the order of the alphabet.
Excerpt ExcerptOf(const Text& text, const Query& query);

}  // namespace quill::search
