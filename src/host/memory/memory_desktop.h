// The desktop in memory. It observes: it keeps what was drawn, shown, said and
// asked, sets the metrics of text, and fails where a test wants it to.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop.h"
#include "host/memory/memory_files.h"
#include "host/memory/memory_window.h"
#include "host/product.h"

namespace quill::host {

class MemoryDesktop final : public Desktop {
 public:
  explicit MemoryDesktop(Product given = {}) : product(std::move(given)) {}

  void MsgBox(const std::string& text) override {
    if (!quit_code) messages.push_back(text);
  }
  void Tell(const std::string& words, const std::string& rescued) override {
    told.push_back(rescued.empty() ? words : words + "\n" + rescued);
  }
  void Quit(std::int32_t code) override {
    if (!quit_code) quit_code = code;
  }
  std::shared_ptr<FolderItem> ApplicationFolder() override;
  std::shared_ptr<FolderItem> PreferencesFolder() override;
  std::vector<std::shared_ptr<FolderItem>> RecoveryFolders() override;
  bool OpenDocument(const std::string& application, const std::string& path) override;
  FixedMetrics& Metrics() override { return metrics; }
  std::shared_ptr<Picture> NewPicture(std::int32_t width, std::int32_t height, std::int32_t depth) override;
  std::shared_ptr<Picture> StoredPicture(std::int32_t id) override;
  std::unique_ptr<WindowPeer> NewWindow(const WindowStyle& style, Window& window) override;

  Product product;

  // The message boxes shown so far.
  std::vector<std::string> messages;
  std::optional<std::int32_t> quit_code;

  // The desktop's own words so far, each with the text that it rescued.
  std::vector<std::string> told;

  // The folder that holds the bundle is the root of these files.
  MemoryFiles files;

  // The folder of preferences is "preferences" there.
  bool no_preferences_folder = false;

  // Folders for copies of unsaved text are "state" and "runtime".

  // What was handed to which application ("QLD7 Data/outline.pdf"), in order.
  std::vector<std::string> opened_documents;
  bool no_applications = false;  // none can be started

  FixedMetrics metrics;

  // Windows in the order they were made, closed ones included.
  std::vector<std::shared_ptr<MemoryScreen>> screens;

  // Ids of the stored pictures that were read, in order.
  std::vector<std::int32_t> pictures_read;

  bool out_of_pictures = false;      // `NewPicture` gives null
  bool undrawable_pictures = false;  // new pictures have no pen
  bool no_application_folder = false;
};

}  // namespace quill::host
