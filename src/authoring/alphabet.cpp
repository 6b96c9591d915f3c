#include "authoring/alphabet.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <map>

#include "base/text_converter.h"
#include "base/utf8.h"

namespace quill::authoring {
namespace {

// From Unicode to Mac Roman. The converter gives the one direction alone, so that all
// bytes are asked once. Line feed and tab stand for ends of paragraphs and stops.
std::map<char32_t, char> MakeTable() {
  std::map<char32_t, char> table;
  for (int byte = 32; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const char32_t point = base::MacRomanToUtf16(std::string_view(&character, 1)).front();
    const bool in_latin1 = point < 0x7F || (point >= 0xA0 && point <= 0xFF);
    if (in_latin1) table.emplace(point, character);
  }
  table.emplace(U'\t', '\t');
  table.emplace(U'\n', '\n');
  return table;
}

// What to write for a character that word processors put in by themselves, such as a
// curly quote; empty if nothing is near.
std::string InPlaceOf(char32_t character) {
  if (character < 0x80) return "";
  if (character == 0x2026) return "...";
  const char nearest = base::NearestLatin1(static_cast<int>(character));
  const bool known = nearest != '?' && static_cast<unsigned char>(nearest) < 0x80;
  return known ? std::string(1, nearest) : "";
}

std::string ToUtf8(char32_t point) {
  std::string text;
  base::AppendUtf8(text, point);
  return text;
}

}  // namespace

std::optional<char> ToProgram(char32_t character) {
  static const std::map<char32_t, char> table = MakeTable();
  const auto found = table.find(character);
  return found == table.end() ? std::nullopt : std::optional(found->second);
}

std::string CannotShow(char32_t character) {
  if (character == base::kMalformed) return "these bytes are no characters: save the manuscript as UTF-8";
  std::array<char, 16> code = {};
  std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(character));
  // A control character would do its work on the author's terminal.
  const std::string shown = character < 0x20 || character == 0x7F ? "" : "\"" + ToUtf8(character) + "\" ";
  const std::string instead = InPlaceOf(character);
  return "a page can't show the character " + shown + "(" + code.data() + ")" +
         (instead.empty() ? "" : "; write " + instead);
}

std::string Quoted(std::string_view program_text) { return "\"" + base::MacRomanToUtf8(program_text) + "\""; }

}  // namespace quill::authoring
