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
// At a start tag the look-ahead asks whether its end tag occurs somewhere behind
// it, not necessarily as its own. Strict use refuses the tag if not; incremental
// use takes it that the rest of the element is still to come. An element that its
// own end tag closes has answered that, so that the text is searched only for the
// odd ones: in strict use once and for all together, before the parse may end
// well, in incremental use when one of them is left.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
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
  // Ours, not the domain's:

  // An element whose content is being read. The first one on the stack is the
  // element that the call fills.
  struct Frame {
    zkXMLElement* element = nullptr;

    // Length of the input's text when reading the content began or went on. It is
    // compared with the position to see whether the text has ended, and stays as it
    // is when the end of an inner element empties the text.
    std::size_t text_length = 0;

    std::size_t first_node = 0;  // from this index on `nodes_` are its content

    // Its start tag's inner text, from index to index behind. None if `resumed`:
    // then the element was open before the call.
    std::size_t tag_begin = 0;
    std::size_t tag_end = 0;
    bool resumed = false;

    bool ends_chunk = false;  // once it is left: see `EndsChunk`
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
  bool EndsChunk(const Frame& frame);
  void GiveUpTo(std::size_t keeper);
  void HandOver(const Frame& frame);

  std::string_view LookAheadKey(const Frame& frame) const;
  bool AnswersLookAhead(std::size_t end_tag, const Frame& frame) const;
  void RequireEndTags();

  ParserInput& in_;
  std::vector<Frame> open_;

  // Content of all open elements, an element before its own content. It is
  // handed over when an element is left, so that each list is made once and in
  // its final size.
  std::vector<std::shared_ptr<zkXMLObject>> nodes_;

  EndTagSearch end_tags_;               // strict: what must occur
  std::optional<EndTagIndex> look_up_;  // incremental: made when first needed
  bool left_over_ = false;
};

// `text` without the white space at its right end.
std::string_view trimRight(std::string_view text);

}  // namespace quill::markup
