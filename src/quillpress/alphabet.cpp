#include "quillpress/alphabet.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <map>

#include "host/text_converter.h"

namespace quill::quillpress {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

std::map<char32_t, char> MakeTable() {
  std::map<char32_t, char> table;
  for (int byte = 32; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const char32_t point = host::MacRomanToUtf16(std::string_view(&character, 1)).front();
    const bool in_latin1 = point < 0x7F || (point >= 0xA0 && point <= 0xFF);
    if (in_latin1) table.emplace(point, character);
  }
  table.emplace(U'\t', '\t');
  table.emplace(U'\n', '\n');
  return table;
}

// Bytes that a character takes whose first byte is `lead`, 0 for none that leads.
std::size_t LengthFrom(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// Of characters that word processors put in by themselves.
std::string InPlaceOf(char32_t character) {
  if (character < 0x80) return "";
  if (character == 0x2026) return "...";
  const char nearest = host::NearestLatin1(static_cast<int>(character));
  const bool known = nearest != '?' && static_cast<unsigned char>(nearest) < 0x80;
  return known ? std::string(1, nearest) : "";
}

std::string ToUtf8(char32_t point) {
  std::string text;
  const auto add = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (point < 0x80) {
    add(point);
  } else if (point < 0x800) {
    add(0xC0 | (point >> 6));
    add(0x80 | (point & 0x3F));
  } else {
    if (point < 0x10000) {
      add(0xE0 | (point >> 12));
    } else {
      add(0xF0 | (point >> 18));
      add(0x80 | ((point >> 12) & 0x3F));
    }
    add(0x80 | ((point >> 6) & 0x3F));
    add(0x80 | (point & 0x3F));
  }
  return text;
}

}  // namespace

char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = LengthFrom(lead);
  if (length == 0 || length > text.size()) {
    text.remove_prefix(1);
    return kReplacement;
  }
  char32_t point = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i)
    point = (point << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(length);
  return point;
}

std::optional<char> ToProgram(char32_t character) {
  static const std::map<char32_t, char> table = MakeTable();
  const auto found = table.find(character);
  return found == table.end() ? std::nullopt : std::optional(found->second);
}

std::string CannotShow(char32_t character) {
  if (character == kReplacement) return "these bytes are no characters: save the manuscript as UTF-8";
  std::array<char, 16> code = {};
  std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(character));
  const std::string shown = character < 0x20 || character == 0x7F ? "" : "\"" + ToUtf8(character) + "\" ";
  const std::string instead = InPlaceOf(character);
  return "a page can't show the character " + shown + "(" + code.data() + ")" +
         (instead.empty() ? "" : "; write " + instead);
}

std::string Quoted(std::string_view program_text) { return "\"" + host::MacRomanToUtf8(program_text) + "\""; }

}  // namespace quill::quillpress
