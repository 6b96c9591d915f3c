// Any bytes as a manuscript: something is wrong with it, and is said, or it is pressed, which compares the
// text of the pages. Each link then has a place, and its words the length that was meant, or more where signs
// stand right behind them.
#include "authoring/area.h"
#include "authoring/manuscript/manuscript_reader.h"
#include "authoring/press/press.h"
#include "fuzz/attack.h"
#include "host/memory/memory_desktop.h"
#include "render/page_settings.h"

namespace quill::tests {

void AttackManuscript(std::string_view bytes) {
  const authoring::Manuscript manuscript = authoring::ReadManuscript(bytes);
  authoring::Diagnostics diagnostics = manuscript.diagnostics;
  if (!diagnostics.empty()) return;
  const auto pressed = authoring::Press(manuscript, {&manuscript, &manuscript}, diagnostics);
  Require(pressed.has_value() == diagnostics.empty(), "a file and diagnostics, or neither");
  if (!pressed) return;
  host::MemoryDesktop desktop;
  desktop.files.AddFile(kAttackedFile, *pressed);
  for (const auto& page : authoring::PagesOf(*authoring::RequireFile("a.xml").document)) {
    const auto links = LinksOf(*page);
    const auto settings = render::PageSettings(app::kModes[1], page->GetColumns(), "");
    const auto placed = LayOutPage(*page, settings, desktop.metrics).links;
    Require(placed.size() == links.size(), "a link without a place");
    for (const render::PlacedLink& link : placed)
      Require(link.text.size() >= std::stoul(links[link.index]->GetLength()), "a link that is too short");
  }
}

}  // namespace quill::tests
