#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

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

}  // namespace
}  // namespace quill::base
