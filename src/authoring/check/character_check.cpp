#include "authoring/check/character_check.h"

#include <cctype>
#include <memory>
#include <set>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_converter.h"
#include "base/utf8.h"

namespace quill::authoring {
namespace {

using base::TextEncoding;

constexpr std::string_view kPageTag = "<page";
constexpr std::string_view kReference = "&#";

// Without a converter the reader leaves a text as it is.
char Converted(char c, TextEncoding from, TextEncoding to) {
  const auto converter = base::GetTextConverter(from, to);
  return converter ? converter->convert(std::string(1, c))[0] : c;
}

// What the reader shows for a character of ISO 8859-1, in Mac Roman.
char Shown(char c) { return Converted(c, TextEncoding::kIsoLatin1, TextEncoding::kMacRoman); }

// Whether a character doesn't come back from the page as it stood in the file.
// Beyond ISO 8859-1, where only references lead, it never does.
bool IsLost(int code) {
  if (code < 0x80) return false;
  const char latin1 = base::Chr(code)[0];
  return code > 0xFF || Converted(Shown(latin1), TextEncoding::kMacRoman, TextEncoding::kIsoLatin1) != latin1;
}

// Whether the text has characters outside ASCII, and all of them are UTF-8. Text
// of ISO 8859-1 that looks so by chance is hardly ever met.
bool IsUtf8(std::string_view bytes) {
  bool found = false;
  while (!bytes.empty()) {
    const char32_t point = base::TakeUtf8(bytes);
    if (point == base::kMalformed) return false;
    found = found || point >= 0x80;
  }
  return found;
}

// Whether the start tag of a page stands at the head of `bytes`; "<PageID" is none.
bool IsPageTag(std::string_view bytes) {
  return bytes.size() > kPageTag.size() && base::EqualText(bytes.substr(0, kPageTag.size()), kPageTag) &&
         std::isalnum(static_cast<unsigned char>(bytes[kPageTag.size()])) == 0;
}

// The code of the character that stands at the head of `bytes`, plain or as a
// decimal reference. Twelve digits are more than any code has.
int CodeAt(std::string_view bytes) {
  if (bytes.starts_with(kReference)) return base::IntVal(bytes.substr(kReference.size(), 12));
  return static_cast<unsigned char>(bytes.front());
}

std::string ReasonFor(int code) {
  return "the reader has no character " + std::to_string(code) + " and shows \"" + Shown(base::Chr(code)[0]) +
         "\" for it";
}

}  // namespace

std::vector<LostCharacter> FindLostCharacters(std::string_view bytes) {
  if (IsUtf8(bytes)) return {{-1, "it is written in UTF-8, and the reader takes it for ISO 8859-1"}};
  std::vector<LostCharacter> lost;
  std::set<std::pair<int, int>> told;  // page index and code
  int page_index = -1;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (IsPageTag(bytes.substr(i))) ++page_index;
    const int code = CodeAt(bytes.substr(i));
    if (IsLost(code) && told.insert({page_index, code}).second) lost.push_back({page_index, ReasonFor(code)});
  }
  return lost;
}

}  // namespace quill::authoring
