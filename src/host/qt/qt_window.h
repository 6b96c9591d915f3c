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

// The toolkit's side of a window. Closing a document window ends the program,
// which has no other way out if a window without a close button is told to
// close; a dialog is the program's own to close.
class WindowWidget final : public QWidget {
 public:
  WindowWidget(const WindowStyle& style, std::function<void()> quit_command);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  WindowStyle style_;
  std::function<void()> quit_command_;
};

class QtWindow final : public WindowPeer {
 public:
  // `quit_command` is called when the user asks a window to end the program.
  QtWindow(const WindowStyle& style, QtMetrics& metrics, std::function<void()> quit_command);
  ~QtWindow() override;

  std::unique_ptr<CanvasPeer> NewCanvas(Canvas& canvas, ControlPeer* parent) override;
  std::unique_ptr<StaticTextPeer> NewStaticText(const TextStyle& style, ControlPeer* parent) override;
  std::unique_ptr<CheckBoxPeer> NewCheckBox(CheckBox& box, const std::string& caption, const TextFace& face,
                                            ControlPeer* parent) override;
  Rect Frame() const override;
  void Show() override;

  // Writes the window's content, shown or not, into a PNG file; false if it
  // can't be written.
  bool Save(const std::filesystem::path& path);

 private:
  QWidget& ParentWidget(ControlPeer* parent) const;

  WindowWidget* widget_;  // lives until the event loop turns after this
  QtMetrics& metrics_;
};

}  // namespace quill::host
