#include "render/page_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "content/link_types.h"
#include "render/link_style.h"

namespace quill::render {
namespace {

constexpr std::int32_t kTabIndent = 25;
constexpr double kLabelStep = 0.75;  // from a base line down to the offset label's

// A link may ask for more characters than its paragraph has, and its text is
// then filled up with blanks. No window shows the end of that many.
constexpr double kMostPadding = 4096;

// Nor of a link's text as long as this, in bytes; whole fields beyond it only count.
// Links may well overlap, each as long as the page.
constexpr std::size_t kMostText = 65'536;

// The links of a page by the word they start at; of two that start at the same
// word the earlier in the list counts.
class LinkIndex {
 public:
  explicit LinkIndex(const std::vector<std::shared_ptr<content::Link>>& links) {
    for (std::size_t i = 0; i < links.size(); ++i) {
      const double offset = base::Val(links[i]->GetOffset());
      const std::int32_t whole = base::ToInt32(offset);
      const std::int32_t column = links[i]->GetColumn();
      if (column < 1 || column > 3 || static_cast<double>(whole) != offset) continue;
      starts_[static_cast<std::size_t>(column)].try_emplace(whole, i);
    }
  }

  // Index in the list of the link that starts there, -1 if none does.
  std::ptrdiff_t At(std::int32_t column, std::int32_t offset) const {
    const auto& starts = starts_[static_cast<std::size_t>(column)];
    const auto found = starts.find(offset);
    return found == starts.end() ? -1 : static_cast<std::ptrdiff_t>(found->second);
  }

 private:
  std::array<std::unordered_map<std::int32_t, std::size_t>, 4> starts_;
};

// A pen that walks the words of a page. Its fields are the state of the walk.
class Flow {
 public:
  Flow(const content::Page& page, const LayoutSettings& settings, host::FontMetrics& metrics)
      : LinkList(LinksOf(page)),
        page_(page),
        settings_(settings),
        metrics_(metrics),
        starts_(LinkList),
        geometry_(settings.geometry),
        face_(settings.face),
        line_height_(metrics.TextHeight(settings.face)) {}

  PageLayout Run();

 private:
  void Column(std::int32_t column);
  void Paragraph(std::string_view paragraph);
  void Word(std::size_t field);
  void Indent();
  void BreakLineFor(std::string_view word);
  void StartLink(std::string_view word, std::size_t field);
  std::string TakeRun(std::string_view word, std::size_t field, double length);
  void PlainWord(std::string_view word);
  void StyledWord(std::string_view word);
  void ButtonWord();
  void Advance(std::string_view word);
  void PlaceLabel();
  void Place(std::string text, std::int32_t y);
  std::int32_t WordWidth(std::string_view word);

  std::int32_t Below(double line_heights) const { return base::ToInt32(PenY + line_heights * line_height_); }
  void StepDown(double line_heights) { PenY = Below(line_heights); }
  std::int32_t& LeftMargin() { return geometry_.LeftMargin[static_cast<std::size_t>(column_)]; }
  std::size_t Active() const { return static_cast<std::size_t>(ActiveLink); }

  std::int32_t PenX = 0;  // where the next word starts
  std::int32_t PenY = 0;  // base line of the current line
  std::int32_t TextOffset = 0;
  const std::vector<std::shared_ptr<content::Link>> LinkList;
  std::ptrdiff_t ActiveLink = -1;  // index in `LinkList` of the link under way
  std::int32_t RunFields = 0;      // fields in its text
  std::int32_t RunDrawn = 0;       // number of the word being drawn, from 1

  // Ours, not the domain's:
  const content::Page& page_;
  const LayoutSettings& settings_;
  host::FontMetrics& metrics_;
  const LinkIndex starts_;
  PageGeometry geometry_;  // its left margin moves with tabs
  host::TextFace face_;    // with the flags that the last word left
  const std::int32_t line_height_;
  std::int32_t column_ = 1;               // from 1
  FieldIndex at_;                         // of the field under way
  std::vector<std::string_view> fields_;  // of the current paragraph, between blanks
  std::string measured_;
  PageLayout layout_;
};

PageLayout Flow::Run() {
  const std::int32_t columns = std::min(page_.GetColumns(), 3);
  for (std::int32_t column = 1; column <= columns; ++column) Column(column);
  return std::move(layout_);
}

void Flow::Column(std::int32_t column) {
  column_ = column;
  PenY = geometry_.TopMargin;
  TextOffset = 0;
  ActiveLink = -1;
  at_ = {};
  const std::string& text = page_.GetText(column);
  for (const std::string_view paragraph : base::Fields(text, '\n')) Paragraph(paragraph);
}

void Flow::Paragraph(std::string_view paragraph) {
  fields_ = base::Fields(paragraph, ' ');
  const std::int32_t SavedLeft = LeftMargin();
  PenX = SavedLeft;
  StepDown(1.0);
  for (std::size_t field = 0; field < fields_.size(); ++field) Word(field);
  LeftMargin() = SavedLeft;
  TextOffset = base::AddSaturating(TextOffset, 1);
  StepDown(settings_.paragraph_step);
  ++at_.paragraph;
}

void Flow::Word(std::size_t field) {
  std::string_view word = fields_[field];
  at_.field = field;
  if (word.empty()) return;
  if (word.front() == '\t') {
    word.remove_prefix(1);
    Indent();
  }
  BreakLineFor(word);
  StartLink(word, field);
  if (ActiveLink < 0) {
    PlainWord(word);
  } else if (content::IsStyledRun(LinkList[Active()]->GetType())) {
    StyledWord(word);
  } else {
    ButtonWord();
  }
  Advance(word);
}

// A tab moves the margin for every later line of the paragraph, and the pen to
// it, even from the middle of a line.
void Flow::Indent() {
  LeftMargin() = base::AddSaturating(LeftMargin(), kTabIndent);
  PenX = LeftMargin();
  TextOffset = base::AddSaturating(TextOffset, 1);
}

// A word fits if it ends at the margin, its blank included. One too wide for the
// column moves to a new line all the same, and runs past the margin.
void Flow::BreakLineFor(std::string_view word) {
  const std::int32_t right = geometry_.RightMargin[static_cast<std::size_t>(column_)];
  if (right >= base::AddSaturating(PenX, WordWidth(word))) return;
  PenX = LeftMargin();
  StepDown(kLineStep);
}

// Starts the link whose offset is this word's. It ends a run under way; so does
// a link that has no button left, whose words stay plain.
void Flow::StartLink(std::string_view word, std::size_t field) {
  const std::ptrdiff_t found = starts_.At(column_, TextOffset);
  if (found < 0) return;
  ActiveLink = found < static_cast<std::ptrdiff_t>(kLinkButtons) ? found : -1;
  if (ActiveLink < 0) return;
  RunDrawn = 1;
  PlacedLink link;
  link.index = Active();
  link.column = column_;
  link.offset = TextOffset;
  link.left = PenX;
  link.top = base::AddSaturating(PenY, -settings_.button_rise);
  link.text = TakeRun(word, field, base::Val(LinkList[Active()]->GetLength()));
  link.field = at_;
  link.fields = RunFields;
  layout_.links.push_back(std::move(link));
}

// Returns the text of a link: its first word, then whole fields until it has
// `length` characters. Behind the end of the paragraph the fields are empty and
// give a blank each. Sets `RunFields` to the number of fields taken.
std::string Flow::TakeRun(std::string_view word, std::size_t field, double length) {
  std::string RunText(word);
  RunFields = 1;
  std::size_t size = word.size();
  std::size_t RunField = field + 1;
  for (; static_cast<double>(size) < length && RunField < fields_.size(); ++RunField) {
    if (size < kMostText) RunText.append(" ").append(fields_[RunField]);
    size += 1 + fields_[RunField].size();
    ++RunFields;
  }
  const double missing = std::ceil(length - static_cast<double>(size));
  if (missing > 0) {
    RunText.append(static_cast<std::size_t>(std::min(missing, kMostPadding)), ' ');
    RunFields = base::AddSaturating(RunFields, base::ToInt32(missing));
  }
  return RunText;
}

void Flow::PlainWord(std::string_view word) {
  face_.Italic = face_.Bold = face_.Underline = false;
  Place(std::string(word), PenY);
  PlaceLabel();
}

// Only the slant is taken back behind the word: the other flags still hold when
// its advance is measured, and for the first measure of the next word.
void Flow::StyledWord(std::string_view word) {
  SetLinkStyle(LinkList[Active()]->GetType(), face_);
  Place(std::string(word), PenY);
  face_.Italic = false;
  if (RunDrawn == RunFields) ActiveLink = -1;
  ++RunDrawn;
}

// The button shows the whole link; the words behind its first go on as plain
// words beneath it.
void Flow::ButtonWord() {
  layout_.links.back().shown = true;
  PlaceLabel();
  ActiveLink = -1;
}

void Flow::Advance(std::string_view word) {
  PenX = base::AddSaturating(PenX, WordWidth(word));
  TextOffset = base::AddSaturating(TextOffset, base::ToInt32(static_cast<double>(word.size()) + 1));
  const char last = word.empty() ? ' ' : word.back();
  if (last == '.' || last == '?' || last == '!')
    PenX = base::ToInt32(PenX + metrics_.StringWidth(face_, " "));
}

void Flow::PlaceLabel() {
  if (settings_.show_offsets) Place(base::Str(TextOffset), Below(kLabelStep));
}

void Flow::Place(std::string text, std::int32_t y) {
  layout_.words.push_back(
      {std::move(text), PenX, y, face_.Bold, face_.Italic, face_.Underline, column_, TextOffset, at_});
}

// Returns the width of `word` with a trailing blank, in the style that the word
// before left.
std::int32_t Flow::WordWidth(std::string_view word) {
  measured_.assign(word).push_back(' ');
  return base::ToInt32(metrics_.StringWidth(face_, measured_));
}

std::string Flags(const PlacedWord& word) {
  std::string flags;
  if (word.bold) flags += " bold";
  if (word.italic) flags += " italic";
  if (word.underline) flags += " underline";
  return flags;
}

}  // namespace

std::string PageLayout::Dump() const {
  std::string dump;
  for (const PlacedWord& word : words) {
    dump += word.text + " " + base::Str(word.x) + "," + base::Str(word.y) + Flags(word) + "\n";
  }
  for (const PlacedLink& link : links) {
    dump += (link.shown ? "button " : "run ") + std::to_string(link.index) + " \"" + link.text + "\" " +
            base::Str(link.left) + "," + base::Str(link.top) + "\n";
  }
  return dump;
}

PageLayout LayOutPage(const content::Page& page, const LayoutSettings& settings, host::FontMetrics& metrics) {
  return Flow(page, settings, metrics).Run();
}

void DrawWords(const PageLayout& layout, host::Graphics& graphics) {
  for (const PlacedWord& word : layout.words) {
    graphics.Bold = word.bold;
    graphics.Italic = word.italic;
    graphics.Underline = word.underline;
    graphics.DrawString(word.text, word.x, word.y);
  }
}

}  // namespace quill::render
