#include "host/qt/qt_edges.h"

#include <QEvent>
#include <QWidget>

#include "host/qt/qt_values.h"

namespace quill::host {

void EdgeKeeper::Place(QWidget& widget, const base::Rect& frame) {
  if (widget_ == nullptr) widget.parentWidget()->installEventFilter(this);
  widget_ = &widget;
  const QRect place = ToQRect(frame);
  const QSize room = widget.parentWidget()->size();
  margins_ = QMargins(place.left(), place.top(), room.width() - place.right() - 1,
                      room.height() - place.bottom() - 1);
  widget.setGeometry(place);
}

bool EdgeKeeper::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == widget_->parentWidget())
    widget_->setGeometry(widget_->parentWidget()->rect().marginsRemoved(margins_));
  return QObject::eventFilter(watched, event);
}

}  // namespace quill::host
