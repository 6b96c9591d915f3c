#include "render/link_style.h"

namespace quill::render {

void SetLinkStyle(std::int32_t link_type, host::TextFace& face) {
  face.Italic = link_type == 3 || link_type == 5 || link_type == 7;
  face.Bold = link_type == 4 || link_type == 5 || link_type == 8;
  face.Underline = link_type == 6 || link_type == 7 || link_type == 8;
}

}  // namespace quill::render
