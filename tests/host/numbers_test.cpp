#include "host/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace quill::host {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(Val, TakesTheNumberAtTheHead) {
  struct Row {
    std::string text;
    double value;
  };
  const Row rows[] = {
      {"", 0},
      {" ", 0},
      {"word", 0},
      {"-", 0},
      {"+-3", 0},
      {".", 0},
      {"e5", 0},
      {"12", 12},
      {"007", 7},
      {" \t\r\n\v\f12 ", 12},
      {"-12.5x", -12.5},
      {"+4", 4},
      {".5", 0.5},
      {"5.", 5},
      {"1.2.3", 1.2},
      {"1e3", 1000},
      {"1E-2,", 0.01},
      {"1e", 1},
      {"1e+", 1},
      {"1 000", 1},
      {"1,000", 1},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {std::string("1\0002", 3), 1},
      {"\xA0"
       "1",
       0},
      {"1e999", kInfinity},
      {"-1e999", -kInfinity},
      {"1e-999", 0},
      {"0e999", 0},
      {std::string(400, '9'), kInfinity},
      {"0." + std::string(400, '0') + "1", 0},
      {"00" + std::string(400, '9'), kInfinity},
      {"." + std::string(400, '0') + "1", 0},
      {"9" + std::string(400, '0') + "e-400", 9},
      {"0." + std::string(400, '0') + "1e401", 1},
      {std::string(400, '9') + "e-1", kInfinity},
      {"0." + std::string(400, '0') + "1e2", 0},
  };
  for (const Row& row : rows) EXPECT_DOUBLE_EQ(Val(row.text), row.value) << row.text;
}

TEST(ToInt32, DropsTheFractionAndSaturates) {
  struct Row {
    double value;
    std::int32_t integer;
  };
  for (const Row& row :
       {Row{2.9, 2}, Row{-2.9, -2}, Row{-0.5, 0}, Row{2147483647.9, kMost}, Row{-2147483648.9, kLeast},
        Row{1e300, kMost}, Row{-kInfinity, kLeast}, Row{std::nan(""), 0}}) {
    EXPECT_EQ(ToInt32(row.value), row.integer) << row.value;
  }
}

TEST(AddSaturating, StaysInRange) {
  EXPECT_EQ(AddSaturating(kMost, 1), kMost);
  EXPECT_EQ(AddSaturating(kLeast, -1), kLeast);
  EXPECT_EQ(AddSaturating(kMost, kLeast), -1);
}

TEST(Str, WritesWhatValReads) {
  for (const std::int32_t value : {kLeast, -1, 0, 10, kMost}) EXPECT_EQ(IntVal(Str(value)), value);
  EXPECT_EQ(Str(-40), "-40");
}

}  // namespace
}  // namespace quill::host
