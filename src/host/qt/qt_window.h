// A window on the screen and the making of its controls.
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "host/peers.h"
#include "host/qt/qt_text.h"

namespace quill::host {

// The toolkit's side of a window. What the window manager asks to close is
// closed: of the main window, which has no close button, that ends the program.
// A dialog also closes by Escape.
class WindowWidget final : public QWidget {
 public:
  WindowWidget(const WindowStyle& style, Window& window, std::function<void()> quit_command);

  bool IsMain() const;

  // Its window has gone; so will this, when the event loop next turns.
  void Retire();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void CloseWindow();

  WindowStyle style_;
  Window* window_;  // null when retired
  std::function<void()> quit_command_;
};

class QtWindow final : public WindowPeer {
 public:
  // `quit_command` is called when the user asks a window to end the program.
  QtWindow(const WindowStyle& style, Window& window, QtMetrics& metrics, std::function<void()> quit_command);
  ~QtWindow() override;

  std::unique_ptr<CanvasPeer> NewCanvas(Canvas& canvas, ControlPeer* parent) override;
  std::unique_ptr<StaticTextPeer> NewStaticText(const TextStyle& style, ControlPeer* parent) override;
  std::unique_ptr<CheckBoxPeer> NewCheckBox(CheckBox& box, const std::string& caption, const TextFace& face,
                                            ControlPeer* parent) override;
  std::unique_ptr<EditFieldPeer> NewEditField(const TextStyle& style, base::Color back_color,
                                              ControlPeer* parent) override;
  base::Rect Frame() const override;
  void MoveTo(std::int32_t left, std::int32_t top) override;
  void Show() override;
  void Hide() override { widget_->hide(); }

  // Writes the window's content, shown or not, into a PNG file; false if it
  // can't be written.
  bool Save(const std::filesystem::path& path);

 private:
  QWidget& ParentWidget(ControlPeer* parent) const;

  WindowWidget* widget_;  // lives until the event loop turns after this
  QtMetrics& metrics_;
};

}  // namespace quill::host
