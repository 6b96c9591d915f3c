#include "authoring/manuscript/manuscript_reader.h"

#include <cmark.h>

#include <array>
#include <memory>
#include <optional>

#include "authoring/manuscript/manuscript_builder.h"

namespace quill::authoring {
namespace {

struct FreeNode {
  void operator()(cmark_node* node) const { cmark_node_free(node); }
};
struct FreeIterator {
  void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
};

// The parser's texts, which it gives as null where there is none.
std::string_view TextOf(const char* text) { return text == nullptr ? std::string_view() : text; }
std::string_view LiteralOf(cmark_node* node) { return TextOf(cmark_node_get_literal(node)); }

// What CommonMark has and a page can't show. Node types that stand neither here
// nor in `Enter`, such as the document itself, need no word.
struct Unshowable {
  cmark_node_type type;
  const char* sentence;
};
constexpr std::array kUnshowable = {
    Unshowable{CMARK_NODE_LINEBREAK, "a page has no line ends inside a paragraph: leave a line empty"},
    Unshowable{CMARK_NODE_IMAGE, "a page can't show pictures"},
    Unshowable{CMARK_NODE_BLOCK_QUOTE, "a page has no quoted blocks: take the > away"},
    Unshowable{CMARK_NODE_CODE_BLOCK,
               "a page has no blocks of code: begin the line at the margin, and use {1} to indent"},
};

void DiagnoseUnshowable(cmark_node_type type, ManuscriptBuilder& builder) {
  for (const Unshowable& row : kUnshowable) {
    if (row.type == type) builder.Diagnose(row.sentence);
  }
}

void BeginList(cmark_node* node, ManuscriptBuilder& builder) {
  const bool ordered = cmark_node_get_list_type(node) == CMARK_ORDERED_LIST;
  builder.BeginList(ordered ? std::optional(cmark_node_get_list_start(node)) : std::nullopt);
}

// The start of a node, or the whole of one that has no end.
void Enter(cmark_node* node, ManuscriptBuilder& builder) {
  switch (cmark_node_get_type(node)) {
    case CMARK_NODE_HEADING:
      return builder.BeginTitle(cmark_node_get_heading_level(node));
    case CMARK_NODE_PARAGRAPH:
      return builder.BeginParagraph();
    case CMARK_NODE_THEMATIC_BREAK:
      return builder.BeginColumn();
    case CMARK_NODE_LIST:
      return BeginList(node, builder);
    case CMARK_NODE_ITEM:
      return builder.BeginItem();
    case CMARK_NODE_HTML_BLOCK:
      return builder.AddHtmlBlock(LiteralOf(node));
    case CMARK_NODE_EMPH:
      return builder.BeginItalic();
    case CMARK_NODE_STRONG:
      return builder.BeginBold();
    case CMARK_NODE_LINK:
      return builder.BeginLink(TextOf(cmark_node_get_url(node)));
    case CMARK_NODE_TEXT:
      return builder.AddText(LiteralOf(node));
    case CMARK_NODE_CODE:
      return builder.AddVerbatim(LiteralOf(node));
    case CMARK_NODE_SOFTBREAK:
      return builder.AddText(" ");
    case CMARK_NODE_HTML_INLINE:
      return builder.AddHtmlInline(LiteralOf(node));
    default:
      return DiagnoseUnshowable(cmark_node_get_type(node), builder);
  }
}

void Leave(cmark_node* node, ManuscriptBuilder& builder) {
  switch (cmark_node_get_type(node)) {
    case CMARK_NODE_HEADING:
      return builder.EndTitle(cmark_node_get_heading_level(node), cmark_node_get_start_line(node));
    case CMARK_NODE_PARAGRAPH:
      return builder.EndParagraph();
    case CMARK_NODE_LIST:
      return builder.EndList();
    case CMARK_NODE_ITEM:
      return builder.EndItem();
    case CMARK_NODE_EMPH:
      return builder.EndItalic();
    case CMARK_NODE_STRONG:
      return builder.EndBold();
    case CMARK_NODE_LINK:
      return builder.EndLink();
    default:
      return;
  }
}

// Walks the nodes in the order of the text. Nodes inside a paragraph don't all
// know their line; those that don't stand on that of the node before them.
Manuscript Walk(cmark_node* root) {
  ManuscriptBuilder builder;
  const std::unique_ptr<cmark_iter, FreeIterator> iterator(cmark_iter_new(root));
  for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
    cmark_node* const node = cmark_iter_get_node(iterator.get());
    if (const int line = cmark_node_get_start_line(node); line > 0) builder.MoveToLine(line);
    if (event == CMARK_EVENT_ENTER) {
      Enter(node, builder);
    } else {
      Leave(node, builder);
    }
  }
  return builder.Finish();
}

}  // namespace

Manuscript ReadManuscript(std::string_view markdown) {
  // Editors of some desktops begin every UTF-8 file with it.
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (markdown.starts_with(kByteOrderMark)) markdown.remove_prefix(kByteOrderMark.size());
  const std::unique_ptr<cmark_node, FreeNode> root(
      cmark_parse_document(markdown.data(), markdown.size(), CMARK_OPT_VALIDATE_UTF8 | CMARK_OPT_SOURCEPOS));
  return Walk(root.get());
}

}  // namespace quill::authoring
