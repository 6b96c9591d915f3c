// Pens and pictures on pixels.
//
// Pictures and layers are held at the density of the densest screen, so that
// text is crisp on each; all coordinates stay in the program's own pixels,
// from the upper left corner.
#pragma once

#include <QImage>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/geometry.h"
#include "host/graphics.h"
#include "host/qt/qt_text.h"
#include "host/qt/qt_values.h"

class QPainter;

namespace quill::host {

// An image of that many of the program's pixels, filled with `color`; null if
// a side is not above 0, or there are too many pixels in all.
QImage NewImage(std::int32_t width, std::int32_t height, const QColor& color);

// Paints `image` with its upper left corner at the painter's origin, moved by
// less than a pixel where that spares the image from being resampled.
void PaintImage(QPainter& painter, const QImage& image);

// What a pen draws on.
class Surface {
 public:
  virtual ~Surface() = default;

  // Null if there is nothing to draw on at the moment.
  virtual QImage* Pixels() = 0;

  // Something was drawn.
  virtual void Changed() = 0;
};

// The pen of `surface`, which owns it. What lies outside the surface costs
// nothing, however far out it lies.
class QtGraphics final : public Graphics {
 public:
  QtGraphics(QtMetrics& metrics, Surface& surface)
      : Graphics(metrics), metrics_(metrics), surface_(surface) {}

  void DrawString(std::string_view text, std::int32_t x, std::int32_t y) override;
  void FillRect(const base::Rect& area) override;
  void DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
  void DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) override;

 private:
  QtMetrics& metrics_;
  Surface& surface_;
};

// Who shows a picture, and wants to know when it changes.
class PictureViewer {
 public:
  virtual ~PictureViewer() = default;
  virtual void PictureChanged() = 0;
};

class QtPicture final : public Picture, private Surface {
 public:
  // `image` must not be null. `width` and `height` are its size in the
  // program's pixels, which the image may exceed by a fraction of one.
  QtPicture(QtMetrics& metrics, QImage image, std::int32_t width, std::int32_t height);

  std::int32_t Width() const override { return width_; }
  std::int32_t Height() const override { return height_; }
  Graphics* GetGraphics() override { return &graphics_; }
  const QImage& Image() const { return image_; }

  // A viewer stays until it is removed, which must come before its end.
  void AddViewer(PictureViewer& viewer) { viewers_.push_back(&viewer); }
  void RemoveViewer(PictureViewer& viewer) { std::erase(viewers_, &viewer); }

 private:
  QImage* Pixels() override { return &image_; }
  void Changed() override;

  QImage image_;
  std::int32_t width_;
  std::int32_t height_;
  QtGraphics graphics_;
  std::vector<PictureViewer*> viewers_;
};

}  // namespace quill::host
