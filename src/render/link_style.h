// Links that are no buttons: their type says how their words are drawn.
#pragma once

#include <cstdint>

#include "host/graphics.h"

namespace quill::render {

// Whether a link of that type is a run of styled words in the flow. Every other
// link is a button.
constexpr bool IsStyledRun(std::int32_t link_type) { return link_type > 2 && link_type < 9; }

// Sets the style flags of `face` to those of the link type, all three cleared
// first.
void SetLinkStyle(std::int32_t link_type, host::TextFace& face);

}  // namespace quill::render
