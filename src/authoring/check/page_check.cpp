#include "authoring/check/page_check.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "authoring/check/link_check.h"
#include "authoring/check/word_extents.h"
#include "authoring/page_words.h"
#include "base/numbers.h"
#include "base/text.h"
#include "render/page_furniture.h"
#include "render/page_settings.h"

namespace quill::authoring {
namespace {

constexpr base::Rect kWindow = render::kPageCanvas;

// Lines of a paragraph stand closer than buttons are high, so that buttons below
// each other overlap a little on every page. That does no harm: a button's label and
// the line under it end four rows of pixels above its lower edge.
constexpr std::int32_t kBareRows = 4;

// The layout rounds each word's width, a button that of its whole text: one pixel
// between them comes of that, and nobody sees it.
constexpr std::int32_t kRounding = 1;

// Whether `before`, the word in sight before `word`, reaches under it.
bool ReachesUnder(const WordExtents::value_type& before, const WordExtents::value_type& word) {
  return before.first.column == word.first.column && before.second.base_line == word.second.base_line &&
         base::AddSaturating(word.second.left, kRounding) < before.second.right;
}

// The check of one page: what it needs of the page is worked out once, then each
// rule looks at it.
class PageCheck {
 public:
  PageCheck(const content::Page& page, const app::Mode& mode, const Location& page_location,
            host::FontMetrics& metrics, Findings& findings)
      : page_(page),
        mode_(mode),
        page_location_(page_location),
        metrics_(metrics),
        findings_(findings),
        words_(WordsOf(page, metrics)),
        settings_(render::PageSettings(mode, page.GetColumns(), base::Str(page_location.page_index))),
        layout_(render::LayOutPage(page, settings_, metrics)),
        extents_(ExtentsOf(layout_, settings_, metrics)) {}

  void Run();

 private:
  using Columns = std::set<std::int32_t>;

  void Add(FindingKind kind, const Location& location, std::string reason);
  Location LocationOfColumn(std::int32_t column) const;
  std::string TextAt(const WordStart& start) const;

  void CheckButton(const render::PlacedLink& link);
  void CheckEdges(const render::PlacedLink& link, const base::Rect& button, const Location& location);
  std::vector<WordStart> WordsBeneath(const render::PlacedLink& link) const;
  base::Rect ExitButton() const;

  void CheckText();
  Columns CheckDepth(std::int32_t depth, const std::string& where, Columns told);
  void CheckOverwriting();

  const content::Page& page_;
  const app::Mode& mode_;
  const Location& page_location_;
  host::FontMetrics& metrics_;
  Findings& findings_;
  const std::vector<PageWord> words_;
  const render::LayoutSettings settings_;
  const render::PageLayout layout_;
  const WordExtents extents_;
  std::set<WordStart> beneath_;                                            // words that a button lies on
  std::vector<std::pair<const render::PlacedLink*, base::Rect>> buttons_;  // looked at so far
};

// Buttons come before text, since they say which words they hide.
void PageCheck::Run() {
  CheckLinkWords(page_, words_, page_location_, findings_);
  for (const render::PlacedLink& link : layout_.links) {
    if (link.shown) CheckButton(link);
  }
  CheckText();
  CheckOverwriting();
}

void PageCheck::Add(FindingKind kind, const Location& location, std::string reason) {
  findings_.push_back({kind, location, std::move(reason)});
}

Location PageCheck::LocationOfColumn(std::int32_t column) const {
  Location location = page_location_;
  location.column = column;
  return location;
}

std::string PageCheck::TextAt(const WordStart& start) const {
  const PageWord* const word = WordAt(words_, start.column, start.offset);
  return word == nullptr ? "" : word->text;
}

void PageCheck::CheckButton(const render::PlacedLink& link) {
  const Location location = LocationOfLink(page_location_, page_, words_, link.index);
  const base::Rect button = ButtonOf(link, settings_, metrics_);
  CheckEdges(link, button, location);
  if (CommonRows(button, ExitButton()) > 0)
    Add(FindingKind::kExitButton, location,
        std::string("its button lies under the button \"") + render::ExitLabel(mode_) + "\"");
  for (const auto& [other, area] : buttons_) {
    if (CommonRows(button, area) <= kBareRows) continue;
    Add(FindingKind::kOverlap, location,
        "its button and that of link " + std::to_string(other->index + 1) + " \"" + other->text +
            "\" cover each other");
  }
  buttons_.emplace_back(&link, button);
}

// A button shows its words on one line from where the first one stands, while the
// flow goes on below it as if it weren't there. One finding for a button: the one
// that an author must mend first.
void PageCheck::CheckEdges(const render::PlacedLink& link, const base::Rect& button,
                           const Location& location) {
  const std::int32_t column_end = settings_.geometry.RightMargin[static_cast<std::size_t>(link.column)];
  const std::int32_t base_line = extents_.at({link.column, link.offset}).base_line;
  bool breaks = false;
  std::int32_t words_end = 0;
  for (const WordStart& word : WordsBeneath(link)) {
    const WordExtent& extent = extents_.at(word);
    breaks = breaks || extent.base_line != base_line;
    words_end = extent.right;
    beneath_.insert(word);
  }
  if (Right(button) > kWindow.width || Bottom(button) > kWindow.height) {
    Add(FindingKind::kPastEdge, location, "its button runs past the edge of the window");
  } else if (breaks) {
    Add(FindingKind::kPastEdge, location,
        "its words break across lines, and its button runs on past its column");
  } else if (Right(button) > column_end) {
    Add(FindingKind::kPastEdge, location,
        "its button runs " + base::Str(Right(button) - column_end) + " pixels past its column");
  } else if (words_end > base::AddSaturating(Right(button), kRounding)) {
    Add(FindingKind::kUncovered, location,
        "its words stick out from under its button, since the word before it is bold");
  }
}

// The words of the flow that the button lies on, but for the first, which it
// stands for. Fields without text, from blanks in a row, are no words of it.
std::vector<WordStart> PageCheck::WordsBeneath(const render::PlacedLink& link) const {
  std::vector<WordStart> beneath;
  auto word = extents_.find({link.column, link.offset});
  const std::vector<std::string_view> fields = base::Fields(link.text, ' ');
  for (std::size_t i = 1; i < fields.size(); ++i) {
    if (fields[i].empty() || word == extents_.end() || ++word == extents_.end()) continue;
    beneath.push_back(word->first);
  }
  return beneath;
}

base::Rect PageCheck::ExitButton() const {
  host::TextFace face = settings_.face;
  face.TextSize = render::kRowFontSize;
  return {render::kExitFrame.left, render::kRowTop,
          base::ToInt32(metrics_.StringWidth(face, render::ExitLabel(mode_))), render::kLabelHeight};
}

// The opening page keeps no trail, so that its text may reach down to the edge. A
// column that is lost below the edge needn't be told of again.
void PageCheck::CheckText() {
  const Columns lost = CheckDepth(kWindow.height, "below the edge of the window", {});
  if (!mode_.opening) CheckDepth(render::kTrailFrame.top, "into the row of the trail", lost);
}

// Finds text that reaches below `depth`, in columns that are not `told` of yet;
// returns these with `told`. Once for a column: what follows its first such word is
// no better off.
PageCheck::Columns PageCheck::CheckDepth(std::int32_t depth, const std::string& where, Columns told) {
  const std::int32_t descent = Descent(settings_.face, metrics_);
  for (const auto& [start, extent] : extents_) {
    if (base::AddSaturating(extent.base_line, descent) <= depth || !told.insert(start.column).second)
      continue;
    Add(FindingKind::kBelowEdge, LocationOfColumn(start.column),
        "its text runs " + where + " from \"" + TextAt(start) + "\" on");
  }
  return told;
}

// A tab leads to its stop even where that lies behind the pen, and the words
// behind it then stand on those before it. Once for a column. Words beneath a button
// aren't seen, and a tab alone has nothing to see.
void PageCheck::CheckOverwriting() {
  const WordExtents::value_type* before = nullptr;
  Columns told;
  for (const auto& word : extents_) {
    const auto& [start, extent] = word;
    if (extent.left == extent.right || beneath_.count(start) > 0) continue;
    if (before != nullptr && ReachesUnder(*before, word) && told.insert(start.column).second)
      Add(FindingKind::kOverwritten, LocationOfColumn(start.column),
          "\"" + TextAt(start) + "\" is written over what stands before its stop");
    before = &word;
  }
}

}  // namespace

void CheckPage(const content::Page& page, const app::Mode& mode, const Location& page_location,
               host::FontMetrics& metrics, Findings& findings) {
  PageCheck(page, mode, page_location, metrics, findings).Run();
}

}  // namespace quill::authoring
