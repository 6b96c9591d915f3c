#include "authoring/page_words.h"

#include <algorithm>
#include <utility>

#include "app/mode_table.h"
#include "base/text.h"
#include "render/page_settings.h"

namespace quill::authoring {
namespace {

// The layout leaves out of its words those that buttons stand for. Links don't change
// the count, so that it can be taken without them.
content::Page WithoutLinks(const content::Page& page) {
  content::Page plain;
  plain.SetTexts(page.Texts());
  return plain;
}

// Adds the words of a column with that text. `placed` are those that the layout
// placed, in the same order; `next` is the index of the column's first.
void AddColumn(std::string_view text, const std::vector<render::PlacedWord>& placed, std::size_t& next,
               std::vector<PageWord>& words) {
  for (const std::string_view paragraph : base::Fields(text, '\n')) {
    std::size_t start = 0;
    for (const std::string_view field : base::Fields(paragraph, ' ')) {
      const std::size_t begin = std::exchange(start, start + field.size() + 1);
      if (field.empty() || next >= placed.size()) continue;
      const std::size_t tab = field.front() == '\t' ? 1 : 0;
      const render::PlacedWord& word = placed[next++];
      words.push_back({word.column, word.offset, word.text, paragraph.substr(begin + tab)});
    }
  }
}

// Letters and digits, and whatever lies beyond ASCII.
bool IsPartOfWord(char c) { return base::IsLetter(c) || base::IsDigit(c) || (c & 0x80) != 0; }

// A word may be named without the punctuation behind it.
bool StartsWithPhrase(std::string_view text, std::string_view phrase) {
  if (phrase.empty() || !text.starts_with(phrase)) return false;
  return phrase.size() == text.size() || !IsPartOfWord(phrase.back()) || !IsPartOfWord(text[phrase.size()]);
}

}  // namespace

// The mode says nothing of the count, so that any row will do.
std::vector<PageWord> WordsOf(const content::Page& page, host::FontMetrics& metrics) {
  const content::Page plain = WithoutLinks(page);
  const auto placed =
      LayOutPage(plain, render::PageSettings(app::kModes.front(), plain.GetColumns(), ""), metrics).words;
  std::vector<PageWord> words;
  std::size_t next = 0;
  for (std::int32_t column = 1; column <= plain.GetColumns(); ++column)
    AddColumn(page.GetText(column), placed, next, words);
  return words;
}

const PageWord* WordAt(const std::vector<PageWord>& words, std::int32_t column, std::int32_t offset) {
  const auto found =
      std::lower_bound(words.begin(), words.end(), std::pair(column, offset),
                       [](const PageWord& word, const std::pair<std::int32_t, std::int32_t>& start) {
                         return std::pair(word.column, word.offset) < start;
                       });
  return found != words.end() && found->column == column && found->offset == offset ? &*found : nullptr;
}

const PageWord* FindPhrase(const std::vector<PageWord>& words, std::string_view phrase, std::int32_t nth,
                           std::int32_t column) {
  for (const PageWord& word : words) {
    const bool fits = (column == 0 || word.column == column) && StartsWithPhrase(word.rest, phrase);
    if (fits && --nth == 0) return &word;
  }
  return nullptr;
}

}  // namespace quill::authoring
