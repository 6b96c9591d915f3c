#include "host/edited_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <unordered_map>

#include "base/utf8.h"

namespace quill::host {
namespace {

using Lines = std::vector<std::u16string_view>;

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::array<std::string_view, 5> kEnds = {"\n", "\r\n", "\r", "\xE2\x80\xA8", "\xE2\x80\xA9"};
constexpr std::uint8_t kPlainEnd = 0;
constexpr std::uint8_t kReturn = 2;   // which a plain end must not follow: they would be one
constexpr char16_t kEscape = 0xDC00;  // and the byte
constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

// The kind of line end at the head of `bytes`; the number of kinds if there is none.
std::size_t EndAt(std::string_view bytes) {
  if (std::string_view("\n\r\xE2").find(bytes.front()) == std::string_view::npos) return kEnds.size();
  if (bytes.starts_with(kEnds[1])) return 1;
  std::size_t kind = 0;
  while (kind < kEnds.size() && !bytes.starts_with(kEnds[kind])) ++kind;
  return kind;
}

// U+FDD0 and U+FDD1 are no characters; a text document of the toolkit parts frames by them.
bool HoldsAsItIs(char32_t point) {
  if (point < 0x20) return point == '\t';
  return point != 0x7F && point != 0xFDD0 && point != 0xFDD1;
}

void AppendUtf16(std::u16string& text, char32_t point) {
  if (point < 0x10000) {
    text += static_cast<char16_t>(point);
  } else {
    text += static_cast<char16_t>(0xD7C0 + (point >> 10));
    text += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
  }
}

// Cuts one character off `bytes` and appends it, or the escapes of its bytes.
void TakeCharacter(std::string_view& bytes, std::u16string& shown) {
  const std::string_view before = bytes;
  const char32_t point = base::TakeUtf8(bytes);
  const std::string_view taken = before.substr(0, before.size() - bytes.size());
  const bool malformed = point == base::kMalformed && taken.size() == 1;
  if (!malformed && HoldsAsItIs(point)) return AppendUtf16(shown, point);
  for (const char byte : taken) shown += static_cast<char16_t>(kEscape + static_cast<unsigned char>(byte));
}

bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// The other way round.
void AppendBytes(std::string& bytes, std::u16string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char16_t unit = line[i];
    if (IsHigh(unit) && i + 1 < line.size() && IsLow(line[i + 1])) {
      base::AppendUtf8(bytes, 0x10000U + ((unit & 0x3FFU) << 10) + (line[++i] & 0x3FFU));
    } else if (unit >= kEscape && unit < kEscape + 0x100) {
      bytes += static_cast<char>(static_cast<unsigned char>(unit - kEscape));
    } else {
      base::AppendUtf8(bytes, IsHigh(unit) || IsLow(unit) ? base::kMalformed : unit);
    }
  }
}

Lines LinesOf(std::u16string_view text) {
  constexpr std::u16string_view kParts = u"\n\u2028\u2029";
  Lines lines;
  for (std::size_t end = 0; (end = text.find_first_of(kParts)) != std::u16string_view::npos;) {
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  lines.push_back(text);
  return lines;
}

// For each line of `now` the line of `old` that it was, `kNone` for a new one. What
// both have at head and tail is the same; between, lines that each has once and in
// the same order anchor their neighbours.
class Counterparts {
 public:
  Counterparts(const Lines& old, const Lines& now) : old_(old), now_(now), of_(now.size(), kNone) {
    std::size_t head = 0;
    while (head < std::min(old.size(), now.size()) && old[head] == now[head]) ++head;
    std::size_t tail = 0;
    while (tail < std::min(old.size(), now.size()) - head &&
           old[old.size() - 1 - tail] == now[now.size() - 1 - tail])
      ++tail;
    for (std::size_t i = 0; i < head; ++i) of_[i] = i;
    for (std::size_t i = 1; i <= tail; ++i) of_[now.size() - i] = old.size() - i;
    old_end_ = old.size() - tail;
    now_end_ = now.size() - tail;
    for (const Pair& anchor : Rising(Unique(head))) Grow(anchor);
  }

  std::size_t Of(std::size_t now_line) const { return of_[now_line]; }

 private:
  struct Pair {
    std::size_t old_line;
    std::size_t now_line;
  };

  // Lines from `head` on that each text has once, in the order of the new one.
  std::vector<Pair> Unique(std::size_t head) const {
    struct Uses {
      std::size_t in_old = 0;
      std::size_t in_now = 0;
      std::size_t old_line = 0;
    };
    std::unordered_map<std::u16string_view, Uses> uses;
    for (std::size_t i = head; i < old_end_; ++i) {
      Uses& use = uses[old_[i]];
      ++use.in_old;
      use.old_line = i;
    }
    for (std::size_t i = head; i < now_end_; ++i) ++uses[now_[i]].in_now;
    std::vector<Pair> unique;
    for (std::size_t i = head; i < now_end_; ++i) {
      const Uses& use = uses[now_[i]];
      if (use.in_old == 1 && use.in_now == 1) unique.push_back({use.old_line, i});
    }
    return unique;
  }

  // The longest run of pairs whose old lines rise too, by patience sorting.
  static std::vector<Pair> Rising(const std::vector<Pair>& pairs) {
    std::vector<std::size_t> tops;  // the last pair of the best run of each length
    std::vector<std::size_t> before(pairs.size(), kNone);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const auto place = std::lower_bound(
          tops.begin(), tops.end(), pairs[i].old_line,
          [&pairs](std::size_t top, std::size_t line) { return pairs[top].old_line < line; });
      if (place != tops.begin()) before[i] = *(place - 1);
      if (place == tops.end()) {
        tops.push_back(i);
      } else {
        *place = i;
      }
    }
    std::vector<Pair> run;
    for (std::size_t at = tops.empty() ? kNone : tops.back(); at != kNone; at = before[at])
      run.push_back(pairs[at]);
    std::reverse(run.begin(), run.end());
    return run;
  }

  // Takes the pair, and its like neighbours down to the next pair and up to the last.
  void Grow(const Pair& anchor) {
    Pair at = anchor;
    while (at.old_line < old_end_ && at.now_line < now_end_ && of_[at.now_line] == kNone &&
           old_[at.old_line] == now_[at.now_line])
      of_[at.now_line++] = at.old_line++;
    at = anchor;
    while (at.old_line > 0 && at.now_line > 0 && of_[at.now_line - 1] == kNone &&
           old_[at.old_line - 1] == now_[at.now_line - 1])
      of_[--at.now_line] = --at.old_line;
  }

  const Lines& old_;
  const Lines& now_;
  std::vector<std::size_t> of_;
  std::size_t old_end_ = 0;  // where the common tail begins
  std::size_t now_end_ = 0;
};

}  // namespace

EditedText::EditedText(std::string_view bytes) : has_mark_(bytes.starts_with(kMark)) {
  if (has_mark_) bytes.remove_prefix(kMark.size());
  shown_.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t end = EndAt(bytes);
    if (end == kEnds.size()) {
      TakeCharacter(bytes, shown_);
      continue;
    }
    bytes.remove_prefix(kEnds[end].size());
    ends_.push_back(static_cast<std::uint8_t>(end));
    shown_ += u'\n';
  }
}

std::string EditedText::Bytes(std::u16string_view edited) const {
  const Lines old = LinesOf(shown_);
  const Lines now = LinesOf(edited);
  const bool alike = std::adjacent_find(ends_.begin(), ends_.end(), std::not_equal_to<>()) == ends_.end();
  const std::uint8_t usual = alike && !ends_.empty() ? ends_.front() : kPlainEnd;
  const Counterparts counterparts(old, now);
  std::string bytes(has_mark_ ? kMark : "");
  for (std::size_t i = 0; i < now.size(); ++i) {
    AppendBytes(bytes, now[i]);
    if (i + 1 == now.size()) break;
    const std::size_t line = counterparts.Of(i);
    const std::uint8_t end = line < ends_.size() ? ends_[line] : usual;
    bytes += kEnds[end == kPlainEnd && bytes.ends_with('\r') ? kReturn : end];
  }
  return bytes;
}

}  // namespace quill::host
