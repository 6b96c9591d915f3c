// The scanner behind `zkXMLContainer`. It looks at the next character, finds the
// end of the construct that starts there by a plain search for its closing
// delimiter, and builds a node; no tokens, no grammar. It is tolerant by habit,
// and has two settings besides:
//
//   relaxed       for HTML-like files: values without quotes, missing end tags
//   incremental   the text comes in chunks, and elements that a chunk leaves
//                 open are gone on with in the next
//
// Elements nest without recursion: the open ones lie on a stack of their own,
// and so deep input ends in an exception, never in a crash.
//
// In strict use a start tag is refused unless its end tag occurs somewhere
// behind it, not necessarily as its own. An element that its own end tag closes
// has answered that, so that the text is searched only for the odd ones, once
// and for all together, before the parse may end well.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "markup/element.h"
#include "markup/end_tag_search.h"

namespace quill::markup {

// So many elements may be open at a time.
inline constexpr std::size_t kMaxOpenElements = 10000;

// What a container keeps of its input.
struct ParserInput {
  std::string text;          // not yet consumed; empty after a finished parse
  std::size_t position = 0;  // index in `text` of the next character to look at
  bool syntaxRelaxed = false;
  bool incremental = false;
};

// Good for one call of `parseElementContent`.
class Parser {
 public:
  explicit Parser(ParserInput& input) : in_(input) {}

  // Fills `element` from the input's position on. True only if a relaxed parse
  // came upon an end tag that no open element takes; the position is then at its
  // "<". Throws `zkXMLParsingException` for malformed markup,
  // `StackOverflowException` when elements nest too deep, and, in incremental
  // use alone, `zkXMLIncrementEnd` when the text ends inside a construct, which
  // then starts at the position. The tree holds all that was read by then.
  bool parseElementContent(zkXMLElement& element);

 private:
  // An element whose content is being read. The first one is the whole call's.
  struct Frame {
    zkXMLElement* element = nullptr;
    std::size_t n = 0;           // length of the text when the element's turn came
    std::size_t first_node = 0;  // from here on `nodes_` are its content
    std::size_t tag_begin = 0;   // its start tag's inner text in the input
    std::size_t tag_end = 0;
    bool resumed = false;        // left open by the chunk before
    bool end_tag_ahead = false;  // incremental: the look-ahead found an end tag
  };

  bool Strict() const { return !in_.syntaxRelaxed && !in_.incremental; }
  std::string_view Text(std::size_t begin, std::size_t end) const;
  std::size_t Find(std::string_view delimiter, std::size_t from) const;

  void Open(const Frame& frame);
  void Resume(zkXMLElement& element);
  void Advance();

  void TextRun();
  void Construct();
  void CDataSection();
  void Comment();
  void Instruction();
  void Declaration();
  void Tag();
  void StartTag(std::size_t begin, std::size_t end);
  void EndTag(std::size_t begin, std::size_t end);
  void OwnEndTag(std::size_t begin);
  void ForeignEndTag(std::string_view name);
  void EndOfText();

  void Leave();
  void ReturnFrom(const Frame& left);
  bool EndsChunk(const Frame& left) const;
  void GiveUpTo(std::size_t keeper);
  void HandOver(const Frame& frame);

  std::string_view LookAheadKey(const Frame& frame) const;
  void RequireUnlessAt(std::size_t begin, const Frame& frame);
  void RequireEndTags();

  ParserInput& in_;
  std::vector<Frame> open_;

  // Content of all open elements, an element before its own content. It is
  // handed over when an element is left, so that each list is made once and in
  // its final size.
  std::vector<std::shared_ptr<zkXMLObject>> nodes_;

  EndTagSearch end_tags_;
  bool left_over_ = false;
};

// `text` without the white space at its right end.
std::string_view trimRight(std::string_view text);

}  // namespace quill::markup
