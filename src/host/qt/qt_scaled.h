// Widgets whose place is told in the program's pixels, and who find out by
// themselves where that is on the screen. A place that lies between the screen's
// pixels is widened to them; what is painted there stands where it should, to the
// fraction.
#pragma once

#include <QPointF>
#include <QRect>

#include "base/geometry.h"
#include "host/qt/qt_look.h"

class QPainter;
class QWidget;

namespace quill::host {

// `frame` counts from the parent's corner, whose own fraction of a pixel is
// `parent_origin`. `origin` is where the frame's corner lies in the rectangle
// that comes back.
QRect ScaledRect(const base::Rect& frame, double scale, const QPointF& parent_origin, QPointF& origin);

class ScaledWidget {
 public:
  virtual ~ScaledWidget() = default;

  // The window's look has changed.
  virtual void Rescale() = 0;

  // Where the widget's corner in the program's pixels lies, in the widget's.
  const QPointF& Origin() const { return origin_; }

 protected:
  explicit ScaledWidget(const QtLook& look) : look_(look) {}

  const QtLook& Look() const { return look_; }

  // Puts `widget`, which is this one, in its place.
  void PlaceScaled(QWidget& widget, const base::Rect& frame);

  // Makes a painter of this widget count in the program's pixels.
  void Scale(QPainter& painter) const;

  // A point of the widget in the program's pixels.
  QPointF Unscaled(const QPointF& point) const { return (point - origin_) / look_.scale; }

 private:
  const QtLook& look_;
  QPointF origin_;
};

}  // namespace quill::host
