#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/text_converter.h"

namespace quill::base {
namespace {

constexpr char Fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
constexpr char Raise(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

std::size_t Clamp(std::ptrdiff_t count, std::size_t length) {
  if (count <= 0) return 0;
  return std::min(static_cast<std::size_t>(count), length);
}

// 0-based index of the next `c` in either letter case, from `from` on.
std::size_t FindFolded(std::string_view text, char c, std::size_t from) {
  const std::array<char, 2> both = {Fold(c), Raise(c)};
  if (both[0] == both[1]) return text.find(c, from);
  return text.find_first_of(std::string_view(both.data(), 2), from);
}

// `text` with up to `limit` occurrences of `what` replaced.
std::string ReplaceUpTo(std::string_view text, std::string_view what, std::string_view with,
                        std::size_t limit) {
  std::string result;
  std::size_t done = 0;
  for (; limit > 0 && !what.empty(); --limit) {
    const std::size_t hit = text.find(what, done);
    if (hit == std::string_view::npos) break;
    result.append(text, done, hit - done).append(with);
    done = hit + what.size();
  }
  return result.append(text, done);
}

}  // namespace

bool EqualText(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  return std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Fold(x) == Fold(y); });
}

std::size_t Len(std::string_view text) { return text.size(); }

std::string_view Left(std::string_view text, std::ptrdiff_t count) {
  return text.substr(0, Clamp(count, text.size()));
}

std::string_view Right(std::string_view text, std::ptrdiff_t count) {
  return text.substr(text.size() - Clamp(count, text.size()));
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t count) {
  return Left(Mid(text, start), count);
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start) {
  return start <= 1 ? text : text.substr(Clamp(start - 1, text.size()));
}

std::size_t InStr(std::size_t start, std::string_view text, std::string_view what) {
  if (what.empty()) return 0;
  for (std::size_t i = start > 0 ? start - 1 : 0; i + what.size() <= text.size(); ++i) {
    i = FindFolded(text, what[0], i);
    if (i == std::string_view::npos || text.size() - i < what.size()) return 0;
    if (EqualText(text.substr(i, what.size()), what)) return i + 1;
  }
  return 0;
}

std::size_t InStr(std::string_view text, std::string_view what) { return InStr(1, text, what); }

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kTrimmed = " \t\n\r";
  const std::size_t first = text.find_first_not_of(kTrimmed);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kTrimmed) - first + 1);
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
  return ReplaceUpTo(text, what, with, 1);
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  return ReplaceUpTo(text, what, with, text.size());
}

std::size_t CountFields(std::string_view text, std::string_view separator) {
  if (text.empty()) return 0;
  std::size_t count = 1;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, at + separator.size())) {
    ++count;
  }
  return count;
}

std::string_view NthField(std::string_view text, std::string_view separator, std::size_t n) {
  if (n == 0) return {};
  for (; n > 1; --n) {
    const std::size_t at = text.find(separator);
    if (at == std::string_view::npos) return {};
    text.remove_prefix(at + separator.size());
  }
  return text.substr(0, text.find(separator));
}

std::vector<std::string_view> Fields(std::string_view text, char separator) {
  std::vector<std::string_view> fields;
  if (text.empty()) return fields;
  for (;;) {
    const std::size_t at = text.find(separator);
    fields.push_back(text.substr(0, at));
    if (at == std::string_view::npos) return fields;
    text.remove_prefix(at + 1);
  }
}

std::string Uppercase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Raise);
  return result;
}

std::string Chr(int code) {
  const bool byte = code >= 0 && code <= 255;
  return {byte ? static_cast<char>(code) : NearestLatin1(code)};
}

int Asc(std::string_view text) { return text.empty() ? 0 : static_cast<unsigned char>(text[0]); }

}  // namespace quill::base
