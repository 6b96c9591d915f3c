#include "base/utf8.h"

#include <cstddef>

namespace quill::base {
namespace {

// Bytes of a sequence by its first one; 0 for one that leads none.
std::size_t LengthFrom(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// What a sequence of that length stands for at least; less is an overlong form.
constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};

bool IsCharacter(char32_t point, std::size_t length) {
  const bool surrogate = point >= 0xD800 && point < 0xE000;
  return point >= kLeast[length] && point <= 0x10FFFF && !surrogate;
}

char32_t Malformed(std::string_view& text) {
  text.remove_prefix(1);
  return kMalformed;
}

char Byte(char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); }

}  // namespace

char32_t TakeUtf8(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = LengthFrom(lead);
  if (length == 0 || length > text.size()) return Malformed(text);
  char32_t point = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0U) != 0x80) return Malformed(text);
    point = (point << 6) | (next & 0x3FU);
  }
  if (!IsCharacter(point, length)) return Malformed(text);
  text.remove_prefix(length);
  return point;
}

void AppendUtf8(std::string& text, char32_t point) {
  if (point < 0x80) {
    text += Byte(point);
    return;
  }
  if (point < 0x800) {
    text += Byte(0xC0 | (point >> 6));
  } else {
    if (point < 0x10000) {
      text += Byte(0xE0 | (point >> 12));
    } else {
      text += Byte(0xF0 | (point >> 18));
      text += Byte(0x80 | ((point >> 12) & 0x3F));
    }
    text += Byte(0x80 | ((point >> 6) & 0x3F));
  }
  text += Byte(0x80 | (point & 0x3F));
}

}  // namespace quill::base
