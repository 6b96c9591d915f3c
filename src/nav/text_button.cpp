#include "nav/text_button.h"

#include "base/numbers.h"
#include "host/desktop.h"
#include "render/page_furniture.h"

namespace quill::nav {
namespace {

namespace link_type = content::link_type;

constexpr std::int32_t kLineGap = 2;  // between a label's base line and the line under it

// The look of a link type.
struct Look {
  base::Color text_color;
  bool line;
};

constexpr Look kPageLook = {base::RGB(10, 128, 255), true};
constexpr Look kGlossaryLook = {base::RGB(10, 255, 128), false};
constexpr Look kPlainLook = {base::RGB(255, 255, 255), false};
constexpr Look kStyledLook = {base::RGB(255, 128, 128), false};
constexpr Look kDocumentLook = {base::RGB(128, 128, 255), true};
constexpr Look kTrailLook = {base::RGB(128, 255, 128), false};

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

TextButton::TextButton(host::Window& window, host::Canvas* parent, const base::Rect& frame, app::App& app)
    : Canvas(window, parent, frame), app_(app) {}

void TextButton::init() {
  const app::Mode& mode = app_.CurrentMode();
  if (Width() > 0 && Height() > 0 && !PrepareBackdrop(mode.green_buttons)) {
    host::MsgBox("memory error, text button");
    return;
  }
  BackgroundColor = mode.button_background;
  if (host::Graphics* const graphics = Backdrop() ? Backdrop()->GetGraphics() : nullptr) {
    graphics->TextSize = app_.fontsize;
    graphics->ForeColor = BackgroundColor;
  }
  Rollover = false;
}

// A parked button is always of one size, so that a page makes pictures for the
// buttons that the page before it used and for no others. False if there is no
// picture.
bool TextButton::PrepareBackdrop(bool green) {
  const auto& kept = Backdrop();
  if (kept && kept->Width() == Width() && kept->Height() == Height() && green == backdrop_is_green_)
    return true;
  SetBackdrop(host::NewPicture(Width(), Height(), kDepth));
  backdrop_is_green_ = green;
  host::Graphics* const graphics = Backdrop() ? Backdrop()->GetGraphics() : nullptr;
  const auto picture = green && graphics != nullptr ? app_.pictures.green() : nullptr;
  if (picture) graphics->DrawPicture(*picture, 0, 0);
  return Backdrop() != nullptr;
}

void TextButton::SetText(const std::string& label) {
  text = label;
  SetLabel(label);
  if (text.empty()) return TakeOutOfUse();
  // Nothing to measure on: hidden, the button keeps its size, so that the next
  // `init` tries again.
  host::Graphics* const graphics = Backdrop() ? Backdrop()->GetGraphics() : nullptr;
  if (graphics == nullptr) return PutAway();
  graphics->TextSize = fontsize;
  SetWidth(base::ToInt32(graphics->StringWidth(text)));
  SetHeight(render::kLabelHeight);
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
  HighlightColor = base::RGB(255, 255, 0);
  SetDrawLine(look->line);
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
