#include "nav/text_button.h"

#include "host/desktop.h"
#include "host/numbers.h"

namespace quill::nav {
namespace {

constexpr std::int32_t kDepth = 16;  // bits a pixel
constexpr std::int32_t kLabelHeight = 24;
constexpr std::int32_t kLineGap = 2;  // between a label's base line and the line under it

// The look of a link type.
struct Look {
  host::Color text_color;
  bool line;
};

constexpr Look kPageLook = {host::RGB(10, 128, 255), true};
constexpr Look kGlossaryLook = {host::RGB(10, 255, 128), false};
constexpr Look kPlainLook = {host::RGB(255, 255, 255), false};
constexpr Look kStyledLook = {host::RGB(255, 128, 128), false};
constexpr Look kDocumentLook = {host::RGB(128, 128, 255), true};
constexpr Look kTrailLook = {host::RGB(128, 255, 128), false};

// Null for the types from 10 on that have no look of their own. Below that,
// every number without one has the look of the styled runs.
const Look* LookOf(std::int32_t type) {
  switch (type) {
    case link_type::kPage:
      return &kPageLook;
    case link_type::kGlossary:
      return &kGlossaryLook;
    case link_type::kPlain:
      return &kPlainLook;
    case link_type::kDocument:
      return &kDocumentLook;
    case link_type::kTrail:
      return &kTrailLook;
    default:
      return type < link_type::kDocument ? &kStyledLook : nullptr;
  }
}

}  // namespace

TextButton::TextButton(host::Window& window, host::Canvas* parent, const host::Rect& frame, app::App& app,
                       const FontSource& fonts)
    : Canvas(window, parent, frame), app_(app), fonts_(fonts) {}

void TextButton::init() {
  if (Width() > 0 && Height() > 0) {
    SetBackdrop(host::NewPicture(Width(), Height(), kDepth));
    if (!Backdrop()) {
      host::MsgBox("memory error, text button");
      return;
    }
  }
  const app::Mode& mode = app_.CurrentMode();
  BackgroundColor = mode.button_background;
  if (host::Graphics* const graphics = Backdrop() ? Backdrop()->GetGraphics() : nullptr) {
    const auto green = mode.green_buttons ? app_.pictures.green() : nullptr;
    if (green) graphics->DrawPicture(*green, 0, 0);
    graphics->TextFont = fonts_.GetFont();
    graphics->TextSize = app_.fontsize;
    graphics->ForeColor = BackgroundColor;
  }
  Rollover = false;
}

void TextButton::SetText(const std::string& label) {
  text = label;
  SetLabel(label);
  host::Graphics* const graphics = Backdrop() ? Backdrop()->GetGraphics() : nullptr;
  if (text.empty() || graphics == nullptr) {
    TakeOutOfUse();
    return;
  }
  graphics->TextSize = fontsize;
  SetWidth(host::ToInt32(graphics->StringWidth(text)));
  SetHeight(kLabelHeight);
  DrawText();
}

void TextButton::Show() {
  SetVisible(true);
  Rollover = false;
}

void TextButton::SetLinkType(std::int32_t type) {
  LinkType = type;
  SetColors();
}

void TextButton::SetColors() {
  const Look* const look = LookOf(LinkType);
  if (look == nullptr) return;
  TextColor = look->text_color;
  HighlightColor = host::RGB(255, 255, 0);
  DrawLine = look->line;
}

void TextButton::PutAway() {
  SetVisible(false);
  SetEnabled(false);
}

void TextButton::TakeOutOfUse() {
  PutAway();
  SetWidth(0);
  SetHeight(0);
}

// The label is drawn twice in the same place, which gives its thin strokes more
// weight on a dark ground.
void TextButton::DrawText() {
  if (text.empty()) {
    TakeOutOfUse();
    return;
  }
  host::Graphics& graphics = GetGraphics();
  graphics.TextSize = fontsize;
  graphics.ForeColor = BackgroundColor;
  graphics.FillRect({-1, -1, Width() + 1, Height() + 1});
  graphics.ForeColor = Rollover ? HighlightColor : TextColor;
  const std::int32_t base_line = graphics.TextHeight();
  graphics.DrawString(text, 0, base_line);
  graphics.DrawString(text, 0, base_line);
  if (DrawLine) graphics.DrawLine(0, base_line + kLineGap, Width(), base_line + kLineGap);
}

void TextButton::Event_Paint() {
  if (Visible()) DrawText();
}

bool TextButton::Event_MouseDown(std::int32_t /*x*/, std::int32_t /*y*/) { return true; }

// The outermost row and column of pixels don't count.
void TextButton::Event_MouseUp(std::int32_t x, std::int32_t y) {
  if (x > 0 && x < Width() && y > 0 && y < Height()) {
    if (IsPushed) IsPushed(*this);
    return;
  }
  Rollover = false;
  DrawText();
}

void TextButton::Event_MouseEnter() {
  Rollover = true;
  DrawText();
}

void TextButton::Event_MouseExit() {
  if (!Visible()) return;
  Rollover = false;
  DrawText();
}

}  // namespace quill::nav
