// A copy of a text that was typed and isn't saved yet, for the next run of a program
// that came to a sudden end. It knows over which text of the file it was typed, so
// that a file changed meanwhile isn't taken for the one it was.
//
// It lies in the first of its folders that takes it: a disk that is full for the file
// itself is often full for the copy, but not every folder lies on that disk.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/files.h"

namespace quill::host {

// What stood in a file: nothing, bytes with that hash, or what couldn't be read.
struct FileState {
  enum class Kind { kMissing, kRead, kUnreadable };
  Kind kind = Kind::kMissing;
  std::uint64_t hash = 0;  // of the bytes that were read

  bool operator==(const FileState&) const = default;
};

class RecoveryCopy {
 public:
  // For the file at `path`; copies for other files lie beside it unharmed.
  RecoveryCopy(const std::vector<std::shared_ptr<FolderItem>>& folders, const std::string& path);

  struct Copy {
    std::string text;
    FileState base;  // what it was typed over
  };

  // The copy that an earlier run left; none if there is none that can be read. One that
  // is there and can't be read may hold what nothing else does: this run leaves it
  // alone, and writes to the other folders.
  std::optional<Copy> Read();

  // Puts this copy in place of any other. False if no folder takes it; an older copy
  // may then still be there.
  bool Write(const std::string& text, const FileState& base);

  void Remove();

  // Where the copy lies; empty if there is none.
  std::string Path() const;

 private:
  struct Place {
    std::shared_ptr<FolderItem> text;
    std::shared_ptr<FolderItem> base;
    std::optional<FileState> known_base;  // what this run has written there
  };

  static bool WriteTo(Place& place, const std::string& text, const FileState& base);

  std::vector<Place> places_;             // best first
  std::optional<std::uint64_t> written_;  // hash of the text, if this run wrote it last
};

}  // namespace quill::host
