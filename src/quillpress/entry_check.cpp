// The check of a glossary entry, whose layout and window are its own.
#include "app/mode_table.h"
#include "host/geometry.h"
#include "host/numbers.h"
#include "quillpress/page_check.h"
#include "sidewindows/glossary_layout.h"

namespace quill::quillpress {
namespace {

constexpr std::int32_t kTextSize = 12;
constexpr std::int32_t kDescent = 4;  // what hangs below a base line, in parts of a line's height

}  // namespace

void CheckEntry(const content::Page& entry, const Place& at, host::FontMetrics& metrics, Findings& findings) {
  host::TextFace face;
  face.TextSize = kTextSize;
  const std::int32_t room = metrics.TextHeight(face) / kDescent;
  for (const auto& word :
       sidewindows::LayOutEntry(entry.GetText(), sidewindows::kEntryMargins, face, metrics)) {
    const std::int32_t right =
        host::AddSaturating(word.x, host::ToInt32(metrics.StringWidth(face, word.text)));
    const std::int32_t bottom = host::AddSaturating(word.y, room);
    const bool below = bottom > sidewindows::kEntryCanvas.height;
    if (!below && (bottom <= sidewindows::kEntryClose.top || right <= sidewindows::kEntryClose.left))
      continue;
    findings.push_back(
        {Kind::kBelowEdge, at,
         "its text runs " +
             std::string(below ? "below the edge of the window" : "behind the button \"Close\"") +
             " from \"" + word.text + "\" on"});
    return;
  }
}

}  // namespace quill::quillpress
