#include "host/memory/memory_graphics.h"

#include <array>
#include <cstdio>
#include <utility>

namespace quill::host {
namespace {

std::string PointText(std::int32_t x, std::int32_t y) { return std::to_string(x) + "," + std::to_string(y); }

std::string Hex(base::Color color) {
  std::array<char, 8> text = {};
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x", color.red, color.green, color.blue);
  return text.data();
}

std::string Flags(const TextFace& face) {
  std::string flags;
  if (face.Bold) flags += 'b';
  if (face.Italic) flags += 'i';
  if (face.Underline) flags += 'u';
  return flags.empty() ? flags : " " + flags;
}

}  // namespace

double FixedMetrics::StringWidth(const TextFace& face, std::string_view text) {
  return static_cast<double>(text.size()) * (char_width + (face.Bold ? bold_extra : 0));
}

void RecordingGraphics::DrawString(std::string_view text, std::int32_t x, std::int32_t y) {
  drawn_.push_back("text \"" + std::string(text) + "\" " + PointText(x, y) + " " + std::to_string(TextSize) +
                   " " + Hex(ForeColor) + Flags(*this));
}

void RecordingGraphics::FillRect(const base::Rect& area) {
  drawn_.push_back("fill " + PointText(area.left, area.top) + " " + std::to_string(area.width) + "x" +
                   std::to_string(area.height) + " " + Hex(ForeColor));
}

void RecordingGraphics::DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
  drawn_.push_back("line " + PointText(x1, y1) + " " + PointText(x2, y2) + " " + Hex(ForeColor));
}

void RecordingGraphics::DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) {
  drawn_.push_back("picture " + dynamic_cast<const MemoryPicture&>(picture).Name() + " " + PointText(x, y));
}

std::vector<std::string> RecordingGraphics::TakeDrawn() { return std::exchange(drawn_, {}); }

}  // namespace quill::host
