// Drawing: a pen with a colour and a text face, the pictures it draws on, and
// the metrics of text.
//
// Text is in Mac Roman, one byte a character. Coordinates are pixels from the
// upper left corner of the picture or control that is drawn on.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/geometry.h"

namespace quill::host {

// How text looks. The empty font name and "System" stand for the desktop's one
// text face; so does any name that the desktop doesn't know.
struct TextFace {
  std::string TextFont;
  std::int32_t TextSize = 0;  // points; 0 stands for the desktop's default, 12
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;

  friend bool operator==(const TextFace&, const TextFace&) = default;
};

// What text measures. Depends on the face and the text alone: not on where it
// is drawn, nor on the density of a screen.
class FontMetrics {
 public:
  virtual ~FontMetrics() = default;

  // Width in pixels of `text` on one line, a trailing blank included.
  virtual double StringWidth(const TextFace& face, std::string_view text) = 0;

  // Height of a line in whole pixels.
  virtual std::int32_t TextHeight(const TextFace& face) = 0;
};

class Picture;

// A pen on a picture or a control. Its state stays as set until set again.
class Graphics : public TextFace {
 public:
  explicit Graphics(FontMetrics& metrics) : metrics_(metrics) {}
  virtual ~Graphics() = default;
  Graphics(const Graphics&) = delete;
  Graphics& operator=(const Graphics&) = delete;

  double StringWidth(std::string_view text) const { return metrics_.StringWidth(*this, text); }
  std::int32_t TextHeight() const { return metrics_.TextHeight(*this); }

  // Draws `text` on one line, the left end of its base line at `x`, `y`. What
  // falls outside is cut off.
  virtual void DrawString(std::string_view text, std::int32_t x, std::int32_t y) = 0;

  virtual void FillRect(const base::Rect& area) = 0;

  // A line one pixel thick; both ends belong to it.
  virtual void DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) = 0;

  // The whole picture at its own size, its upper left corner at `x`, `y`.
  virtual void DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) = 0;

  base::Color ForeColor = base::kBlack;

 private:
  FontMetrics& metrics_;
};

// A rectangle of pixels to draw on, shared by reference.
class Picture {
 public:
  virtual ~Picture() = default;

  virtual std::int32_t Width() const = 0;
  virtual std::int32_t Height() const = 0;

  // The picture's one pen, null if it can't be drawn on. It lives as long as
  // the picture, and every call gives the same one.
  virtual Graphics* GetGraphics() = 0;
};

// The pen of `picture` as a reference that keeps the picture; null if there is
// no picture or it has no pen.
std::shared_ptr<Graphics> GraphicsOf(const std::shared_ptr<Picture>& picture);

}  // namespace quill::host
