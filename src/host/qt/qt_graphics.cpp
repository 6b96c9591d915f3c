#include "host/qt/qt_graphics.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace quill::host {
namespace {

constexpr double kMostPixels = 64.0 * 1024 * 1024;

// The bounds of `image` in the program's pixels.
QRectF Bounds(const QImage& image) { return {QPointF(0, 0), image.deviceIndependentSize()}; }

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

void PaintSlanted(QImage& pixels, base::Color color, const QLineF& line) {
  const std::optional<QLineF> seen = Clipped(line, Bounds(pixels).adjusted(-2, -2, 2, 2));
  if (!seen) return;
  QPainter painter(&pixels);
  painter.setPen(QPen(ToQColor(color), 1, Qt::SolidLine, Qt::SquareCap));
  painter.drawLine(*seen);
}

}  // namespace

QImage NewImage(std::int32_t width, std::int32_t height, const QColor& color) {
  const double density = qGuiApp->devicePixelRatio();
  const double device_width = std::ceil(width * density);
  const double device_height = std::ceil(height * density);
  if (width <= 0 || height <= 0 || device_width * device_height > kMostPixels) return {};
  QImage image(static_cast<int>(device_width), static_cast<int>(device_height),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return image;
  image.setDevicePixelRatio(density);
  image.fill(color);
  return image;
}

void PaintImage(QPainter& painter, const QImage& image) {
  if (image.isNull()) return;
  const QTransform device = painter.deviceTransform();
  const double density = image.devicePixelRatio();
  const bool same_density = qFuzzyCompare(device.m11(), density) && qFuzzyCompare(device.m22(), density);
  const QPointF origin(device.dx(), device.dy());
  const QPointF whole(std::round(origin.x()), std::round(origin.y()));
  painter.drawImage(same_density ? (whole - origin) / density : QPointF(), image);
}

void QtGraphics::DrawString(std::string_view text, std::int32_t x, std::int32_t y) {
  QImage* const pixels = surface_.Pixels();
  if (pixels == nullptr || text.empty()) return;
  const double reach = 2.0 * TextHeight();  // accents, descenders and slanted ends
  const QRectF inked(x - reach, y - reach, StringWidth(text) + 2 * reach, 2 * reach);
  if (!inked.intersects(Bounds(*pixels))) return;
  QPainter painter(pixels);
  PaintLine(painter, metrics_, *this, ForeColor, text, QPointF(x, y));
  surface_.Changed();
}

void QtGraphics::FillRect(const base::Rect& area) {
  QImage* const pixels = surface_.Pixels();
  if (pixels == nullptr || area.width <= 0 || area.height <= 0) return;
  const QRectF seen = QRectF(area.left, area.top, area.width, area.height) & Bounds(*pixels);
  if (seen.isEmpty()) return;
  QPainter(pixels).fillRect(seen, ToQColor(ForeColor));
  surface_.Changed();
}

void QtGraphics::DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
  QImage* const pixels = surface_.Pixels();
  if (pixels == nullptr) return;
  if (x1 == x2 || y1 == y2) {
    const QRectF line(QPointF(std::min(x1, x2), std::min(y1, y2)),
                      QPointF(std::max(x1, x2) + 1.0, std::max(y1, y2) + 1.0));
    QPainter(pixels).fillRect(line & Bounds(*pixels), ToQColor(ForeColor));
  } else {
    PaintSlanted(*pixels, ForeColor, QLineF(x1 + 0.5, y1 + 0.5, x2 + 0.5, y2 + 0.5));
  }
  surface_.Changed();
}

void QtGraphics::DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) {
  QImage* const pixels = surface_.Pixels();
  if (pixels == nullptr) return;
  const QImage& image = dynamic_cast<const QtPicture&>(picture).Image();
  if (!Bounds(image).translated(x, y).intersects(Bounds(*pixels))) return;
  const QImage source = &image == pixels ? image.copy() : image;
  QPainter painter(pixels);
  painter.translate(x, y);
  PaintImage(painter, source);
  painter.end();
  surface_.Changed();
}

QtPicture::QtPicture(QtMetrics& metrics, QImage image, std::int32_t width, std::int32_t height)
    : image_(std::move(image)), width_(width), height_(height), graphics_(metrics, *this) {}

void QtPicture::Changed() {
  for (PictureViewer* viewer : viewers_) viewer->PictureChanged();
}

}  // namespace quill::host
