#include "render/page_canvas.h"

namespace quill::render {

void DrawBackground(app::App& app, host::Graphics& graphics) {
  const auto background = app.pictures.Get(app.CurrentMode().page_picture);
  if (background) graphics.DrawPicture(*background, 0, 0);
}

void SetPageInk(const app::App& app, const std::string& font, host::Graphics& graphics) {
  graphics.ForeColor = base::kWhite;
  graphics.TextFont = font;
  graphics.TextSize = app.fontsize;
}

}  // namespace quill::render
