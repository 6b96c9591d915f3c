#include "host/text_converter.h"

#include <gtest/gtest.h>

#include "host/exceptions.h"

namespace quill::host {
namespace {

constexpr auto kMac = TextEncoding::kMacRoman;
constexpr auto kLatin = TextEncoding::kIsoLatin1;

TEST(TextConverter, ByteForByte) {
  struct Row {
    const char* mac;
    const char* latin;
    bool back;
  };
  const Row rows[] = {
      {"plain \t\r\n~", "plain \t\r\n~", true},
      {"caf\x8E", "caf\xE9", true},
      {"\x80\x8A\xA7\xA9\xCA", "\xC4\xE4\xDF\xA9\xA0", true},
      {"\xD2quoted\xD3 \xD4s\xD5", "\"quoted\" 's'", false},
      {"\xD0\xD1\xC9\xA5", "--.*", false},
      {"\xF0\xC3", "??", false},
  };
  const auto to_latin = GetTextConverter(kMac, kLatin);
  const auto to_mac = GetTextConverter(kLatin, kMac);
  ASSERT_NE(to_latin, nullptr);
  ASSERT_NE(to_mac, nullptr);
  for (const Row& row : rows) {
    EXPECT_EQ(to_latin->convert(row.mac), row.latin) << row.mac;
    EXPECT_EQ(to_mac->convert(row.latin) == row.mac, row.back) << row.mac;
  }
}

TEST(TextConverter, WhatBothEncodingsHoldComesBack) {
  const auto to_latin = GetTextConverter(kMac, kLatin);
  const auto to_mac = GetTextConverter(kLatin, kMac);
  int lost = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string mac(1, static_cast<char>(byte));
    const std::string latin = to_latin->convert(mac);
    ASSERT_EQ(latin.size(), 1u);
    if (to_mac->convert(latin) != mac) ++lost;
  }
  // 128 of ASCII and 80 letters and signs stand in both.
  EXPECT_EQ(256 - lost, 208);
}

TEST(TextConverter, UnicodeHasEveryCharacter) {
  EXPECT_EQ(MacRomanToUtf16("a\x8E\xD5\xDB"), u"a\u00E9\u2019\u20AC");
  EXPECT_EQ(MacRomanToUtf8("a\x8E\xD5"), "a\xC3\xA9\xE2\x80\x99");
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(MacRomanToUtf16(all).size(), 256u);
  EXPECT_EQ(MacRomanToUtf16(all).find(u'\uFFFD'), std::u16string::npos);
}

TEST(TextConverter, TwoEncodingsAreKnown) {
  EXPECT_EQ(GetTextEncoding(0, 0, 0), kMac);
  EXPECT_EQ(GetTextEncoding(513, 0, 0), kLatin);
  EXPECT_THROW(GetTextEncoding(1, 0, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 1, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 0, 1), NilObjectException);
}

}  // namespace
}  // namespace quill::host
