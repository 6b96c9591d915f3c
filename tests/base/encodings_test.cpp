#include <gtest/gtest.h>
#include <iconv.h>

#include "base/exceptions.h"
#include "base/text_converter.h"
#include "base/utf8.h"

namespace quill::base {
namespace {

// The code points of a text in hexadecimal, "?" for a byte that is no character.
std::string Points(std::string_view text) {
  std::string points;
  while (!text.empty()) {
    const char32_t point = TakeUtf8(text);
    char hex[16];
    std::snprintf(hex, sizeof hex, "%X ", static_cast<unsigned>(point));
    points += point == kMalformed ? "? " : hex;
  }
  return points;
}

TEST(Utf8, TakesWellFormedTextAlone) {
  for (const auto& [text, points] : {
           std::pair{"a\xC3\xA9", "61 E9 "},
           {"\xE2\x82\xAC\xF0\x9F\x98\x80", "20AC 1F600 "},
           {"\xF4\x8F\xBF\xBF", "10FFFF "},
           {"\xF4\x90\x80\x80", "? ? ? ? "},        // above the last code point
           {"\xC0\x80\xE0\x80\x80", "? ? ? ? ? "},  // overlong
           {"\xED\xA0\x80", "? ? ? "},              // a surrogate
           {"\xC3g\x80\xFF", "? 67 ? ? "},          // a broken sequence, a stray byte
           {"\xE2\x82", "? ? "},                    // cut off
       }) {
    EXPECT_EQ(Points(text), points) << points;
  }
}

TEST(Utf8, WritesWhatItReads) {
  for (const char32_t point : {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
    std::string text;
    AppendUtf8(text, point);
    std::string_view rest = text;
    EXPECT_EQ(TakeUtf8(rest), point);
    EXPECT_TRUE(rest.empty());
  }
}

TEST(TextConverter, ConvertsByteForByte) {
  const auto to_latin = GetTextConverter(GetTextEncoding(0, 0, 0), GetTextEncoding(513, 0, 0));
  const auto to_mac = GetTextConverter(GetTextEncoding(513, 0, 0), GetTextEncoding(0, 0, 0));
  ASSERT_TRUE(to_latin && to_mac);
  const std::pair<const char*, const char*> rows[] = {
      {"plain \t\r\n~", "plain \t\r\n~"},
      {"\x80\x8A\xA7\xA9\xCA", "\xC4\xE4\xDF\xA9\xA0"},
      {"\xD2quoted\xD3 \xD4s\xD5", "\"quoted\" 's'"},
      {"\xD0\xD1\xC9\xA5\xF0\xC3", "--.*\?\?"},
  };
  for (const auto& [mac, latin] : rows) EXPECT_EQ(to_latin->convert(mac), latin);
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string back = to_mac->convert(to_latin->convert(all));
  int kept = 0;
  for (std::size_t byte = 0; byte < 256; ++byte) kept += back.at(byte) == all[byte] ? 1 : 0;
  EXPECT_EQ(kept, 208) << "128 of ASCII and 80 letters and signs stand in both";
  std::u16string points(256, u'\0');
  auto* in = all.data();
  auto* out = reinterpret_cast<char*>(points.data());
  std::size_t in_left = all.size();
  std::size_t out_left = 2 * points.size();
  const iconv_t library = iconv_open("UTF-16LE", "MACINTOSH");
  ASSERT_EQ(iconv(library, &in, &in_left, &out, &out_left), 0u);
  iconv_close(library);
  EXPECT_EQ(MacRomanToUtf16(all), points) << "as the C library has them";
  EXPECT_EQ(MacRomanToUtf8("a\x8E\xD5\xDB"), "a\xC3\xA9\xE2\x80\x99\xE2\x82\xAC");
}

TEST(TextConverter, KnowsNoOtherEncodings) {
  EXPECT_THROW(GetTextEncoding(1, 0, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 1, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 0, 1), NilObjectException);
}

}  // namespace
}  // namespace quill::base
