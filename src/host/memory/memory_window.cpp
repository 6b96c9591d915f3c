#include "host/memory/memory_window.h"

#include <algorithm>

namespace quill::host {

// What the peers of all kinds of control share: the record of one of them.
class MemoryPeerBase {
 public:
  MemoryPeerBase(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent, MemoryControl::Kind kind)
      : screen_(std::move(screen)) {
    const auto* const parent_base = dynamic_cast<MemoryPeerBase*>(parent);
    control_.parent = parent_base == nullptr ? nullptr : &parent_base->control_;
    control_.kind = kind;
    screen_->controls.push_back(&control_);
  }
  virtual ~MemoryPeerBase() { screen_->Forget(control_); }
  MemoryPeerBase(const MemoryPeerBase&) = delete;
  MemoryPeerBase& operator=(const MemoryPeerBase&) = delete;

 protected:
  MemoryControl control_;

 private:
  std::shared_ptr<MemoryScreen> screen_;
};

namespace {

template <typename Interface>
class MemoryPeer : public Interface, public MemoryPeerBase {
 public:
  using MemoryPeerBase::MemoryPeerBase;

  void Place(const base::Rect& frame) override { control_.frame = frame; }
  void SetVisible(bool visible) override { control_.visible = visible; }
  void SetEnabled(bool enabled) override { control_.enabled = enabled; }
};

class MemoryCanvasPeer final : public MemoryPeer<CanvasPeer> {
 public:
  MemoryCanvasPeer(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent, Canvas& canvas,
                   FontMetrics& metrics)
      : MemoryPeer(std::move(screen), parent, MemoryControl::Kind::kCanvas) {
    control_.canvas = &canvas;
    control_.graphics = std::make_unique<RecordingGraphics>(metrics);
  }
  void SetBackdrop(const std::shared_ptr<Picture>& backdrop) override { control_.backdrop = backdrop; }
  Graphics& GetGraphics() override { return *control_.graphics; }
  void SetMarks(const std::vector<base::Rect>& marks) override { control_.marks = marks; }
  void SetLabel(const std::string& label) override { control_.text = label; }
  void SetPurpose(const Purpose& purpose) override { control_.purpose = purpose; }
};

class MemoryTextPeer final : public MemoryPeer<StaticTextPeer> {
 public:
  MemoryTextPeer(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent)
      : MemoryPeer(std::move(screen), parent, MemoryControl::Kind::kText) {}
  void SetText(const std::string& text) override { control_.text = text; }
};

class MemoryCheckBoxPeer final : public MemoryPeer<CheckBoxPeer> {
 public:
  MemoryCheckBoxPeer(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent, CheckBox& box,
                     const std::string& caption)
      : MemoryPeer(std::move(screen), parent, MemoryControl::Kind::kCheckBox) {
    control_.box = &box;
    control_.text = caption;
  }
  void SetValue(bool value) override { control_.checked = value; }
};

class MemoryEditPeer final : public MemoryPeer<EditFieldPeer> {
 public:
  MemoryEditPeer(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent)
      : MemoryPeer(std::move(screen), parent, MemoryControl::Kind::kEditField) {}
  void SetText(const std::string& text) override { control_.text = text; }
  std::string Text() override { return control_.text; }
};

class MemoryFindPeer final : public MemoryPeer<FindBoxPeer> {
 public:
  MemoryFindPeer(std::shared_ptr<MemoryScreen> screen, ControlPeer* parent, FindBox& box)
      : MemoryPeer(std::move(screen), parent, MemoryControl::Kind::kFindBox) {
    control_.find_box = &box;
  }
  void SetWords(const std::string& words) override { control_.text = words; }
  void SetFound(const std::vector<FoundRow>& rows, const std::string& /*summary*/) override {
    control_.found = rows;
  }
};

struct Point {
  std::int64_t x;
  std::int64_t y;
};

// That point of the window, counted from the control's own corner.
Point PointIn(const MemoryControl& control, std::int32_t x, std::int32_t y) {
  Point point = {x, y};
  for (const MemoryControl* at = &control; at != nullptr; at = at->parent) {
    point.x -= at->frame.left;
    point.y -= at->frame.top;
  }
  return point;
}

bool Holds(const MemoryControl& control, std::int32_t x, std::int32_t y) {
  const Point point = PointIn(control, x, y);
  return point.x >= 0 && point.x < control.frame.width && point.y >= 0 && point.y < control.frame.height;
}

bool IsShown(const MemoryControl& control) {
  return control.visible && (control.parent == nullptr || IsShown(*control.parent));
}

std::string KindName(const MemoryControl& control) {
  switch (control.kind) {
    case MemoryControl::Kind::kCanvas:
      return "button";
    case MemoryControl::Kind::kText:
      return "text";
    case MemoryControl::Kind::kCheckBox:
      return "check";
    case MemoryControl::Kind::kEditField:
      return "field";
    case MemoryControl::Kind::kFindBox:
      return "find";
  }
  return {};
}

}  // namespace

void MemoryScreen::Paint() {
  for (MemoryControl* control : std::vector(controls)) {
    if (control->canvas != nullptr && IsShown(*control)) control->canvas->Event_Paint();
  }
}

// The mouse goes through a line of text.
MemoryControl* MemoryScreen::At(std::int32_t x, std::int32_t y) const {
  const auto hit = std::find_if(controls.rbegin(), controls.rend(), [x, y](const MemoryControl* control) {
    return control->kind != MemoryControl::Kind::kText && IsShown(*control) && Holds(*control, x, y);
  });
  return hit != controls.rend() && (*hit)->enabled ? *hit : nullptr;
}

void MemoryScreen::Forget(const MemoryControl& control) {
  std::erase(controls, &control);
  if (under_mouse_ == &control) under_mouse_ = nullptr;
  if (held_ == &control) held_ = nullptr;
}

void MemoryScreen::MoveMouse(std::int32_t x, std::int32_t y) {
  x_ = x;
  y_ = y;
  if (held_ != nullptr) return;
  MemoryControl* const now = At(x, y);
  MemoryControl* const before = std::exchange(under_mouse_, now);
  if (now == before) return;
  if (before != nullptr && before->canvas != nullptr) before->canvas->Event_MouseExit();
  if (under_mouse_ != nullptr && now->canvas != nullptr) now->canvas->Event_MouseEnter();
}

void MemoryScreen::Press() {
  held_ = At(x_, y_);
  if (held_ == nullptr || held_->canvas == nullptr) return;
  const Point point = PointIn(*held_, x_, y_);
  const bool claimed =
      held_->canvas->Event_MouseDown(static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y));
  if (!claimed) held_ = nullptr;
}

void MemoryScreen::Release() {
  MemoryControl* const control = std::exchange(held_, nullptr);
  if (control == nullptr || !control->enabled || !IsShown(*control)) return;
  const Point point = PointIn(*control, x_, y_);
  if (control->canvas != nullptr) {
    control->canvas->Event_MouseUp(static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y));
  } else if (control->box != nullptr && Holds(*control, x_, y_)) {
    control->checked = !control->checked;
    control->box->Toggled(control->checked);
  }
}

void MemoryScreen::Click(std::int32_t x, std::int32_t y) {
  MoveMouse(x, y);
  Press();
  Release();
  Paint();
}

bool MemoryScreen::ClickLabel(const std::string& label) {
  for (const MemoryControl* control : controls) {
    if (control->canvas == nullptr || !IsShown(*control) || control->text != label) continue;
    const Point corner = PointIn(*control, 0, 0);
    Click(static_cast<std::int32_t>(control->frame.width / 2 - corner.x),
          static_cast<std::int32_t>(control->frame.height / 2 - corner.y));
    return true;
  }
  return false;
}

void MemoryScreen::Type(const std::string& text) {
  for (MemoryControl* control : controls) {
    if (control->kind == MemoryControl::Kind::kEditField) control->text = text;
    if (control->find_box != nullptr) {
      control->text = text;
      control->find_box->Typed(text);
    }
  }
}

void MemoryScreen::Choose(std::size_t row) {
  for (MemoryControl* control : controls)
    if (control->find_box != nullptr) control->find_box->Chosen(row);
}

std::string MemoryScreen::Dump() const {
  std::string dump;
  for (const MemoryControl* control : controls) {
    if (!IsShown(*control) || control->text.empty()) continue;
    const base::Rect& place = control->frame;
    dump += KindName(*control) + " \"" + control->text + "\" " + std::to_string(place.left) + "," +
            std::to_string(place.top) + " " + std::to_string(place.width) + "x" +
            std::to_string(place.height) + "\n";
  }
  return dump;
}

std::unique_ptr<CanvasPeer> MemoryWindow::NewCanvas(Canvas& canvas, ControlPeer* parent) {
  return std::make_unique<MemoryCanvasPeer>(screen_, parent, canvas, metrics_);
}

std::unique_ptr<StaticTextPeer> MemoryWindow::NewStaticText(const TextStyle& /*style*/, ControlPeer* parent) {
  return std::make_unique<MemoryTextPeer>(screen_, parent);
}

std::unique_ptr<CheckBoxPeer> MemoryWindow::NewCheckBox(CheckBox& box, const std::string& caption,
                                                        const TextFace& /*face*/, ControlPeer* parent) {
  return std::make_unique<MemoryCheckBoxPeer>(screen_, parent, box, caption);
}

std::unique_ptr<EditFieldPeer> MemoryWindow::NewEditField(const TextStyle& /*style*/,
                                                          base::Color /*back_color*/, ControlPeer* parent) {
  return std::make_unique<MemoryEditPeer>(screen_, parent);
}

std::unique_ptr<FindBoxPeer> MemoryWindow::NewFindBox(FindBox& box, ControlPeer* parent) {
  return std::make_unique<MemoryFindPeer>(screen_, parent, box);
}

}  // namespace quill::host
