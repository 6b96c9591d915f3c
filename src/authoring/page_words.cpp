#include "authoring/page_words.h"

#include <algorithm>
#include <utility>

#include "app/mode_table.h"
#include "base/text.h"
#include "render/page_settings.h"

namespace quill::authoring {
namespace {

content::Page WithoutLinks(const content::Page& page) {
  content::Page plain;
  plain.SetTexts(page.Texts());
  return plain;
}

// Adds the words of a column; `counted` are those that the layout placed, in the
// same order, from `at` on.
void AddColumn(std::string_view text, const std::vector<render::PlacedWord>& counted, std::size_t& at,
               std::vector<PageWord>& words) {
  for (const std::string_view paragraph : base::Fields(text, '\n')) {
    std::size_t start = 0;
    for (const std::string_view field : base::Fields(paragraph, ' ')) {
      const std::size_t tab = !field.empty() && field.front() == '\t' ? 1 : 0;
      if (!field.empty() && at < counted.size()) {
        const render::PlacedWord& word = counted[at++];
        words.push_back({word.column, word.offset, word.text, paragraph.substr(start + tab)});
      }
      start += field.size() + 1;
    }
  }
}

bool IsPartOfWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

// A word may be named without the punctuation behind it.
bool StartsWithPhrase(std::string_view text, std::string_view phrase) {
  if (phrase.empty() || !text.starts_with(phrase)) return false;
  return phrase.size() == text.size() || !IsPartOfWord(phrase.back()) || !IsPartOfWord(text[phrase.size()]);
}

}  // namespace

std::vector<PageWord> WordsOf(const content::Page& page, host::FontMetrics& metrics) {
  const content::Page plain = WithoutLinks(page);
  const auto counted =
      LayOutPage(plain, render::PageSettings(app::kModes.front(), plain.GetColumns(), ""), metrics).words;
  std::vector<PageWord> words;
  std::size_t at = 0;
  for (std::int32_t column = 1; column <= plain.GetColumns(); ++column)
    AddColumn(page.GetText(column), counted, at, words);
  return words;
}

const PageWord* WordAt(const std::vector<PageWord>& words, std::int32_t column, std::int32_t offset) {
  const auto found =
      std::lower_bound(words.begin(), words.end(), std::pair(column, offset),
                       [](const PageWord& word, const std::pair<std::int32_t, std::int32_t>& at) {
                         return std::pair(word.column, word.offset) < at;
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
