#include "base/utf8.h"

#include <gtest/gtest.h>

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
  struct Case {
    std::string text;
    std::string points;
  };
  for (const auto& [text, points] : std::initializer_list<Case>{
           {"a\xC3\xA9", "61 E9 "},
           {"\xE2\x82\xAC\xF0\x9F\x98\x80", "20AC 1F600 "},
           {"\xF4\x8F\xBF\xBF", "10FFFF "},
           {"\xF4\x90\x80\x80", "? ? ? ? "},        // above the last code point
           {"\xC0\x80\xE0\x80\x80", "? ? ? ? ? "},  // overlong
           {"\xED\xA0\x80", "? ? ? "},              // a surrogate
           {"\xC3"
            "a\x80\xFF",
            "? 61 ? ? "},         // a broken sequence, a stray byte
           {"\xE2\x82", "? ? "},  // cut off
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

}  // namespace
}  // namespace quill::base
