// The care around notes that a person types: whatever happens to file, disk or
// program, what was typed and what stood in the file are both there afterwards, and
// the person is told where. When to save, and that all of it goes into one file, is
// for others to say.
//
// - Notes that can't be read are never written over; what is typed is saved beside
//   them, under their name with the date.
// - Notes that someone else changed while they were open here are kept so too, before
//   the new text takes their place.
// - Text that couldn't be saved, or never came to be, lies in a recovery copy
//   (recovery_copy.h), and is what the next opening shows.
//
// Texts are bytes, UTF-8 wherever people made them; words for the person are UTF-8.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/files.h"
#include "host/recovery_copy.h"

namespace quill::host {

class KeptNotes {
 public:
  // More than this isn't opened: a field would take too long to show it. In bytes; a
  // line's end is LF or CR.
  static constexpr std::uint64_t kLargest = 16 << 20;
  static constexpr std::size_t kLongestLine = 1 << 18;

  // The notes are the file `name` in `folder`, which is null where there is none for
  // them. `recovery_folders` come best first and may be none.
  KeptNotes(std::shared_ptr<FolderItem> folder, std::string name,
            const std::vector<std::shared_ptr<FolderItem>>& recovery_folders);

  struct Opened {
    std::string text;   // for the field
    std::string words;  // what the person must know of it; empty if nothing
  };

  Opened Open();

  // Keeps a recovery copy, if `text` isn't what the file holds.
  void Keep(const std::string& text);

  struct Saved {
    std::string words;  // what the person must know; empty if all is as it should be
    bool lost = false;  // the text is neither saved nor kept anywhere
  };

  // Saves the text, if there is anything to save: a text that nobody edited is
  // written only where there is no file.
  Saved Save(const std::string& text);

 private:
  struct Found {
    FileState state;
    std::string text;
    std::string why_not;  // it can't be edited; empty if it can
  };

  Found Look() const;
  Opened Adopt(const RecoveryCopy::Copy& copy, Opened opened, const Found& found);
  bool IsEdited(const std::string& text) const;
  Saved SaveBeside(const std::string& text, const std::string& why);
  Saved Fail(const std::string& text);
  void Settle(const std::string& text);
  std::shared_ptr<FolderItem> FreePlaceBeside() const;
  std::shared_ptr<FolderItem> KeepBeside(const std::string& text) const;

  std::shared_ptr<FolderItem> folder_;
  std::string name_;
  std::shared_ptr<FolderItem> file_;  // null without a folder
  RecoveryCopy recovery_;
  FileState base_;                       // the file, when it was read or saved last
  std::string why_not_;                  // it couldn't be edited then; empty if it could
  std::uint64_t settled_ = 0;            // hash of the text then
  bool recovered_ = false;               // the text came from a recovery copy
  std::shared_ptr<FolderItem> instead_;  // where the text goes, as long as the notes can't be edited
};

}  // namespace quill::host
