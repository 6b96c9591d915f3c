#include "render/page_settings.h"

namespace quill::render {
namespace {

constexpr std::int32_t kTextTop = 60;
constexpr std::string_view kIndexPage = "191";
constexpr double kIndexStep = 0.35;

}  // namespace

LayoutSettings PageSettings(const app::App& app, std::int32_t columns, std::string_view page_number) {
  LayoutSettings settings;
  settings.geometry.TopMargin = kTextTop;
  settings.geometry.SetMargins(columns, kPageWidth);
  settings.face.TextSize = app.fontsize;
  settings.button_rise = app.fontheightoffset;
  if (app.mode == app::kScreenMode && page_number == kIndexPage) settings.paragraph_step = kIndexStep;
  return settings;
}

}  // namespace quill::render
