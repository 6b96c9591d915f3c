#include "host/qt/qt_scaled.h"

#include <QPainter>
#include <QWidget>
#include <cmath>

#include "host/qt/qt_values.h"

namespace quill::host {

QRect ScaledRect(const base::Rect& frame, double scale, const QPointF& parent_origin, QPointF& origin) {
  const QRect whole = ToQRect(frame);
  const QRectF exact(parent_origin.x() + whole.x() * scale, parent_origin.y() + whole.y() * scale,
                     whole.width() * scale, whole.height() * scale);
  const QRect outer = exact.toAlignedRect();
  origin = exact.topLeft() - outer.topLeft();
  return outer;
}

void ScaledWidget::PlaceScaled(QWidget& widget, const base::Rect& frame) {
  const auto* const parent = dynamic_cast<const ScaledWidget*>(widget.parentWidget());
  widget.setGeometry(ScaledRect(frame, look_.scale, parent ? parent->Origin() : QPointF(), origin_));
}

void ScaledWidget::Scale(QPainter& painter) const {
  painter.translate(origin_);
  painter.scale(look_.scale, look_.scale);
}

}  // namespace quill::host
