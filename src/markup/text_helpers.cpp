#include "markup/text_helpers.h"

#include <algorithm>
#include <memory>

#include "base/exceptions.h"
#include "base/numbers.h"
#include "base/text.h"
#include "markup/numeric_references.h"

namespace quill::markup {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\r";

std::shared_ptr<base::TextConverter> txtEncoder;
std::shared_ptr<base::TextConverter> txtDecoder;

std::size_t PositionOf(std::size_t index) { return index == std::string_view::npos ? 0 : index + 1; }
std::size_t IndexOf(std::size_t position) { return position > 0 ? position - 1 : 0; }

std::string Convert(std::shared_ptr<base::TextConverter>& converter, std::string_view text) {
  if (!converter) {
    SetXMLEncodings(base::GetTextEncoding(513, 0, 0), base::GetTextEncoding(0, 0, 0));
  }
  converter->clear();
  return converter->convert(text);
}

bool IsAscii(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
}

std::string WithReferences(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const std::int32_t code = static_cast<unsigned char>(c);
    if (code >= 127 || code < 32) {
      result.append("&#").append(base::Str(code)).append(";");
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

const std::string& zkXMLLineBreak() {
  if (zkXMLToolkitGlobals::zkXMLLineDelimiter.empty()) SetXMLLineBreakMac();
  return zkXMLToolkitGlobals::zkXMLLineDelimiter;
}

void SetXMLLineBreakMac() { zkXMLToolkitGlobals::zkXMLLineDelimiter = "\r"; }

const std::string& zkXMLIndentationCharacter() {
  std::string& indentation = zkXMLToolkitGlobals::zkXMLIndentationChar;
  if (indentation.empty()) indentation = "\t";
  return indentation;
}

bool IsWhiteSpaceChar(std::string_view text) {
  return text.size() == 1 && kWhiteSpace.find(text[0]) != std::string_view::npos;
}

std::size_t WhiteSpaceInStr(std::string_view text, std::size_t start) {
  return PositionOf(text.find_first_of(kWhiteSpace, IndexOf(start)));
}

std::size_t NonWhiteSpaceInStr(std::string_view text, std::size_t start) {
  return PositionOf(text.find_first_not_of(kWhiteSpace, IndexOf(start)));
}

std::string EncodeXMLText(std::string_view text) {
  const std::string escaped = EncodeEntities(text);
  const std::string converted = Convert(txtEncoder, escaped);
  return converted == escaped ? escaped : WithReferences(converted);
}

std::string DecodeXMLText(std::string text) {
  DecodeEntities(text);
  ReplaceNumericReferences(text);
  // The encodings differ in the upper half of their tables alone.
  return IsAscii(text) ? text : Convert(txtDecoder, text);
}

void SetXMLEncodings(base::TextEncoding file, base::TextEncoding internal) {
  txtDecoder = base::GetTextConverter(file, internal);
  txtEncoder = base::GetTextConverter(internal, file);
  if (!txtDecoder || !txtEncoder) throw base::NilObjectException();
}

std::string EncodeEntities(std::string_view text) {
  std::string escaped = base::ReplaceAll(text, "&", "&amp;");
  escaped = base::ReplaceAll(escaped, "<", "&lt;");
  return base::ReplaceAll(escaped, ">", "&gt;");
}

void DecodeEntities(std::string& text) {
  if (text.find('&') == std::string::npos) return;
  ReplaceByCharacter(text, "&amp;", '&');
  ReplaceByCharacter(text, "&lt;", '<');
  ReplaceByCharacter(text, "&gt;", '>');
}

void ReplaceByCharacter(std::string& text, std::string_view what, char with) {
  std::size_t hit = text.find(what);
  if (hit == std::string::npos) return;
  // The result grows behind the reader in the same string, as it is never the
  // longer of the two.
  char* const begin = text.data();
  char* kept = begin + hit;
  while (hit != std::string::npos) {
    *kept++ = with;
    const std::size_t from = hit + what.size();
    hit = text.find(what, from);
    kept = std::copy(begin + from, begin + std::min(hit, text.size()), kept);
  }
  text.resize(static_cast<std::size_t>(kept - begin));
}

}  // namespace quill::markup
