#include "base/text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "base/numbers.h"

namespace quill::base {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(Val, TakesTheNumberAtTheHead) {
  const std::string nines(400, '9');
  const std::string zeros(400, '0');
  const std::pair<std::string, double> rows[] = {
      {"", 0},      {" ", 0},      {"-", 0},       {"+-3", 0},        {".", 0},          {"e5", 0},
      {"inf", 0},   {"nan", 0},    {"0x10", 0},    {"\xA0-1", 0},     {"-12.5x", -12.5}, {"+4", 4},
      {".5", 0.5},  {"5.", 5},     {"1.2.3", 1.2}, {"1e3", 1000},     {"1E-2,", 0.01},   {"1e+", 1},
      {"1,000", 1}, {"1e-999", 0}, {"0e999", 0},   {"\r\n\v\f7 ", 7},
  };
  const std::pair<std::string, double> long_rows[] = {
      {"-" + nines + ".0", -kInfinity}, {"00" + nines + "e-1", kInfinity},
      {"." + zeros + "1", 0},           {"0." + zeros + "1e2", 0},
      {"0." + zeros + "1e401", 1},      {"9" + zeros + "e-400", 9},
      {"1e9" + nines, kInfinity},       {"1e-9" + nines, 0},
  };
  for (const auto& [text, value] : rows) EXPECT_DOUBLE_EQ(Val(text), value) << text;
  for (const auto& [text, value] : long_rows) EXPECT_DOUBLE_EQ(Val(text), value) << text;
}

TEST(Numbers, AreCutAndStayInRange) {
  const std::pair<double, std::int32_t> rows[] = {
      {2.9, 2},       {-2.9, -2},           {2147483647.9, kMost}, {-2147483648.9, kLeast},
      {1e300, kMost}, {-kInfinity, kLeast}, {std::nan(""), 0},
  };
  for (const auto& [value, integer] : rows) EXPECT_EQ(ToInt32(value), integer) << value;
  EXPECT_EQ(AddSaturating(kMost, 1), kMost);
  EXPECT_EQ(AddSaturating(kLeast, -1), kLeast);
  for (const std::int32_t value : {kLeast, -1, 0, 10, kMost}) EXPECT_EQ(IntVal(Str(value)), value);
}

TEST(Text, Parts) {
  const std::tuple<std::ptrdiff_t, const char*, const char*, const char*, const char*> rows[] = {
      {PTRDIFF_MIN, "", "", "abc", "ab"}, {0, "", "", "abc", "ab"},  {2, "ab", "bc", "bc", "bc"},
      {3, "abc", "abc", "c", "c"},        {4, "abc", "abc", "", ""}, {PTRDIFF_MAX, "abc", "abc", "", ""},
  };
  for (const auto& [at, left, right, mid, mid_2] : rows) {
    EXPECT_EQ(Left("abc", at), left) << at;
    EXPECT_EQ(Right("abc", at), right) << at;
    EXPECT_EQ(Mid("abc", at), mid) << at;
    EXPECT_EQ(Mid("abc", at, 2), mid_2) << at;
    EXPECT_EQ(Mid("abc", 1, at), left) << at;
  }
}

TEST(Text, InStr) {
  const std::tuple<std::size_t, const char*, const char*, std::size_t> rows[] = {
      {2, "banana", "an", 2},    {3, "banana", "an", 4},    {5, "banana", "an", 0}, {0, "banana", "b", 1},
      {SIZE_MAX, "bab", "b", 0}, {1, "BaNaNa", "ANA", 2},   {1, "aab", "AB", 2},    {1, "abc", "", 0},
      {1, "", "a", 0},           {1, "ab", "abc", 0},       {3, "abc", "c", 3},     {1, "a]b", "}", 0},
      {1, "\x8E", "\x83", 0},    {1, "caf\x8E", "\x8E", 4}, {1, "@", "`", 0},
  };
  for (const auto& [start, text, what, found] : rows) {
    EXPECT_EQ(InStr(start, text, what), found) << text << "/" << what;
    EXPECT_FALSE(EqualText(text, what)) << text;
  }
  EXPECT_TRUE(EqualText("Page", "pAGE"));
}

TEST(Text, ReplacesFromLeftToRight) {
  const std::array<const char*, 5> rows[] = {
      {"aXbX", "X", "", "abX", "ab"}, {"aXbx", "x", "1", "aXb1", "aXb1"}, {"aaa", "aa", "a", "aa", "aa"},
      {"a", "a", "aa", "aa", "aa"},   {"abc", "", "X", "abc", "abc"},     {"", "a", "X", "", ""},
  };
  for (const auto& [text, what, with, first, all] : rows) {
    EXPECT_EQ(Replace(text, what, with), first) << text << "/" << what;
    EXPECT_EQ(ReplaceAll(text, what, with), all) << text << "/" << what;
  }
}

TEST(Text, Fields) {
  const std::tuple<const char*, const char*, std::size_t, const char*> rows[] = {
      {"", " ", 0U, ""},         {" ", " ", 2, ""},      {"a  b", " ", 3, "b"},    {"a b c d", " ", 4, "c"},
      {"a::b::c", "::", 3, "c"}, {"a:::b", "::", 2, ""}, {"aXbxcXd", "X", 3, "d"},
  };
  for (const auto& [text, separator, count, third] : rows) {
    EXPECT_EQ(CountFields(text, separator), count) << text;
    EXPECT_EQ(NthField(text, separator, 3), third) << text;
    for (const std::size_t none : {std::size_t{0}, SIZE_MAX}) EXPECT_EQ(NthField(text, separator, none), "");
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
