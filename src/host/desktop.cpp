#include "host/desktop.h"

#include <utility>

#include "base/exceptions.h"

namespace quill::host {
namespace {

Desktop* current = nullptr;

}  // namespace

Desktop::Desktop() : previous_(std::exchange(current, this)) {}

Desktop::~Desktop() {
  if (current == this) current = previous_;
}

Desktop& Desktop::Current() {
  if (current == nullptr) throw base::NilObjectException();
  return *current;
}

void MsgBox(const std::string& text) { Desktop::Current().MsgBox(text); }

void Quit(std::int32_t code) { Desktop::Current().Quit(code); }

std::shared_ptr<Picture> NewPicture(std::int32_t width, std::int32_t height, std::int32_t depth) {
  return Desktop::Current().NewPicture(width, height, depth);
}

std::shared_ptr<FolderItem> GetFolderItem(const std::string& path, std::int32_t path_type) {
  return path.empty() && path_type == 0 ? Desktop::Current().ApplicationFolder() : nullptr;
}

std::shared_ptr<FolderItem> PreferencesFolder() { return Desktop::Current().PreferencesFolder(); }

std::shared_ptr<Picture> ResourceFork::GetPicture(std::int32_t id) {
  return Desktop::Current().StoredPicture(id);
}

}  // namespace quill::host
