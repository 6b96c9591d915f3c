#include "search/vocabulary.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

namespace quill::search {
namespace {

// Longer ones are no words of a language.
constexpr std::size_t kLongestMisspelling = 32;

// How many letters may be wrong in a word of that length.
std::size_t MostErrors(std::size_t length) { return length < 3 ? 0 : length < 6 ? 1 : 2; }

// How far a word is from another: letters put in, left out, changed or swapped with
// their neighbour. With the whole of the other, and with the part of it from its
// begin that is nearest.
struct Distance {
  std::size_t to_beginning = 0;
  std::size_t to_whole = 0;
};

// Fills the usual table row by row, of which the last three are kept: row i has the
// distances of the first i letters of `word` to every beginning of `other`. The
// optimal string alignment distance, to use its name.
class DistanceMeter {
 public:
  explicit DistanceMeter(std::string_view word) : word_(word) {}

  Distance To(std::string_view other) {
    row_.resize(other.size() + 1);
    for (std::size_t j = 0; j <= other.size(); ++j) row_[j] = j;
    for (std::size_t i = 1; i <= word_.size(); ++i) NextRow(i, other);
    return {*std::min_element(row_.begin(), row_.end()), row_.back()};
  }

 private:
  void NextRow(std::size_t i, std::string_view other) {
    std::swap(before_, above_);
    std::swap(above_, row_);
    row_.assign(other.size() + 1, i);
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const std::size_t change = word_[i - 1] == other[j - 1] ? 0 : 1;
      row_[j] = std::min({above_[j] + 1, row_[j - 1] + 1, above_[j - 1] + change});
      const bool swapped = i > 1 && j > 1 && word_[i - 1] == other[j - 2] && word_[i - 2] == other[j - 1];
      if (swapped) row_[j] = std::min(row_[j], before_[j - 2] + 1);
    }
  }

  std::string_view word_;
  std::vector<std::size_t> before_;
  std::vector<std::size_t> above_;
  std::vector<std::size_t> row_;
};

// A word that is near, in the order in which it is offered.
struct Neighbour {
  Distance distance;
  const Word* word = nullptr;

  bool operator<(const Neighbour& other) const { return Rank() < other.Rank(); }

 private:
  std::tuple<std::size_t, std::size_t, std::int64_t> Rank() const {
    return {distance.to_beginning, distance.to_whole, -word->count};
  }
};

}  // namespace

Vocabulary::Vocabulary(std::vector<Word> words) : words_(std::move(words)) {
  for (const Word& word : words_) stems_.insert(word.stem);
}

std::vector<Word>::const_iterator Vocabulary::FirstFrom(std::string_view word) const {
  return std::lower_bound(words_.begin(), words_.end(), word,
                          [](const Word& a, std::string_view b) { return a.word < b; });
}

bool Vocabulary::Knows(const Token& word, bool beginning) const {
  if (stems_.contains(word.stem)) return true;
  const auto next = FirstFrom(word.word);
  return beginning && next != words_.end() && next->word.starts_with(word.word);
}

std::vector<std::string> Vocabulary::StartingWith(std::string_view beginning) const {
  std::vector<std::string> found;
  std::unordered_set<std::string_view> stems;
  for (auto word = FirstFrom(beginning); word != words_.end() && word->word.starts_with(beginning); ++word)
    if (stems.insert(word->stem).second) found.push_back(word->word);
  return found;
}

// Every word is measured: there are a few thousand, and an index of their trigrams
// would be blind to a swap in a short one ("hte").
std::vector<std::string> Vocabulary::Nearest(std::string_view word, bool beginning, std::size_t most) const {
  const std::size_t most_errors = MostErrors(word.size());
  if (most_errors == 0 || word.size() > kLongestMisspelling) return {};
  DistanceMeter meter(word);
  std::vector<Neighbour> neighbours;
  for (const Word& other : words_) {
    if (other.word.size() + most_errors < word.size() || other.word.size() > kLongestMisspelling) continue;
    Distance distance = meter.To(other.word);
    if (!beginning) distance.to_beginning = distance.to_whole;
    if (distance.to_beginning <= most_errors) neighbours.push_back({distance, &other});
  }
  std::stable_sort(neighbours.begin(), neighbours.end());
  neighbours.resize(std::min(neighbours.size(), most));
  std::vector<std::string> nearest;
  nearest.reserve(neighbours.size());
  for (const Neighbour& neighbour : neighbours) nearest.push_back(neighbour.word->word);
  return nearest;
}

std::vector<Word> WordsOf(const Library& library) {
  std::map<std::string, Word> words;
  for (const Text& text : library.texts) {
    for (Token& token : Tokens(text.title + "\n" + text.body)) {
      Word& word = words[token.word];
      if (++word.count == 1) word = {token.word, std::move(token.stem), 1};
    }
  }
  std::vector<Word> sorted;
  sorted.reserve(words.size());
  for (auto& [key, word] : words) sorted.push_back(std::move(word));
  return sorted;
}

}  // namespace quill::search
