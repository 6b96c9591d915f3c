#include "app/destination.h"

#include "base/numbers.h"
#include "base/text.h"
#include "content/link_types.h"

namespace quill::app {
namespace {

using Kind = Destination::Kind;

// On the opening page a link's target alone counts.
Destination IntoMode(Modes modes, double target) {
  const std::int32_t named = ModeNamedByPage(modes);
  if (IsMode(modes, named)) {
    const std::int32_t from = *modes[static_cast<std::size_t>(named)].targets_from;
    if (target >= from) return {.kind = Kind::kMode, .mode = named, .page = base::ToInt32(target - from)};
  }
  return {.kind = Kind::kMode, .mode = base::ToInt32(target)};
}

}  // namespace

Destination DestinationOf(Modes modes, const Mode& from, std::int32_t type, const std::string& target,
                          const std::string& file_name) {
  if (from.opening) return IntoMode(modes, base::Val(target));
  switch (type) {
    case content::link_type::kPage:
      if (from.has_notes && base::EqualText(target, "0")) return {.kind = Kind::kNotes};
      return {.kind = Kind::kPage, .name = target};
    case content::link_type::kGlossary:
      return {.kind = Kind::kEntry, .name = target};
    case content::link_type::kDocument:
      return {.kind = Kind::kDocument, .name = file_name};
    default:
      return {};
  }
}

}  // namespace quill::app
