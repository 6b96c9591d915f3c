// How the viewer hands a document to another application. It doesn't look at
// the file itself.
#include "host/apple_events.h"
#include "host/desktop.h"
#include "nav/display_window.h"

namespace quill::nav {
namespace {

constexpr const char* kDirectObject = "----";

// Without a document the event goes out all the same, and fails.
void Send(const std::string& application, content::DocumentPlace place, const std::string& filename) {
  const auto event = host::NewAppleEvent("aevt", "odoc", application);
  host::AppleEventDescList list;
  if (const auto document = content::FindDocument(place, filename)) list.AppendFolderItem(document);
  event->SetDescListParam(kDirectObject, list);
  if (!event->Send()) host::MsgBox("Unable to open document.");
}

}  // namespace

void DisplayWindow::ShowDocument(const std::string& filename) {
  Send(app::kCompanion, content::DocumentPlace::kBesideBundle, filename);
}

void DisplayWindow::ShowPDF(const std::string& filename) {
  Send(app::kFileManager, content::DocumentPlace::kInBundle, filename);
}

}  // namespace quill::nav
