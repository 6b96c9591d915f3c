// The check of a glossary entry, whose layout and window are its own.
#include "app/app.h"
#include "authoring/check/page_check.h"
#include "base/geometry.h"
#include "base/numbers.h"
#include "render/entry_layout.h"

namespace quill::authoring {
namespace {

constexpr std::int32_t kDescent = 4;  // what hangs below a base line, in parts of a line's height

}  // namespace

void CheckEntry(const content::Page& entry, const Location& at, host::FontMetrics& metrics,
                Findings& findings) {
  host::TextFace face;
  face.TextSize = app::App::kFontSize;
  const std::int32_t room = metrics.TextHeight(face) / kDescent;
  for (const auto& word : render::LayOutEntry(entry.GetText(), render::kEntryMargins, face, metrics)) {
    const std::int32_t right =
        base::AddSaturating(word.x, base::ToInt32(metrics.StringWidth(face, word.text)));
    const std::int32_t bottom = base::AddSaturating(word.y, room);
    const bool below = bottom > render::kEntryCanvas.height;
    if (!below && (bottom <= render::kEntryClose.top || right <= render::kEntryClose.left)) continue;
    findings.push_back(
        {FindingKind::kBelowEdge, at,
         "its text runs " +
             std::string(below ? "below the edge of the window" : "behind the button \"Close\"") +
             " from \"" + word.text + "\" on"});
    return;
  }
}

}  // namespace quill::authoring
