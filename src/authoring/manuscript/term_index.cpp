#include "authoring/manuscript/term_index.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "authoring/alphabet.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_converter.h"
#include "content/link_types.h"

namespace quill::authoring {
namespace {

// The letters without accents, in the order of Unicode from U+00C0 to U+00FF.
constexpr char16_t kFirstAccented = 0xC0;
constexpr std::string_view kUnaccented = "AAAAAAACEEEEIIIIDNOOOOO OUUUUYTSAAAAAAACEEEEIIIIDNOOOOO OUUUUYTY";

// The letter or digit that a character is sorted as. A blank for what parts words, 0
// for other signs.
char SortedAs(char16_t c) {
  if (c == u' ' || c == u'-' || c == u'\u00A0') return ' ';
  if (c >= kFirstAccented) return kUnaccented[(c - kFirstAccented) % kUnaccented.size()];
  const char ascii = static_cast<char>(c);
  return base::IsLetter(ascii) || base::IsDigit(ascii) ? ascii : '\0';
}

// What terms are sorted by. Blanks stand before all letters, so that "act break" comes
// before "acts"; signs are left out, so that "V.O." stands at VO.
std::string SortKey(const std::string& text) {
  std::string key;
  for (const char16_t c : base::MacRomanToUtf16(text)) {
    if (const char sorted_as = SortedAs(c); sorted_as != '\0') key += sorted_as;
  }
  return base::Uppercase(key);
}

// The letter under which a term with that key stands; those that begin with a digit
// stand at A, where they are sorted to.
char Initial(const std::string& key) {
  return key.empty() || !base::IsLetter(key.front()) ? 'A' : key.front();
}

// A paragraph that is one link. A term means just what it says: no letter of it is a
// stop or a slip. To the layout it is one word, so that it stays on one line, and no gap
// in it is wider in the flow than on the button, as behind "V.O." or right behind bold.
Paragraph LineOf(const Term& term, const Indent& indent) {
  Paragraph paragraph;
  paragraph.indent = indent;
  paragraph.targets = {{Target::Kind::kPage, content::link_type::kPage, term.page}};
  for (const char code : term.text)
    paragraph.letters.push_back({code == ' ' ? kNoBreakBlank : code, term.line, {0, 0}, true});
  return paragraph;
}

}  // namespace

void TermIndex::AddTerm(Term term) {
  std::string key = SortKey(term.text);
  entries_.push_back({std::move(key), std::move(term)});
}

void TermIndex::AddPlace(Initials initials, Indent indent, int line, Manuscript& manuscript) {
  std::vector<Column>& columns = manuscript.pages.back().columns;
  Column& column = columns.back();
  TypesetParagraph({}, column, manuscript.diagnostics);
  indent.number.clear();
  places_.push_back({initials,
                     std::move(indent),
                     line,
                     manuscript.pages.size() - 1,
                     columns.size() - 1,
                     {column.text.size(), column.words, column.runs.size()}});
}

void TermIndex::Fill(Manuscript& manuscript) {
  Sort(manuscript.diagnostics);
  Share(manuscript.diagnostics);
  for (auto first = places_.begin(); first != places_.end();) {
    const auto behind = std::find_if_not(first, places_.end(),
                                         [&](const Place& place) { return place.StandsBeside(*first); });
    FillColumn({first, behind}, manuscript.pages[first->page].columns[first->column], manuscript.diagnostics);
    first = behind;
  }
}

void TermIndex::Sort(Diagnostics& diagnostics) {
  std::stable_sort(entries_.begin(), entries_.end(),
                   [](const Entry& a, const Entry& b) { return a.key < b.key; });
  for (std::size_t i = 1; i < entries_.size(); ++i) {
    const Term& term = entries_[i].term;
    if (entries_[i].key == entries_[i - 1].key)
      diagnostics.push_back({term.line, "the index has the term " + Quoted(term.text) +
                                            " already, from line " + base::Str(entries_[i - 1].term.line)});
  }
}

void TermIndex::Share(Diagnostics& diagnostics) {
  std::map<Initials, std::vector<Place*>> sharers;
  for (Place& place : places_) sharers[place.initials].push_back(&place);
  char last = '\0';  // letter that has been shared out
  for (const auto& [initials, places] : sharers) {
    if (initials.first > last) {
      ShareAmong(places);
    } else {
      diagnostics.push_back({places.front()->line, std::string("other letters of the index take ") +
                                                       initials.first + " in already"});
    }
    last = std::max(last, initials.last);
  }
  for (const Entry& entry : entries_) {
    const char initial = Initial(entry.key);
    const auto has_initial = [initial](const auto& sharer) { return sharer.first.Has(initial); };
    if (std::none_of(sharers.begin(), sharers.end(), has_initial))
      diagnostics.push_back({entry.term.line, "no page lists the term " + Quoted(entry.term.text) +
                                                  ": a page with {index:A-Z} lists all"});
  }
}

// `places` are for the same initials, whose entries stand in a row.
void TermIndex::ShareAmong(const std::vector<Place*>& places) const {
  const Initials initials = places.front()->initials;
  const auto first = std::partition_point(entries_.begin(), entries_.end(), [initials](const Entry& entry) {
    return Initial(entry.key) < initials.first;
  });
  const auto behind = std::partition_point(
      first, entries_.end(), [initials](const Entry& entry) { return Initial(entry.key) <= initials.last; });
  std::size_t begin = static_cast<std::size_t>(first - entries_.begin());
  std::size_t left = static_cast<std::size_t>(behind - first);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t sharers = places.size() - i;
    const std::size_t share = (left + sharers - 1) / sharers;
    places[i]->begin = begin;
    places[i]->end = begin += share;
    left -= share;
  }
}

// Writes the column anew, in one pass however many places it has. The first line of a
// place stands for its empty paragraph, hence the count from 0.
void TermIndex::FillColumn(std::span<const Place> places, Column& column, Diagnostics& diagnostics) const {
  const Column bare = std::exchange(column, {});
  std::size_t paragraphs = bare.paragraphs - places.size();
  Spot copied;
  for (const Place& place : places) {
    Copy(bare, copied, place.spot, column);
    column.paragraphs = 0;
    for (std::size_t i = place.begin; i < place.end; ++i)
      TypesetParagraph(LineOf(entries_[i].term, place.indent), column, diagnostics);
    paragraphs += std::max<std::size_t>(column.paragraphs, 1);
  }
  Copy(bare, copied, {bare.text.size(), bare.words, bare.runs.size()}, column);
  column.paragraphs = paragraphs;
}

// Appends what stands between two spots, and moves the first to the second.
void TermIndex::Copy(const Column& from, Spot& begin, const Spot& end, Column& to) {
  const std::size_t new_words = to.words - begin.words;
  to.text.append(from.text, begin.text, end.text - begin.text);
  for (std::size_t i = begin.runs; i < end.runs; ++i) {
    to.runs.push_back(from.runs[i]);
    to.runs.back().word += new_words;
  }
  to.words = end.words + new_words;
  begin = end;
}

}  // namespace quill::authoring
