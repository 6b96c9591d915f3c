// Text on the desktop that people run: its one face in all sizes and styles,
// what text measures in it, and how a line of it is painted.
//
// Text comes as Mac Roman and turns into Unicode here and nowhere else. What is
// measured is what is painted: one line, plain characters, never rich text or
// mnemonics, and only the first `kLongestLine` characters of it.
//
// `QtMetrics` belongs to the desktop and needs its QApplication.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/graphics.h"

class QPainter;
class QPointF;

namespace quill::host {

// Far wider than any screen, and still quick to shape.
inline constexpr std::size_t kLongestLine = 16'384;

// `text` as one line of characters that all have a width: a control character,
// a tab among them, becomes a blank.
QString LineOfText(std::string_view text);

// `text` with its line ends, for a message.
QString Message(std::string_view text);

class QtMetrics final : public FontMetrics {
 public:
  double StringWidth(const TextFace& face, std::string_view text) override;
  std::int32_t TextHeight(const TextFace& face) override;

  const QFont& FontOf(const TextFace& face) { return LookUp(face).font; }

  // Pixels from the top of a line to its base line.
  std::int32_t BaseLine(const TextFace& face);

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  using Widths = std::unordered_map<std::string, double, TextHash, std::equal_to<>>;

  // One size and style, with the widths measured in it so far.
  struct Face {
    explicit Face(const TextFace& face);

    QFont font;
    QFontMetricsF metrics;
    Widths widths;
  };

  Face& LookUp(const TextFace& face);
  void Remember(Face& face, std::string_view text, double width);

  std::unordered_map<std::int32_t, Face> faces_;  // by size and style flags
  std::size_t remembered_ = 0;                    // widths in all faces together
};

// Paints `text` in `color`, the left end of its base line at `base_line`.
void PaintLine(QPainter& painter, QtMetrics& metrics, const TextFace& face, base::Color color,
               std::string_view text, const QPointF& base_line);

}  // namespace quill::host
