// The check of a glossary entry, whose layout and window are its own.
#include <string>

#include "app/app.h"
#include "authoring/check/page_check.h"
#include "authoring/check/word_extents.h"
#include "base/numbers.h"
#include "render/entry_layout.h"

namespace quill::authoring {

// Once for an entry: what follows its first word out of sight is no better off.
void CheckEntry(const content::Page& entry, const Location& page_location, host::FontMetrics& metrics,
                Findings& findings) {
  host::TextFace face;
  face.TextSize = app::App::kFontSize;
  const std::int32_t descent = Descent(face, metrics);
  // The words count from the canvas, the button from the window.
  const std::int32_t close_left = render::kEntryClose.left - render::kEntryCanvas.left;
  const std::int32_t close_top = render::kEntryClose.top - render::kEntryCanvas.top;
  for (const auto& word : render::LayOutEntry(entry.GetText(), render::kEntryMargins, face, metrics)) {
    const std::int32_t right =
        base::AddSaturating(word.x, base::ToInt32(metrics.StringWidth(face, word.text)));
    const std::int32_t bottom = base::AddSaturating(word.y, descent);
    const bool below = bottom > render::kEntryCanvas.height;
    if (!below && (bottom <= close_top || right <= close_left)) continue;
    findings.push_back(
        {FindingKind::kBelowEdge, page_location,
         "its text runs " +
             std::string(below ? "below the edge of the window" : "behind the button \"Close\"") +
             " from \"" + word.text + "\" on"});
    return;
  }
}

}  // namespace quill::authoring
