// How the viewer hands a document to another application. It doesn't look at
// the file itself.
#include "host/apple_events.h"
#include "host/desktop.h"
#include "host/text_converter.h"
#include "nav/display_window.h"

namespace quill::nav {
namespace {

constexpr const char* kFileManager = "MACS";
constexpr const char* kCompanion = "QLD7";
constexpr const char* kDirectObject = "----";

using Item = std::shared_ptr<host::FolderItem>;

Item ChildOf(const Item& folder, const std::string& name) {
  const Item child = folder && folder->Exists() ? folder->Child(name) : nullptr;
  return child && child->Exists() ? child : nullptr;
}

// The document of that name, Mac Roman, in the folder "Data" inside `folder`;
// null if there is none.
Item DocumentIn(const Item& folder, const std::string& filename) {
  const Item data = folder ? folder->TrueChild("Data") : nullptr;
  return data ? data->TrueChild(host::MacRomanToUtf8(filename)) : nullptr;
}

// Without a document the event goes out all the same, and fails.
void Send(const std::string& target, const Item& document) {
  const auto event = host::NewAppleEvent("aevt", "odoc", target);
  host::AppleEventDescList list;
  if (document) list.AppendFolderItem(document);
  event->SetDescListParam(kDirectObject, list);
  if (!event->Send()) host::MsgBox("Unable to open document.");
}

}  // namespace

// The documents of most modes lie beside the bundle, for the companion.
void DisplayWindow::ShowDocument(const std::string& filename) {
  Send(kCompanion, DocumentIn(host::GetFolderItem(""), filename));
}

// Those of the WGA area lie inside it, beside the content files.
void DisplayWindow::ShowPDF(const std::string& filename) {
  const Item bundle = ChildOf(host::GetFolderItem(""), "Quillmere.app");
  Send(kFileManager, DocumentIn(ChildOf(bundle, "Contents"), filename));
}

}  // namespace quill::nav
