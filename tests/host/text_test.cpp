#include "host/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quill::host {
namespace {

TEST(Text, Parts) {
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Right("abc", 2), "bc");
  for (const std::ptrdiff_t none : {PTRDIFF_MIN, std::ptrdiff_t{-1}, std::ptrdiff_t{0}}) {
    EXPECT_EQ(Left("abc", none), "");
    EXPECT_EQ(Right("abc", none), "");
    EXPECT_EQ(Mid("abc", 1, none), "");
    EXPECT_EQ(Mid("abc", none, 2), "ab") << "a start below 1 counts as 1";
  }
  for (const std::ptrdiff_t more : {std::ptrdiff_t{4}, PTRDIFF_MAX}) {
    EXPECT_EQ(Left("abc", more), "abc");
    EXPECT_EQ(Right("abc", more), "abc");
    EXPECT_EQ(Mid("abc", 2, more), "bc");
    EXPECT_EQ(Mid("abc", more), "");
  }
  EXPECT_EQ(Mid("abc", 3), "c");
}

TEST(Text, InStr) {
  struct Row {
    std::size_t start;
    const char* text;
    const char* what;
    std::size_t found;
  };
  const Row rows[] = {
      {1, "banana", "an", 2},    {2, "banana", "an", 2}, {3, "banana", "an", 4},
      {5, "banana", "an", 0},    {0, "banana", "b", 1},  {SIZE_MAX, "banana", "a", 0},
      {1, "BaNaNa", "ANA", 2},   {1, "aab", "AB", 2},    {1, "abc", "", 0},
      {1, "", "a", 0},           {1, "ab", "abc", 0},    {3, "abc", "c", 3},
      {1, "caf\x8E", "\x8E", 4}, {1, "\x8E", "\x83", 0}, {1, "a]b", "}", 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(InStr(row.start, row.text, row.what), row.found)
        << row.text << " / " << row.what << " @" << row.start;
  }
}

TEST(Text, EqualityIgnoresTheCaseOfLettersAlone) {
  EXPECT_TRUE(EqualText("Page", "pAGE"));
  EXPECT_FALSE(EqualText("page", "pages"));
  EXPECT_FALSE(EqualText("[", "{"));
  EXPECT_FALSE(EqualText("@", "`"));
  EXPECT_FALSE(EqualText("\x8E", "\x83"));
}

TEST(Text, ReplacesFromLeftToRight) {
  EXPECT_EQ(Replace("aXbX", "X", "1"), "a1bX");
  EXPECT_EQ(ReplaceAll("aXbX", "X", ""), "ab");
  EXPECT_EQ(ReplaceAll("aXbx", "x", "1"), "aXb1") << "letter case counts";
  EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa") << "what was put in is not looked at again";
  EXPECT_EQ(ReplaceAll("a", "a", "aa"), "aa");
  EXPECT_EQ(ReplaceAll("abc", "", "X"), "abc");
  EXPECT_EQ(Replace("abc", "", "X"), "abc");
  EXPECT_EQ(ReplaceAll("", "a", "X"), "");
}

TEST(Text, Fields) {
  struct Row {
    const char* text;
    const char* separator;
    std::size_t count;
    const char* third;
  };
  const Row rows[] = {{"", " ", 0, ""},       {"a", " ", 1, ""},        {" ", " ", 2, ""},
                      {"a  b", " ", 3, "b"},  {"a b c d", " ", 4, "c"}, {"a::b::c", "::", 3, "c"},
                      {"a:::b", "::", 2, ""}, {"aXbxcXd", "X", 3, "d"}};
  for (const Row& row : rows) {
    EXPECT_EQ(CountFields(row.text, row.separator), row.count) << row.text;
    EXPECT_EQ(NthField(row.text, row.separator, 3), row.third) << row.text;
    EXPECT_EQ(NthField(row.text, row.separator, 0), "") << row.text;
    EXPECT_EQ(NthField(row.text, row.separator, SIZE_MAX), "") << row.text;
    if (Len(row.separator) != 1) continue;
    const auto fields = quill::host::Fields(row.text, row.separator[0]);
    ASSERT_EQ(fields.size(), row.count) << row.text;
    for (std::size_t n = 0; n < fields.size(); ++n) {
      EXPECT_EQ(fields[n], NthField(row.text, row.separator, n + 1)) << row.text;
    }
  }
}

TEST(Text, Trim) {
  EXPECT_EQ(Trim(" \t\r\na b\n "), "a b");
  EXPECT_EQ(Trim(" \n"), "");
  EXPECT_EQ(Trim(std::string_view("\0 a", 3)), std::string_view("\0 a", 3));
}

TEST(Text, Characters) {
  EXPECT_EQ(Asc(""), 0);
  EXPECT_EQ(Asc("\xFFz"), 255);
  for (int code = 0; code <= 255; ++code) EXPECT_EQ(Asc(Chr(code)), code);
  EXPECT_EQ(Chr(0).size(), 1u);
  EXPECT_EQ(Chr(0x2019), "'");
  EXPECT_EQ(Chr(0x2014), "-");
  for (const int code : {-1, INT32_MIN, 256, 0x10000, 0x12019, INT32_MAX}) EXPECT_EQ(Chr(code), "?") << code;
  EXPECT_EQ(Uppercase("az\x8E{1"), "AZ\x8E{1");
}

}  // namespace
}  // namespace quill::host
