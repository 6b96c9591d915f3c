#include "sidewindows/find_window.h"

#include <utility>

#include "base/numbers.h"
#include "base/text_converter.h"
#include "search/tokens.h"

namespace quill::sidewindows {
namespace {

using Range = std::pair<std::size_t, std::size_t>;

constexpr std::size_t kMostHits = 50;
constexpr std::int32_t kFirstPage = 1;  // of an area that has none of its own: its way in

host::WindowStyle FindStyle() {
  host::WindowStyle style;
  style.title = "Find";
  style.width = 360;
  style.height = 420;
  style.frame = host::WindowStyle::Frame::kTool;
  style.close_button = true;
  style.resizeable = true;
  return style;
}

std::vector<Range> PairsOf(const std::vector<search::Range>& ranges) {
  std::vector<Range> pairs;
  pairs.reserve(ranges.size());
  for (const search::Range& range : ranges) pairs.emplace_back(range.begin, range.end);
  return pairs;
}

std::string Summary(const search::Answer& answer) {
  if (answer.total == 0) return "Nothing found";
  if (answer.total == 1) return "1 hit";
  if (answer.total == answer.hits.size()) return std::to_string(answer.total) + " hits";
  return std::to_string(answer.hits.size()) + " of " + std::to_string(answer.total) + " hits";
}

host::FoundRow RowOf(const search::Hit& hit, app::Modes modes) {
  host::FoundRow row;
  row.title = hit.title;
  row.place = std::string(modes[static_cast<std::size_t>(hit.mode)].area);
  if (hit.kind == search::Kind::kEntry) row.place += ", glossary";
  row.line = hit.excerpt.line;
  row.marked = PairsOf(hit.excerpt.marked);
  return row;
}

// A line that says so, and below it the words that may have been meant.
std::vector<host::FoundRow> RowsOfNothing(const search::Answer& answer) {
  std::vector<host::FoundRow> rows;
  const std::string nothing = answer.nearest.empty() ? "Nothing found" : "Nothing found. Did you mean:";
  rows.push_back({.title = nothing, .can_be_chosen = false});
  for (const std::string& word : answer.nearest) rows.push_back({.title = word});
  return rows;
}

}  // namespace

FindWindow::FindWindow(app::App& app, nav::DisplayWindow& viewer,
                       std::function<void(const std::string& page)> show_entry, std::string& words)
    : Window(FindStyle()),
      box_(AddControl<host::FindBox>(nullptr, base::Rect{6, 6, 348, 408})),
      app_(app),
      viewer_(viewer),
      show_entry_(std::move(show_entry)),
      words_(words) {
  box_.Typed = [this](const std::string& typed) { Find(typed); };
  box_.Chosen = [this](std::size_t row) { Choose(row); };
}

void FindWindow::Event_Open() {
  index_ = search::Index::OfBundle(app_.AllModes());
  box_.SetWords(words_);
  Find(words_);
}

// The opening page is no area, and nothing stands first there.
void FindWindow::Find(const std::string& words) {
  words_ = words;
  answer_ = index_->Find(words, app_.mode, kMostHits);
  std::vector<host::FoundRow> rows;
  for (const search::Hit& hit : answer_.hits) rows.push_back(RowOf(hit, app_.AllModes()));
  const bool asked = !search::ParseQuery(words).terms.empty();
  if (rows.empty() && asked) rows = RowsOfNothing(answer_);
  box_.SetFound(rows, asked ? Summary(answer_) : "");
}

void FindWindow::Choose(std::size_t row) {
  if (row < answer_.hits.size()) return ShowHit(answer_.hits[row]);
  if (row >= 1 && row <= answer_.nearest.size()) TryInstead(answer_.nearest[row - 1]);
}

void FindWindow::ShowHit(const search::Hit& hit) {
  if (hit.kind == search::Kind::kPage) {
    viewer_.Visit(hit.mode, base::IntVal(hit.page));
    viewer_.Mark([this](const std::string& text) {
      return PairsOf(search::MarkedIn(base::MacRomanToUtf8(text), answer_.query));
    });
    return;
  }
  const app::Mode& area = app_.AllModes()[static_cast<std::size_t>(hit.mode)];
  if (hit.mode != app_.mode) viewer_.Visit(hit.mode, area.first_page.value_or(kFirstPage));
  show_entry_(hit.page);
}

// Puts the word in the place of the one that stands nowhere.
void FindWindow::TryInstead(const std::string& word) {
  std::string words = words_;
  for (const search::Token& token : search::Tokens(words_)) {
    if (token.word != answer_.unknown) continue;
    words.replace(token.begin, token.end - token.begin, word);
    break;
  }
  box_.SetWords(words);
  Find(words);
}

}  // namespace quill::sidewindows
