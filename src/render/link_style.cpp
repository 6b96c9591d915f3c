#include "render/link_style.h"

#include "content/link_types.h"

namespace quill::render {

void SetLinkStyle(std::int32_t link_type, host::TextFace& face) {
  const content::LinkType* const row = content::FindLinkType(link_type);
  face.Italic = row != nullptr && row->italic;
  face.Bold = row != nullptr && row->bold;
  face.Underline = row != nullptr && row->underline;
}

}  // namespace quill::render
