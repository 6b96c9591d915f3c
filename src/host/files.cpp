#include "host/files.h"

namespace quill::host {

std::shared_ptr<FolderItem> FolderItem::TrueChild(const std::string& name) const {
  std::shared_ptr<FolderItem> child = Child(name);
  return child && child->Exists() ? child : nullptr;
}

bool IsPlainName(const std::string& name) {
  if (name.empty() || name == "." || name == "..") return false;
  return name.find('/') == std::string::npos && name.find('\0') == std::string::npos;
}

}  // namespace quill::host
