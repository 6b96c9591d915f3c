// Files and folders as the program sees them. A `FolderItem` names a place that
// may hold a file, a folder or nothing; it is shared by reference and never
// changes. Each desktop brings its own: the disk, or folders in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quill::host {

// An open file, read as bytes. Closed when it goes.
class BinaryStream {
 public:
  virtual ~BinaryStream() = default;

  // Length of the whole file in bytes.
  virtual std::uint64_t Length() const = 0;

  // The next `count` bytes, or as many as the file still has.
  virtual std::string Read(std::uint64_t count) = 0;

  virtual void Close() = 0;
};

class FolderItem {
 public:
  virtual ~FolderItem() = default;

  // Last part of the path, in UTF-8.
  virtual std::string Name() const = 0;

  virtual bool Exists() const = 0;

  // The place of that name inside this folder, whether or not anything is
  // there; null if `name` is empty or names no place right inside it (it holds
  // a separator or a NUL, or is "." or "..").
  virtual std::shared_ptr<FolderItem> Child(const std::string& name) const = 0;

  // The item of that name inside this folder, null if nothing is there.
  std::shared_ptr<FolderItem> TrueChild(const std::string& name) const;

  // Opens the file for reading; null if it can't be.
  virtual std::unique_ptr<BinaryStream> OpenAsBinaryFile() const = 0;
};

// Whether `name` names a place right inside a folder; see `FolderItem::Child`.
bool IsPlainName(const std::string& name);

}  // namespace quill::host
