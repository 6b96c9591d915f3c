#include "base/text_converter.h"

#include <algorithm>

#include "base/exceptions.h"
#include "base/utf8.h"

namespace quill::base {
namespace {

// The Unicode code points of an encoding's 256 bytes. A byte that stands for no
// character has U+FFFD.
using CodePoints = std::array<char16_t, 256>;
constexpr char16_t kNoCharacter = 0xFFFD;

// Mac Roman from 0x80 on, as the character set MACINTOSH of the C library has it, the euro
// at 0xDB included. Below stands ASCII.
constexpr std::array<char16_t, 128> kMacRomanUpper = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5,
    0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4,
    0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6,
    0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1, 0x2264, 0x2265,
    0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF,
    0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x0394, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5,
    0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044,
    0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xE01E, 0x00D2, 0x00DA, 0x00DB, 0x00D9,
    0x0131, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

// ISO 8859-1 is the head of Unicode.
constexpr CodePoints MakePoints(TextEncoding encoding) {
  CodePoints points = {};
  for (std::size_t byte = 0; byte < points.size(); ++byte) {
    const bool upper = encoding == TextEncoding::kMacRoman && byte >= 0x80;
    points[byte] = upper ? kMacRomanUpper[byte - 0x80] : static_cast<char16_t>(byte);
  }
  return points;
}

constexpr CodePoints kMacRoman = MakePoints(TextEncoding::kMacRoman);
constexpr CodePoints kLatin1 = MakePoints(TextEncoding::kIsoLatin1);

const CodePoints& PointsOf(TextEncoding encoding) {
  return encoding == TextEncoding::kMacRoman ? kMacRoman : kLatin1;
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
  const CodePoints& source = PointsOf(from);
  const CodePoints& target = PointsOf(to);
  TextConverter::Table table;
  std::transform(source.begin(), source.end(), table.begin(),
                 [&target](char16_t point) { return Nearest(point, target); });
  return std::make_shared<TextConverter>(table);
}

char NearestLatin1(int code_point) {
  if (code_point >= 0 && code_point <= 255) return static_cast<char>(code_point);
  return StandFor(code_point);
}

std::u16string MacRomanToUtf16(std::string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (const char c : text) result += kMacRoman[static_cast<unsigned char>(c)];
  return result;
}

std::string MacRomanToUtf8(std::string_view text) {
  std::string result;
  for (const char16_t point : MacRomanToUtf16(text)) AppendUtf8(result, point);
  return result;
}

std::string Utf8ToMacRoman(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const char32_t point = TakeUtf8(text);
    result += point < kNoCharacter ? Nearest(static_cast<char16_t>(point), kMacRoman) : '?';
  }
  return result;
}

}  // namespace quill::base
