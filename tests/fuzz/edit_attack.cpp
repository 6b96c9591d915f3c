// An author's change to any bytes as a content file: refused, and the file is what it was; or done, and all
// other pages load as before.
#include "authoring/complaint.h"
#include "authoring/edit/editor.h"
#include "fuzz/attack.h"
#include "host/memory/memory_desktop.h"
#include "support/document_dump.h"

namespace quill::tests {
namespace {

// All but the one at that index.
std::string Pages(std::int32_t without) {
  std::string dump;
  for (const auto& page : authoring::PagesOf(*authoring::RequireFile("a.xml").document))
    if (without-- != 0) dump += DumpPage(*page);
  return dump;
}

}  // namespace

void AttackEdit(std::string_view bytes) {
  host::MemoryDesktop desktop;
  const std::string content = TakeText(bytes);
  desktop.files.AddFile(kAttackedFile, content);
  const std::size_t what = TakeNumber(bytes, 6);
  const auto page = static_cast<std::int32_t>(TakeNumber(bytes, 4));
  authoring::Anchor at;
  at.offset = static_cast<std::int32_t>(TakeNumber(bytes, 48));
  at.on = TakeText(bytes);
  const std::int32_t changed = what < 2 ? -1 : page;
  try {
    const std::string before = Pages(changed);
    authoring::Editor editor("a.xml");
    if (what == 0) editor.BumpVersion();
    if (what == 1) editor.AddPage(at.on, {at.on, "b"});
    if (what == 2) editor.UpdatePage(page, at.on, {at.on});
    if (what == 3) editor.AddLink(page, at, {2, "1", 9, "a&b.pdf"});
    if (what == 4) editor.UpdateLink(page, at, {"be", 3, "2", 4});
    if (what == 5) editor.DeleteLink(page, at);
    editor.Save();
    RequireSame(Pages(changed).substr(0, before.size()), before);
  } catch (const authoring::Complaint&) {
    RequireSame(desktop.files.Bytes(kAttackedFile), content);
  }
}

}  // namespace quill::tests
