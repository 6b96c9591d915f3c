// The picture that a page is drawn on.
#pragma once

#include "app/app.h"
#include "host/graphics.h"

namespace quill::render {

// Draws the background of the current mode with `graphics`, at the upper left
// corner. One that can't be read leaves what is there.
void DrawBackground(app::App& app, host::Graphics& graphics);

// Gives `graphics` the white ink and the face of page text: the named font at
// the application's size. Its style flags stay.
void SetPageInk(const app::App& app, const std::string& font, host::Graphics& graphics);

}  // namespace quill::render
