#include "base/text_converter.h"

#include <iconv.h>

#include <algorithm>
#include <optional>

#include "base/exceptions.h"
#include "base/utf8.h"

namespace quill::base {
namespace {

// The Unicode code points of an encoding's 256 bytes. A byte that stands for no
// character has U+FFFD.
using CodePoints = std::array<char16_t, 256>;
constexpr char16_t kNoCharacter = 0xFFFD;

const char* IconvName(TextEncoding encoding) {
  return encoding == TextEncoding::kMacRoman ? "MACINTOSH" : "ISO-8859-1";
}

std::optional<CodePoints> ReadCodePoints(TextEncoding encoding) {
  const iconv_t handle = iconv_open("UTF-16LE", IconvName(encoding));
  if (handle == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  CodePoints points;
  for (std::size_t byte = 0; byte < points.size(); ++byte) {
    char in = static_cast<char>(byte);
    std::array<char, 4> out = {};
    char* in_at = &in;
    char* out_at = out.data();
    std::size_t in_left = 1;
    std::size_t out_left = out.size();
    const bool converted = iconv(handle, &in_at, &in_left, &out_at, &out_left) == 0 && out_left == 2;
    points[byte] = converted ? static_cast<char16_t>(static_cast<unsigned char>(out[0]) |
                                                     (static_cast<unsigned char>(out[1]) << 8))
                             : kNoCharacter;
  }
  iconv_close(handle);
  return points;
}

const std::optional<CodePoints>& PointsOf(TextEncoding encoding) {
  static const std::optional<CodePoints> mac_roman = ReadCodePoints(TextEncoding::kMacRoman);
  static const std::optional<CodePoints> latin1 = ReadCodePoints(TextEncoding::kIsoLatin1);
  return encoding == TextEncoding::kMacRoman ? mac_roman : latin1;
}

// Characters that one of the encodings lacks, and what a reader takes for them.
struct Stand {
  char16_t for_point;
  char in_place;
};
constexpr std::array kStands = {
    Stand{u'\u2018', '\''}, Stand{u'\u2019', '\''}, Stand{u'\u201A', ','}, Stand{u'\u201C', '"'},
    Stand{u'\u201D', '"'},  Stand{u'\u201E', '"'},  Stand{u'\u2039', '<'}, Stand{u'\u203A', '>'},
    Stand{u'\u2010', '-'},  Stand{u'\u2011', '-'},  Stand{u'\u2012', '-'}, Stand{u'\u2013', '-'},
    Stand{u'\u2014', '-'},  Stand{u'\u2212', '-'},  Stand{u'\u00AD', '-'}, Stand{u'\u2026', '.'},
    Stand{u'\u2022', '*'},  Stand{u'\u2044', '/'},  Stand{u'\u02C6', '^'}, Stand{u'\u02DC', '~'},
    Stand{u'\u0192', 'f'},  Stand{u'\u0131', 'i'},  Stand{u'\u0178', 'Y'}, Stand{u'\u00DD', 'Y'},
    Stand{u'\u00FD', 'y'},  Stand{u'\u00D7', 'x'},  Stand{u'\u00A6', '|'}, Stand{u'\u00B9', '1'},
    Stand{u'\u00B2', '2'},  Stand{u'\u00B3', '3'},  Stand{u'\u00D0', 'D'}, Stand{u'\u00F0', 'd'},
};

char StandFor(int code_point) {
  for (const Stand& stand : kStands) {
    if (stand.for_point == code_point) return stand.in_place;
  }
  return '?';
}

char Nearest(char16_t point, const CodePoints& target) {
  if (point != kNoCharacter) {
    const auto* found = std::find(target.begin(), target.end(), point);
    if (found != target.end()) return static_cast<char>(found - target.begin());
  }
  return StandFor(point);
}

}  // namespace

TextEncoding GetTextEncoding(std::int32_t base, std::int32_t variant, std::int32_t format) {
  const auto encoding = static_cast<TextEncoding>(base);
  const bool known = encoding == TextEncoding::kMacRoman || encoding == TextEncoding::kIsoLatin1;
  if (!known || variant != 0 || format != 0) throw NilObjectException();
  return encoding;
}

std::string TextConverter::convert(std::string_view text) const {
  std::string result(text);
  for (char& c : result) c = table_[static_cast<unsigned char>(c)];
  return result;
}

std::shared_ptr<TextConverter> GetTextConverter(TextEncoding from, TextEncoding to) {
  const auto& source = PointsOf(from);
  const auto& target = PointsOf(to);
  if (!source || !target) return nullptr;
  TextConverter::Table table;
  std::transform(source->begin(), source->end(), table.begin(),
                 [&target](char16_t point) { return Nearest(point, *target); });
  return std::make_shared<TextConverter>(table);
}

char NearestLatin1(int code_point) {
  if (code_point >= 0 && code_point <= 255) return static_cast<char>(code_point);
  return StandFor(code_point);
}

std::u16string MacRomanToUtf16(std::string_view text) {
  const auto& points = PointsOf(TextEncoding::kMacRoman);
  if (!points) throw NilObjectException();
  std::u16string result;
  result.reserve(text.size());
  for (const char c : text) result += (*points)[static_cast<unsigned char>(c)];
  return result;
}

std::string MacRomanToUtf8(std::string_view text) {
  std::string result;
  for (const char16_t point : MacRomanToUtf16(text)) AppendUtf8(result, point);
  return result;
}

std::string Utf8ToMacRoman(std::string_view text) {
  const auto& points = PointsOf(TextEncoding::kMacRoman);
  if (!points) throw NilObjectException();
  std::string result;
  while (!text.empty()) {
    const char32_t point = TakeUtf8(text);
    result += point < kNoCharacter ? Nearest(static_cast<char16_t>(point), *points) : '?';
  }
  return result;
}

}  // namespace quill::base
