#include "host/qt/qt_edit_field.h"

#include <QEvent>
#include <QKeyEvent>
#include <QStringDecoder>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "base/text_converter.h"
#include "host/qt/qt_peer.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

constexpr char16_t kControlPictures = 0x2400;  // a visible sign for each control character

bool IsShownAsItIs(QChar c) {
  return c >= QChar(u' ') || c == QChar(u'\t') || c == QChar(u'\n') || c == QChar(u'\r');
}

QString FromMacRoman(const std::string& bytes) {
  QString text = QString::fromStdU16String(base::MacRomanToUtf16(bytes));
  for (QChar& c : text) {
    if (!IsShownAsItIs(c)) c = QChar(static_cast<char16_t>(kControlPictures + c.unicode()));
  }
  return text;
}

QString Decoded(const std::string& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return decoder.hasError() ? FromMacRoman(bytes) : text;
}

// Whether all lines of a text end as a DOS text's do.
bool HasDosLines(const std::string& text) {
  const std::size_t first = text.find('\n');
  if (first == std::string::npos) return false;
  for (std::size_t at = first; at != std::string::npos; at = text.find('\n', at + 1)) {
    if (at == 0 || text[at - 1] != '\r') return false;
  }
  return true;
}

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
  parent->installEventFilter(this);
}

void EditWidget::Place(const base::Rect& frame) {
  const QRect place = ToQRect(frame);
  const QSize room = parentWidget()->size();
  margins_ = QMargins(place.left(), place.top(), room.width() - place.right() - 1,
                      room.height() - place.bottom() - 1);
  setGeometry(place);
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

bool EditWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) {
    setGeometry(parentWidget()->rect().marginsRemoved(margins_));
  }
  return QPlainTextEdit::eventFilter(watched, event);
}

void EditWidget::SetBytes(const std::string& bytes) {
  given_ = bytes;
  setPlainText(Decoded(bytes));
  document()->setModified(false);
}

// The toolkit's plain text would turn no-break spaces into others.
std::string EditWidget::Bytes() const {
  if (!document()->isModified()) return given_;
  QString text = document()->toRawText();
  const QString line_end = HasDosLines(given_) ? QStringLiteral("\r\n") : QStringLiteral("\n");
  text.replace(QChar(QChar::ParagraphSeparator), line_end);
  text.replace(QChar(QChar::LineSeparator), line_end);
  return text.toStdString();
}

std::unique_ptr<EditFieldPeer> NewEditPeer(const TextStyle& style, base::Color back_color, QtMetrics& metrics,
                                           const QtLook& look, QWidget& parent) {
  return std::make_unique<QtEditField>(new EditWidget(style, back_color, metrics, look, &parent));
}

}  // namespace quill::host
