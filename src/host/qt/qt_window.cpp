#include "host/qt/qt_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "host/controls.h"
#include "host/desktop.h"
#include "host/qt/qt_controls.h"
#include "host/qt/qt_edit_field.h"
#include "host/qt/qt_find_box.h"
#include "host/qt/qt_values.h"

namespace quill::host {
namespace {

constexpr auto kDialog = WindowStyle::Frame::kDialog;
constexpr int kNoticeMargin = 6;
constexpr auto kRest = std::chrono::seconds(1);  // from the first typing to the copy of it
constexpr int kSmallest = 64;                    // side of a window that can be resized

// What a window manager puts around a window, as long as it isn't known.
constexpr QMargins kUsualFrame(4, 32, 4, 4);

// The ground beside the page, where a window fills the screen.
constexpr base::Color kGround = base::RGB(24, 24, 24);

Qt::WindowFlags FlagsOf(const WindowStyle& style) {
  Qt::WindowFlags flags = style.frame == WindowStyle::Frame::kDocument ? Qt::Window : Qt::Dialog;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if (style.close_button) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (style.resizeable) flags |= Qt::WindowMinMaxButtonsHint;
  return flags;
}

void SetGround(QWidget& widget, base::Color color) {
  QPalette colors = widget.palette();
  colors.setColor(QPalette::Window, ToQColor(color));
  widget.setPalette(colors);
  widget.setAutoFillBackground(true);
}

// Puts `widget` in the middle of `place`, its upper left corner inside whatever
// its size. A window manager may know better; where there is none the corner of
// the screen would be next.
void Center(QWidget& widget, const QRect& place) {
  QRect frame(QPoint(0, 0), widget.size());
  frame.moveCenter(place.center());
  widget.move(std::max(frame.left(), place.left()), std::max(frame.top(), place.top()));
}

bool IsOnSomeScreen(const QRect& place) {
  const QList<QScreen*> screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&place](const QScreen* screen) {
    return screen->availableGeometry().contains(place.center());
  });
}

// What it says can be copied: it may be the name of a file.
QLabel* NewNotice(QWidget& window) {
  auto* const notice = new QLabel(&window);
  notice->setTextFormat(Qt::PlainText);
  notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
  notice->setWordWrap(true);
  notice->setMargin(kNoticeMargin);
  notice->setAutoFillBackground(true);
  notice->setBackgroundRole(QPalette::ToolTipBase);
  notice->setForegroundRole(QPalette::ToolTipText);
  return notice;
}

// A dialog stays above its owner, which doesn't own it in memory.
void KeepAbove(QWidget& dialog, const QWidget& owner) {
  dialog.winId();  // makes its window
  dialog.windowHandle()->setTransientParent(owner.windowHandle());
}

}  // namespace

WindowWidget::WindowWidget(const WindowStyle& style, Window& window, QtView& view,
                           std::function<void()> quit_command)
    : QWidget(nullptr, FlagsOf(style)),
      style_(style),
      window_(&window),
      view_(view),
      quit_command_(std::move(quit_command)),
      pane_(new QWidget(this)),
      focus_(*pane_) {
  SetGround(*pane_, style.back_color);
  setWindowTitle(LineOfText(style.title));
  resize(style.width, style.height);
  if (style.resizeable) setMinimumSize(kSmallest, kSmallest);
  Relayout();
  Center(*this, screen()->availableGeometry());
  const auto kept = style.frame == kDialog ? std::nullopt : view_.PlaceOf(windowTitle());
  if (kept && IsOnSomeScreen(*kept)) {
    move(kept->topLeft());
    if (style.resizeable) resize(kept->size());
  }
  keep_.setSingleShot(true);
  keep_.setInterval(kRest);
  connect(&keep_, &QTimer::timeout, this, &WindowWidget::KeepTyped);
  view_.AddListener(*this);
  qApp->installEventFilter(this);
}

WindowWidget::~WindowWidget() { view_.RemoveListener(*this); }

bool WindowWidget::IsMain() const {
  return style_.frame == WindowStyle::Frame::kDocument && !style_.close_button;
}

void WindowWidget::Retire() {
  window_ = nullptr;
  hide();
  deleteLater();
}

// The largest scale at which the pane fits into `room`.
double WindowWidget::ScaleToFit(const QSize& room) const {
  return std::min(static_cast<double>(room.width()) / style_.width,
                  static_cast<double>(room.height()) / style_.height);
}

// How large the content may be, so that the window lies on its screen whole.
QSize WindowWidget::RoomOnScreen() const {
  const QWindow* const handle = windowHandle();
  const QMargins frame = handle != nullptr && isVisible() ? handle->frameMargins() : kUsualFrame;
  return screen()->availableGeometry().marginsRemoved(frame).size();
}

// Takes scale and colours from the view and the room there is, and shows
// everything so.
void WindowWidget::Relayout() {
  const double zoom = view_.Zoom() / 100.0;
  QtLook look{.scale = 1, .text_scale = zoom, .high_contrast = view_.HighContrast()};
  if (!style_.resizeable) {
    look.scale = FillsScreen() ? ScaleToFit(size()) : std::min(zoom, ScaleToFit(RoomOnScreen()));
    // A screen may be small, but it is there.
    look.scale = std::max(look.scale, 0.1);
    if (!FillsScreen()) TakeSize(look.scale);
  }
  SetGround(*this, FillsScreen() ? kGround : style_.back_color);
  const bool changed = look != look_;
  look_ = look;
  PlacePane();
  if (!changed) return;
  for (QWidget* const widget : pane_->findChildren<QWidget*>()) {
    if (auto* const scaled = dynamic_cast<ScaledWidget*>(widget)) scaled->Rescale();
  }
  focus_.Rescale();
  if (isVisible() && !FillsScreen()) KeepOnScreen();
}

void WindowWidget::TakeSize(double scale) {
  setFixedSize(static_cast<int>(std::floor(style_.width * scale + 1e-9)),
               static_cast<int>(std::floor(style_.height * scale + 1e-9)));
}

void WindowWidget::PlacePane() {
  QRect place = rect();
  if (FillsScreen() && !style_.resizeable) {
    place.setSize(QSizeF(style_.width * look_.scale, style_.height * look_.scale).toSize());
    place.moveCenter(rect().center());
  }
  if (notice_ != nullptr && !notice_->text().isEmpty()) {
    notice_->setGeometry(0, 0, width(), notice_->heightForWidth(width()));
    place.setTop(notice_->height());
  }
  pane_->setGeometry(place);
}

// Moves the window so far that no edge lies outside its screen.
void WindowWidget::KeepOnScreen() {
  const QRect free = screen()->availableGeometry();
  const QRect frame = frameGeometry();
  QPoint corner = frame.topLeft();
  corner.setX(std::max(free.left(), std::min(corner.x(), free.right() + 1 - frame.width())));
  corner.setY(std::max(free.top(), std::min(corner.y(), free.bottom() + 1 - frame.height())));
  if (corner != frame.topLeft()) move(corner);
}

void WindowWidget::KeepPlace() {
  if (style_.frame != kDialog && isVisible() && !FillsScreen() && !isMinimized())
    view_.KeepPlace(windowTitle(), QRect(pos(), size()));
}

void WindowWidget::FollowScreen() {
  connect(screen(), &QScreen::availableGeometryChanged, this, &WindowWidget::Relayout, Qt::UniqueConnection);
  Relayout();
}

base::Rect WindowWidget::Frame() const {
  const QPoint corner = pane_->mapToGlobal(QPoint(0, 0));
  const auto unscaled = [this](int length) {
    return static_cast<std::int32_t>(std::lround(length / look_.scale));
  };
  if (style_.resizeable) return {corner.x(), corner.y(), pane_->width(), pane_->height()};
  return {unscaled(corner.x()), unscaled(corner.y()), style_.width, style_.height};
}

void WindowWidget::MoveTo(std::int32_t left, std::int32_t top) {
  const QPoint corner(static_cast<int>(std::lround(left * look_.scale)),
                      static_cast<int>(std::lround(top * look_.scale)));
  setGeometry(QRect(corner, size()));
  if (!IsOnSomeScreen(geometry())) Center(*this, screen()->availableGeometry());
}

void WindowWidget::SetReading(QtReading reading) {
  accessible_.reset();
  reading_ = std::move(reading);
  focus_.SetReading(reading_);
  if (!QAccessible::isActive()) return;
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void WindowWidget::SetNotice(const std::string& words) {
  const QString text = QString::fromStdString(words);
  if (notice_ == nullptr && text.isEmpty()) return;
  if (notice_ == nullptr) notice_ = NewNotice(*this);
  notice_->setText(text);
  notice_->setVisible(!text.isEmpty());
  PlacePane();
  if (text.isEmpty() || !QAccessible::isActive()) return;
  QAccessibleEvent alert(notice_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void WindowWidget::NoteTyping() {
  if (!keep_.isActive()) keep_.start();
}

void WindowWidget::KeepTyped() {
  keep_.stop();
  if (window_ != nullptr) window_->Event_Keep();
}

void WindowWidget::SaveNow() {
  if (window_ != nullptr && window_->IsOpen()) window_->Event_Save();
}

const AccessibleReading* WindowWidget::Accessible() {
  if (!accessible_ && !reading_.IsEmpty()) accessible_ = std::make_unique<AccessibleReading>(*this, reading_);
  return accessible_.get();
}

void WindowWidget::BringUp() {
  const bool shown_already = isVisible();
  if (windowType() == Qt::Dialog) {
    setAttribute(Qt::WA_ShowWithoutActivating, style_.frame == kDialog);
    if (const auto* const owner = shown_already ? nullptr : MainWindow()) {
      KeepAbove(*this, *owner);
      if (style_.frame != kDialog && !view_.PlaceOf(windowTitle())) PlaceBeside(*owner);
    }
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  if (shown_already) raise();  // a new one comes in front by itself
  if (style_.frame != kDialog) activateWindow();
}

// To the right of the owner, or over its right edge where the screen ends.
void WindowWidget::PlaceBeside(const QWidget& owner) {
  const QRect frame = owner.frameGeometry();
  const int right =
      screen()->availableGeometry().right() + 1 - kUsualFrame.left() - kUsualFrame.right() - width();
  move(std::max(0, std::min(frame.right() + 1, right)), frame.top());
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

void WindowWidget::resizeEvent(QResizeEvent* /*event*/) {
  if (FillsScreen()) Relayout();
  PlacePane();
}

// The screen and the frame are known only now.
void WindowWidget::showEvent(QShowEvent* /*event*/) {
  connect(windowHandle(), &QWindow::screenChanged, this, &WindowWidget::FollowScreen, Qt::UniqueConnection);
  QMetaObject::invokeMethod(this, &WindowWidget::FollowScreen, Qt::QueuedConnection);
}

bool WindowWidget::event(QEvent* event) {
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) KeepPlace();
  if (event->type() == QEvent::WindowDeactivate && keep_.isActive()) KeepTyped();
  if (event->type() == QEvent::WindowStateChange) {
    QMetaObject::invokeMethod(this, &WindowWidget::Relayout, Qt::QueuedConnection);
  }
  return QWidget::event(event);
}

// Any press of the mouse in the window tells that the mouse is used.
bool WindowWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->window() == this) focus_.MouseUsed();
  }
  return QWidget::eventFilter(watched, event);
}

QtWindow::QtWindow(const WindowStyle& style, Window& window, QtMetrics& metrics, QtView& view,
                   std::function<void()> quit_command)
    : widget_(new WindowWidget(style, window, view, std::move(quit_command))), metrics_(metrics) {}

QtWindow::~QtWindow() { widget_->Retire(); }

QWidget& QtWindow::ParentWidget(ControlPeer* parent) const {
  QWidget* const control = WidgetOf(parent);
  return control == nullptr ? widget_->Pane() : *control;
}

std::unique_ptr<CanvasPeer> QtWindow::NewCanvas(Canvas& canvas, ControlPeer* parent) {
  auto* const widget = new CanvasWidget(canvas, metrics_, widget_->Look(), &ParentWidget(parent));
  canvases_[&canvas] = widget;
  return NewCanvasPeer(*widget);
}

std::unique_ptr<StaticTextPeer> QtWindow::NewStaticText(const TextStyle& style, ControlPeer* parent) {
  return NewTextPeer(style, metrics_, widget_->Look(), ParentWidget(parent));
}

std::unique_ptr<CheckBoxPeer> QtWindow::NewCheckBox(CheckBox& box, const std::string& caption,
                                                    const TextFace& face, ControlPeer* parent) {
  return NewCheckBoxPeer(box, caption, face, metrics_, ParentWidget(parent));
}

std::unique_ptr<EditFieldPeer> QtWindow::NewEditField(const TextStyle& style, base::Color back_color,
                                                      ControlPeer* parent) {
  return NewEditPeer(style, back_color, metrics_, widget_->Look(), ParentWidget(parent),
                     [widget = widget_] { widget->NoteTyping(); });
}

std::unique_ptr<FindBoxPeer> QtWindow::NewFindBox(FindBox& box, ControlPeer* parent) {
  const TextFace face = SystemText(12, base::kBlack).face;
  return NewFindBoxPeer(box, metrics_.FontOf(face), widget_->Look(), ParentWidget(parent));
}

void QtWindow::SetReading(const Reading& reading) {
  widget_->SetReading(ToQtReading(reading, [this](const Canvas* canvas) -> CanvasWidget* {
    const auto found = canvases_.find(canvas);
    return found == canvases_.end() ? nullptr : found->second;
  }));
}

bool QtWindow::Save(const std::filesystem::path& path) {
  return widget_->grab().save(QString::fromStdString(path.string()), "PNG");
}

WindowWidget* MainWindow() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const window = dynamic_cast<WindowWidget*>(widget);
    if (window != nullptr && window->IsMain() && window->isVisible()) return window;
  }
  return nullptr;
}

void RaiseMainWindow() {
  if (auto* const main = MainWindow()) main->BringUp();
}

void SaveAllWindows() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<WindowWidget*>(widget)) window->SaveNow();
  }
}

}  // namespace quill::host
