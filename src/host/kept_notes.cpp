#include "host/kept_notes.h"

#include <algorithm>
#include <ctime>
#include <utility>

#include "base/hash.h"

namespace quill::host {
namespace {

using Kind = FileState::Kind;

constexpr const char* kNoFolder = "There is no folder to keep notes in: what is typed here can't be saved.";
constexpr const char* kUnread = "couldn't be read";
constexpr const char* kTooLarge = "are too large to be edited here";
constexpr const char* kUnsaved =
    "This text was typed before and not saved. It is saved when this window closes.";

bool HasLongLine(const std::string& text) {
  std::size_t begin = 0;
  while (text.size() - begin > KeptNotes::kLongestLine) {
    const std::size_t end = text.find_first_of("\r\n", begin);
    if (end == std::string::npos || end - begin > KeptNotes::kLongestLine) return true;
    begin = end + 1;
  }
  return false;
}

// "2026-11-23 09.10.42", in local time; no colon, which some disks don't take.
std::string Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  localtime_r(&now, &local);
  char words[sizeof "2026-11-23 09.10.42"];
  const std::size_t length = std::strftime(words, sizeof words, "%Y-%m-%d %H.%M.%S", &local);
  return std::string(words, length);
}

std::string Quoted(const FolderItem& file) { return '"' + file.Path() + '"'; }

std::string LeftAlone(const FolderItem& file, const std::string& why) {
  return "The notes in " + Quoted(file) + " " + why + " and are left as they are.";
}

}  // namespace

KeptNotes::KeptNotes(std::shared_ptr<FolderItem> folder, std::string name,
                     const std::vector<std::shared_ptr<FolderItem>>& recovery_folders)
    : folder_(std::move(folder)),
      name_(std::move(name)),
      file_(folder_ ? folder_->Child(name_) : nullptr),
      recovery_(recovery_folders, file_ ? file_->Path() : "") {}

KeptNotes::Found KeptNotes::Look() const {
  if (!file_) return {};
  const auto stream = file_->OpenAsBinaryFile();
  if (!stream && !file_->Exists()) return {};
  const bool too_large = stream && stream->Length() > kLargest;
  auto text = stream && !too_large ? ReadWhole(*file_) : std::nullopt;
  const FileState unread = {Kind::kUnreadable};
  if (too_large || (text && HasLongLine(*text))) return {unread, "", kTooLarge};
  if (!text) return {unread, "", kUnread};
  const FileState read = {Kind::kRead, base::Hash64(*text)};
  return {read, std::move(*text), ""};
}

KeptNotes::Opened KeptNotes::Open() {
  const Found found = Look();
  base_ = found.state;
  why_not_ = found.why_not;
  Opened opened = {found.text, file_ ? "" : kNoFolder};
  if (!why_not_.empty())
    opened.words = LeftAlone(*file_, why_not_) + " What is typed here is saved beside them.";
  if (const auto copy = recovery_.Read()) {
    if (base_.kind == Kind::kRead && copy->text == found.text) {
      recovery_.Remove();  // it was saved after all
    } else {
      opened = Adopt(*copy, std::move(opened), found);
    }
  }
  settled_ = base::Hash64(opened.text);
  return opened;
}

// Whichever of the two texts the field shows, the other stays.
KeptNotes::Opened KeptNotes::Adopt(const RecoveryCopy::Copy& copy, Opened opened, const Found& found) {
  const bool readable = base_.kind == Kind::kRead;
  if (readable && copy.base.kind == Kind::kUnreadable) {
    if (const auto kept = KeepBeside(copy.text)) {
      recovery_.Remove();
      opened.words =
          "The notes can be read again. What was typed meanwhile is kept in " + Quoted(*kept) + ".";
      return opened;
    }
    base_ = copy.base;
    why_not_ = kUnread;
  }
  recovered_ = true;
  opened.text = copy.text;
  opened.words += (opened.words.empty() ? "" : " ") + std::string(kUnsaved);
  if (!readable || !why_not_.empty() || copy.base == found.state || found.text.empty()) return opened;
  if (const auto kept = KeepBeside(found.text)) {
    opened.words += " The notes have been changed since by another program; what it wrote is kept in " +
                    Quoted(*kept) + ".";
  } else {
    base_ = copy.base;  // so that the next save tries again
  }
  return opened;
}

bool KeptNotes::IsEdited(const std::string& text) const {
  return recovered_ || base::Hash64(text) != settled_;
}

void KeptNotes::Keep(const std::string& text) {
  if (IsEdited(text)) {
    recovery_.Write(text, base_);
  } else {
    recovery_.Remove();
  }
}

KeptNotes::Saved KeptNotes::Save(const std::string& text) {
  const Found found = Look();
  const bool missing = found.state.kind == Kind::kMissing;
  if (!IsEdited(text) && (!missing || !file_)) return {};
  const std::string& why_not = why_not_.empty() ? found.why_not : why_not_;
  if (!why_not.empty()) return SaveBeside(text, why_not);
  Saved saved;
  if (found.state != base_ && !found.text.empty() && found.text != text) {
    const auto kept = KeepBeside(found.text);
    if (!kept) return Fail(text);
    saved.words =
        "The notes were changed by another program while they were open here. What it wrote is kept in " +
        Quoted(*kept) + ".";
  }
  base_ = found.state;
  if (!file_ || !SaveWhole(*file_, text)) return Fail(text);
  base_ = {Kind::kRead, base::Hash64(text)};
  Settle(text);
  return saved;
}

KeptNotes::Saved KeptNotes::SaveBeside(const std::string& text, const std::string& why) {
  if (!instead_) instead_ = FreePlaceBeside();
  if (!SaveWhole(*instead_, text)) return Fail(text);
  Settle(text);
  return {LeftAlone(*file_, why) + " What was typed is saved in " + Quoted(*instead_) + "."};
}

// A text that is empty and was never edited is no loss.
KeptNotes::Saved KeptNotes::Fail(const std::string& text) {
  if (text.empty() && !IsEdited(text)) return {};
  const std::string failed =
      file_ ? "The notes can't be saved in " + Quoted(*file_) : "The notes can't be saved";
  if (recovery_.Write(text, base_)) {
    return {failed + ". What was typed is kept in " + '"' + recovery_.Path() + '"' +
            " and shown when the notes are opened next."};
  }
  return {
      failed + ", and there is no room for a copy elsewhere. Here is what was typed, to be copied from here.",
      true};
}

void KeptNotes::Settle(const std::string& text) {
  settled_ = base::Hash64(text);
  recovered_ = false;
  recovery_.Remove();
}

std::shared_ptr<FolderItem> KeptNotes::FreePlaceBeside() const {
  const std::string name = name_ + " " + Now();
  auto place = folder_->Child(name);
  for (int number = 2; place->Exists(); ++number) place = folder_->Child(name + " " + std::to_string(number));
  return place;
}

// The new place of the text; null if it can't be written.
std::shared_ptr<FolderItem> KeptNotes::KeepBeside(const std::string& text) const {
  auto place = FreePlaceBeside();
  return SaveWhole(*place, text) ? place : nullptr;
}

}  // namespace quill::host
