#include "host/qt/qt_drawing.h"

#include <QPainter>
#include <algorithm>
#include <optional>
#include <utility>

#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

// The part of a straight line from `from` along `step` in which one of its
// coordinates lies between `low` and `high`, as fractions of its length;
// `part` is narrowed to it. False if nothing is left.
bool Narrow(double from, double step, double low, double high, std::pair<double, double>& part) {
  if (step == 0) return from >= low && from <= high;
  const auto [enter, leave] = std::minmax({(low - from) / step, (high - from) / step});
  part.first = std::max(part.first, enter);
  part.second = std::min(part.second, leave);
  return part.first <= part.second;
}

// The part of `line` inside `bounds`. The painter would do the same, but only
// with coordinates that a screen could have.
std::optional<QLineF> Clipped(const QLineF& line, const QRectF& bounds) {
  std::pair<double, double> part = {0, 1};
  if (!Narrow(line.x1(), line.dx(), bounds.left(), bounds.right(), part)) return std::nullopt;
  if (!Narrow(line.y1(), line.dy(), bounds.top(), bounds.bottom(), part)) return std::nullopt;
  return QLineF(line.pointAt(part.first), line.pointAt(part.second));
}

QRectF RectOf(const base::Rect& area) { return QRectF(area.left, area.top, area.width, area.height); }

}  // namespace

void QtDrawing::Reset(std::int32_t width, std::int32_t height) {
  width_ = width;
  height_ = height;
  opaque_ = false;
  items_.clear();
}

void QtDrawing::AddText(const TextFace& face, base::Color color, std::string_view text, std::int32_t x,
                        std::int32_t y) {
  if (text.empty()) return;
  const double reach = 2.0 * metrics_->TextHeight(face);  // accents, descenders and slanted ends
  const QRectF inked(x - reach, y - reach, metrics_->StringWidth(face, text) + 2 * reach, 2 * reach);
  if (!inked.intersects(QRectF(0, 0, width_, height_))) return;
  items_.emplace_back(Text{face, color, std::string(text.substr(0, kLongestLine)), x, y});
}

// What covers everything makes all before it needless: a control that draws
// itself anew each time keeps a short list.
void QtDrawing::AddFill(base::Color color, const base::Rect& area) {
  const QRectF whole(0, 0, width_, height_);
  if (area.width <= 0 || area.height <= 0 || !RectOf(area).intersects(whole)) return;
  if (RectOf(area).contains(whole)) {
    items_.clear();
    opaque_ = true;
  }
  items_.emplace_back(Fill{color, area});
}

void QtDrawing::AddLine(base::Color color, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                        std::int32_t y2) {
  items_.emplace_back(Line{color, x1, y1, x2, y2});
}

void QtDrawing::AddPicture(std::shared_ptr<Painted> picture, std::int32_t width, std::int32_t height,
                           std::int32_t x, std::int32_t y) {
  if (!QRectF(x, y, width, height).intersects(QRectF(0, 0, width_, height_))) return;
  items_.emplace_back(Inset{std::move(picture), x, y});
}

void QtDrawing::Paint(QPainter& painter, const QtLook& look) const {
  for (const auto& item : items_) {
    std::visit([&](const auto& drawn) { Paint(painter, look, drawn); }, item);
  }
}

void QtDrawing::Paint(QPainter& painter, const QtLook& look, const Text& text) const {
  PaintLine(painter, *metrics_, text.face, InkFor(look, text.color), text.text, QPointF(text.x, text.y));
}

void QtDrawing::Paint(QPainter& painter, const QtLook& look, const Fill& fill) const {
  painter.fillRect(RectOf(fill.area) & QRectF(0, 0, width_, height_), ToQColor(GroundFor(look, fill.color)));
}

// In high contrast the line under a label is the desktop's own, which tells what
// kind of link it is.
void QtDrawing::Paint(QPainter& painter, const QtLook& look, const Line& line) const {
  if (look.high_contrast) return;
  const QColor color = ToQColor(InkFor(look, line.color));
  const QRectF whole(0, 0, width_, height_);
  if (line.x1 == line.x2 || line.y1 == line.y2) {
    const QRectF stroke(QPointF(std::min(line.x1, line.x2), std::min(line.y1, line.y2)),
                        QPointF(std::max(line.x1, line.x2) + 1.0, std::max(line.y1, line.y2) + 1.0));
    painter.fillRect(stroke & whole, color);
    return;
  }
  const auto seen = Clipped(QLineF(line.x1 + 0.5, line.y1 + 0.5, line.x2 + 0.5, line.y2 + 0.5),
                            whole.adjusted(-2, -2, 2, 2));
  if (!seen) return;
  painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap));
  painter.drawLine(*seen);
}

void QtDrawing::Paint(QPainter& painter, const QtLook& look, const Inset& inset) const {
  painter.save();
  painter.translate(inset.x, inset.y);
  inset.picture->Paint(painter, look);
  painter.restore();
}

}  // namespace quill::host
