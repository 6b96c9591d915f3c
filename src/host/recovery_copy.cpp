#include "host/recovery_copy.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <system_error>

#include "base/hash.h"

namespace quill::host {
namespace {

constexpr const char* kMissing = "missing";
constexpr const char* kUnreadable = "unreadable";
constexpr int kHex = 16;

std::string Hex(std::uint64_t number) {
  char digits[kHex];
  const auto end = std::to_chars(digits, digits + kHex, number, kHex);
  return std::string(digits, end.ptr);
}

std::string Words(const FileState& state) {
  if (state.kind == FileState::Kind::kMissing) return kMissing;
  return state.kind == FileState::Kind::kUnreadable ? kUnreadable : Hex(state.hash);
}

// Words that aren't ours stand for a text that nobody has.
FileState StateOf(const std::string& words) {
  if (words == kMissing) return {};
  if (words == kUnreadable) return {FileState::Kind::kUnreadable};
  FileState state = {FileState::Kind::kRead};
  std::from_chars(words.data(), words.data() + words.size(), state.hash, kHex);
  return state;
}

}  // namespace

RecoveryCopy::RecoveryCopy(const std::vector<std::shared_ptr<FolderItem>>& folders, const std::string& path) {
  const std::string name = "unsaved-" + Hex(base::Hash64(path));
  for (const auto& folder : folders)
    places_.push_back({folder->Child(name + ".txt"), folder->Child(name + ".base"), {}});
}

std::optional<RecoveryCopy::Copy> RecoveryCopy::Read() {
  for (auto place = places_.begin(); place != places_.end();) {
    if (auto text = ReadWhole(*place->text))
      return Copy{std::move(*text), StateOf(ReadWhole(*place->base).value_or(""))};
    place = place->text->Exists() ? places_.erase(place) : std::next(place);
  }
  return std::nullopt;
}

// The base comes first: a text beside the base of another would be misjudged.
bool RecoveryCopy::WriteTo(Place& place, const std::string& text, const FileState& base) {
  if (place.known_base != base) {
    place.known_base.reset();
    if (!SaveWhole(*place.base, Words(base))) return false;
    place.known_base = base;
  }
  return SaveWhole(*place.text, text);
}

bool RecoveryCopy::Write(const std::string& text, const FileState& base) {
  const std::uint64_t hash = base::Hash64(text);
  if (written_ == hash && !Path().empty()) return true;
  const auto taker = std::find_if(places_.begin(), places_.end(),
                                  [&text, &base](Place& place) { return WriteTo(place, text, base); });
  if (taker == places_.end()) return false;
  for (auto place = places_.begin(); place != places_.end(); ++place)
    if (place != taker) place->text->Remove();
  written_ = hash;
  return true;
}

void RecoveryCopy::Remove() {
  written_.reset();
  for (Place& place : places_) {
    place.text->Remove();
    place.base->Remove();
    place.known_base.reset();
  }
}

std::string RecoveryCopy::Path() const {
  for (const Place& place : places_)
    if (place.text->Exists()) return place.text->Path();
  return "";
}

}  // namespace quill::host
