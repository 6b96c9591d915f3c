#include "host/qt/qt_edit_field.h"

#include <QKeyEvent>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <utility>

#include "host/qt/qt_peer.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

class QtEditField final : public QtPeer<EditFieldPeer, EditWidget> {
 public:
  using QtPeer::QtPeer;
  void Place(const base::Rect& frame) override { widget_->Place(frame); }
  void SetText(const std::string& text) override { widget_->SetBytes(text); }
  std::string Text() override { return widget_->Bytes(); }
};

}  // namespace

EditWidget::EditWidget(const TextStyle& style, base::Color back_color, QtMetrics& metrics, const QtLook& look,
                       QWidget* parent)
    : QPlainTextEdit(parent), ScaledWidget(look), font_(metrics.FontOf(style.face)) {
  setAccessibleName(parent->window()->windowTitle());
  Rescale();
  QPalette colors = palette();
  colors.setColor(QPalette::Base, ToQColor(back_color));
  colors.setColor(QPalette::Text, ToQColor(style.color));
  setPalette(colors);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void EditWidget::Rescale() {
  QFont scaled = font_;
  scaled.setPixelSize(std::max(1, static_cast<int>(std::lround(font_.pixelSize() * Look().text_scale))));
  setFont(scaled);
}

// No tab goes in by the keyboard; with nowhere to move the focus, the key does
// nothing. The commands of the window come before those of the field.
void EditWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab || event->key() == Qt::Key_Escape) {
    event->ignore();
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

void EditWidget::SetBytes(const std::string& bytes) {
  given_ = bytes;
  edited_ = EditedText(bytes);
  setPlainText(QString::fromStdU16String(edited_.Shown()));
  document()->setModified(false);
}

// The toolkit's plain text would turn no-break spaces into others.
std::string EditWidget::Bytes() const {
  if (!document()->isModified()) return given_;
  const QString text = document()->toRawText();
  return edited_.Bytes(
      {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

std::unique_ptr<EditFieldPeer> NewEditPeer(const TextStyle& style, base::Color back_color, QtMetrics& metrics,
                                           const QtLook& look, QWidget& parent,
                                           std::function<void()> changed) {
  auto* const widget = new EditWidget(style, back_color, metrics, look, &parent);
  QObject::connect(widget, &QPlainTextEdit::textChanged, widget, std::move(changed));
  return std::make_unique<QtEditField>(widget);
}

}  // namespace quill::host
