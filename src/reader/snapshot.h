// A page as the reader shows it, with nobody at the screen: for authors, for
// tests, and for anyone who wants to see what a page looks like.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "host/qt/qt_desktop.h"

namespace quill {

struct SnapshotRequest {
  std::int32_t mode = 0;  // must be one of the table
  std::vector<std::string>
      pages;             // shown one after the other from the mode's first; the last is on the picture
  bool offsets = false;  // each word's offset stands below it
};

struct Snapshot {
  std::string dump;      // what is on the page, a line each, in UTF-8
  bool aborted = false;  // the program asked for its end on the way
  bool saved = false;    // the picture was written
};

// Runs a reader on `desktop`, the current one, and writes a PNG file to `path`.
Snapshot TakeSnapshot(host::QtDesktop& desktop, const SnapshotRequest& request,
                      const std::filesystem::path& path);

}  // namespace quill
