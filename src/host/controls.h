// Windows and the controls in them, as the program uses them. They hold the
// state; the desktop behind them (peers.h) shows it. All of it runs on the one
// thread that delivers events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/geometry.h"
#include "host/graphics.h"
#include "host/peers.h"

namespace quill::host {

class Canvas;
class Window;

// A rectangle in a window. New controls are visible and enabled.
class RectControl {
 public:
  virtual ~RectControl() = default;
  RectControl(const RectControl&) = delete;
  RectControl& operator=(const RectControl&) = delete;

  // Left and top count from the window, whatever control this one lies in.
  std::int32_t Left() const { return frame_.left; }
  std::int32_t Top() const { return frame_.top; }
  std::int32_t Width() const { return frame_.width; }
  std::int32_t Height() const { return frame_.height; }
  bool Visible() const { return visible_; }
  bool Enabled() const { return enabled_; }

  void SetLeft(std::int32_t left);
  void SetTop(std::int32_t top);
  void SetWidth(std::int32_t width);
  void SetHeight(std::int32_t height);
  void SetVisible(bool visible);
  void SetEnabled(bool enabled);

  // Raised once, when the control has been added to its window.
  virtual void Event_Open() {}

 protected:
  // `parent` is the canvas that the control lies in, null for the window.
  RectControl(const Canvas* parent, const base::Rect& frame) : parent_(parent), frame_(frame) {}

  virtual ControlPeer& Peer() = 0;

  // For the constructors of controls, when the peer is there.
  void ShowState();

 private:
  void Place(const base::Rect& frame);
  base::Rect FrameInParent() const;

  const Canvas* parent_;
  base::Rect frame_;
  bool visible_ = true;
  bool enabled_ = true;
};

// A control that draws itself and takes the mouse. Points count from its own
// upper left corner and may lie outside while a button is held.
class Canvas : public RectControl {
 public:
  // `parent` must be a control of the same window, or null.
  Canvas(Window& window, Canvas* parent, const base::Rect& frame);

  const std::shared_ptr<Picture>& Backdrop() const { return backdrop_; }
  void SetBackdrop(std::shared_ptr<Picture> backdrop);
  Graphics& GetGraphics() { return peer_->GetGraphics(); }

  // Its area must be shown anew.
  virtual void Event_Paint() {}
  // True asks for `Event_MouseUp`.
  virtual bool Event_MouseDown(std::int32_t /*x*/, std::int32_t /*y*/) { return false; }
  virtual void Event_MouseUp(std::int32_t /*x*/, std::int32_t /*y*/) {}
  virtual void Event_MouseEnter() {}
  virtual void Event_MouseExit() {}

  // Ours, not the domain's:

  // Lays marks behind what is drawn on the canvas and the controls on it, until the
  // next call; none takes them off.
  void SetMarks(const std::vector<base::Rect>& marks) { peer_->SetMarks(marks); }

  // What the canvas says, for those who can't see it; empty if there is nothing
  // on it to press.
  void SetLabel(const std::string& label) { peer_->SetLabel(label); }

  // What pressing it does, for a desktop's own help.
  void SetPurpose(const Purpose& purpose) { peer_->SetPurpose(purpose); }

 protected:
  CanvasPeer& Peer() override { return *peer_; }

 private:
  friend class StaticText;
  friend class CheckBox;
  friend class EditField;
  friend class FindBox;

  std::unique_ptr<CanvasPeer> peer_;
  std::shared_ptr<Picture> backdrop_;
};

// One line of text.
class StaticText : public RectControl {
 public:
  StaticText(Window& window, Canvas* parent, const base::Rect& frame, const TextStyle& style,
             std::string text);

  const std::string& Text() const { return text_; }
  void SetText(std::string text);

 protected:
  StaticTextPeer& Peer() override { return *peer_; }

 private:
  std::unique_ptr<StaticTextPeer> peer_;
  std::string text_;
};

class CheckBox : public RectControl {
 public:
  CheckBox(Window& window, Canvas* parent, const base::Rect& frame, const std::string& caption,
           const TextFace& face);

  bool Value() const { return value_; }
  void SetValue(bool value);

  // The user changed it: the desktop's call.
  void Toggled(bool value) { value_ = value; }

 protected:
  CheckBoxPeer& Peer() override { return *peer_; }

 private:
  std::unique_ptr<CheckBoxPeer> peer_;
  bool value_ = false;
};

// Several lines of text to be edited, UTF-8; see `WindowPeer::NewEditField`.
class EditField : public RectControl {
 public:
  EditField(Window& window, Canvas* parent, const base::Rect& frame, const TextStyle& style,
            base::Color back_color);

  std::string Text() const { return peer_->Text(); }
  void SetText(const std::string& text) { peer_->SetText(text); }

 protected:
  EditFieldPeer& Peer() override { return *peer_; }

 private:
  std::unique_ptr<EditFieldPeer> peer_;
};

// A field for words, and below it the list of what was found for them. The arrow keys
// move through the list from the field.
class FindBox : public RectControl {
 public:
  FindBox(Window& window, Canvas* parent, const base::Rect& frame);

  // Puts words (UTF-8) into the field, selected, without calling `Typed`.
  void SetWords(const std::string& words) { peer_->SetWords(words); }

  // Lists `rows`. `summary` says in a word what they are, for those who can't see them.
  void SetFound(const std::vector<FoundRow>& rows, const std::string& summary) {
    peer_->SetFound(rows, summary);
  }

  std::function<void(const std::string& words)> Typed;  // the words in the field have changed
  std::function<void(std::size_t row)> Chosen;          // the user wants to see that row, from 0

 protected:
  FindBoxPeer& Peer() override { return *peer_; }

 private:
  std::unique_ptr<FindBoxPeer> peer_;
};

// A window and its controls, which it owns. It is open from `Open` to `Close`,
// once in its life; a desktop closes it too, where the user may.
class Window {
 public:
  explicit Window(const WindowStyle& style);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  const std::string& Title() const { return style_.title; }
  std::int32_t Left() const { return peer_->Frame().left; }
  std::int32_t Top() const { return peer_->Frame().top; }
  std::int32_t Width() const { return peer_->Frame().width; }
  std::int32_t Height() const { return peer_->Frame().height; }

  // Runs the Close event and takes the window off the screen; nothing if it
  // isn't open. The object stays with its owner, so that a window may well be
  // closed in an event of one of its controls.
  void Close();

  // Brings the window to the front.
  void Show() { peer_->Show(); }

  // Ours, not the domain's:

  bool IsOpen() const { return open_; }

  // Runs the Open event, then puts the window on the screen.
  void Open();

  // Puts the upper left corner of the content there on the screen.
  void MoveTo(std::int32_t left, std::int32_t top) { peer_->MoveTo(left, top); }

  // Tells the desktop what the window says.
  void SetReading(const Reading& reading) { peer_->SetReading(reading); }

  WindowPeer& Peer() { return *peer_; }

  // Shows a word of the desktop's own (UTF-8) in the window, or takes it off if it is
  // empty.
  void SetNotice(const std::string& words) { peer_->SetNotice(words); }

  // What the window holds is to be saved now: the user asks for it, or the desktop is
  // going.
  virtual void Event_Save() {}

  // Text was typed within the last two seconds, or the window loses the focus: time
  // for a copy, should the program come to a sudden end.
  virtual void Event_Keep() {}

  // The user looks for something; asked of the main window.
  virtual void Event_Find() {}

 protected:
  virtual void Event_Open() {}
  virtual void Event_Close() {}

  // Makes a control of class `T` with this window as its first argument, keeps
  // it and raises its Open event.
  template <typename T, typename... Args>
  T& AddControl(Args&&... args) {
    auto control = std::make_unique<T>(*this, std::forward<Args>(args)...);
    T& added = *control;
    controls_.push_back(std::move(control));
    added.Event_Open();
    return added;
  }

 private:
  WindowStyle style_;
  std::unique_ptr<WindowPeer> peer_;
  std::vector<std::unique_ptr<RectControl>> controls_;
  bool open_ = false;
};

}  // namespace quill::host
