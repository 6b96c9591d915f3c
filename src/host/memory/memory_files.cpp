#include "host/memory/memory_files.h"

#include <utility>

namespace quill::host {
namespace {

class MemoryStream final : public BinaryStream {
 public:
  MemoryStream(std::string bytes, std::uint64_t length) : bytes_(std::move(bytes)), length_(length) {}

  std::uint64_t Length() const override { return length_; }

  std::string Read(std::uint64_t count) override {
    std::string part = bytes_.substr(at_, count);
    at_ += part.size();
    return part;
  }

  void Close() override { at_ = bytes_.size(); }

 private:
  std::string bytes_;
  std::uint64_t length_;
  std::size_t at_ = 0;
};

}  // namespace

class MemoryOutput final : public TextOutputStream {
 public:
  MemoryOutput(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}

  void Write(const std::string& text) override { text_ += text; }

  bool Close() override {
    const std::string folder = path_.substr(0, path_.rfind('/'));
    if (files_.full_.contains(path_) || files_.full_.contains(folder)) return false;
    files_.AddFile(path_, text_);
    return true;
  }

 private:
  MemoryFiles& files_;
  std::string path_;
  std::string text_;
};

class MemoryItem final : public FolderItem {
 public:
  MemoryItem(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}

  std::string Name() const override { return path_.substr(path_.rfind('/') + 1); }

  std::string Path() const override { return path_; }

  bool Exists() const override {
    if (path_.empty() || files_.files_.contains(path_)) return true;
    const std::string folder = path_ + "/";
    const auto next = files_.files_.lower_bound(folder);
    return next != files_.files_.end() && next->first.starts_with(folder);
  }

  std::shared_ptr<FolderItem> Child(const std::string& name) const override {
    if (!IsPlainName(name)) return nullptr;
    return files_.Item(path_.empty() ? name : path_ + "/" + name);
  }

  std::unique_ptr<BinaryStream> OpenAsBinaryFile() const override {
    const auto file = files_.files_.find(path_);
    if (file == files_.files_.end() || files_.locked_.contains(path_)) return nullptr;
    files_.opened_.push_back(path_);
    const std::string& bytes = file->second;
    const bool spoiled = files_.spoiled_.contains(path_);
    return std::make_unique<MemoryStream>(spoiled ? bytes.substr(0, bytes.size() / 2) : bytes, bytes.size());
  }

  bool Remove() const override {
    files_.Remove(path_);
    return true;
  }

  std::unique_ptr<TextOutputStream> Create(Readers /*readers*/) const override {
    if (files_.refused_.contains(path_)) return nullptr;
    return std::make_unique<MemoryOutput>(files_, path_);
  }

 private:
  MemoryFiles& files_;
  std::string path_;
};

void MemoryFiles::Mend() {
  for (std::set<std::string>* const faults : {&locked_, &spoiled_, &refused_, &full_}) faults->clear();
}

std::string MemoryFiles::Bytes(const std::string& path) const {
  const auto file = files_.find(path);
  return file == files_.end() ? std::string() : file->second;
}

std::shared_ptr<FolderItem> MemoryFiles::Item(const std::string& path) {
  return std::make_shared<MemoryItem>(*this, path);
}

}  // namespace quill::host
