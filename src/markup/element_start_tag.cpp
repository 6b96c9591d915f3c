// How an element reads its start tag. Plain searches, no grammar: the next "=",
// the next quote, the next white space. What they make of odd tags is the
// language that existing files are written in:
//
//   a b="1"c="2"     c is lost: what follows a quote goes, up to white space
//   a b ="1"         the attribute is named "b "
//   a b c="1"        one attribute, named "b c"
#include <string_view>

#include "base/text.h"
#include "markup/element.h"
#include "markup/exceptions.h"
#include "markup/text_helpers.h"

namespace quill::markup {
namespace {

// A value in a tag: from `begin` up to `end`. `behind` is where the search for
// the next attribute starts. All count from 0.
struct Value {
  std::size_t begin;
  std::size_t end;
  std::size_t behind;
};

Value QuotedValue(std::string_view tag, std::size_t quote) {
  const std::size_t end = tag.find(tag[quote], quote + 1);
  if (end == std::string_view::npos) throw zkXMLParsingException();
  return {quote + 1, end, end + 1};
}

Value BareValue(std::string_view tag, std::size_t begin) {
  const std::size_t white = WhiteSpaceInStr(tag, begin + 1);
  const std::size_t end = white == 0 ? tag.size() : white - 1;
  return {begin, end, end};
}

Value ValueBehind(std::string_view tag, std::size_t equals, bool relaxed) {
  const std::size_t begin = equals + 1;
  const char first = begin < tag.size() ? tag[begin] : ' ';
  if (first == '"' || first == '\'') return QuotedValue(tag, begin);
  if (!relaxed) throw zkXMLParsingException();
  return BareValue(tag, begin);
}

}  // namespace

zkXMLElement::zkXMLElement(std::string_view tag, bool relaxed, bool complete_now) : complete(complete_now) {
  tag = base::Trim(tag);
  const std::size_t white = WhiteSpaceInStr(tag);
  if (white == 0) {
    name = tag;
    return;
  }
  name = tag.substr(0, white - 1);
  ReadAttributes(tag, NonWhiteSpaceInStr(tag, white), relaxed);
}

// `start` is the position of the first attribute, from 1; 0 for none.
void zkXMLElement::ReadAttributes(std::string_view tag, std::size_t start, bool relaxed) {
  while (start != 0) {
    const std::size_t equals = tag.find('=', start - 1);
    if (equals == std::string_view::npos) throw zkXMLParsingException();
    const Value value = ValueBehind(tag, equals, relaxed);
    att.push_back(
        std::make_shared<zkXMLAttribute>(std::string(tag.substr(start - 1, equals - (start - 1))),
                                         Variant(tag.substr(value.begin, value.end - value.begin))));
    const std::size_t white = WhiteSpaceInStr(tag, value.behind + 1);
    start = white == 0 ? 0 : NonWhiteSpaceInStr(tag, white);
  }
}

}  // namespace quill::markup
