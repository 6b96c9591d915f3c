#include "search/marks.h"

#include <algorithm>
#include <set>

#include "base/utf8.h"

namespace quill::search {
namespace {

// Sizes of a line, in bytes.
constexpr std::size_t kLineLength = 110;
constexpr std::size_t kLead = 30;  // before the words, at most
constexpr std::string_view kLeftOut = "...";

// The tokens of a text, and which of them a query means.
struct MarkedTokens {
  std::vector<Token> tokens;
  std::vector<std::size_t> terms;  // by token: number of the term, from 1, that means it; 0 for none
};

bool MeansWord(const Token& meant, const Token& token) { return token.stem == meant.stem; }

bool MeansLastWord(const Term& term, const Token& token) {
  const Token& meant = term.words.back();
  if (MeansWord(meant, token)) return true;
  return term.beginning && (token.word.starts_with(meant.word) ||
                            std::find(term.stems.begin(), term.stems.end(), token.stem) != term.stems.end());
}

// Whether the term's words stand at the token with index `at`.
bool StandsAt(const Term& term, const std::vector<Token>& tokens, std::size_t at) {
  if (tokens.size() - at < term.words.size()) return false;
  const std::size_t last = term.words.size() - 1;
  for (std::size_t i = 0; i < last; ++i)
    if (!MeansWord(term.words[i], tokens[at + i])) return false;
  return MeansLastWord(term, tokens[at + last]);
}

MarkedTokens Mark(std::string_view text, const Query& query) {
  MarkedTokens marked{Tokens(text), {}};
  marked.terms.resize(marked.tokens.size());
  for (std::size_t term = 0; term < query.terms.size(); ++term) {
    for (std::size_t at = 0; at < marked.tokens.size(); ++at) {
      if (!StandsAt(query.terms[term], marked.tokens, at)) continue;
      for (std::size_t i = 0; i < query.terms[term].words.size(); ++i) marked.terms[at + i] = term + 1;
    }
  }
  return marked;
}

// Counts characters of a text along with its bytes, from left to right.
class CharacterCounter {
 public:
  explicit CharacterCounter(std::string_view text) : rest_(text), size_(text.size()) {}

  // The index of the character that begins at that byte, no earlier than the last one.
  std::size_t At(std::size_t byte) {
    for (; size_ - rest_.size() < byte; ++characters_) base::TakeUtf8(rest_);
    return characters_;
  }

 private:
  std::string_view rest_;
  std::size_t size_;
  std::size_t characters_ = 0;
};

// The ranges of the marked tokens in the bytes of `text` from `begin` up to `end`.
std::vector<Range> RangesIn(std::string_view text, const MarkedTokens& marked, std::size_t begin,
                            std::size_t end) {
  std::vector<Range> ranges;
  CharacterCounter counter(text.substr(begin, end - begin));
  for (std::size_t i = 0; i < marked.tokens.size(); ++i) {
    const Token& token = marked.tokens[i];
    if (marked.terms[i] == 0 || token.begin < begin || token.end > end) continue;
    const std::size_t first = counter.At(token.begin - begin);
    ranges.push_back({first, counter.At(token.end - begin)});
  }
  return ranges;
}

// The text on one line: every run of blanks, tabs and line ends is one blank.
std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool blank = static_cast<unsigned char>(c) <= ' ';
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

// How many of the query's terms stand within a line's length from that token on.
std::size_t TermsFrom(const MarkedTokens& marked, std::size_t at) {
  std::set<std::size_t> terms;
  const std::size_t end = marked.tokens[at].begin + kLineLength - kLead;
  for (; at < marked.tokens.size() && marked.tokens[at].end <= end; ++at)
    if (marked.terms[at] > 0) terms.insert(marked.terms[at]);
  return terms.size();
}

// The byte at which most of the query's words begin to stand together.
std::size_t BestByte(const MarkedTokens& marked) {
  std::size_t most = 0;
  std::size_t byte = 0;
  for (std::size_t at = 0; at < marked.tokens.size(); ++at) {
    if (marked.terms[at] == 0) continue;
    const std::size_t terms = TermsFrom(marked, at);
    if (terms > most) byte = marked.tokens[at].begin;
    most = std::max(most, terms);
  }
  return byte;
}

void AddForms(const MarkedTokens& marked, std::set<std::string>& forms) {
  for (std::size_t i = 0; i < marked.tokens.size(); ++i)
    if (marked.terms[i] > 0) forms.insert(marked.tokens[i].word);
}

bool IsInCharacter(const std::string& text, std::size_t byte) {
  return byte < text.size() && (static_cast<unsigned char>(text[byte]) & 0xC0U) == 0x80;
}

// The begin of the first word that stands no more than the lead before `byte`.
std::size_t LineBegin(const std::string& text, std::size_t byte) {
  if (byte <= kLead) return 0;
  const std::size_t blank = text.find(' ', byte - kLead - 1);
  return blank < byte ? blank + 1 : byte;
}

// The end of the last word that fits; where not even one does it is cut.
std::size_t LineEnd(const std::string& text, std::size_t begin) {
  if (text.size() - begin <= kLineLength) return text.size();
  const std::size_t blank = text.rfind(' ', begin + kLineLength);
  if (blank != std::string::npos && blank > begin) return blank;
  std::size_t end = begin + kLineLength;
  while (IsInCharacter(text, end)) ++end;
  return end;
}

}  // namespace

std::vector<Range> MarkedIn(std::string_view text, const Query& query) {
  return RangesIn(text, Mark(text, query), 0, text.size());
}

std::vector<Range> MarkedIn(std::string_view text, std::string_view query) {
  return MarkedIn(text, ParseQuery(query));
}

Excerpt ExcerptOf(const Text& text, const Query& query) {
  const std::string body = OnOneLine(text.body);
  const MarkedTokens marked = Mark(body, query);
  const std::size_t begin = LineBegin(body, BestByte(marked));
  const std::size_t end = LineEnd(body, begin);
  Excerpt excerpt{body.substr(begin, end - begin), RangesIn(body, marked, begin, end), {}};
  if (end < body.size()) excerpt.line += kLeftOut;
  if (begin > 0) {
    excerpt.line.insert(0, kLeftOut);
    for (Range& range : excerpt.marked) range = {range.begin + kLeftOut.size(), range.end + kLeftOut.size()};
  }
  std::set<std::string> forms;
  AddForms(marked, forms);
  AddForms(Mark(text.title, query), forms);
  excerpt.forms.assign(forms.begin(), forms.end());
  return excerpt;
}

}  // namespace quill::search
