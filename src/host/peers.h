// The desktop's side of windows and controls. A `Window`, `Canvas`,
// `StaticText` or `CheckBox` keeps its own state and tells its peer of every
// change; the peer shows it, and calls back when the user does something.
//
// A peer is owned by its control and dies with it. A control's peer never
// outlives the peer of the window that made it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/geometry.h"
#include "host/found.h"
#include "host/graphics.h"
#include "host/reading.h"

namespace quill::host {

class Canvas;
class CheckBox;
class FindBox;
class Window;

class ControlPeer {
 public:
  virtual ~ControlPeer() = default;

  // `frame` counts from the upper left corner of the control that it lies in, or
  // of the window.
  virtual void Place(const base::Rect& frame) = 0;
  virtual void SetVisible(bool visible) = 0;

  // A control that isn't enabled gets no mouse events.
  virtual void SetEnabled(bool enabled) = 0;
};

class CanvasPeer : public ControlPeer {
 public:
  // The picture under the canvas's own drawing and its child controls; null for
  // none. What is drawn into it afterwards shows too.
  virtual void SetBackdrop(const std::shared_ptr<Picture>& backdrop) = 0;

  // The pen for the canvas's own drawing, which lies above the backdrop and
  // stays until drawn over; a change of size may drop it.
  virtual Graphics& GetGraphics() = 0;

  // Rectangles of the canvas on which words stand out from now on.
  virtual void SetMarks(const std::vector<base::Rect>& marks) = 0;

  // What the canvas says, for those who can't see it; empty if it is no control
  // that can be pressed.
  virtual void SetLabel(const std::string& label) = 0;

  // What pressing it does.
  virtual void SetPurpose(const Purpose& purpose) = 0;
};

class StaticTextPeer : public ControlPeer {
 public:
  virtual void SetText(const std::string& text) = 0;
};

class CheckBoxPeer : public ControlPeer {
 public:
  virtual void SetValue(bool value) = 0;
};

// The text is UTF-8. What the field can't show as it is, it shows in some
// visible form and gives back unchanged as long as the user changes nothing.
class EditFieldPeer : public ControlPeer {
 public:
  virtual void SetText(const std::string& text) = 0;
  virtual std::string Text() = 0;
};

class FindBoxPeer : public ControlPeer {
 public:
  virtual void SetWords(const std::string& words) = 0;
  virtual void SetFound(const std::vector<FoundRow>& rows, const std::string& summary) = 0;
};

// Where the line of a `StaticText` stands in its frame.
enum class TextAlign { kLeft = 0, kCenter = 1, kRight = 2 };

struct TextStyle {
  TextFace face;
  base::Color color = base::kBlack;
  TextAlign align = TextAlign::kLeft;
};

// A style in the desktop's own text face, `size` in points.
inline TextStyle SystemText(std::int32_t size, base::Color color, TextAlign align = TextAlign::kLeft) {
  TextStyle style;
  style.face.TextFont = "System";
  style.face.TextSize = size;
  style.color = color;
  style.align = align;
  return style;
}

// What a window is made with and keeps.
struct WindowStyle {
  enum class Frame {
    kDocument = 0,
    kTool = 1,    // stands beside the main window, above it, and takes the focus
    kDialog = 2,  // stands above the main window and leaves the focus where it is
  };

  std::string title;
  std::int32_t width = 0;
  std::int32_t height = 0;
  Frame frame = Frame::kDocument;
  base::Color back_color = base::kWhite;
  bool close_button = false;
  bool resizeable = false;  // and with it the minimise and maximise boxes
};

class WindowPeer {
 public:
  virtual ~WindowPeer() = default;

  // `parent` is a peer that this window made, null for the window itself. The
  // new control lies above those made before it.
  virtual std::unique_ptr<CanvasPeer> NewCanvas(Canvas& canvas, ControlPeer* parent) = 0;
  virtual std::unique_ptr<StaticTextPeer> NewStaticText(const TextStyle& style, ControlPeer* parent) = 0;
  virtual std::unique_ptr<CheckBoxPeer> NewCheckBox(CheckBox& box, const std::string& caption,
                                                    const TextFace& face, ControlPeer* parent) = 0;

  // Several lines of text with a scroll bar, to be edited. The distances of its
  // frame from the four edges of the window stay as the window's size changes.
  virtual std::unique_ptr<EditFieldPeer> NewEditField(const TextStyle& style, base::Color back_color,
                                                      ControlPeer* parent) = 0;

  // A field for words with a list below it. Its frame keeps its distances, too.
  virtual std::unique_ptr<FindBoxPeer> NewFindBox(FindBox& box, ControlPeer* parent) = 0;

  // Place and size of the window's content on the screen, in the program's pixels:
  // a desktop that shows windows larger or smaller counts the screen alike.
  virtual base::Rect Frame() const = 0;

  virtual void MoveTo(std::int32_t left, std::int32_t top) = 0;

  // What the window says from now on. A desktop may tell the user that it has
  // changed.
  virtual void SetReading(const Reading& reading) = 0;

  // Shows a word (UTF-8) that isn't the program's, beside what the window shows, until
  // the next; empty for none.
  virtual void SetNotice(const std::string& words) = 0;

  // Puts the window on the screen, in front of the others, and brings back one that
  // was minimised; takes it off.
  virtual void Show() = 0;
  virtual void Hide() = 0;
};

}  // namespace quill::host
