#include "search/query.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "base/utf8.h"

namespace quill::search {
namespace {

constexpr std::string_view kAreaMark = "AREA:";

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

// Cuts off what stands before the first character that `ends`, and returns it.
template <typename Predicate>
std::string_view TakeUntil(std::string_view& text, Predicate ends) {
  const auto end = std::find_if(text.begin(), text.end(), ends);
  const std::string_view taken = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(taken.size());
  return taken;
}

// What the text spells, with bytes that are no characters replaced: the tokenizer of
// the index isn't asked about them.
std::string WellFormed(std::string_view text) {
  std::string well_formed;
  while (!text.empty()) base::AppendUtf8(well_formed, base::TakeUtf8(text));
  return well_formed;
}

// Fills a query from what is typed.
class QueryParser {
 public:
  Query Parse(std::string_view text) {
    while (!text.empty()) TakePart(text);
    for (std::size_t i = 0; i + 1 < query_.terms.size(); ++i) query_.terms[i].beginning = false;
    return std::move(query_);
  }

 private:
  // Cuts off a blank, what stands in quotes, or a spelling.
  void TakePart(std::string_view& text) {
    const char first = text.front();
    if (IsBlank(first)) return text.remove_prefix(1);
    if (first != '"') return AddSpelling(TakeUntil(text, [](char c) { return IsBlank(c) || c == '"'; }));
    text.remove_prefix(1);
    const std::string_view quoted = TakeUntil(text, [](char c) { return c == '"'; });
    AddTerm(quoted, text.empty());
    if (!text.empty()) text.remove_prefix(1);
  }

  void AddSpelling(std::string_view spelling) {
    const std::string upper = base::Uppercase(spelling);
    if (!upper.starts_with(kAreaMark)) return AddTerm(spelling, true);
    if (upper.size() > kAreaMark.size()) query_.areas.push_back(upper.substr(kAreaMark.size()));
  }

  void AddTerm(std::string_view text, bool beginning) {
    Term term{Tokens(text), beginning};
    term.words.resize(std::min(term.words.size(), kMostQueryWords - words_));
    words_ += term.words.size();
    if (!term.words.empty()) query_.terms.push_back(std::move(term));
  }

  Query query_;
  std::size_t words_ = 0;
};

}  // namespace

Query ParseQuery(std::string_view typed) {
  return QueryParser().Parse(WellFormed(typed.substr(0, kMostQueryBytes)));
}

}  // namespace quill::search
