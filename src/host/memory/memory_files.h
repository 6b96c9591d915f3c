// Files and folders in memory, for tests and for content that never was a file.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "host/files.h"

namespace quill::host {

// A tree of files by path ("Quillmere.app/Contents/Data/initQMR.xml"). Folders
// are there as soon as a path leads through them.
class MemoryFiles {
 public:
  void AddFile(const std::string& path, std::string bytes) { files_[path] = std::move(bytes); }
  void Remove(const std::string& path) { files_.erase(path); }

  // From now on the file at `path` exists but can't be opened.
  void Lock(const std::string& path) { locked_.insert(path); }

  // From now on the file at `path` can be opened, but not be read to its end.
  void Spoil(const std::string& path) { spoiled_.insert(path); }

  // From now on no file can be made at `path`, nor anew.
  void Refuse(const std::string& path) { refused_.insert(path); }

  // From now on a file at `path`, or in that folder, can be made but not be put in its
  // place, as on a disk that is full.
  void Fill(const std::string& path) { full_.insert(path); }

  // Lets everything be read and made again.
  void Mend();

  // The bytes at `path`; empty if nothing is there.
  std::string Bytes(const std::string& path) const;

  // Every file by its path.
  const std::map<std::string, std::string>& All() const { return files_; }

  // The item at `path`, the root for the empty one. It sees later changes and
  // must not outlive this object.
  std::shared_ptr<FolderItem> Item(const std::string& path);

  // Paths that were opened, in order.
  const std::vector<std::string>& Opened() const { return opened_; }

 private:
  friend class MemoryItem;
  friend class MemoryOutput;

  std::map<std::string, std::string> files_;
  std::set<std::string> locked_;
  std::set<std::string> spoiled_;
  std::set<std::string> refused_;
  std::set<std::string> full_;
  std::vector<std::string> opened_;
};

}  // namespace quill::host
