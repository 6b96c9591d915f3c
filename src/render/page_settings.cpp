#include "render/page_settings.h"

#include "app/app.h"
#include "render/page_furniture.h"

namespace quill::render {
namespace {

constexpr std::int32_t kTextTop = 60;
constexpr double kCloseStep = 0.35;

}  // namespace

LayoutSettings PageSettings(const app::Mode& mode, std::int32_t columns, std::string_view page_number) {
  LayoutSettings settings;
  settings.geometry.TopMargin = kTextTop;
  settings.geometry.SetMargins(columns, kPageCanvas.width);
  settings.face.TextSize = app::App::kFontSize;
  settings.button_rise = app::App::kFontHeightOffset;
  if (!mode.close_set_page.empty() && page_number == mode.close_set_page)
    settings.paragraph_step = kCloseStep;
  return settings;
}

}  // namespace quill::render
