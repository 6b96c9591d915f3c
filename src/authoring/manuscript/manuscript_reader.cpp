#include "authoring/manuscript/manuscript_reader.h"

#include <cmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <utility>

#include "authoring/alphabet.h"
#include "authoring/manuscript/manuscript_parts.h"
#include "authoring/manuscript/paragraph.h"
#include "base/numbers.h"
#include "base/utf8.h"

namespace quill::authoring {
namespace {

constexpr std::size_t kMostColumns = 3;

struct FreeNode {
  void operator()(cmark_node* node) const { cmark_node_free(node); }
};
struct FreeIterator {
  void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
};

std::string_view LiteralOf(cmark_node* node) {
  const char* const literal = cmark_node_get_literal(node);
  return literal == nullptr ? std::string_view() : literal;
}

bool IsComment(std::string_view html) { return html.starts_with("<!--"); }

// What CommonMark has and a page can't show.
struct Refusal {
  cmark_node_type type;
  const char* sentence;
};
constexpr std::array kRefusals = {
    Refusal{CMARK_NODE_LINEBREAK, "a page has no line ends inside a paragraph: leave a line empty"},
    Refusal{CMARK_NODE_IMAGE, "a page can't show pictures"},
    Refusal{CMARK_NODE_BLOCK_QUOTE, "a page has no quoted blocks: take the > away"},
    Refusal{CMARK_NODE_CODE_BLOCK,
            "a page has no blocks of code: begin the line at the margin, and use {1} to indent"},
};

// A list that is open, and the number of its next item.
struct OpenList {
  bool ordered = false;
  int next = 1;
};

// One walk over the nodes of a manuscript, in the order of its text. Its fields
// are the state of the walk.
class Reader {
 public:
  Manuscript Read(cmark_node* root) {
    const std::unique_ptr<cmark_iter, FreeIterator> iterator(cmark_iter_new(root));
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
      cmark_node* const node = cmark_iter_get_node(iterator.get());
      if (const int line = cmark_node_get_start_line(node); line > 0) line_ = line;
      if (event == CMARK_EVENT_ENTER) {
        Enter(node);
      } else {
        Leave(node);
      }
    }
    Finish();
    return std::move(manuscript_);
  }

 private:
  void Enter(cmark_node* node) {
    switch (cmark_node_get_type(node)) {
      case CMARK_NODE_HEADING:
        return BeginTitle(node);
      case CMARK_NODE_PARAGRAPH:
        return BeginParagraph();
      case CMARK_NODE_THEMATIC_BREAK:
        return BeginColumn();
      case CMARK_NODE_LIST:
        return BeginList(node);
      case CMARK_NODE_ITEM:
        return BeginItem();
      case CMARK_NODE_HTML_BLOCK:
        return HtmlBlock(LiteralOf(node));
      case CMARK_NODE_EMPH:
        ++italic_;
        return;
      case CMARK_NODE_STRONG:
        ++bold_;
        return;
      case CMARK_NODE_LINK:
        return BeginLink(cmark_node_get_url(node));
      case CMARK_NODE_TEXT:
        return Add(LiteralOf(node), false);
      case CMARK_NODE_CODE:
        return Add(LiteralOf(node), true);
      case CMARK_NODE_SOFTBREAK:
        return Add(" ", false);
      case CMARK_NODE_HTML_INLINE:
        return HtmlInline(LiteralOf(node));
      default:
        return Refuse(cmark_node_get_type(node));
    }
  }

  void Leave(cmark_node* node) {
    switch (cmark_node_get_type(node)) {
      case CMARK_NODE_HEADING:
        return EndTitle(node);
      case CMARK_NODE_PARAGRAPH:
        return EndParagraph();
      case CMARK_NODE_LIST:
        lists_.pop_back();
        return;
      case CMARK_NODE_ITEM:
        number_.clear();
        return;
      case CMARK_NODE_EMPH:
        --italic_;
        return;
      case CMARK_NODE_STRONG:
        --bold_;
        return;
      case CMARK_NODE_LINK:
        return EndLink();
      default:
        return;
    }
  }

  void Refuse(cmark_node_type type) {
    for (const Refusal& refusal : kRefusals) {
      if (refusal.type == type) Diagnose(refusal.sentence);
    }
  }

  void BeginTitle(cmark_node* node) {
    paragraph_ = {};
    if (cmark_node_get_heading_level(node) > 1)
      Diagnose("a page has one title: write other headings **bold**, and leave a line empty before ---");
  }

  void EndTitle(cmark_node* node) {
    const Paragraph title = std::exchange(paragraph_, {});
    CloseUnderline();
    if (cmark_node_get_heading_level(node) > 1) return;
    ManuscriptPage page;
    page.line = cmark_node_get_start_line(node);
    page.columns.emplace_back();
    if (!SplitTitle(title.letters, page.title, page.name))
      Diagnose("the name of a page is {#name} behind its title, of letters, digits, - and _");
    if (page.title.empty()) Diagnose("this page has no title");
    if (std::any_of(title.letters.begin(), title.letters.end(),
                    [](const Letter& l) { return !l.mark.IsPlain(); }))
      Diagnose("a title has no styles and no links");
    if (!page.name.empty() && !names_.insert(page.name).second)
      Diagnose("the name \"" + page.name + "\" has been given to a page before");
    manuscript_.pages.push_back(std::move(page));
  }

  void BeginColumn() {
    if (!HasPage()) return;
    std::vector<Column>& columns = manuscript_.pages.back().columns;
    if (columns.size() == kMostColumns) Diagnose("a page has three columns at most");
    columns.emplace_back();
  }

  void BeginList(cmark_node* node) {
    const bool ordered = cmark_node_get_list_type(node) == CMARK_ORDERED_LIST;
    lists_.push_back({ordered, cmark_node_get_list_start(node)});
  }

  void BeginItem() {
    OpenList& list = lists_.back();
    number_ = list.ordered ? base::Str(list.next++) : "";
  }

  void BeginParagraph() {
    paragraph_ = {};
    const bool gutter = manuscript_.gutter && HasPage() && manuscript_.pages.back().columns.size() > 1;
    paragraph_.indent = {gutter ? 1 : 0, static_cast<std::int32_t>(lists_.size()),
                         std::exchange(number_, "")};
  }

  void EndParagraph() {
    CloseUnderline();
    const Paragraph paragraph = std::exchange(paragraph_, {});
    if (HasPage())
      TypesetParagraph(paragraph, manuscript_.pages.back().columns.back(), manuscript_.diagnostics);
  }

  // Whether text has a page to stand on; says so if not.
  bool HasPage() {
    if (manuscript_.pages.empty())
      Diagnose("this stands before the first page: a page begins with # and its title");
    return !manuscript_.pages.empty();
  }

  void HtmlBlock(std::string_view html) {
    if (IsComment(html)) {
      if (manuscript_.pages.empty()) ReadHead(html, line_, manuscript_);
    } else if (const int count = CountBreaks(html); count == 0) {
      Diagnose(
          "of HTML a page knows <u> inside a paragraph, and <br> with an empty line before and behind it");
    } else if (HasPage()) {
      for (int i = 0; i < count; ++i)
        TypesetParagraph({}, manuscript_.pages.back().columns.back(), manuscript_.diagnostics);
    }
  }

  void HtmlInline(std::string_view html) {
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

  void CloseUnderline() {
    if (std::exchange(underline_, 0) > 0) Diagnose("a <u> has no </u> in its paragraph");
  }

  void BeginLink(const char* url) {
    const std::optional<Target> target = ReadTarget(url == nullptr ? "" : url);
    if (!target)
      Diagnose("a link can't lead to \"" + std::string(url == nullptr ? "" : url) +
               "\": write #name, glossary:name, doc:file, notes:, plain:, mode:1 to mode:4, or bio:name");
    link_ = static_cast<std::int32_t>(paragraph_.targets.size());
    paragraph_.targets.push_back(target.value_or(Target()));
    link_begin_ = paragraph_.letters.size();
  }

  void EndLink() {
    if (paragraph_.letters.size() == link_begin_) Diagnose("this link has no words");
    link_ = -1;
  }

  void Add(std::string_view text, bool verbatim) {
    const Mark mark = CurrentMark();
    while (!text.empty()) {
      const char32_t character = base::TakeUtf8(text);
      const std::optional<char> code = ToProgram(character == U'\n' ? U' ' : character);
      if (!code) Diagnose(CannotShow(character));
      paragraph_.letters.push_back({code.value_or('?'), line_, mark, verbatim});
    }
  }

  Mark CurrentMark() {
    const std::optional<std::int32_t> style = StyleOf(italic_ > 0, bold_ > 0, underline_ > 0);
    if (!style) Diagnose("a page has no words that are underlined, bold and italic at once");
    if (link_ >= 0 && style != 0) Diagnose("a link has a look of its own: take the style away");
    if (link_ >= 0) return {0, link_};
    return {style.value_or(0), -1};
  }

  void Finish() {
    if (manuscript_.pages.empty()) {
      line_ = 1;
      Diagnose("there is no page: a page begins with # and its title");
    }
    Diagnostics& diagnostics = manuscript_.diagnostics;
    std::stable_sort(diagnostics.begin(), diagnostics.end(),
                     [](const Diagnostic& a, const Diagnostic& b) { return a.line < b.line; });
    diagnostics.erase(std::unique(diagnostics.begin(), diagnostics.end()), diagnostics.end());
  }

  void Diagnose(std::string sentence) { manuscript_.diagnostics.push_back({line_, std::move(sentence)}); }

  Manuscript manuscript_;
  std::set<std::string> names_;
  int line_ = 1;
  std::vector<OpenList> lists_;
  std::string number_;  // of the item whose first paragraph comes next
  Paragraph paragraph_;
  int italic_ = 0;  // how many are open
  int bold_ = 0;
  int underline_ = 0;
  std::int32_t link_ = -1;  // the open link's target, -1 for none
  std::size_t link_begin_ = 0;
};

}  // namespace

Manuscript ReadManuscript(std::string_view markdown) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (markdown.starts_with(kByteOrderMark)) markdown.remove_prefix(kByteOrderMark.size());
  const std::unique_ptr<cmark_node, FreeNode> root(
      cmark_parse_document(markdown.data(), markdown.size(), CMARK_OPT_VALIDATE_UTF8 | CMARK_OPT_SOURCEPOS));
  return Reader().Read(root.get());
}

}  // namespace quill::authoring
