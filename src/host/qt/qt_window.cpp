#include "host/qt/qt_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "host/controls.h"
#include "host/desktop.h"
#include "host/qt/qt_controls.h"
#include "host/qt/qt_edit_field.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

constexpr auto kDialog = WindowStyle::Frame::kDialog;
constexpr int kSmallest = 64;  // side of a window that can be resized

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

// The main window, if it is on the screen.
WindowWidget* MainWindow() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const window = dynamic_cast<WindowWidget*>(widget);
    if (window != nullptr && window->IsMain() && window->isVisible()) return window;
  }
  return nullptr;
}

// A dialog stays above its owner, which doesn't own it in memory.
void KeepAbove(QWidget& dialog, const QWidget& owner) {
  dialog.winId();  // makes its window
  dialog.windowHandle()->setTransientParent(owner.windowHandle());
}

}  // namespace

WindowWidget::WindowWidget(const WindowStyle& style, Window& window, std::function<void()> quit_command)
    : QWidget(nullptr, FlagsOf(style)),
      style_(style),
      window_(&window),
      quit_command_(std::move(quit_command)) {
  QPalette colors = palette();
  colors.setColor(QPalette::Window, ToQColor(style.back_color));
  setPalette(colors);
  setWindowTitle(LineOfText(style.title));
  resize(style.width, style.height);
  if (style.resizeable) {
    setMinimumSize(kSmallest, kSmallest);
  } else {
    setFixedSize(style.width, style.height);
  }
  Center(*this, screen()->availableGeometry());
}

bool WindowWidget::IsMain() const { return style_.frame != kDialog && !style_.close_button; }

void WindowWidget::Retire() {
  window_ = nullptr;
  hide();
  deleteLater();
}

void WindowWidget::CloseWindow() {
  if (IsMain()) {
    Quit(0);
  } else if (window_ != nullptr) {
    window_->Close();
  }
}

// The window hides itself when it is closed.
void WindowWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  CloseWindow();
}

void WindowWidget::keyPressEvent(QKeyEvent* event) {
  if (IsQuitKey(*event)) {
    quit_command_();
  } else if (style_.frame == kDialog && event->key() == Qt::Key_Escape) {
    CloseWindow();
  } else {
    QWidget::keyPressEvent(event);
  }
}

QtWindow::QtWindow(const WindowStyle& style, Window& window, QtMetrics& metrics,
                   std::function<void()> quit_command)
    : widget_(new WindowWidget(style, window, std::move(quit_command))), metrics_(metrics) {}

QtWindow::~QtWindow() { widget_->Retire(); }

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

std::unique_ptr<EditFieldPeer> QtWindow::NewEditField(const TextStyle& style, base::Color back_color,
                                                      ControlPeer* parent) {
  return NewEditPeer(style, back_color, metrics_, ParentWidget(parent));
}

base::Rect QtWindow::Frame() const {
  const QRect content = widget_->geometry();
  return {content.x(), content.y(), content.width(), content.height()};
}

void QtWindow::MoveTo(std::int32_t left, std::int32_t top) {
  widget_->setGeometry(QRect(QPoint(left, top), widget_->size()));
}

void QtWindow::Show() {
  const bool shown_already = widget_->isVisible();
  const bool opens_dialog = widget_->windowType() == Qt::Dialog && !shown_already;
  if (const auto* const owner = opens_dialog ? MainWindow() : nullptr) KeepAbove(*widget_, *owner);
  widget_->show();
  if (shown_already) widget_->raise();  // a new one comes in front by itself
  widget_->activateWindow();
}

bool QtWindow::Save(const std::filesystem::path& path) {
  return widget_->grab().save(QString::fromStdString(path.string()), "PNG");
}

}  // namespace quill::host
