#include "reader/snapshot.h"

#include "base/text_converter.h"
#include "reader/program.h"

namespace quill {

Snapshot TakeSnapshot(host::QtDesktop& desktop, const SnapshotRequest& request,
                      const std::filesystem::path& path) {
  Program program;
  nav::DisplayWindow& viewer = program.DisplayWindow();
  viewer.ShowOffsets(request.offsets);
  viewer.ChooseMode(request.mode);
  for (const std::string& page : request.pages) viewer.ShowPage(page);
  Snapshot snapshot;
  snapshot.dump = base::MacRomanToUtf8(viewer.Dump());
  snapshot.aborted = desktop.HasQuit();
  snapshot.saved = !snapshot.aborted && desktop.SaveScreen(viewer, path);
  return snapshot;
}

}  // namespace quill
