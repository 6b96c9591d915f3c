// The measures of the viewer's page: one place for the viewer, which draws it, and
// for the tools that must know beforehand what it will look like.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/mode_table.h"
#include "render/page_layout.h"

namespace quill::render {

// Returns how a page of that many columns is laid out in a mode. `page_number` is
// the text by which it was asked for: a mode's close-set page is known by it.
LayoutSettings PageSettings(const app::Mode& mode, std::int32_t columns, std::string_view page_number);

}  // namespace quill::render
