// The measures of the viewer's page: one place for the viewer, which draws it, and
// for the tools that must know beforehand what it will look like.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/app.h"
#include "render/page_layout.h"

namespace quill::render {

// The page's canvas, which fills the window.
inline constexpr std::int32_t kPageWidth = 640;
inline constexpr std::int32_t kPageHeight = 480;

// How a page of that many columns is laid out in the application's mode.
// `page_number` is the text by which it was asked for: one page of the Screen
// area, its index of short lines, is known by it and set closer.
LayoutSettings PageSettings(const app::App& app, std::int32_t columns, std::string_view page_number);

}  // namespace quill::render
