#include "host/memory/memory_desktop.h"

namespace quill::host {
namespace {

constexpr double kMostPixels = 64.0 * 1024 * 1024;

}  // namespace

std::shared_ptr<FolderItem> MemoryDesktop::ApplicationFolder() {
  return no_application_folder ? nullptr : files.Item("");
}

std::shared_ptr<FolderItem> MemoryDesktop::PreferencesFolder() {
  return no_preferences_folder ? nullptr : files.Item("preferences");
}

std::vector<std::shared_ptr<FolderItem>> MemoryDesktop::RecoveryFolders() {
  return {files.Item("state"), files.Item("runtime")};
}

bool MemoryDesktop::OpenDocument(const std::string& application, const std::string& path) {
  if (no_applications) return false;
  opened_documents.push_back(application + " " + path);
  return true;
}

std::shared_ptr<Picture> MemoryDesktop::NewPicture(std::int32_t width, std::int32_t height,
                                                   std::int32_t /*depth*/) {
  const bool too_large = static_cast<double>(width) * height > kMostPixels;
  if (out_of_pictures || width <= 0 || height <= 0 || too_large) return nullptr;
  auto picture = std::make_shared<MemoryPicture>(metrics, width, height);
  picture->drawable = !undrawable_pictures;
  return picture;
}

std::shared_ptr<Picture> MemoryDesktop::StoredPicture(std::int32_t id) {
  if (!product.pictures.contains(id)) return nullptr;
  pictures_read.push_back(id);
  return std::make_shared<MemoryPicture>(metrics, 640, 480, "#" + std::to_string(id));
}

std::unique_ptr<WindowPeer> MemoryDesktop::NewWindow(const WindowStyle& style, Window& window) {
  auto screen = std::make_shared<MemoryScreen>();
  screen->style = style;
  screen->window = &window;
  screen->frame.width = style.width;
  screen->frame.height = style.height;
  screens.push_back(screen);
  return std::make_unique<MemoryWindow>(std::move(screen), metrics);
}

}  // namespace quill::host
