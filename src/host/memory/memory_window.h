// Windows without a screen: they know what they would show, and take the mouse
// from a test.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls.h"
#include "host/memory/memory_graphics.h"

namespace quill::host {

class MemoryWindow;

// What a control would show. Kept by the window as long as the control lives.
struct MemoryControl {
  enum class Kind { kCanvas, kText, kCheckBox, kEditField, kFindBox };

  Kind kind = Kind::kCanvas;
  const MemoryControl* parent = nullptr;  // null: the window itself
  base::Rect frame;                       // in its parent
  bool visible = true;
  bool enabled = true;
  std::string text;               // of a text, check box or field; the label of a canvas
  std::vector<base::Rect> marks;  // on a canvas
  std::vector<FoundRow> found;    // in a find box
  Purpose purpose;                // of a canvas
  bool checked = false;
  Canvas* canvas = nullptr;
  CheckBox* box = nullptr;
  FindBox* find_box = nullptr;
  std::shared_ptr<Picture> backdrop;
  std::unique_ptr<RecordingGraphics> graphics;
};

// What a test may do with an open window. The window itself belongs to the
// program.
class MemoryScreen {
 public:
  base::Rect frame = {100, 50, 0, 0};  // where the desktop put the window
  WindowStyle style;
  Window* window = nullptr;  // null when it has gone
  bool shown = false;        // and not hidden since
  bool minimised = false;    // by the user
  bool closed = false;       // the window has gone
  Reading reading;           // what the window says
  std::string notice;        // the desktop's own word in it

  // Controls in the order they were made, the last on top, whoever their parent
  // is.
  std::vector<MemoryControl*> controls;

  // Raises the Paint event of every canvas that is visible, as a desktop would after a
  // change.
  void Paint();

  // Moves the mouse to that point of the window, from wherever it was.
  void MoveMouse(std::int32_t x, std::int32_t y);
  void Press();

  // The second press of a double click, which is none; what follows is its release.
  void PressAgain() { held_ = nullptr; }
  void Release();
  void Click(std::int32_t x, std::int32_t y);

  // Clicks in the middle of the visible canvas with that label; false if there
  // is none.
  bool ClickLabel(const std::string& label);

  // The user closes the window by its box, or the window manager does.
  void CloseBox() { window->Close(); }

  // Puts `text` into the window's one edit field or find box, as if typed.
  void Type(const std::string& text);

  // Chooses that row, from 0, in the window's one find box.
  void Choose(std::size_t row);

  // A line for each visible control with a label or text, in order:
  //   button "Exit" 587,437 40x24
  //   text "Title" 77,4 494x27
  std::string Dump() const;

 private:
  friend class MemoryPeerBase;

  // Topmost control that the mouse meets at that point, null if there is none
  // or it isn't enabled.
  MemoryControl* At(std::int32_t x, std::int32_t y) const;
  void Forget(const MemoryControl& control);

  MemoryControl* under_mouse_ = nullptr;
  MemoryControl* held_ = nullptr;
  std::int32_t x_ = -1;
  std::int32_t y_ = -1;
};

class MemoryWindow final : public WindowPeer {
 public:
  MemoryWindow(std::shared_ptr<MemoryScreen> screen, FontMetrics& metrics)
      : screen_(std::move(screen)), metrics_(metrics) {}
  ~MemoryWindow() override {
    screen_->closed = true;
    screen_->window = nullptr;
  }

  std::unique_ptr<CanvasPeer> NewCanvas(Canvas& canvas, ControlPeer* parent) override;
  std::unique_ptr<StaticTextPeer> NewStaticText(const TextStyle& style, ControlPeer* parent) override;
  std::unique_ptr<CheckBoxPeer> NewCheckBox(CheckBox& box, const std::string& caption, const TextFace& face,
                                            ControlPeer* parent) override;
  std::unique_ptr<EditFieldPeer> NewEditField(const TextStyle& style, base::Color back_color,
                                              ControlPeer* parent) override;
  std::unique_ptr<FindBoxPeer> NewFindBox(FindBox& box, ControlPeer* parent) override;
  base::Rect Frame() const override { return screen_->frame; }
  void MoveTo(std::int32_t left, std::int32_t top) override {
    screen_->frame.left = left;
    screen_->frame.top = top;
  }
  void SetReading(const Reading& reading) override { screen_->reading = reading; }
  void SetNotice(const std::string& words) override { screen_->notice = words; }
  void Show() override {
    screen_->shown = true;
    screen_->minimised = false;
  }
  void Hide() override { screen_->shown = false; }

 private:
  std::shared_ptr<MemoryScreen> screen_;
  FontMetrics& metrics_;
};

}  // namespace quill::host
