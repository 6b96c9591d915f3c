// Pictures without pixels: they keep a line of text for each thing drawn.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/graphics.h"

namespace quill::host {

// Metrics that a test sets: every character so many pixels wide, in bold so
// many more, and a line so high, whatever the size of the face.
class FixedMetrics final : public FontMetrics {
 public:
  double StringWidth(const TextFace& face, std::string_view text) override;
  std::int32_t TextHeight(const TextFace& /*face*/) override { return line_height; }

  double char_width = 10;
  double bold_extra = 0;
  std::int32_t line_height = 15;
};

// A pen that writes down what it draws, a line each:
//
//   text "word" 30,75 12 #ffffff biu     (size; the letters of the flags set)
//   fill -1,-1 50x25 #464646
//   line 0,17 49,17 #0a80ff
//   picture #171 0,0                      (a stored picture by its id)
class RecordingGraphics final : public Graphics {
 public:
  using Graphics::Graphics;

  void DrawString(std::string_view text, std::int32_t x, std::int32_t y) override;
  void FillRect(const base::Rect& area) override;
  void DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
  void DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) override;

  // What was drawn since the last look.
  std::vector<std::string> TakeDrawn();
  const std::vector<std::string>& Drawn() const { return drawn_; }

 private:
  std::vector<std::string> drawn_;
};

class MemoryPicture final : public Picture {
 public:
  MemoryPicture(FontMetrics& metrics, std::int32_t width, std::int32_t height, std::string name = "new")
      : graphics_(metrics), width_(width), height_(height), name_(std::move(name)) {}

  std::int32_t Width() const override { return width_; }
  std::int32_t Height() const override { return height_; }
  RecordingGraphics* GetGraphics() override { return drawable ? &graphics_ : nullptr; }
  const std::string& Name() const { return name_; }

  bool drawable = true;

 private:
  RecordingGraphics graphics_;
  std::int32_t width_;
  std::int32_t height_;
  std::string name_;
};

}  // namespace quill::host
