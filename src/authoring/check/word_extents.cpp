#include "authoring/check/word_extents.h"

#include <algorithm>
#include <string_view>

#include "base/numbers.h"
#include "render/page_furniture.h"

namespace quill::authoring {
namespace {

// As the layout measures, in whole pixels.
std::int32_t WidthOf(std::string_view text, const host::TextFace& face, host::FontMetrics& metrics) {
  return base::ToInt32(metrics.StringWidth(face, text));
}

WordExtent ExtentOf(const render::PlacedWord& word, host::TextFace face, host::FontMetrics& metrics) {
  face.Bold = word.bold;
  face.Italic = word.italic;
  return {word.y, word.x, base::AddSaturating(word.x, WidthOf(word.text, face, metrics))};
}

}  // namespace

WordExtents ExtentsOf(const render::PageLayout& layout, const render::LayoutSettings& settings,
                      host::FontMetrics& metrics) {
  WordExtents extents;
  for (const render::PlacedWord& word : layout.words)
    extents[{word.column, word.offset}] = ExtentOf(word, settings.face, metrics);
  for (const render::PlacedLink& link : layout.links) {
    if (!link.shown) continue;
    const std::int32_t base_line = link.top + settings.button_rise;
    extents[{link.column, link.offset}] = {base_line, link.left, Right(ButtonOf(link, settings, metrics))};
  }
  return extents;
}

base::Rect ButtonOf(const render::PlacedLink& link, const render::LayoutSettings& settings,
                    host::FontMetrics& metrics) {
  return {link.left, link.top, WidthOf(link.text, settings.face, metrics), render::kLabelHeight};
}

// The metrics tell a line's height alone. A quarter of it is what most text faces
// keep below the base line.
std::int32_t Descent(const host::TextFace& face, host::FontMetrics& metrics) {
  return metrics.TextHeight(face) / 4;
}

std::int32_t Right(const base::Rect& area) { return base::AddSaturating(area.left, area.width); }
std::int32_t Bottom(const base::Rect& area) { return base::AddSaturating(area.top, area.height); }

std::int32_t CommonRows(const base::Rect& a, const base::Rect& b) {
  if (std::min(Right(a), Right(b)) <= std::max(a.left, b.left)) return 0;
  return std::max(0, std::min(Bottom(a), Bottom(b)) - std::max(a.top, b.top));
}

}  // namespace quill::authoring
