// A window on the screen, and the making of its controls.
#pragma once

#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "host/peers.h"
#include "host/qt/qt_accessible_text.h"
#include "host/qt/qt_commands.h"
#include "host/qt/qt_focus.h"
#include "host/qt/qt_look.h"
#include "host/qt/qt_reading.h"
#include "host/qt/qt_text.h"
#include "host/qt/qt_view.h"

class QLabel;

namespace quill::host {

// The toolkit's side of a window. Its controls lie on a pane, which has the size
// that the program asked for times the zoom; a window that fills the screen shows
// the pane in its middle, as large as fits. A window that can be resized keeps the
// size that the user gives it, and its pane fills it.
//
// What the window manager asks to close is closed: of the main window, which has
// no close button, that ends the program.
class WindowWidget final : public QWidget, private QtView::Listener {
 public:
  WindowWidget(const WindowStyle& style, Window& window, QtView& view, std::function<void()> quit_command);
  ~WindowWidget() override;

  bool IsMain() const;
  QWidget& Pane() const { return *pane_; }
  const QtLook& Look() const { return look_; }

  // Place and size of the pane, in the program's pixels.
  base::Rect Frame() const;
  void MoveTo(std::int32_t left, std::int32_t top);

  void SetReading(QtReading reading);
  const QtReading& GetReading() const { return reading_; }

  // The tree of what is on show; null for a window that has said nothing.
  const AccessibleReading* Accessible();

  // Shows a word of the desktop's own above the pane; empty for none.
  void SetNotice(const std::string& words);

  // Something was typed: a copy of it will be asked for.
  void NoteTyping();

  // Has what the window holds saved.
  void SaveNow();

  // Brings the window to the front. The glossary leaves the focus where it is.
  void BringUp();

  // Its window has gone; so will this, when the event loop next turns.
  void Retire();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void ViewChanged() override { Relayout(); }

  bool FillsScreen() const { return isFullScreen() || isMaximized(); }
  double ScaleToFit(const QSize& room) const;
  QSize RoomOnScreen() const;
  void Relayout();
  void TakeSize(double scale);
  void PlacePane();
  void KeepOnScreen();
  void KeepPlace();
  void KeepTyped();
  void FollowScreen();

  void Carry(Command command);
  void CloseOnCommand();
  void CloseWindow();
  void Find();
  void PlaceBeside(const QWidget& owner);
  void Zoom(bool larger);
  void ToggleFullScreen();
  void ShowKeys();
  void MoveFocus(const QKeyEvent& event);

  WindowStyle style_;
  Window* window_;  // null when retired
  QtView& view_;
  std::function<void()> quit_command_;
  QtLook look_;
  QWidget* pane_;             // owned by this widget, as the next
  QLabel* notice_ = nullptr;  // null before the first
  QTimer keep_;               // runs while there is something typed to be kept
  FocusWay focus_;
  QtReading reading_;
  std::unique_ptr<AccessibleReading> accessible_;
  std::optional<QPoint> corner_;  // where the window stood before it filled the screen
};

class QtWindow final : public WindowPeer {
 public:
  // `quit_command` is called when the user asks a window to end the program.
  QtWindow(const WindowStyle& style, Window& window, QtMetrics& metrics, QtView& view,
           std::function<void()> quit_command);
  ~QtWindow() override;

  std::unique_ptr<CanvasPeer> NewCanvas(Canvas& canvas, ControlPeer* parent) override;
  std::unique_ptr<StaticTextPeer> NewStaticText(const TextStyle& style, ControlPeer* parent) override;
  std::unique_ptr<CheckBoxPeer> NewCheckBox(CheckBox& box, const std::string& caption, const TextFace& face,
                                            ControlPeer* parent) override;
  std::unique_ptr<EditFieldPeer> NewEditField(const TextStyle& style, base::Color back_color,
                                              ControlPeer* parent) override;
  std::unique_ptr<FindBoxPeer> NewFindBox(FindBox& box, ControlPeer* parent) override;
  base::Rect Frame() const override { return widget_->Frame(); }
  void MoveTo(std::int32_t left, std::int32_t top) override { widget_->MoveTo(left, top); }
  void SetReading(const Reading& reading) override;
  void SetNotice(const std::string& words) override { widget_->SetNotice(words); }
  void Show() override { widget_->BringUp(); }
  void Hide() override { widget_->hide(); }

  // Writes the window's content, shown or not, into a PNG file; false if it
  // can't be written.
  bool Save(const std::filesystem::path& path);

 private:
  QWidget& ParentWidget(ControlPeer* parent) const;

  WindowWidget* widget_;  // lives until the event loop turns after this
  QtMetrics& metrics_;
  std::map<const Canvas*, CanvasWidget*> canvases_;  // made so far
};

// The main window; null if it isn't on the screen.
WindowWidget* MainWindow();

// Brings the main window to the front, if there is one.
void RaiseMainWindow();

// Has what the windows hold saved, each as it does when the user asks for it.
void SaveAllWindows();

}  // namespace quill::host
