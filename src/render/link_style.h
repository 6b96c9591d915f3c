// How the words of a styled run are drawn.
#pragma once

#include <cstdint>

#include "host/graphics.h"

namespace quill::render {

// Sets the style flags of `face` to those of the link type; all three are clear
// for a type that is no style.
void SetLinkStyle(std::int32_t link_type, host::TextFace& face);

}  // namespace quill::render
