// What was drawn, as a list that can be painted again at any scale. So letters,
// lines and pictures are crisp at each: nothing is ever stretched.
//
// Coordinates are the program's pixels. A list has a size, and what falls outside
// is neither kept nor painted.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/geometry.h"
#include "host/graphics.h"
#include "host/qt/qt_look.h"
#include "host/qt/qt_text.h"

class QPainter;

namespace quill::host {

// A picture that others may be drawn into.
class Painted {
 public:
  virtual ~Painted() = default;
  virtual void Paint(QPainter& painter, const QtLook& look) = 0;
};

class QtDrawing {
 public:
  QtDrawing(QtMetrics& metrics, std::int32_t width, std::int32_t height)
      : metrics_(&metrics), width_(width), height_(height) {}

  std::int32_t Width() const { return width_; }
  std::int32_t Height() const { return height_; }

  // Forgets all that was drawn and takes another size.
  void Reset(std::int32_t width, std::int32_t height);

  // Whether anything that is painted beneath is hidden.
  bool IsOpaque() const { return opaque_; }

  void AddText(const TextFace& face, base::Color color, std::string_view text, std::int32_t x,
               std::int32_t y);
  void AddFill(base::Color color, const base::Rect& area);
  void AddLine(base::Color color, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);

  // `picture`, of that size, with its upper left corner at `x`, `y`.
  void AddPicture(std::shared_ptr<Painted> picture, std::int32_t width, std::int32_t height, std::int32_t x,
                  std::int32_t y);

  // Paints the list with a painter that is scaled already.
  void Paint(QPainter& painter, const QtLook& look) const;

 private:
  struct Text {
    TextFace face;
    base::Color color;
    std::string text;
    std::int32_t x;
    std::int32_t y;
  };
  struct Fill {
    base::Color color;
    base::Rect area;
  };
  struct Line {
    base::Color color;
    std::int32_t x1;
    std::int32_t y1;
    std::int32_t x2;
    std::int32_t y2;
  };
  struct Inset {
    std::shared_ptr<Painted> picture;
    std::int32_t x;
    std::int32_t y;
  };

  void Paint(QPainter& painter, const QtLook& look, const Text& text) const;
  void Paint(QPainter& painter, const QtLook& look, const Fill& fill) const;
  void Paint(QPainter& painter, const QtLook& look, const Line& line) const;
  void Paint(QPainter& painter, const QtLook& look, const Inset& inset) const;

  QtMetrics* metrics_;
  std::int32_t width_;
  std::int32_t height_;
  bool opaque_ = false;
  std::vector<std::variant<Text, Fill, Line, Inset>> items_;
};

}  // namespace quill::host
