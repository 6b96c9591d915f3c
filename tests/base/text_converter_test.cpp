#include "base/text_converter.h"

#include <gtest/gtest.h>

#include "base/exceptions.h"

namespace quill::base {
namespace {

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
  EXPECT_EQ(MacRomanToUtf16(all).size(), 256u);
  EXPECT_EQ(MacRomanToUtf16(all).find(u'\uFFFD'), std::u16string::npos);
  EXPECT_EQ(MacRomanToUtf8("a\x8E\xD5\xDB"), "a\xC3\xA9\xE2\x80\x99\xE2\x82\xAC");
}

TEST(TextConverter, KnowsNoOtherEncodings) {
  EXPECT_THROW(GetTextEncoding(1, 0, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 1, 0), NilObjectException);
  EXPECT_THROW(GetTextEncoding(0, 0, 1), NilObjectException);
}

}  // namespace
}  // namespace quill::base
