#include "authoring/manuscript/manuscript_builder.h"

#include <algorithm>
#include <utility>

#include "authoring/alphabet.h"
#include "authoring/manuscript/manuscript_parts.h"
#include "base/numbers.h"
#include "base/utf8.h"

namespace quill::authoring {
namespace {

// As many as the reader's pages have.
constexpr std::size_t kMostColumns = 3;

bool IsComment(std::string_view html) { return html.starts_with("<!--"); }

bool IsMarked(const Letter& letter) { return !letter.mark.IsPlain(); }

}  // namespace

// Mostly no heading was meant: a line of dashes right below a paragraph, for the
// next column, makes the paragraph one.
void ManuscriptBuilder::BeginTitle(int level) {
  paragraph_ = {};
  if (level > 1)
    Diagnose("a page has one title: write other headings **bold**, and leave a line empty before ---");
}

void ManuscriptBuilder::EndTitle(int level, int line) {
  const Paragraph title = std::exchange(paragraph_, {});
  CloseUnderline();
  if (level > 1) return;
  ManuscriptPage page;
  page.line = line;
  page.columns.emplace_back();
  if (!SplitTitle(title.letters, page.title, page.name))
    Diagnose("the name of a page is {#name} behind its title, of letters, digits, - and _");
  DiagnoseTitle(title, page);
  manuscript_.pages.push_back(std::move(page));
}

// The viewer shows a title in a plain field, so that neither style nor link would
// be seen.
void ManuscriptBuilder::DiagnoseTitle(const Paragraph& title, const ManuscriptPage& page) {
  if (page.title.empty()) Diagnose("this page has no title");
  if (std::any_of(title.letters.begin(), title.letters.end(), IsMarked))
    Diagnose("a title has no styles and no links");
  if (!page.name.empty() && !names_.insert(page.name).second)
    Diagnose("the name \"" + page.name + "\" has been given to a page before");
}

// A column too many is begun all the same: its text is read for what is wrong.
void ManuscriptBuilder::BeginColumn() {
  if (!HasPage()) return;
  std::vector<Column>& columns = manuscript_.pages.back().columns;
  if (columns.size() == kMostColumns) Diagnose("a page has three columns at most");
  columns.emplace_back();
}

void ManuscriptBuilder::BeginItem() {
  std::optional<int>& next = lists_.back();
  item_number_ = next ? base::Str((*next)++) : "";
}

// Columns touch, so that those behind the first keep their distance by a stop if
// the manuscript asks for it.
void ManuscriptBuilder::BeginParagraph() {
  paragraph_ = {};
  const bool gutter = manuscript_.gutter && HasPage() && manuscript_.pages.back().columns.size() > 1;
  paragraph_.indent = {gutter ? 1 : 0, static_cast<std::int32_t>(lists_.size()),
                       std::exchange(item_number_, "")};
}

void ManuscriptBuilder::EndParagraph() {
  CloseUnderline();
  const Paragraph paragraph = std::exchange(paragraph_, {});
  if (!HasPage()) return;
  if (IsIndexPlace(paragraph.letters)) return AddIndexPlace(paragraph);
  TypesetParagraph(paragraph, CurrentColumn(), manuscript_.diagnostics);
}

void ManuscriptBuilder::AddIndexPlace(const Paragraph& paragraph) {
  if (const auto initials = InitialsOf(paragraph.letters))
    return index_.AddPlace(*initials, paragraph.indent, line_, manuscript_);
  Diagnose("the index, or a part of it, is {index:A-F} in a paragraph of its own, from letter to letter");
}

// Whether text has a page to stand on; says so if not.
bool ManuscriptBuilder::HasPage() {
  if (manuscript_.pages.empty())
    Diagnose("this stands before the first page: a page begins with # and its title");
  return !manuscript_.pages.empty();
}

void ManuscriptBuilder::AddHtmlBlock(std::string_view html) {
  if (IsComment(html)) {
    if (manuscript_.pages.empty()) return ReadHead(html, line_, manuscript_);
    AddTerms(html);
  } else if (const int count = CountBreaks(html); count == 0) {
    Diagnose("of HTML a page knows <u> inside a paragraph, and <br> with an empty line before and behind it");
  } else if (HasPage()) {
    for (int i = 0; i < count; ++i) TypesetParagraph({}, CurrentColumn(), manuscript_.diagnostics);
  }
}

void ManuscriptBuilder::AddTerms(std::string_view comment) {
  const std::string& page = manuscript_.pages.back().name;
  for (Term& term : ReadTerms(comment, line_, manuscript_.diagnostics)) {
    if (page.empty()) Diagnose("a page with terms for the index has a name, as in # Title {#name}");
    term.page = page;
    index_.AddTerm(std::move(term));
  }
}

// CommonMark has no underline, and its parser passes the two tags on one by one
// without looking whether they match.
void ManuscriptBuilder::AddHtmlInline(std::string_view html) {
  if (IsComment(html)) return;
  if (html == "<u>") {
    ++underline_;
  } else if (html == "</u>" && underline_ > 0) {
    --underline_;
  } else if (html == "</u>") {
    Diagnose("this </u> has no <u> in its paragraph");
  } else {
    Diagnose("of HTML a paragraph knows <u> and </u> alone");
  }
}

void ManuscriptBuilder::CloseUnderline() {
  if (std::exchange(underline_, 0) > 0) Diagnose("a <u> has no </u> in its paragraph");
}

// An address that leads nowhere still makes a link, so that the words below it are
// looked at like those of any other.
void ManuscriptBuilder::BeginLink(std::string_view address) {
  const std::optional<Target> target = ReadTarget(address);
  if (!target) Diagnose("a link can't lead to \"" + std::string(address) + "\": write " + TargetSpellings());
  link_ = static_cast<std::int32_t>(paragraph_.targets.size());
  paragraph_.targets.push_back(target.value_or(Target()));
  link_begin_ = paragraph_.letters.size();
}

void ManuscriptBuilder::EndLink() {
  if (paragraph_.letters.size() == link_begin_) Diagnose("this link has no words");
  link_ = -1;
}

// A character that can't be shown leaves a letter behind, so that the words around
// it keep their number and lengths.
void ManuscriptBuilder::AddLetters(std::string_view text, bool verbatim) {
  const Mark mark = CurrentMark();
  while (!text.empty()) {
    const char32_t character = base::TakeUtf8(text);
    const std::optional<char> code = ToProgram(character == U'\n' ? U' ' : character);
    if (!code) Diagnose(CannotShow(character));
    paragraph_.letters.push_back({code.value_or('?'), line_, mark, verbatim});
  }
}

// A content file holds one link for a run of words: it is a link that can be
// pushed or a style, and the types of styles lack some mixes.
Mark ManuscriptBuilder::CurrentMark() {
  const std::optional<std::int32_t> style = StyleOf(italic_ > 0, bold_ > 0, underline_ > 0);
  if (!style) Diagnose("a page has no words that are underlined, bold and italic at once");
  if (link_ >= 0 && style != 0) Diagnose("a link has a look of its own: take the style away");
  if (link_ >= 0) return {0, link_};
  return {style.value_or(0), -1};
}

Manuscript ManuscriptBuilder::Finish() {
  if (manuscript_.pages.empty()) {
    line_ = 1;
    Diagnose("there is no page: a page begins with # and its title");
  }
  index_.Fill(manuscript_);
  Diagnostics& diagnostics = manuscript_.diagnostics;
  std::stable_sort(diagnostics.begin(), diagnostics.end(),
                   [](const Diagnostic& a, const Diagnostic& b) { return a.line < b.line; });
  diagnostics.erase(std::unique(diagnostics.begin(), diagnostics.end()), diagnostics.end());
  return std::move(manuscript_);
}

}  // namespace quill::authoring
