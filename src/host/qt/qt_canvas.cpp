#include "host/qt/qt_canvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>

namespace quill::host {
namespace {

// A canvas draws labels and pages; what a hostile label makes wider is cut off.
constexpr int kLargestLayer = 4096;

struct Point {
  std::int32_t x;
  std::int32_t y;
};

Point PointOf(const QMouseEvent& event) {
  const QPointF position = event.position();
  return {static_cast<std::int32_t>(std::floor(position.x())),
          static_cast<std::int32_t>(std::floor(position.y()))};
}

}  // namespace

// A press on a canvas that doesn't want it is no press on the one below.
CanvasWidget::CanvasWidget(Canvas& canvas, QtMetrics& metrics, QWidget* parent)
    : QWidget(parent), canvas_(&canvas), graphics_(metrics, *this) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_NoMousePropagation);
}

CanvasWidget::~CanvasWidget() { SetBackdrop(nullptr); }

void CanvasWidget::Retire() {
  canvas_ = nullptr;
  SetBackdrop(nullptr);
}

void CanvasWidget::Place(const base::Rect& frame) {
  const QRect place = ToQRect(frame);
  if (place.size() != size()) layer_ = QImage();
  setGeometry(place);
}

void CanvasWidget::SetBackdrop(const std::shared_ptr<Picture>& backdrop) {
  if (backdrop_) backdrop_->RemoveViewer(*this);
  backdrop_ = std::dynamic_pointer_cast<QtPicture>(backdrop);
  if (backdrop_) backdrop_->AddViewer(*this);
  PictureChanged();
}

void CanvasWidget::SetLabel(const std::string& label) {
  label_ = LineOfText(label);
  setAccessibleName(label_);
  UpdateCursor();
}

QImage* CanvasWidget::Pixels() {
  if (layer_.isNull()) {
    layer_ = NewImage(std::min(width(), kLargestLayer), std::min(height(), kLargestLayer), Qt::transparent);
  }
  return layer_.isNull() ? nullptr : &layer_;
}

// What is drawn while it is being painted shows in this very painting; to ask
// for another would never end.
void CanvasWidget::PictureChanged() {
  if (!painting_) update();
}

void CanvasWidget::RaisePaint() {
  const QScopedValueRollback painting(painting_, true);
  if (canvas_ != nullptr) canvas_->Event_Paint();
}

// The control may hide itself or give up its size in its Paint event.
void CanvasWidget::paintEvent(QPaintEvent* /*event*/) {
  RaisePaint();
  if (isHidden() || size().isEmpty()) return;
  QPainter painter(this);
  if (backdrop_) PaintImage(painter, backdrop_->Image());
  PaintImage(painter, layer_);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  UpdateHover();  // a quick hand may press before the loop gets to it
  if (event->button() != Qt::LeftButton || canvas_ == nullptr) return;
  const Point point = PointOf(*event);
  held_ = false;
  held_ = canvas_->Event_MouseDown(point.x, point.y);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || canvas_ == nullptr || !held_) return;
  const Point point = PointOf(*event);
  held_ = false;
  canvas_->Event_MouseUp(point.x, point.y);
}

void CanvasWidget::Press() {
  const std::int32_t x = width() / 2;
  const std::int32_t y = height() / 2;
  if (canvas_ == nullptr || !isEnabled()) return;
  if (canvas_->Event_MouseDown(x, y)) canvas_->Event_MouseUp(x, y);
}

void CanvasWidget::enterEvent(QEnterEvent* /*event*/) {
  mouse_inside_ = true;
  UpdateHoverSoon();
}

void CanvasWidget::leaveEvent(QEvent* /*event*/) {
  mouse_inside_ = false;
  UpdateHoverSoon();
}

// The toolkit doesn't always tell a hidden control that the mouse has left.
void CanvasWidget::hideEvent(QHideEvent* /*event*/) {
  mouse_inside_ = false;
  UpdateHoverSoon();
}

void CanvasWidget::changeEvent(QEvent* event) {
  if (event->type() != QEvent::EnabledChange) return;
  held_ = held_ && isEnabled();
  UpdateCursor();
  UpdateHoverSoon();
}

// Hiding or showing a control under a resting mouse moves the mouse from one to
// another. Its events wait for the loop all the same: none may break into the
// code that hid or showed it.
void CanvasWidget::UpdateHoverSoon() {
  QMetaObject::invokeMethod(
      this, [this] { UpdateHover(); }, Qt::QueuedConnection);
}

void CanvasWidget::UpdateHover() {
  const bool now = mouse_inside_ && isVisible() && isEnabled();
  if (now == hovered_ || canvas_ == nullptr) return;
  hovered_ = now;
  if (now) {
    canvas_->Event_MouseEnter();
  } else {
    canvas_->Event_MouseExit();
  }
}

void CanvasWidget::UpdateCursor() {
  if (isEnabled() && !label_.isEmpty()) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
}

}  // namespace quill::host
