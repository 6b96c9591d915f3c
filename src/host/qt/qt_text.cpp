#include "host/qt/qt_text.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text_converter.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

constexpr std::int32_t kDefaultSize = 12;
constexpr std::int32_t kLargestSize = 512;

// Widths kept at most, and the longest text worth keeping one for: words come
// again from page to page, whole paragraphs hardly ever.
constexpr std::size_t kMostRemembered = 65'536;
constexpr std::size_t kLongestRemembered = 64;

constexpr double kLineHeight = 1.25;  // of the size

std::int32_t SizeOf(const TextFace& face) {
  return face.TextSize <= 0 ? kDefaultSize : std::min(face.TextSize, kLargestSize);
}

// A bit for each flag below the size; the desktop has one font, so that its
// name doesn't count.
std::int32_t KeyOf(const TextFace& face) {
  return SizeOf(face) * 8 + (face.Bold ? 4 : 0) + (face.Italic ? 2 : 0) + (face.Underline ? 1 : 0);
}

// Unhinted glyphs stand where their widths say, on every density of screen;
// grey antialiasing looks the same on a picture and on a window.
QFont MakeFont(const TextFace& face) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(true);
  font.setPixelSize(SizeOf(face));
  font.setBold(face.Bold);
  font.setItalic(face.Italic);
  font.setUnderline(face.Underline);
  return font;
}

bool IsControl(QChar c) { return c.unicode() < 0x20 || c.unicode() == 0x7F; }

}  // namespace

QString LineOfText(std::string_view text) {
  QString line = QString::fromStdU16String(base::MacRomanToUtf16(text.substr(0, kLongestLine)));
  std::replace_if(line.begin(), line.end(), IsControl, QChar(u' '));
  return line;
}

QString Message(std::string_view text) {
  return QString::fromStdU16String(base::MacRomanToUtf16(text.substr(0, kLongestLine)));
}

QtMetrics::Face::Face(const TextFace& face) : font(MakeFont(face)), metrics(font) {}

QtMetrics::Face& QtMetrics::LookUp(const TextFace& face) {
  return faces_.try_emplace(KeyOf(face), face).first->second;
}

double QtMetrics::StringWidth(const TextFace& face, std::string_view text) {
  Face& known = LookUp(face);
  const auto found = known.widths.find(text);
  if (found != known.widths.end()) return found->second;
  const double width = known.metrics.horizontalAdvance(LineOfText(text));
  Remember(known, text, width);
  return width;
}

void QtMetrics::Remember(Face& face, std::string_view text, double width) {
  if (text.size() > kLongestRemembered) return;
  if (remembered_ >= kMostRemembered) {
    for (auto& [key, known] : faces_) known.widths.clear();
    remembered_ = 0;
  }
  face.widths.emplace(text, width);
  ++remembered_;
}

std::int32_t QtMetrics::TextHeight(const TextFace& face) { return base::ToInt32(SizeOf(face) * kLineHeight); }

std::int32_t QtMetrics::BaseLine(const TextFace& face) {
  return base::ToInt32(std::round(LookUp(face).metrics.ascent()));
}

void PaintLine(QPainter& painter, QtMetrics& metrics, const TextFace& face, base::Color color,
               std::string_view text, const QPointF& base_line) {
  painter.setPen(ToQColor(color));
  painter.setFont(metrics.FontOf(face));
  painter.drawText(base_line, LineOfText(text));
}

}  // namespace quill::host
