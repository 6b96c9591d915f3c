#include "host/controls.h"

#include "base/numbers.h"
#include "host/desktop.h"

namespace quill::host {

void RectControl::ShowState() {
  Peer().Place(FrameInParent());
  Peer().SetVisible(visible_);
  Peer().SetEnabled(enabled_);
}

void RectControl::Place(const base::Rect& frame) {
  if (frame == frame_) return;
  frame_ = frame;
  Peer().Place(FrameInParent());
}

// A control keeps its distance from its parent when that moves, as the desktop's
// own controls do; what counts from the window is its place at the time it is set.
base::Rect RectControl::FrameInParent() const {
  if (parent_ == nullptr) return frame_;
  return {base::AddSaturating(frame_.left, -parent_->Left()),
          base::AddSaturating(frame_.top, -parent_->Top()), frame_.width, frame_.height};
}

void RectControl::SetLeft(std::int32_t left) { Place({left, frame_.top, frame_.width, frame_.height}); }
void RectControl::SetTop(std::int32_t top) { Place({frame_.left, top, frame_.width, frame_.height}); }
void RectControl::SetWidth(std::int32_t width) { Place({frame_.left, frame_.top, width, frame_.height}); }
void RectControl::SetHeight(std::int32_t height) { Place({frame_.left, frame_.top, frame_.width, height}); }

void RectControl::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Peer().SetVisible(visible);
}

void RectControl::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Peer().SetEnabled(enabled);
}

Canvas::Canvas(Window& window, Canvas* parent, const base::Rect& frame)
    : RectControl(parent, frame),
      peer_(window.Peer().NewCanvas(*this, parent ? parent->peer_.get() : nullptr)) {
  ShowState();
}

void Canvas::SetBackdrop(std::shared_ptr<Picture> backdrop) {
  backdrop_ = std::move(backdrop);
  peer_->SetBackdrop(backdrop_);
}

StaticText::StaticText(Window& window, Canvas* parent, const base::Rect& frame, const TextStyle& style,
                       std::string text)
    : RectControl(parent, frame),
      peer_(window.Peer().NewStaticText(style, parent ? parent->peer_.get() : nullptr)) {
  SetText(std::move(text));
  ShowState();
}

void StaticText::SetText(std::string text) {
  text_ = std::move(text);
  peer_->SetText(text_);
}

CheckBox::CheckBox(Window& window, Canvas* parent, const base::Rect& frame, const std::string& caption,
                   const TextFace& face)
    : RectControl(parent, frame),
      peer_(window.Peer().NewCheckBox(*this, caption, face, parent ? parent->peer_.get() : nullptr)) {
  ShowState();
}

void CheckBox::SetValue(bool value) {
  value_ = value;
  peer_->SetValue(value);
}

EditField::EditField(Window& window, Canvas* parent, const base::Rect& frame, const TextStyle& style,
                     base::Color back_color)
    : RectControl(parent, frame),
      peer_(window.Peer().NewEditField(style, back_color, parent ? parent->peer_.get() : nullptr)) {
  ShowState();
}

FindBox::FindBox(Window& window, Canvas* parent, const base::Rect& frame)
    : RectControl(parent, frame),
      peer_(window.Peer().NewFindBox(*this, parent ? parent->peer_.get() : nullptr)) {
  ShowState();
}

Window::Window(const WindowStyle& style) : style_(style), peer_(Desktop::Current().NewWindow(style, *this)) {}

// Controls go before the window's peer, the last made first.
Window::~Window() {
  while (!controls_.empty()) controls_.pop_back();
}

void Window::Open() {
  open_ = true;
  Event_Open();
  peer_->Show();
}

void Window::Close() {
  if (!std::exchange(open_, false)) return;
  Event_Close();
  peer_->Hide();
}

}  // namespace quill::host
