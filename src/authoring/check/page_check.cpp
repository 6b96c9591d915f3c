#include "authoring/check/page_check.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "app/mode_table.h"
#include "authoring/area.h"
#include "base/geometry.h"
#include "base/numbers.h"
#include "base/text.h"
#include "render/page_furniture.h"
#include "render/page_settings.h"

namespace quill::authoring {
namespace {

constexpr base::Rect kWindow = render::kPageCanvas;

// Buttons on lines that follow each other in a paragraph share so many rows of
// pixels, which are bare in the upper one.
constexpr std::int32_t kSharedRows = 4;

// So far words may reach out from under their button and not be seen.
constexpr std::int32_t kHairline = 1;

// What hangs below a base line, in parts of a line's height.
constexpr std::int32_t kDescent = 4;

using WordKey = std::pair<std::int32_t, std::int32_t>;  // column and offset

// Where a word stands on the page; a link's first word is as wide as its button.
struct Spot {
  std::int32_t line = 0;  // base line
  std::int32_t left = 0;
  std::int32_t right = 0;
};

std::int32_t Right(const base::Rect& area) { return base::AddSaturating(area.left, area.width); }
std::int32_t Bottom(const base::Rect& area) { return base::AddSaturating(area.top, area.height); }

// Rows of pixels that two areas share; 0 where they are apart.
std::int32_t SharedRows(const base::Rect& a, const base::Rect& b) {
  if (std::min(Right(a), Right(b)) <= std::max(a.left, b.left)) return 0;
  return std::max(0, std::min(Bottom(a), Bottom(b)) - std::max(a.top, b.top));
}

// One page under the eye.
class PageCheck {
 public:
  PageCheck(const content::Page& page, const app::Mode& mode, const Location& at, host::FontMetrics& metrics,
            Findings& findings)
      : page_(page),
        mode_(mode),
        at_(at),
        metrics_(metrics),
        findings_(findings),
        links_(LinksOf(page)),
        words_(WordsOf(page, metrics)),
        settings_(render::PageSettings(mode, page.GetColumns(), base::Str(at.page))),
        layout_(render::LayOutPage(page, settings_, metrics)) {
    for (const render::PlacedWord& word : layout_.words)
      spots_[{word.column, word.offset}] = {word.y, word.x, EndOf(word)};
    for (const render::PlacedLink& link : layout_.links) {
      if (!link.shown) continue;
      const std::int32_t line = link.top + settings_.button_rise;
      spots_[{link.column, link.offset}] = {line, link.left, Right(ButtonOf(link))};
    }
  }

  void Run() {
    if (links_.size() > render::kLinkButtons) {
      Add(FindingKind::kTooManyLinks, at_,
          "it has " + std::to_string(links_.size()) + " links, and the reader shows the first " +
              std::to_string(render::kLinkButtons));
    }
    for (std::size_t i = 0; i < links_.size(); ++i) CheckWord(i);
    for (const render::PlacedLink& link : layout_.links) {
      if (link.shown) CheckButton(link);
    }
    CheckText();
    CheckOverwriting();
  }

 private:
  void Add(FindingKind kind, const Location& location, std::string reason) {
    findings_.push_back({kind, location, std::move(reason)});
  }

  Location LocationOf(std::size_t index) const { return LocationOfLink(at_, page_, words_, index); }

  // Whether the link finds a word of its own, with enough text behind it.
  void CheckWord(std::size_t index) {
    const content::Link& link = *links_[index];
    const Location location = LocationOf(index);
    const std::int32_t column = link.GetColumn();
    if (column < 1 || column > page_.GetColumns()) {
      Add(FindingKind::kOffset, location,
          "it lies in column " + base::Str(column) + ", and the page has " + base::Str(page_.GetColumns()));
      return;
    }
    if (!CheckNumbers(link, location)) return;
    const std::int32_t offset = base::IntVal(link.GetOffset());
    const PageWord* const word = WordAt(words_, column, offset);
    if (word == nullptr) {
      Add(FindingKind::kOffset, location, "no word starts at its offset " + link.GetOffset());
    } else if (!taken_.insert({column, offset}).second) {
      Add(FindingKind::kSameWord, location, "an earlier link starts at the same word, and hides it");
    } else if (base::Val(link.GetLength()) > static_cast<double>(word->rest.size())) {
      Add(FindingKind::kLength, location,
          "its length " + link.GetLength() + " runs past the end of the paragraph, which is " +
              std::to_string(word->rest.size()) + " characters away");
    }
  }

  bool CheckNumbers(const content::Link& link, const Location& location) {
    const std::size_t before = findings_.size();
    for (const auto& [name, text] : {std::pair("offset", link.GetOffset()), {"length", link.GetLength()}}) {
      if (IsWholeNumber(text)) continue;
      Add(FindingKind::kNumber, location,
          std::string("its ") + name + " \"" + text + "\" is no whole number");
    }
    return findings_.size() == before;
  }

  void CheckButton(const render::PlacedLink& link) {
    const Location location = LocationOf(link.index);
    const base::Rect button = ButtonOf(link);
    CheckEdges(link, button, location);
    if (SharedRows(button, ExitButton()) > 0)
      Add(FindingKind::kExitButton, location,
          std::string("its button lies under the button \"") + render::ExitLabel(mode_) + "\"");
    for (const auto& [other, area] : buttons_) {
      if (SharedRows(button, area) <= kSharedRows) continue;
      Add(FindingKind::kOverlap, location,
          "its button and that of link " + std::to_string(other->index + 1) + " \"" + other->text +
              "\" cover each other");
    }
    buttons_.emplace_back(&link, button);
  }

  void CheckEdges(const render::PlacedLink& link, const base::Rect& button, const Location& location) {
    const std::int32_t column_end = settings_.geometry.RightMargin[static_cast<std::size_t>(link.column)];
    const std::int32_t line = spots_.at({link.column, link.offset}).line;
    bool breaks = false;
    std::int32_t words_end = 0;
    for (const WordKey& word : WordsBeneath(link)) {
      const Spot& spot = spots_.at(word);
      breaks = breaks || spot.line != line;
      words_end = spot.right;
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
    } else if (words_end > base::AddSaturating(Right(button), kHairline)) {
      Add(FindingKind::kUncovered, location,
          "its words stick out from under its button, since the word before it is bold");
    }
  }

  // The words of the flow that the button lies on, but for the first, which it
  // stands for. Fields without text, from blanks in a row, are no words of it.
  std::vector<WordKey> WordsBeneath(const render::PlacedLink& link) const {
    std::vector<WordKey> beneath;
    auto word = spots_.find({link.column, link.offset});
    const std::vector<std::string_view> fields = base::Fields(link.text, ' ');
    for (std::size_t i = 1; i < fields.size(); ++i) {
      if (fields[i].empty() || word == spots_.end() || ++word == spots_.end()) continue;
      beneath.push_back(word->first);
    }
    return beneath;
  }

  base::Rect ExitButton() {
    host::TextFace face = settings_.face;
    face.TextSize = render::kRowFontSize;
    return {render::kExitFrame.left, render::kRowTop,
            base::ToInt32(metrics_.StringWidth(face, render::ExitLabel(mode_))), render::kLabelHeight};
  }

  void CheckText() {
    const std::set<std::int32_t> lost = CheckDepth(kWindow.height, "below the edge of the window", {});
    if (!mode_.opening) CheckDepth(render::kTrailFrame.top, "into the row of the trail", lost);
  }

  // Finds text that reaches below `depth`, in columns that are not `told` of yet,
  // and adds them. Once for a column: what follows its first such word is no
  // better off.
  std::set<std::int32_t> CheckDepth(std::int32_t depth, const std::string& where,
                                    std::set<std::int32_t> told) {
    const std::int32_t room = metrics_.TextHeight(settings_.face) / kDescent;
    for (const auto& [word, spot] : spots_) {
      if (base::AddSaturating(spot.line, room) <= depth || !told.insert(word.first).second) continue;
      Location location = at_;
      location.column = word.first;
      const PageWord* const first = WordAt(words_, word.first, word.second);
      Add(FindingKind::kBelowEdge, location,
          "its text runs " + where + " from \"" + (first ? first->text : "") + "\" on");
    }
    return told;
  }

  // A tab leads to its stop even where that lies behind the pen, and the words
  // behind it then stand on those before it. Once for a column.
  void CheckOverwriting() {
    const std::pair<const WordKey, Spot>* before = nullptr;
    std::set<std::int32_t> told;
    for (const auto& word : spots_) {
      const auto& [at, spot] = word;
      if (spot.left == spot.right || beneath_.count(at) > 0) continue;
      if (before != nullptr && before->first.first == at.first && before->second.line == spot.line &&
          base::AddSaturating(spot.left, kHairline) < before->second.right && told.insert(at.first).second) {
        const PageWord* const first = WordAt(words_, at.first, at.second);
        Location location = at_;
        location.column = at.first;
        Add(FindingKind::kOverwritten, location,
            "\"" + (first ? first->text : "") + "\" is written over what stands before its stop");
      }
      before = &word;
    }
  }

  base::Rect ButtonOf(const render::PlacedLink& link) const {
    return {link.left, link.top, base::ToInt32(metrics_.StringWidth(settings_.face, link.text)),
            render::kLabelHeight};
  }

  std::int32_t EndOf(const render::PlacedWord& word) const {
    host::TextFace face = settings_.face;
    face.Bold = word.bold;
    face.Italic = word.italic;
    return base::AddSaturating(word.x, base::ToInt32(metrics_.StringWidth(face, word.text)));
  }

  const content::Page& page_;
  const app::Mode& mode_;
  const Location& at_;
  host::FontMetrics& metrics_;
  Findings& findings_;
  const std::vector<std::shared_ptr<content::Link>> links_;
  const std::vector<PageWord> words_;
  const render::LayoutSettings settings_;
  const render::PageLayout layout_;
  std::map<WordKey, Spot> spots_;
  std::set<WordKey> beneath_;                                              // words that a button lies on
  std::set<WordKey> taken_;                                                // words at which a link starts
  std::vector<std::pair<const render::PlacedLink*, base::Rect>> buttons_;  // looked at so far
};

}  // namespace

Location LocationOfLink(Location at, const content::Page& page, const std::vector<PageWord>& words,
                        std::size_t index) {
  const content::Link& link = *LinksOf(page)[index];
  at.column = link.GetColumn();
  at.link = static_cast<std::int32_t>(index) + 1;
  const PageWord* const word = WordAt(words, at.column, base::IntVal(link.GetOffset()));
  if (word == nullptr) return at;
  // Whole words, as the reader takes them.
  const std::int32_t length = std::max(base::IntVal(link.GetLength()) - 1, 0);
  at.words = word->rest.substr(0, word->rest.find(' ', static_cast<std::size_t>(length)));
  return at;
}

void CheckPage(const content::Page& page, const app::Mode& mode, const Location& at,
               host::FontMetrics& metrics, Findings& findings) {
  PageCheck(page, mode, at, metrics, findings).Run();
}

}  // namespace quill::authoring
