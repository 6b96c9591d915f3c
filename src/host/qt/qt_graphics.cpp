#include "host/qt/qt_graphics.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QTransform>
#include <cmath>
#include <utility>

#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

constexpr double kMostPixels = 64.0 * 1024 * 1024;

// An image of that many of the program's pixels at a density, filled with `color`;
// null if there is no memory for it.
QImage NewImage(std::int32_t width, std::int32_t height, double density, const QColor& color) {
  const double device_width = std::ceil(width * density);
  const double device_height = std::ceil(height * density);
  if (device_width * device_height > kMostPixels) return {};
  QImage image(static_cast<int>(device_width), static_cast<int>(device_height),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return image;
  image.setDevicePixelRatio(density);
  image.fill(color);
  return image;
}

// Paints `image` with its upper left corner at the painter's origin, moved by
// less than a pixel so that the image isn't resampled: it was made at the
// painter's density.
void PaintImage(QPainter& painter, const QImage& image) {
  if (image.isNull()) return;
  const QTransform device = painter.deviceTransform();
  const QPointF origin(device.dx(), device.dy());
  const QPointF whole(std::round(origin.x()), std::round(origin.y()));
  painter.drawImage((whole - origin) / image.devicePixelRatio(), image);
}

// Pixels of something that is costly to paint, kept until it is wanted at another
// density or in another look.
class Raster {
 public:
  template <typename Draw>
  void Paint(QPainter& painter, const QtLook& look, std::int32_t width, std::int32_t height,
             const QColor& ground, const Draw& draw) {
    const double density = painter.deviceTransform().m11();
    if (image_.isNull() || density != image_.devicePixelRatio() || look.high_contrast != high_contrast_) {
      image_ = NewImage(width, height, density, ground);
      high_contrast_ = look.high_contrast;
      if (image_.isNull()) return;
      QPainter inner(&image_);
      draw(inner);
    }
    PaintImage(painter, image_);
  }
  void Drop() { image_ = QImage(); }

 private:
  QImage image_;
  bool high_contrast_ = false;
};

// What a drawn picture has shown at some moment.
class KeptDrawing final : public Painted {
 public:
  explicit KeptDrawing(QtDrawing drawing) : drawing_(std::move(drawing)) {}
  void Paint(QPainter& painter, const QtLook& look) override {
    painter.fillRect(QRect(0, 0, drawing_.Width(), drawing_.Height()), Qt::black);
    painter.setClipRect(QRect(0, 0, drawing_.Width(), drawing_.Height()), Qt::IntersectClip);
    drawing_.Paint(painter, look);
  }

 private:
  QtDrawing drawing_;
};

class DrawnPicture final : public QtPicture {
 public:
  DrawnPicture(QtMetrics& metrics, std::int32_t width, std::int32_t height)
      : drawing_(metrics, width, height), graphics_(metrics, drawing_, [this] { Redraw(); }) {}

  std::int32_t Width() const override { return drawing_.Width(); }
  std::int32_t Height() const override { return drawing_.Height(); }
  Graphics* GetGraphics() override { return &graphics_; }
  std::shared_ptr<Painted> Content() const override { return std::make_shared<KeptDrawing>(drawing_); }

  // Lays a picture of the same size into it.
  void Add(std::shared_ptr<Painted> picture) {
    drawing_.AddPicture(std::move(picture), Width(), Height(), 0, 0);
  }

  void Paint(QPainter& painter, const QtLook& look) override {
    raster_.Paint(painter, look, Width(), Height(), Qt::black,
                  [&](QPainter& inner) { drawing_.Paint(inner, look); });
  }

 private:
  void Redraw() {
    raster_.Drop();
    Changed();
  }

  QtDrawing drawing_;
  QtGraphics graphics_;
  Raster raster_;
};

// An SVG document, and its pixels. In high contrast it is nothing but its ground.
class SvgContent final : public Painted {
 public:
  bool Load(const QByteArray& svg) { return drawing_.load(svg); }
  QSize Size() const { return drawing_.defaultSize(); }

  void Paint(QPainter& painter, const QtLook& look) override {
    if (look.high_contrast) {
      painter.fillRect(QRect(QPoint(0, 0), Size()), Qt::black);
      return;
    }
    raster_.Paint(painter, look, Size().width(), Size().height(), Qt::transparent, [&](QPainter& inner) {
      inner.setRenderHint(QPainter::Antialiasing);
      drawing_.render(&inner, QRectF(QPointF(0, 0), Size()));
    });
  }

 private:
  QSvgRenderer drawing_;
  Raster raster_;
};

}  // namespace

bool IsPictureSize(std::int32_t width, std::int32_t height) {
  const double density = qGuiApp->devicePixelRatio();
  return width > 0 && height > 0 && std::ceil(width * density) * std::ceil(height * density) <= kMostPixels;
}

void QtGraphics::DrawString(std::string_view text, std::int32_t x, std::int32_t y) {
  drawing_.AddText(*this, ForeColor, text, x, y);
  changed_();
}

void QtGraphics::FillRect(const base::Rect& area) {
  drawing_.AddFill(ForeColor, area);
  changed_();
}

void QtGraphics::DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
  drawing_.AddLine(ForeColor, x1, y1, x2, y2);
  changed_();
}

void QtGraphics::DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) {
  const auto& drawn = dynamic_cast<const QtPicture&>(picture);
  drawing_.AddPicture(drawn.Content(), drawn.Width(), drawn.Height(), x, y);
  changed_();
}

void QtPicture::Changed() {
  for (PictureViewer* viewer : viewers_) viewer->PictureChanged();
}

std::shared_ptr<QtPicture> NewDrawnPicture(QtMetrics& metrics, std::int32_t width, std::int32_t height) {
  return std::make_shared<DrawnPicture>(metrics, width, height);
}

std::shared_ptr<QtPicture> NewStoredPicture(QtMetrics& metrics, const QByteArray& svg) {
  auto content = std::make_shared<SvgContent>();
  if (!content->Load(svg) || !IsPictureSize(content->Size().width(), content->Size().height()))
    return nullptr;
  const QSize size = content->Size();
  auto picture = std::make_shared<DrawnPicture>(metrics, size.width(), size.height());
  picture->Add(std::move(content));
  return picture;
}

}  // namespace quill::host
