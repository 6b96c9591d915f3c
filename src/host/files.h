// Files and folders as the program sees them. A `FolderItem` names a place that
// may hold a file, a folder or nothing; it is shared by reference and never
// changes. Each desktop brings its own: the disk, or folders in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
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

// An open file of text, line by line.
class TextInputStream {
 public:
  explicit TextInputStream(std::string text) : text_(std::move(text)) {}

  // Whether all lines have been read. The end of the file is no line: an empty
  // file has none.
  bool AtEnd() const { return at_ >= text_.size(); }

  // The next line with the line end that it has (LF, CR LF or CR; the last may
  // have none), so that lines put together give the file again.
  std::string ReadLine();

  void Close() { at_ = text_.size(); }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

// A file of text in the making. It takes its place when it is closed, whole and
// at once; one that is dropped before leaves what was there.
class TextOutputStream {
 public:
  virtual ~TextOutputStream() = default;

  virtual void Write(const std::string& text) = 0;

  // False if the file couldn't be put in its place; what was there is still.
  virtual bool Close() = 0;
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

  // The same for a file of text.
  std::unique_ptr<TextInputStream> OpenAsTextFile() const;

  // Makes the file anew, for its owner alone to read; null if it can't be. A
  // link to a file is followed.
  std::unique_ptr<TextOutputStream> CreateTextFile() const { return Create(Readers::kOwner); }

  // Ours, not the domain's:

  // Where it is, as the desktop names places.
  virtual std::string Path() const = 0;

  // Takes the file away, and what saves of it that came to a sudden end have left
  // beside it. True if nothing is there any more.
  virtual bool Remove() const = 0;

  // The same as `CreateTextFile` for a file that others may read as they read the old one, or as is
  // usual where there was none.
  std::unique_ptr<TextOutputStream> CreateSharedFile() const { return Create(Readers::kAsBefore); }

 protected:
  enum class Readers { kOwner, kAsBefore };
  virtual std::unique_ptr<TextOutputStream> Create(Readers readers) const = 0;
};

// All bytes of the file; none if it can't be opened or not be read to its end.
std::optional<std::string> ReadWhole(const FolderItem& file);

// Makes the file anew with `text`, as `CreateTextFile` has it. False if it couldn't be
// put in its place; what was there is still.
bool SaveWhole(const FolderItem& file, const std::string& text);

// Whether `name` names a place right inside a folder; see `FolderItem::Child`.
bool IsPlainName(const std::string& name);

}  // namespace quill::host
