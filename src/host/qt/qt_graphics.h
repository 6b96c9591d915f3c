// Pens and pictures. What a pen draws is kept as a list (`QtDrawing`) and turned
// into pixels when it is shown, at the scale and in the colours of the window that
// shows it.
#pragma once

#include <QByteArray>
#include <QImage>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/geometry.h"
#include "host/graphics.h"
#include "host/qt/qt_drawing.h"
#include "host/qt/qt_look.h"
#include "host/qt/qt_text.h"

class QPainter;

namespace quill::host {

// Whether a picture of that size can be made: both sides above 0, and its pixels
// on the densest screen not too many for memory.
bool IsPictureSize(std::int32_t width, std::int32_t height);

// A pen on a list, which it doesn't own. `changed` is called when something was
// drawn.
class QtGraphics final : public Graphics {
 public:
  QtGraphics(QtMetrics& metrics, QtDrawing& drawing, std::function<void()> changed)
      : Graphics(metrics), drawing_(drawing), changed_(std::move(changed)) {}

  void DrawString(std::string_view text, std::int32_t x, std::int32_t y) override;
  void FillRect(const base::Rect& area) override;
  void DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
  void DrawPicture(const Picture& picture, std::int32_t x, std::int32_t y) override;

 private:
  QtDrawing& drawing_;
  std::function<void()> changed_;
};

// Who shows a picture, and wants to know when it changes.
class PictureViewer {
 public:
  virtual ~PictureViewer() = default;
  virtual void PictureChanged() = 0;
};

// A picture that the toolkit can paint.
class QtPicture : public Picture {
 public:
  // Paints the picture with its upper left corner at the painter's origin.
  virtual void Paint(QPainter& painter, const QtLook& look) = 0;

  // What it shows now, for others to keep whatever becomes of it.
  virtual std::shared_ptr<Painted> Content() const = 0;

  // A viewer stays until it is removed, which must come before its end.
  void AddViewer(PictureViewer& viewer) { viewers_.push_back(&viewer); }
  void RemoveViewer(PictureViewer& viewer) { std::erase(viewers_, &viewer); }

 protected:
  void Changed();

 private:
  std::vector<PictureViewer*> viewers_;
};

// A new picture: black, with what the program draws on it.
std::shared_ptr<QtPicture> NewDrawnPicture(QtMetrics& metrics, std::int32_t width, std::int32_t height);

// A picture from an SVG document, in the size that it states; null if it is none.
std::shared_ptr<QtPicture> NewStoredPicture(QtMetrics& metrics, const QByteArray& svg);

}  // namespace quill::host
