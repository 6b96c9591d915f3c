#include "host/qt/qt_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "host/desktop.h"
#include "host/qt/qt_controls.h"

namespace quill::host {
namespace {

constexpr auto kDialog = WindowStyle::Frame::kDialog;

Qt::WindowFlags FlagsOf(const WindowStyle& style) {
  Qt::WindowFlags flags = style.frame == kDialog ? Qt::Dialog : Qt::Window;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if (style.close_button) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (style.resizeable) flags |= Qt::WindowMinMaxButtonsHint;
  return flags;
}

bool IsQuitKey(const QKeyEvent& event) {
  const bool ctrl_q = event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_Q;
  return ctrl_q || event.matches(QKeySequence::Quit);
}

// Puts `widget`, not yet shown, in the middle of `place`, its upper left corner
// inside whatever its size. A window manager may know better; where there is
// none the corner of the screen would be next.
void Center(QWidget& widget, const QRect& place) {
  QRect frame(QPoint(0, 0), widget.size());
  frame.moveCenter(place.center());
  widget.move(std::max(frame.left(), place.left()), std::max(frame.top(), place.top()));
}

// The window that a dialog belongs to: the one that is open already.
WindowWidget* OwnerOf(const QWidget& dialog) {
  for (QWidget* const other : QApplication::topLevelWidgets()) {
    auto* const window = dynamic_cast<WindowWidget*>(other);
    if (window != nullptr && window != &dialog && window->isVisible()) return window;
  }
  return nullptr;
}

// A dialog stays above its owner, which doesn't own it in memory.
void KeepAbove(QWidget& dialog, const QWidget& owner) {
  Center(dialog, owner.geometry());
  dialog.winId();  // makes its window
  dialog.windowHandle()->setTransientParent(owner.windowHandle());
}

}  // namespace

WindowWidget::WindowWidget(const WindowStyle& style, std::function<void()> quit_command)
    : QWidget(nullptr, FlagsOf(style)), style_(style), quit_command_(std::move(quit_command)) {
  QPalette colors = palette();
  colors.setColor(QPalette::Window, ToQColor(style.back_color));
  setPalette(colors);
  setWindowTitle(LineOfText(style.title));
  resize(style.width, style.height);
  if (!style.resizeable) setFixedSize(style.width, style.height);
  Center(*this, screen()->availableGeometry());
}

void WindowWidget::closeEvent(QCloseEvent* event) {
  event->setAccepted(style_.frame == kDialog && style_.close_button);
  if (style_.frame != kDialog) Quit(0);
}

void WindowWidget::keyPressEvent(QKeyEvent* event) {
  if (IsQuitKey(*event)) {
    quit_command_();
  } else {
    QWidget::keyPressEvent(event);
  }
}

QtWindow::QtWindow(const WindowStyle& style, QtMetrics& metrics, std::function<void()> quit_command)
    : widget_(new WindowWidget(style, std::move(quit_command))), metrics_(metrics) {}

QtWindow::~QtWindow() {
  widget_->hide();
  widget_->deleteLater();
}

QWidget& QtWindow::ParentWidget(ControlPeer* parent) const {
  QWidget* const control = WidgetOf(parent);
  return control == nullptr ? *widget_ : *control;
}

std::unique_ptr<CanvasPeer> QtWindow::NewCanvas(Canvas& canvas, ControlPeer* parent) {
  return NewCanvasPeer(canvas, metrics_, ParentWidget(parent));
}

std::unique_ptr<StaticTextPeer> QtWindow::NewStaticText(const TextStyle& style, ControlPeer* parent) {
  return NewTextPeer(style, metrics_, ParentWidget(parent));
}

std::unique_ptr<CheckBoxPeer> QtWindow::NewCheckBox(CheckBox& box, const std::string& caption,
                                                    const TextFace& face, ControlPeer* parent) {
  return NewCheckBoxPeer(box, caption, face, metrics_, ParentWidget(parent));
}

Rect QtWindow::Frame() const {
  const QRect content = widget_->geometry();
  return {content.x(), content.y(), content.width(), content.height()};
}

void QtWindow::Show() {
  const bool shown_already = widget_->isVisible();
  const bool opens_dialog = widget_->windowType() == Qt::Dialog && !shown_already;
  if (const auto* const owner = opens_dialog ? OwnerOf(*widget_) : nullptr) KeepAbove(*widget_, *owner);
  widget_->show();
  if (shown_already) widget_->raise();  // a new one comes in front by itself
  widget_->activateWindow();
}

bool QtWindow::Save(const std::filesystem::path& path) {
  return widget_->grab().save(QString::fromStdString(path.string()), "PNG");
}

}  // namespace quill::host
