#include "host/qt/qt_controls.h"

#include <QCheckBox>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "host/qt/qt_canvas.h"
#include "host/qt/qt_peer.h"

namespace quill::host {
namespace {

class QtCanvas final : public QtPeer<CanvasPeer, CanvasWidget> {
 public:
  using QtPeer::QtPeer;
  ~QtCanvas() override {
    widget_->clearFocus();
    widget_->Retire();
  }

  // The toolkit would hand the focus of what it hides to some other widget.
  void SetVisible(bool visible) override {
    if (!visible) widget_->clearFocus();
    widget_->setVisible(visible);
  }
  void SetEnabled(bool enabled) override {
    if (!enabled) widget_->clearFocus();
    widget_->setEnabled(enabled);
  }
  void Place(const base::Rect& frame) override { widget_->Place(frame); }
  void SetBackdrop(const std::shared_ptr<Picture>& backdrop) override { widget_->SetBackdrop(backdrop); }
  Graphics& GetGraphics() override { return widget_->GetGraphics(); }
  void SetMarks(const std::vector<base::Rect>& marks) override { widget_->SetMarks(marks); }
  void SetLabel(const std::string& label) override { widget_->SetLabel(label); }
  void SetPurpose(const Purpose& purpose) override { widget_->SetPurpose(purpose); }
};

class QtStaticText final : public QtPeer<StaticTextPeer, TextWidget> {
 public:
  using QtPeer::QtPeer;
  void Place(const base::Rect& frame) override { widget_->Place(frame); }
  void SetText(const std::string& text) override { widget_->SetText(text); }
};

class QtCheckBox final : public QtPeer<CheckBoxPeer, QCheckBox> {
 public:
  using QtPeer::QtPeer;
  void SetValue(bool value) override {
    const QSignalBlocker quiet(widget_);
    widget_->setChecked(value);
  }
};

// An ampersand in a caption is an ampersand.
QString Caption(const std::string& caption) { return LineOfText(caption).replace('&', QStringLiteral("&&")); }

}  // namespace

TextWidget::TextWidget(const TextStyle& style, QtMetrics& metrics, const QtLook& look, QWidget* parent)
    : QWidget(parent), ScaledWidget(look), style_(style), metrics_(metrics) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TextWidget::SetText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  update();
}

void TextWidget::Place(const base::Rect& frame) {
  frame_ = frame;
  Rescale();
}

void TextWidget::Rescale() {
  PlaceScaled(*this, frame_);
  update();
}

// A line too long for its frame loses its end, whichever way it is aligned.
double TextWidget::LeftEnd() const {
  const double room = std::max(0.0, frame_.width - metrics_.StringWidth(style_.face, text_));
  switch (style_.align) {
    case TextAlign::kLeft:
      return 0;
    case TextAlign::kCenter:
      return std::floor(room / 2);
    case TextAlign::kRight:
      return std::floor(room);
  }
  return 0;
}

void TextWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  Scale(painter);
  PaintLine(painter, metrics_, style_.face, InkFor(Look(), style_.color), text_,
            QPointF(LeftEnd(), metrics_.BaseLine(style_.face)));
}

std::unique_ptr<CanvasPeer> NewCanvasPeer(CanvasWidget& widget) {
  return std::make_unique<QtCanvas>(&widget);
}

std::unique_ptr<StaticTextPeer> NewTextPeer(const TextStyle& style, QtMetrics& metrics, const QtLook& look,
                                            QWidget& parent) {
  return std::make_unique<QtStaticText>(new TextWidget(style, metrics, look, &parent));
}

std::unique_ptr<CheckBoxPeer> NewCheckBoxPeer(CheckBox& box, const std::string& caption, const TextFace& face,
                                              QtMetrics& metrics, QWidget& parent) {
  auto* const widget = new QCheckBox(Caption(caption), &parent);
  widget->setFocusPolicy(Qt::NoFocus);
  widget->setFont(metrics.FontOf(face));
  QObject::connect(widget, &QCheckBox::toggled, widget, [&box](bool value) { box.Toggled(value); });
  return std::make_unique<QtCheckBox>(widget);
}

QWidget* WidgetOf(ControlPeer* peer) {
  auto* const holder = dynamic_cast<WidgetHolder*>(peer);
  return holder == nullptr ? nullptr : holder->Widget();
}

}  // namespace quill::host
