#include "markup/nodes.h"

#include <algorithm>

#include "base/text.h"
#include "markup/text_helpers.h"

namespace quill::markup {
namespace {

constexpr std::string_view kSectionEnd = "]]>";
constexpr std::string_view kGuardedSectionEnd = "]]&gt;";
constexpr std::string_view kInstructionEnd = "?>";
constexpr std::string_view kGuardedInstructionEnd = "?&gt;";

std::string ReplaceIfPresent(std::string text, std::string_view what, std::string_view with) {
  if (text.find(what) == std::string::npos) return text;
  return base::ReplaceAll(text, what, with);
}

// Whether a text section may hold the raw text as it stands: no escape, no
// carriage return, nothing to convert, no "]]>". Errs on the side of false.
bool IsPlain(std::string_view raw) {
  const auto special = [](char c) {
    return static_cast<unsigned>(c == '&') | static_cast<unsigned>(c == '\r') |
           static_cast<unsigned>(c == ']') | static_cast<unsigned>(static_cast<signed char>(c) < 0);
  };
  // Blocks of fixed length and without a branch, for which compilers use the
  // wide registers: all text of a file comes through here.
  constexpr std::size_t kBlock = 32;
  while (raw.size() >= kBlock) {
    unsigned char found = 0;
    for (std::size_t i = 0; i < kBlock; ++i) found |= static_cast<unsigned char>(special(raw[i]));
    if (found != 0) return false;
    raw.remove_prefix(kBlock);
  }
  return std::none_of(raw.begin(), raw.end(), [&](char c) { return special(c) != 0; });
}

void DecodeQuotes(std::string& text) {
  if (text.find('&') == std::string::npos) return;
  ReplaceByCharacter(text, "&apos;", '\'');
  ReplaceByCharacter(text, "&quot;", '"');
}

void UnifyLineEnds(std::string& text) {
  ReplaceByCharacter(text, "\r\n", '\n');
  ReplaceByCharacter(text, "\r", '\n');
}

}  // namespace

zkXMLAttribute::zkXMLAttribute(std::string new_name, Variant value) : name(std::move(new_name)) {
  zkXMLAttribute::SetData(std::move(value));
}

void zkXMLAttribute::SetData(Variant value) {
  data = DecodeXMLText(std::move(value));
  DecodeEntities(data);
}

bool zkXMLAttribute::IsNamed(std::string_view other) const { return base::EqualText(name, other); }

zkXMLTextSection::zkXMLTextSection(std::string_view raw) {
  if (IsPlain(raw)) {
    data = raw;
    return;
  }
  std::string text = DecodeXMLText(std::string(raw));
  DecodeEntities(text);
  DecodeQuotes(text);
  UnifyLineEnds(text);
  zkXMLTextSection::SetData(std::move(text));
}

Variant zkXMLTextSection::GetData() const { return ReplaceIfPresent(data, kGuardedSectionEnd, kSectionEnd); }

void zkXMLTextSection::SetData(Variant value) {
  data = ReplaceIfPresent(std::move(value), kSectionEnd, kGuardedSectionEnd);
}

bool zkXMLTextSection::IsWhiteSpace() const { return NonWhiteSpaceInStr(data) == 0; }

void zkXMLCDataSection::SetData(Variant value) {
  data = ReplaceIfPresent(std::move(value), kSectionEnd, kGuardedSectionEnd);
}

Variant zkXMLCDataSection::GetData() const { return ReplaceIfPresent(data, kGuardedSectionEnd, kSectionEnd); }

void zkXMLComment::SetData(Variant value) {
  const auto both_dashes = [](char a, char b) { return a == '-' && b == '-'; };
  value.erase(std::unique(value.begin(), value.end(), both_dashes), value.end());
  if (value.ends_with('-')) value.pop_back();
  comment = std::move(value);
}

void zkXMLPInstruction::SetData(Variant value) {
  const std::size_t white = WhiteSpaceInStr(value);
  const std::size_t target = white == 0 ? 0 : white - 1;
  std::string rest = ReplaceIfPresent(value.substr(target), kInstructionEnd, kGuardedInstructionEnd);
  data = value.substr(0, target) + rest;
}

Variant zkXMLPInstruction::GetData() const {
  return ReplaceIfPresent(data, kGuardedInstructionEnd, kInstructionEnd);
}

zkXMLDeclaration::zkXMLDeclaration(std::string_view text) {
  const std::size_t white = WhiteSpaceInStr(text);
  type = text.substr(0, white == 0 ? 0 : white - 1);
  // With nothing behind the first word, all of the text is the data.
  const std::size_t rest = NonWhiteSpaceInStr(text, white + 1);
  data = text.substr(rest == 0 ? 0 : rest - 1);
}

}  // namespace quill::markup
