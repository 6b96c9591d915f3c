#include "markup/numeric_references.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"

namespace quill::markup {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kOpening = "&#";
constexpr std::size_t kLongestReference = 13;  // "&#2147483647;"

// All that `base::Val` may read.
constexpr std::string_view kNumberCharacters = " \t\n\v\f\r+-.0123456789eE";

// Characters of which a reference in plain spelling consists.
constexpr std::string_view kReferenceCharacters = "&#0123456789;";

struct Reference {
  std::int32_t number = 0;  // 0: there is none
  std::size_t length = 0;
};

// The reference in plain spelling at the head of `text`.
Reference PlainReference(std::string_view text) {
  if (!text.starts_with(kOpening) || text.size() < 4 || text[2] < '1' || text[2] > '9') return {};
  const std::size_t last = std::min(text.size(), kLongestReference);
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data() + 2, text.data() + last, number);
  if (error != std::errc() || end == text.data() + last || *end != ';') return {};
  return {number, static_cast<std::size_t>(end - text.data()) + 1};
}

std::int32_t NumberAtHead(std::string_view text) {
  return base::IntVal(text.substr(0, text.find_first_not_of(kNumberCharacters)));
}

char CharacterOf(std::int32_t number) { return base::Chr(number)[0]; }

// Whether the character may become a part of a reference with what stands
// around it.
bool MayJoin(char c) { return kReferenceCharacters.find(c) != std::string_view::npos; }

// Carries out the rule in full generality. The characters lie in fixed cells;
// a replaced reference leaves one cell alive and the others dead, so that the
// places of all other characters stay what they are.
class Cells {
 public:
  explicit Cells(std::string text);

  // Runs the rule with the cursor at that index.
  void Run(std::size_t cursor);

  std::string Text() const;

 private:
  std::size_t End() const { return cells_.size(); }
  std::size_t Advance(std::size_t cell, std::size_t count) const;
  std::size_t FindOpening(std::size_t cell) const;
  std::string LiveText(std::size_t cell, std::size_t count) const;
  std::int32_t NumberAt(std::size_t cell) const;
  Reference ReferenceAt(std::size_t cell) const;

  void Index(std::size_t cell);
  std::size_t FirstPlace(std::int32_t number);
  void Replace(std::size_t cell, const Reference& reference);
  void IndexAround(std::size_t cell);

  std::string cells_;
  std::vector<bool> live_;
  std::vector<std::size_t> next_;      // of live cells; End() behind the last
  std::vector<std::size_t> previous_;  // of live cells; kNone before the first

  // Where a number's reference starts in plain spelling: heaps with the first
  // place on top. Entries that no longer hold are dropped when they get there.
  std::unordered_map<std::int32_t, std::vector<std::size_t>> places_;
  std::size_t last_semicolon_;  // cell, kNone if none lives
};

Cells::Cells(std::string text)
    : cells_(std::move(text)),
      live_(cells_.size(), true),
      next_(cells_.size()),
      previous_(cells_.size()),
      last_semicolon_(cells_.rfind(';')) {
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    next_[i] = i + 1;
    previous_[i] = i == 0 ? kNone : i - 1;
  }
  for (std::size_t i = cells_.find(kOpening); i != kNone; i = cells_.find(kOpening, i + 1)) Index(i);
}

void Cells::Run(std::size_t cursor) {
  for (;;) {
    const std::size_t found = FindOpening(cursor);
    if (found == End()) return;
    const std::size_t behind = Advance(found, 2);
    if (last_semicolon_ == kNone || last_semicolon_ < behind) return;
    const std::int32_t number = NumberAt(behind);
    const std::size_t place = number > 0 ? FirstPlace(number) : kNone;
    std::size_t steps = 1;
    if (place != kNone) {
      const Reference reference = ReferenceAt(place);
      Replace(place, reference);
      if (place < found) steps = reference.length;
    }
    cursor = Advance(found, steps);
  }
}

std::string Cells::Text() const {
  std::string text;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    if (live_[i]) text += cells_[i];
  }
  return text;
}

std::size_t Cells::Advance(std::size_t cell, std::size_t count) const {
  for (; count > 0 && cell != End(); --count) cell = next_[cell];
  return cell;
}

std::size_t Cells::FindOpening(std::size_t cell) const {
  for (; cell != End(); cell = next_[cell]) {
    if (cells_[cell] == '&' && next_[cell] != End() && cells_[next_[cell]] == '#') return cell;
  }
  return End();
}

std::string Cells::LiveText(std::size_t cell, std::size_t count) const {
  std::string text;
  for (; cell != End() && text.size() < count; cell = next_[cell]) text += cells_[cell];
  return text;
}

std::int32_t Cells::NumberAt(std::size_t cell) const {
  std::string number;
  for (; cell != End() && kNumberCharacters.find(cells_[cell]) != kNone; cell = next_[cell]) {
    number += cells_[cell];
  }
  return base::IntVal(number);
}

Reference Cells::ReferenceAt(std::size_t cell) const {
  return PlainReference(LiveText(cell, kLongestReference));
}

void Cells::Index(std::size_t cell) {
  const Reference reference = ReferenceAt(cell);
  if (reference.number == 0) return;
  std::vector<std::size_t>& heap = places_[reference.number];
  heap.push_back(cell);
  std::push_heap(heap.begin(), heap.end(), std::greater<>());
}

// First cell of the first plain reference to `number`, kNone if there is none.
std::size_t Cells::FirstPlace(std::int32_t number) {
  const auto found = places_.find(number);
  if (found == places_.end()) return kNone;
  std::vector<std::size_t>& heap = found->second;
  while (!heap.empty()) {
    if (live_[heap.front()] && ReferenceAt(heap.front()).number == number) return heap.front();
    std::pop_heap(heap.begin(), heap.end(), std::greater<>());
    heap.pop_back();
  }
  return kNone;
}

void Cells::Replace(std::size_t cell, const Reference& reference) {
  const std::size_t behind = Advance(cell, reference.length);
  for (std::size_t dead = next_[cell]; dead != behind; dead = next_[dead]) live_[dead] = false;
  next_[cell] = behind;
  if (behind != End()) previous_[behind] = cell;
  cells_[cell] = CharacterOf(reference.number);
  while (last_semicolon_ != kNone && (!live_[last_semicolon_] || cells_[last_semicolon_] != ';')) {
    last_semicolon_ = last_semicolon_ == 0 ? kNone : last_semicolon_ - 1;
  }
  if (MayJoin(cells_[cell])) IndexAround(cell);
}

// Enters the references that a new character at `cell` may have completed. One
// that was known before gets a second entry, which does no harm.
void Cells::IndexAround(std::size_t cell) {
  for (std::size_t steps = 0; steps < kLongestReference && cell != kNone; ++steps) {
    if (cells_[cell] == '&') Index(cell);
    cell = previous_[cell];
  }
}

// How far a plain pass over a text came.
struct Progress {
  std::size_t read;  // kNone: to the end
  std::size_t kept;  // length of the result so far
};

// Goes on in place as long as each reference is found in its plain spelling and
// no character that comes out may join with others: no reference then stands
// before the cursor, so that the first in the whole text is the one just found.
// Text that ordinary files hold never needs more.
Progress ReplacePlainly(std::string& text) {
  const std::string_view view = text;
  std::size_t read = view.find(kOpening);
  std::size_t kept = read;
  while (read != kNone) {
    const Reference reference = PlainReference(view.substr(read));
    std::size_t rest = read;
    if (reference.number == 0) {
      if (NumberAtHead(view.substr(read + 2)) > 0) break;
    } else {
      const char character = CharacterOf(reference.number);
      if (MayJoin(character)) break;
      text[kept++] = character;
      rest += reference.length;
    }
    read = view.find(kOpening, std::max(rest, read + 1));
    const std::size_t end = std::min(read, view.size());
    std::copy(text.data() + rest, text.data() + end, text.data() + kept);
    kept += end - rest;
  }
  return {read, kept};
}

}  // namespace

void ReplaceNumericReferences(std::string& text) {
  if (text.find(kOpening) == kNone) return;
  const Progress progress = ReplacePlainly(text);
  text.erase(progress.kept, progress.read == kNone ? kNone : progress.read - progress.kept);
  if (progress.read == kNone) return;
  Cells cells(std::move(text));
  cells.Run(progress.kept);
  text = cells.Text();
}

}  // namespace quill::markup
