#include "host/files.h"

#include <utility>

namespace quill::host {

std::shared_ptr<FolderItem> FolderItem::TrueChild(const std::string& name) const {
  std::shared_ptr<FolderItem> child = Child(name);
  return child && child->Exists() ? child : nullptr;
}

std::unique_ptr<TextInputStream> FolderItem::OpenAsTextFile() const {
  std::optional<std::string> text = ReadWhole(*this);
  return text ? std::make_unique<TextInputStream>(std::move(*text)) : nullptr;
}

std::optional<std::string> ReadWhole(const FolderItem& file) {
  const std::unique_ptr<BinaryStream> stream = file.OpenAsBinaryFile();
  if (!stream) return std::nullopt;
  std::string bytes = stream->Read(stream->Length());
  if (bytes.size() != stream->Length()) return std::nullopt;
  return bytes;
}

bool SaveWhole(const FolderItem& file, const std::string& text) {
  const std::unique_ptr<TextOutputStream> stream = file.CreateTextFile();
  if (!stream) return false;
  stream->Write(text);
  return stream->Close();
}

std::string TextInputStream::ReadLine() {
  std::size_t end = text_.find_first_of("\r\n", at_);
  if (end == std::string::npos) end = text_.size();
  if (end < text_.size()) end += text_.compare(end, 2, "\r\n") == 0 ? 2 : 1;
  const std::size_t begin = std::exchange(at_, end);
  return text_.substr(begin, end - begin);
}

bool IsPlainName(const std::string& name) {
  if (name.empty() || name == "." || name == "..") return false;
  return name.find('/') == std::string::npos && name.find('\0') == std::string::npos;
}

}  // namespace quill::host
