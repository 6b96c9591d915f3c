// What the program asks of a desktop. There are two: the one that people run
// (host/qt) and the one in memory that tests watch (host/memory).
//
// The desktop made last is current until it goes, and it outlives every window,
// control and picture made while it is. The free functions below ask the current
// desktop; without one they throw `NilObjectException`.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/files.h"
#include "host/graphics.h"
#include "host/peers.h"

namespace quill::host {

class Desktop {
 public:
  Desktop();
  virtual ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  static Desktop& Current();

  // Shows `text` (Mac Roman) and waits until the user has seen it. After `Quit`
  // nothing is shown any more.
  virtual void MsgBox(const std::string& text) = 0;

  // A word of the desktop's own (UTF-8), for what the program itself passes over in
  // silence. `rescued` is text that would be lost without it, shown to be copied;
  // empty if there is none. Shown after `Quit` too, unless the session is ending.
  virtual void Tell(const std::string& words, const std::string& rescued) = 0;

  // Asks the event loop to end with that exit status; of several the first counts.
  // Comes back to its caller; before the loop has begun it keeps the loop from
  // beginning.
  virtual void Quit(std::int32_t code) = 0;

  // The folder that holds the application's bundle; null if it can't be told.
  virtual std::shared_ptr<FolderItem> ApplicationFolder() = 0;

  // The folder in which the user's preferences lie; null if it can't be told.
  virtual std::shared_ptr<FolderItem> PreferencesFolder() = 0;

  // The folders for copies of text that isn't saved yet, best first; none if there is
  // no place for them.
  virtual std::vector<std::shared_ptr<FolderItem>> RecoveryFolders() = 0;

  // Starts the application with that creator code on the document at `path`
  // (`FolderItem::Path`) and goes on at once; false if none could be started.
  // What a code stands for is told in `Product::companions`.
  virtual bool OpenDocument(const std::string& application, const std::string& path) = 0;

  virtual FontMetrics& Metrics() = 0;

  // A new picture, `depth` bits a pixel asked for (a desktop may give more).
  // What it shows before anything is drawn is black. Null if there is no memory
  // for it or a side is not above 0.
  virtual std::shared_ptr<Picture> NewPicture(std::int32_t width, std::int32_t height,
                                              std::int32_t depth) = 0;

  // The picture stored with the program under that resource id, read anew;
  // null if there is none.
  virtual std::shared_ptr<Picture> StoredPicture(std::int32_t id) = 0;

  virtual std::unique_ptr<WindowPeer> NewWindow(const WindowStyle& style, Window& window) = 0;

 private:
  Desktop* previous_;  // current before this one, and again after it
};

void MsgBox(const std::string& text);
void Quit(std::int32_t code);
std::shared_ptr<Picture> NewPicture(std::int32_t width, std::int32_t height, std::int32_t depth);

// The item at `path`. The one path there is, the empty one with path type 0,
// gives the folder that holds the application's bundle; any other null.
std::shared_ptr<FolderItem> GetFolderItem(const std::string& path, std::int32_t path_type = 0);

// The folder in which the user's preferences lie; null if it can't be told.
std::shared_ptr<FolderItem> PreferencesFolder();

// The pictures stored with the program.
namespace ResourceFork {
std::shared_ptr<Picture> GetPicture(std::int32_t id);
}  // namespace ResourceFork

}  // namespace quill::host
