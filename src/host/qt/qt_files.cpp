#include "host/qt/qt_files.h"

#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <utility>

#include "host/qt/qt_output.h"

namespace quill::host {
namespace {

class DiskStream final : public BinaryStream {
 public:
  DiskStream(std::ifstream file, std::uint64_t length) : file_(std::move(file)), length_(length) {}

  std::uint64_t Length() const override { return length_; }

  std::string Read(std::uint64_t count) override {
    std::string bytes(std::min(count, length_), '\0');
    file_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file_.gcount()));
    return bytes;
  }

  void Close() override { file_.close(); }

 private:
  std::ifstream file_;
  std::uint64_t length_;
};

class DiskFolderItem final : public FolderItem {
 public:
  explicit DiskFolderItem(std::filesystem::path path) : path_(std::move(path)) {}

  std::string Name() const override { return path_.filename().string(); }

  std::string Path() const override { return path_.string(); }

  bool Exists() const override {
    std::error_code error;
    return std::filesystem::exists(path_, error);
  }

  std::shared_ptr<FolderItem> Child(const std::string& name) const override {
    return IsPlainName(name) ? DiskItem(path_ / name) : nullptr;
  }

  // Regular files alone: a pipe would hang the reader, and a folder opens but
  // never reads.
  std::unique_ptr<BinaryStream> OpenAsBinaryFile() const override {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path_, error)) return nullptr;
    const std::uint64_t length = std::filesystem::file_size(path_, error);
    std::ifstream file(path_, std::ios::binary);
    if (error || !file) return nullptr;
    return std::make_unique<DiskStream>(std::move(file), length);
  }

  bool Remove() const override {
    SweepDrafts(path_);
    return unlink(path_.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
  }

  std::unique_ptr<TextOutputStream> Create(Readers readers) const override {
    return DiskOutput::Make(
        path_, readers == Readers::kOwner ? DiskOutput::Rights::kOwnerAlone : DiskOutput::Rights::kAsBefore);
  }

 private:
  std::filesystem::path path_;
};

}  // namespace

std::shared_ptr<FolderItem> DiskItem(const std::filesystem::path& path) {
  return std::make_shared<DiskFolderItem>(std::filesystem::absolute(path));
}

}  // namespace quill::host
