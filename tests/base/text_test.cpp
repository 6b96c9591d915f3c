#include "base/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quill::base {
namespace {

TEST(Text, Parts) {
  struct Row {
    std::ptrdiff_t at;
    const char *left, *right, *mid, *mid_2;
  };
  for (const Row& row : {Row{PTRDIFF_MIN, "", "", "abc", "ab"}, Row{0, "", "", "abc", "ab"},
                         Row{2, "ab", "bc", "bc", "bc"}, Row{3, "abc", "abc", "c", "c"},
                         Row{4, "abc", "abc", "", ""}, Row{PTRDIFF_MAX, "abc", "abc", "", ""}}) {
    EXPECT_EQ(Left("abc", row.at), row.left) << row.at;
    EXPECT_EQ(Right("abc", row.at), row.right) << row.at;
    EXPECT_EQ(Mid("abc", row.at), row.mid) << row.at;
    EXPECT_EQ(Mid("abc", row.at, 2), row.mid_2) << row.at;
    EXPECT_EQ(Mid("abc", 1, row.at), row.left) << row.at;
  }
}

TEST(Text, InStr) {
  struct Row {
    std::size_t start;
    const char *text, *what;
    std::size_t found;
  };
  const Row rows[] = {
      {2, "banana", "an", 2},    {3, "banana", "an", 4},    {5, "banana", "an", 0}, {0, "banana", "b", 1},
      {SIZE_MAX, "bab", "b", 0}, {1, "BaNaNa", "ANA", 2},   {1, "aab", "AB", 2},    {1, "abc", "", 0},
      {1, "", "a", 0},           {1, "ab", "abc", 0},       {3, "abc", "c", 3},     {1, "a]b", "}", 0},
      {1, "\x8E", "\x83", 0},    {1, "caf\x8E", "\x8E", 4}, {1, "@", "`", 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(InStr(row.start, row.text, row.what), row.found) << row.text << "/" << row.what;
    EXPECT_FALSE(EqualText(row.text, row.what)) << row.text;
  }
  EXPECT_TRUE(EqualText("Page", "pAGE"));
}

TEST(Text, ReplacesFromLeftToRight) {
  struct Row {
    const char *text, *what, *with, *first, *all;
  };
  const Row rows[] = {
      {"aXbX", "X", "", "abX", "ab"}, {"aXbx", "x", "1", "aXb1", "aXb1"}, {"aaa", "aa", "a", "aa", "aa"},
      {"a", "a", "aa", "aa", "aa"},   {"abc", "", "X", "abc", "abc"},     {"", "a", "X", "", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Replace(row.text, row.what, row.with), row.first) << row.text << "/" << row.what;
    EXPECT_EQ(ReplaceAll(row.text, row.what, row.with), row.all) << row.text << "/" << row.what;
  }
}

TEST(Text, Fields) {
  struct Row {
    const char *text, *separator;
    std::size_t count;
    const char* third;
  };
  for (const Row& row :
       {Row{"", " ", 0, ""}, Row{" ", " ", 2, ""}, Row{"a  b", " ", 3, "b"}, Row{"a b c d", " ", 4, "c"},
        Row{"a::b::c", "::", 3, "c"}, Row{"a:::b", "::", 2, ""}, Row{"aXbxcXd", "X", 3, "d"}}) {
    EXPECT_EQ(CountFields(row.text, row.separator), row.count) << row.text;
    EXPECT_EQ(NthField(row.text, row.separator, 3), row.third) << row.text;
    for (const std::size_t none : {std::size_t{0}, SIZE_MAX})
      EXPECT_EQ(NthField(row.text, row.separator, none), "");
  }
  EXPECT_TRUE(Fields("", ' ').empty());
  EXPECT_EQ(Fields(" a ", ' '), (std::vector<std::string_view>{"", "a", ""}));
}

TEST(Text, TrimsAndConvertsCharacters) {
  EXPECT_EQ(Trim(" \t\r\na b\n "), "a b");
  EXPECT_EQ(Trim(" \n"), "");
  EXPECT_EQ(Uppercase("az\x8E{1"), "AZ\x8E{1");
  EXPECT_EQ(Asc(""), 0);
  for (int code = 0; code <= 255; ++code) EXPECT_EQ(Asc(Chr(code) + "z"), code);
  EXPECT_EQ(Chr(0x2019) + Chr(0x2014), "'-");
  for (const int code : {-1, INT32_MIN, 256, 0x12019, INT32_MAX}) EXPECT_EQ(Chr(code), "?") << code;
}

}  // namespace
}  // namespace quill::base
