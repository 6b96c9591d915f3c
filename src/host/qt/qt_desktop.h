// The desktop that people run, on the Qt toolkit. `main` makes it first and
// lets it go last; everything else knows it as `Desktop`. No toolkit header is
// needed to use this one.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/desktop.h"
#include "host/product.h"

namespace quill::host {

class Application;
class Instance;
class Window;

// Whether there is a session to show windows in.
bool HasDisplay();

class QtDesktop final : public Desktop {
 public:
  // Where message boxes go.
  enum class Messages {
    kBox,            // a box that waits for the user
    kStandardError,  // a line there, for tools that nobody watches
  };

  // What windows are shown on.
  enum class Screen {
    kSession,
    kNone,  // nothing: windows are painted in memory, for `SaveScreen`
  };

  struct Options {
    // The folder that holds the bundle; empty for the one that holds the
    // executable, wherever it was started from.
    std::filesystem::path application_folder;
    // The same as an item that a tool has made itself; it wins over the path.
    std::shared_ptr<FolderItem> application;
    Messages messages = Messages::kBox;
    Screen screen = Screen::kSession;
  };

  // `argc` and `argv` must outlive the desktop, which takes the toolkit's own
  // arguments out of them. Without a session to show windows in, the toolkit
  // ends the process; see `HasDisplay`.
  QtDesktop(int& argc, char** argv, Product product);
  QtDesktop(int& argc, char** argv, Product product, Options options);
  ~QtDesktop() override;

  // Delivers events until the program quits, and gives its exit status; at once
  // if it has quit already. `application` must have been opened, and its first
  // window: the loop raises neither event. The desktop's own quit command,
  // Ctrl+Q, stands in the application's menu bar; without one there is none.
  //
  // An exception that an event handler lets out is reported, and the program
  // ends with status 1. From here on the signals that end a session end the loop; they
  // never cut the rest short.
  int Run(Application& application);

  // From now on the main window comes to the front when a later reader asks
  // `instance` for it.
  void Heed(Instance& instance);

  // Whether the program has asked for its end.
  bool HasQuit() const;

  // Writes the content of `window`, shown or not, as a PNG file at the density
  // of the screen; false if the file can't be written.
  bool SaveScreen(Window& window, const std::filesystem::path& path);

  void MsgBox(const std::string& text) override;
  void Tell(const std::string& words, const std::string& rescued) override;
  void Quit(std::int32_t code) override;
  std::shared_ptr<FolderItem> ApplicationFolder() override;
  std::shared_ptr<FolderItem> PreferencesFolder() override;
  std::vector<std::shared_ptr<FolderItem>> RecoveryFolders() override;
  bool OpenDocument(const std::string& application, const std::string& path) override;
  FontMetrics& Metrics() override;
  std::shared_ptr<Picture> NewPicture(std::int32_t width, std::int32_t height, std::int32_t depth) override;
  std::shared_ptr<Picture> StoredPicture(std::int32_t id) override;
  std::unique_ptr<WindowPeer> NewWindow(const WindowStyle& style, Window& window) override;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quill::host
