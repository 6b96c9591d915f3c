// Any bytes as a content file, to the layout of its pages: each word is placed once, in the flow or under the
// button of its link, which lies on it.
#include <array>
#include <set>

#include "authoring/area.h"
#include "fuzz/attack.h"
#include "host/memory/memory_desktop.h"
#include "render/page_settings.h"

namespace quill::tests {
namespace {

// Of words and buttons: column and offset, and where the word stands or would.
std::multiset<std::array<std::int32_t, 4>> Places(const render::PageLayout& layout,
                                                  std::int32_t button_rise) {
  std::multiset<std::array<std::int32_t, 4>> places;
  for (const auto& word : layout.words) places.insert({word.column, word.offset, word.x, word.y});
  for (const auto& link : layout.links)
    if (link.shown) places.insert({link.column, link.offset, link.left, link.top + button_rise});
  return places;
}

// Links don't move words, where bold is no wider.
void RequireLayout(const content::Page& page, const render::LayoutSettings& settings,
                   host::FontMetrics& metrics) {
  content::Page plain;
  plain.SetTexts(page.Texts());
  const render::PageLayout words = LayOutPage(plain, settings, metrics);
  Require(Places(LayOutPage(page, settings, metrics), settings.button_rise) == Places(words, 0), "a place");
  std::string placed;
  std::string text;
  for (const render::PlacedWord& word : words.words) placed += word.text;
  for (const std::string& column : page.Texts()) text += column;
  for (std::string* const letters : {&placed, &text})
    std::erase_if(*letters, [](char c) { return c == ' ' || c == '\n' || c == '\t'; });
  RequireSame(placed, text);
}

}  // namespace

void AttackContent(std::string_view bytes) {
  host::MemoryDesktop desktop;
  desktop.files.AddFile(kAttackedFile, TakeText(bytes));
  desktop.metrics.char_width = static_cast<double>(1 + TakeNumber(bytes, 99));
  const auto opened = authoring::OpenFile("a.xml");
  if (!opened) return;
  for (const auto& page : authoring::PagesOf(*opened->document))
    RequireLayout(*page, render::PageSettings(app::kModes[1], page->GetColumns(), "191"), desktop.metrics);
}

}  // namespace quill::tests
