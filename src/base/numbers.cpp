#include "base/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"

namespace quill::base {
namespace {

// Length of the exponent at the head of `text` ("e", a sign if any, digits),
// 0 if what stands there is none.
std::size_t ExponentLength(std::string_view text) {
  if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return 0;
  std::size_t i = 1;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  const std::size_t digits = i;
  while (i < text.size() && IsDigit(text[i])) ++i;
  return i > digits ? i : 0;
}

// Length of the unsigned decimal number at the head of `text`.
std::size_t NumberLength(std::string_view text) {
  std::size_t i = 0;
  std::size_t digits = 0;
  bool point = false;
  for (; i < text.size(); ++i) {
    if (IsDigit(text[i])) {
      ++digits;
    } else if (text[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  return digits == 0 ? 0 : i + ExponentLength(text.substr(i));
}

// The exponent at the end of `number`, 0 if it has none; an enormous one is cut
// to what no text's digits can outweigh.
double ExponentOf(std::string_view number) {
  const std::size_t e = number.find_first_of("eE");
  if (e == std::string_view::npos) return 0;
  const bool negative = number[e + 1] == '-';
  const std::string_view digits = number.substr(number.find_first_of("0123456789", e));
  std::int64_t exponent = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  const double value = error == std::errc() ? static_cast<double>(exponent) : 1e18;
  return negative ? -value : value;
}

// What a number out of a double's range stands for: infinity if its first
// significant digit stands before the point once the exponent has moved it,
// else it was too small.
double OutOfRange(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
  const auto first = static_cast<double>(mantissa.find_first_of("123456789"));
  const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
  return point - first + ExponentOf(number) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

std::int32_t ToInt32(double value) {
  if (std::isnan(value)) return 0;
  constexpr double kLow = std::numeric_limits<std::int32_t>::min();
  constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
  if (value <= kLow) return std::numeric_limits<std::int32_t>::min();
  if (value >= kHigh) return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(value);
}

float ToFloat(double value) {
  if (std::isnan(value)) return 0;
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

std::int32_t AddSaturating(std::int32_t a, std::int32_t b) {
  return ToInt32(static_cast<double>(a) + static_cast<double>(b));
}

double Val(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text[0] == '-';
  if (negative || text[0] == '+') text.remove_prefix(1);
  const std::string_view number = text.substr(0, NumberLength(text));
  if (number.empty()) return 0;
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range) value = OutOfRange(number);
  return negative ? -value : value;
}

std::int32_t IntVal(std::string_view text) { return ToInt32(Val(text)); }

std::string Str(std::int32_t value) { return std::to_string(value); }

}  // namespace quill::base
