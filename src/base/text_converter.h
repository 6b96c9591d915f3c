// Text encodings and the converters between them. The program knows two, both
// one byte a character: Mac Roman, in which text is handled, and ISO 8859-1, in
// which XML files hold it. The desktop that draws asks for Unicode besides.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quill::base {

enum class TextEncoding : std::int32_t { kMacRoman = 0, kIsoLatin1 = 0x201 };

// Returns the encoding with that base value (0 Mac Roman, 513 ISO 8859-1); variant and
// format have no members but 0. Throws `NilObjectException` for any other.
TextEncoding GetTextEncoding(std::int32_t base, std::int32_t variant, std::int32_t format);

// Converts one text at a time, a byte for a byte. A character that the target
// lacks becomes its nearest single character where there is an obvious one,
// else "?".
class TextConverter {
 public:
  using Table = std::array<char, 256>;

  explicit TextConverter(const Table& table) : table_(table) {}

  // Forgets what an earlier text left behind. One byte a character leaves
  // nothing, so that this keeps the protocol and costs nothing.
  void clear() {}

  std::string convert(std::string_view text) const;

 private:
  Table table_;
};

// Returns the converter from one encoding to the other.
std::shared_ptr<TextConverter> GetTextConverter(TextEncoding from, TextEncoding to);

// Returns the character of ISO 8859-1 nearest to a Unicode code point, "?" if there is
// none that a reader would take for it.
char NearestLatin1(int code_point);

// Returns the characters of a Mac Roman text as UTF-16 code units, one each.
std::u16string MacRomanToUtf16(std::string_view text);

// The same as UTF-8.
std::string MacRomanToUtf8(std::string_view text);

// The way back, for messages: what Mac Roman lacks becomes its nearest single
// character where there is an obvious one, else "?".
std::string Utf8ToMacRoman(std::string_view text);

}  // namespace quill::base
