#include "host/qt/qt_canvas.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "host/qt/qt_clicks.h"
#include "host/qt/qt_marks.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

// Drawing may spill so far over a canvas's right edge: a label's width drops the
// fraction of a pixel, and its last letter must not lose it.
constexpr std::int32_t kSpill = 1;

struct Point {
  std::int32_t x;
  std::int32_t y;
};

Point WholePoint(const QPointF& point) {
  return {static_cast<std::int32_t>(std::floor(point.x())), static_cast<std::int32_t>(std::floor(point.y()))};
}

// How a kind of link is underlined in high contrast, where colours say too little.
Qt::PenStyle UnderlineOf(Purpose::Kind kind) {
  switch (kind) {
    case Purpose::Kind::kPage:
      return Qt::SolidLine;
    case Purpose::Kind::kGlossary:
      return Qt::DotLine;
    case Purpose::Kind::kDocument:
      return Qt::DashLine;
    case Purpose::Kind::kNotes:
      return Qt::DashDotLine;
    default:
      return Qt::NoPen;
  }
}

}  // namespace

// A press on a canvas that doesn't want it is no press on the one below.
CanvasWidget::CanvasWidget(Canvas& canvas, QtMetrics& metrics, const QtLook& look, QWidget* parent)
    : QWidget(parent),
      ScaledWidget(look),
      canvas_(&canvas),
      drawing_(metrics, 0, 0),
      graphics_(metrics, drawing_, [this] { PictureChanged(); }) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_NoMousePropagation);
}

CanvasWidget::~CanvasWidget() { SetBackdrop(nullptr); }

void CanvasWidget::Retire() {
  canvas_ = nullptr;
  SetBackdrop(nullptr);
}

bool CanvasWidget::IsPressable() const {
  return canvas_ != nullptr && !name_.isEmpty() && isEnabled() && !isHidden();
}

void CanvasWidget::Place(const base::Rect& frame) {
  if (frame.width != frame_.width || frame.height != frame_.height) drawing_.Reset(frame.width, frame.height);
  frame_ = frame;
  Rescale();
}

void CanvasWidget::Rescale() {
  base::Rect spilling = frame_;
  if (!name_.isEmpty() && frame_.width > 0) spilling.width += kSpill;
  PlaceScaled(*this, spilling);
  update();
}

void CanvasWidget::SetBackdrop(const std::shared_ptr<Picture>& backdrop) {
  if (backdrop_) backdrop_->RemoveViewer(*this);
  backdrop_ = std::dynamic_pointer_cast<QtPicture>(backdrop);
  if (backdrop_) backdrop_->AddViewer(*this);
  PictureChanged();
}

void CanvasWidget::SetMarks(const std::vector<base::Rect>& marks) {
  if (marks_ == nullptr && marks.empty()) return;
  if (marks_ == nullptr) marks_ = new MarksWidget(Look(), this);
  marks_->SetMarks(marks);
}

void CanvasWidget::SetLabel(const std::string& label) {
  const bool had_name = !name_.isEmpty();
  name_ = LineOfText(label).trimmed();
  while (name_.startsWith(QLatin1String("...")) || name_.startsWith(QLatin1Char('>'))) {
    name_ = name_.mid(name_.startsWith(QLatin1Char('>')) ? 1 : 3).trimmed();
  }
  if (name_.isEmpty() == had_name) Rescale();
  UpdateUse();
}

void CanvasWidget::SetPurpose(const Purpose& purpose) { purpose_ = purpose; }

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
  Scale(painter);
  if (backdrop_ && !drawing_.IsOpaque()) backdrop_->Paint(painter, Look());
  const std::int32_t spill = name_.isEmpty() ? 0 : kSpill;
  painter.setClipRect(QRectF(0, 0, frame_.width + spill, frame_.height), Qt::IntersectClip);
  drawing_.Paint(painter, Look());
  if (Look().high_contrast) PaintUnderline(painter);
}

void CanvasWidget::PaintUnderline(QPainter& painter) const {
  constexpr double kFromBelow = 5;
  const Qt::PenStyle style = UnderlineOf(purpose_.kind);
  if (style == Qt::NoPen) return;
  painter.setPen(QPen(ToQColor(base::kWhite), 1.5, style));
  painter.drawLine(QLineF(0, frame_.height - kFromBelow, frame_.width, frame_.height - kFromBelow));
}

// The window has the menu, and zooms by the wheel.
void CanvasWidget::contextMenuEvent(QContextMenuEvent* event) {
  QCoreApplication::sendEvent(window(), event);
}

void CanvasWidget::wheelEvent(QWheelEvent* event) { QCoreApplication::sendEvent(window(), event); }

// The mouse's back button is the key "back" by other means.
void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  const bool first = Clicks().IsFirst(*event);
  UpdateHover();  // a quick hand may press before the loop gets to it
  held_ = false;
  if (canvas_ == nullptr || !first) return;
  if (event->button() == Qt::BackButton) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Back, Qt::NoModifier);
    QCoreApplication::sendEvent(window(), &key);
  }
  if (event->button() != Qt::LeftButton) return;
  const Point point = WholePoint(Unscaled(event->position()));
  held_ = canvas_->Event_MouseDown(point.x, point.y);
}

// The toolkit's own name for a second press, where it sees that it is one.
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || canvas_ == nullptr || !held_) return;
  const Point point = WholePoint(Unscaled(event->position()));
  held_ = false;
  canvas_->Event_MouseUp(point.x, point.y);
}

void CanvasWidget::Press() {
  if (!IsPressable()) return;
  const std::int32_t x = frame_.width / 2;
  const std::int32_t y = frame_.height / 2;
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
  UpdateUse();
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

// What can be pressed shows a hand. Only the keyboard gives it the focus: its
// window does, which knows the order.
void CanvasWidget::UpdateUse() {
  if (isEnabled() && !name_.isEmpty()) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
  } else {
    setFocusPolicy(Qt::NoFocus);
    unsetCursor();
  }
}

}  // namespace quill::host
