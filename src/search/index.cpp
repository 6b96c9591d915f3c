#include "search/index.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>

#include "base/text.h"
#include "content/bundle.h"
#include "search/index_file.h"

namespace quill::search {
namespace {

constexpr std::size_t kMostNearest = 5;

// What stands on so many texts is on nearly all: how often it stands on one tells
// nothing, and counting it takes time. Of the texts that have it only those with such
// titles are ranked.
constexpr std::size_t kMostRanked = 8000;

// The best have the lowest score, as `bm25` gives it. A word in a title or a glossary
// head weighs as much as eight in the text. A hit in the area on show is taken for a
// tenth better than it is.
constexpr const char* kSelect = "SELECT rowid FROM pages WHERE pages MATCH ?1";
constexpr const char* kSelectRanked = "SELECT rowid, bm25(pages, 8.0, 1.0) FROM pages WHERE pages MATCH ?1";
constexpr double kOnShow = 1.1;

bool IsInArea(const Query& query, const std::string& area) {
  if (query.areas.empty()) return true;
  const std::string upper = base::Uppercase(area);
  return std::any_of(query.areas.begin(), query.areas.end(),
                     [&](const std::string& beginning) { return upper.starts_with(beginning); });
}

// In the language of SQLite's full-text search: words in quotes that stand together,
// the last one being `last`.
std::string Phrase(const Term& term, std::string_view last) {
  std::string phrase = "\"";
  for (std::size_t i = 0; i + 1 < term.words.size(); ++i) phrase += term.words[i].word + " ";
  return phrase.append(last) += '"';
}

// The table holds stems. Where what was typed is itself one, all stems that go on from it are
// asked for at once. Where it isn't ("writi", of which "write" is no continuation), the
// words are asked for one by one, as the vocabulary has them.
std::string PhrasesGoingOn(const Term& term, const Vocabulary& vocabulary) {
  const Token& last = term.words.back();
  const bool stem = last.word == last.stem;
  std::string phrases = Phrase(term, last.word);
  if (stem) phrases += "*";
  if (last.word.size() < 3) return phrases;
  for (const std::string& word : vocabulary.StartingWith(last.word))
    if (!stem || !Tokens(word).front().stem.starts_with(last.word)) phrases += " OR " + Phrase(term, word);
  return "(" + phrases + ")";
}

// What all terms ask for. With `vocabulary` a beginning counts, else every word is
// taken for whole.
std::string MatchOf(const Query& query, const Vocabulary* vocabulary) {
  std::string match;
  for (const Term& term : query.terms) {
    if (!match.empty()) match += " AND ";
    const bool goes_on = vocabulary != nullptr && term.beginning;
    match += goes_on ? PhrasesGoingOn(term, *vocabulary) : Phrase(term, term.words.back().word);
  }
  return match;
}

// Tells the last word typed what it finds beyond the words that begin so, to be marked.
void AddStems(const Vocabulary& vocabulary, Term& term) {
  const std::string& typed = term.words.back().word;
  if (!term.beginning || typed.size() < 3) return;
  for (const std::string& word : vocabulary.StartingWith(typed)) {
    std::string stem = Tokens(word).front().stem;
    if (!stem.starts_with(typed)) term.stems.push_back(std::move(stem));
  }
}

// The first word of the query that stands nowhere, with its nearest.
void TellNearest(const Query& query, const Vocabulary& vocabulary, Answer& answer) {
  for (const Term& term : query.terms) {
    for (const Token& word : term.words) {
      const bool beginning = term.beginning && &word == &term.words.back();
      if (vocabulary.Knows(word, beginning)) continue;
      answer.unknown = word.word;
      answer.nearest = vocabulary.Nearest(word.word, beginning, kMostNearest);
      return;
    }
  }
}

}  // namespace

struct Index::Found {
  std::size_t text = 0;        // its index
  bool only_leads_on = false;  // an index names the words, and another page is about them
  bool begins_only = false;    // a word of the text goes on from the last one typed
  double score = 0;

  bool operator<(const Found& other) const {
    return std::tie(only_leads_on, begins_only, score, text) <
           std::tie(other.only_leads_on, other.begins_only, other.score, other.text);
  }
};

// Gathers the texts that have what a query asks for. Its steps come in the order of its
// functions.
class Index::Search {
 public:
  Search(const Index& index, const Query& query, std::optional<std::int32_t> area_on_show)
      : index_(index), query_(query), area_on_show_(area_on_show), found_at_(index.library_.texts.size()) {}

  // Texts that have the very words come before those in which the last one only begins.
  // The latter need no order if there are `limit` of the former, those aside that come
  // behind both.
  std::vector<Found> Run(std::size_t limit) {
    const std::string whole = MatchOf(query_, nullptr);
    const std::string begun = MatchOf(query_, index_.vocabulary_.get());
    Add(whole);
    Rank(whole, found_.size());
    if (begun == whole) return std::move(found_);
    const std::size_t wholes = found_.size();
    const auto first = std::count_if(found_.begin(), found_.end(), std::not_fn(&Found::only_leads_on));
    begins_only_ = true;
    Add(begun);
    if (static_cast<std::size_t>(first) < limit) Rank(begun, found_.size() - wholes);
    return std::move(found_);
  }

 private:
  // Adds the texts that fit and aren't there yet.
  void Add(const std::string& match) {
    Statement select = index_.database_->Prepare(kSelect);
    for (select.Bind(1, match); select.Step();) {
      const auto text = static_cast<std::size_t>(select.Number(0) - 1);
      if (text >= found_at_.size() || found_at_[text] > 0 || !IsWanted(text)) continue;
      found_.push_back({text, index_.library_.texts[text].only_leads_on, begins_only_});
      found_at_[text] = found_.size();
    }
  }

  // Scores those of the texts that were added last.
  void Rank(const std::string& match, std::size_t added) {
    if (added == 0) return;
    Statement select = index_.database_->Prepare(kSelectRanked);
    for (select.Bind(1, added > kMostRanked ? "title : (" + match + ")" : match); select.Step();) {
      const auto text = static_cast<std::size_t>(select.Number(0) - 1);
      if (text >= found_at_.size() || found_at_[text] == 0) continue;
      Found& found = found_[found_at_[text] - 1];
      const bool on_show = index_.library_.texts[text].mode == area_on_show_;
      if (found.begins_only == begins_only_) found.score = select.Real(1) * (on_show ? kOnShow : 1.0);
    }
  }

  bool IsWanted(std::size_t text) const {
    const std::int32_t mode = index_.library_.texts[text].mode;
    return IsInArea(query_, index_.library_.areas[static_cast<std::size_t>(mode)]);
  }

  const Index& index_;
  const Query& query_;
  const std::optional<std::int32_t> area_on_show_;
  std::vector<std::size_t> found_at_;  // by text: where it stands in `found_`, from 1; 0 for nowhere
  std::vector<Found> found_;
  bool begins_only_ = false;  // of what is added
};

Index::Index(Library library, std::string_view file) : library_(std::move(library)) {
  try {
    database_ = OpenDatabase(file, library_);
    from_file_ = database_ != nullptr;
    if (!from_file_) database_ = MakeDatabase(library_);
    vocabulary_ = std::make_unique<Vocabulary>(ReadWords(*database_));
  } catch (const DatabaseError&) {
    database_ = nullptr;
  }
}

Index::~Index() = default;

std::unique_ptr<Index> Index::OfBundle(app::Modes modes) {
  const auto item = content::ContentFile(kIndexFile);
  const auto file = item ? host::ReadWhole(*item) : std::nullopt;
  return std::make_unique<Index>(ReadLibrary(modes), file.value_or(""));
}

Answer Index::Find(std::string_view typed, std::optional<std::int32_t> area_on_show,
                   std::size_t limit) const {
  Query query = ParseQuery(typed);
  if (!database_ || query.terms.empty()) return {};
  AddStems(*vocabulary_, query.terms.back());
  try {
    std::vector<Found> found = Search(*this, query, area_on_show).Run(limit);
    Answer answer;
    answer.query = query;
    answer.total = found.size();
    if (found.empty()) TellNearest(query, *vocabulary_, answer);
    const auto best = found.begin() + static_cast<std::ptrdiff_t>(std::min(limit, found.size()));
    std::partial_sort(found.begin(), best, found.end());
    found.erase(best, found.end());
    for (const Found& hit : found) {
      const Text& text = library_.texts[hit.text];
      answer.hits.push_back({text.mode, text.kind, text.page, text.title, ExcerptOf(text, query)});
    }
    return answer;
  } catch (const DatabaseError&) {
    return {};
  }
}

std::string Index::FileBytes() const {
  if (!database_) throw DatabaseError("there is no database");
  return FileOf(*database_);
}

}  // namespace quill::search
