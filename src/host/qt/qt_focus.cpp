#include "host/qt/qt_focus.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

namespace quill::host {
namespace {

constexpr int kRingWidth = 2;       // of each of its two colours, in device pixels
constexpr int kTypingPause = 1000;  // milliseconds

// Without case and accents, so that what is typed on any keyboard finds its word.
QString Folded(const QString& text) {
  QString folded;
  for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
    if (c.category() != QChar::Mark_NonSpacing) folded += c.toCaseFolded();
  }
  return folded;
}

bool HasWordFrom(const QString& name, const QString& typed) {
  const QString folded = Folded(name);
  for (qsizetype at = folded.indexOf(typed); at >= 0; at = folded.indexOf(typed, at + 1)) {
    if (at == 0 || !folded[at - 1].isLetterOrNumber()) return true;
  }
  return false;
}

QPointF CentreIn(const QWidget& pane, const QWidget& widget) {
  return QRectF(QPointF(widget.mapTo(&pane, QPoint(0, 0))), QSizeF(widget.size())).center();
}

// How far `to` lies from `from` in an arrow's direction; what lies aside counts
// double. Infinite if it doesn't lie there.
double DistanceTowards(Qt::Key arrow, const QPointF& from, const QPointF& to) {
  const bool sideways = arrow == Qt::Key_Left || arrow == Qt::Key_Right;
  const double sign = arrow == Qt::Key_Left || arrow == Qt::Key_Up ? -1 : 1;
  const double along = sign * (sideways ? to.x() - from.x() : to.y() - from.y());
  const double aside = std::abs(sideways ? to.y() - from.y() : to.x() - from.x());
  return along < 1 ? std::numeric_limits<double>::infinity() : along + 2 * aside;
}

}  // namespace

FocusRing::FocusRing(QWidget& pane) : QWidget(&pane) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void FocusRing::Surround(const QWidget& widget) {
  const int margin = static_cast<int>(std::ceil(2 * kRingWidth / devicePixelRatioF()));
  const QRect place(widget.mapTo(parentWidget(), QPoint(0, 0)), widget.size());
  setGeometry(place.marginsAdded(QMargins(margin, margin, margin, margin)) & parentWidget()->rect());
  raise();
  show();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double line = kRingWidth / devicePixelRatioF();
  const auto frame = [&](double inset, const QColor& color) {
    const QRectF outer = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.fillRect(QRectF(outer.left(), outer.top(), outer.width(), line), color);
    painter.fillRect(QRectF(outer.left(), outer.bottom() - line, outer.width(), line), color);
    painter.fillRect(QRectF(outer.left(), outer.top(), line, outer.height()), color);
    painter.fillRect(QRectF(outer.right() - line, outer.top(), line, outer.height()), color);
  };
  frame(0, Qt::black);
  frame(line, Qt::white);
}

CanvasWidget* FocusWay::Current() const {
  const auto found = std::find_if(order_.begin(), order_.end(),
                                  [](const auto& widget) { return widget && widget->hasFocus(); });
  return found == order_.end() ? nullptr : found->data();
}

void FocusWay::SetReading(const QtReading& reading) {
  if (CanvasWidget* const before = Current()) before->clearFocus();
  const std::vector<CanvasWidget*> pressables = reading.Pressables();
  order_.assign(pressables.begin(), pressables.end());
  typed_.clear();
  start_ = nullptr;
  const bool left_here = reading.left_by && reading.left_by->IsPressable();
  if (left_here && by_keyboard_) {
    GoTo(reading.left_by);
  } else {
    if (left_here) start_ = reading.left_by;
    ShowRing();
  }
}

bool FocusWay::Step(bool forward) {
  if (order_.empty()) return false;
  const CanvasWidget* const from = Current() != nullptr ? Current() : start_.data();
  const auto found = std::find(order_.begin(), order_.end(), from);
  const auto count = static_cast<std::ptrdiff_t>(order_.size());
  std::ptrdiff_t next = forward ? 0 : count - 1;
  if (from != nullptr && found != order_.end()) {
    // Where the mouse has led back to a link, the first step goes to that link.
    const std::ptrdiff_t step = Current() == nullptr ? 0 : forward ? 1 : -1;
    next = (found - order_.begin() + step + count) % count;
  }
  GoTo(order_[static_cast<std::size_t>(next)]);
  return true;
}

void FocusWay::Towards(Qt::Key arrow) {
  const CanvasWidget* const from = Current();
  if (from == nullptr) {
    Step(arrow == Qt::Key_Right || arrow == Qt::Key_Down);
    return;
  }
  const QPointF here = CentreIn(pane_, *from);
  CanvasWidget* nearest = nullptr;
  double least = std::numeric_limits<double>::infinity();
  for (const auto& widget : order_) {
    if (!widget) continue;
    const double distance = DistanceTowards(arrow, here, CentreIn(pane_, *widget));
    if (distance >= least) continue;
    least = distance;
    nearest = widget;
  }
  if (nearest != nullptr) GoTo(nearest);
}

// A single letter goes on to the next fitting one; more letters may stay where
// they are, since they tell the same word more closely.
void FocusWay::Type(const QString& letters) {
  if (last_typed_.isValid() && last_typed_.hasExpired(kTypingPause)) typed_.clear();
  last_typed_.start();
  typed_ += Folded(letters);
  const auto current = std::find(order_.begin(), order_.end(), Current());
  const auto count = static_cast<std::ptrdiff_t>(order_.size());
  const std::ptrdiff_t at = current == order_.end() ? -1 : current - order_.begin();
  const std::ptrdiff_t first = at >= 0 && typed_.size() > 1 ? at : at + 1;
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    const auto& widget = order_[static_cast<std::size_t>((first + i) % count)];
    if (widget && HasWordFrom(widget->Name(), typed_)) return GoTo(widget);
  }
}

bool FocusWay::ForgetTyped() {
  const bool had = !typed_.isEmpty() && !last_typed_.hasExpired(kTypingPause);
  typed_.clear();
  return had;
}

bool FocusWay::Push() {
  CanvasWidget* const current = Current();
  if (current == nullptr) return false;
  by_keyboard_ = true;
  current->Press();
  return true;
}

void FocusWay::MouseUsed() {
  by_keyboard_ = false;
  start_ = nullptr;
  if (CanvasWidget* const current = Current()) current->clearFocus();
  ShowRing();
}

void FocusWay::GoTo(CanvasWidget* widget) {
  by_keyboard_ = true;
  start_ = nullptr;
  if (widget != nullptr) widget->setFocus(Qt::TabFocusReason);
  ShowRing();
}

void FocusWay::ShowRing() {
  const CanvasWidget* const current = Current();
  if (by_keyboard_ && current != nullptr) {
    ring_->Surround(*current);
  } else {
    ring_->hide();
  }
}

}  // namespace quill::host
