// Everything that can be pressed: a canvas with one line of text on a flat
// ground. The text changes colour while the mouse is over it, and `IsPushed` is
// raised when the mouse is released on it. There is no pressed look.
//
// A button without a label is not in use: it is hidden, disabled and has no
// size, and hides itself again should anybody show it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "app/app.h"
#include "content/link_types.h"
#include "host/controls.h"

namespace quill::nav {

// Of the pictures that the viewer and its buttons ask for, in bits a pixel.
inline constexpr std::int32_t kDepth = 16;

class TextButton final : public host::Canvas {
 public:
  // `app` must outlive the button.
  TextButton(host::Window& window, host::Canvas* parent, const base::Rect& frame, app::App& app);

  // Prepares the button for the current mode: ground, backdrop, text face. The
  // backdrop, on which labels are measured, is made anew when the button's size
  // or what lies on it has changed.
  void init();

  // Sets the label, makes the button as wide as it is at the size given with
  // `SetFontSize`, and draws it. An empty label puts the button out of use.
  void SetText(const std::string& text);
  const std::string& GetText() const { return text; }

  // Makes the button visible, without the look of a mouse over it.
  void Show();

  // Stores the type and takes its colours; a type that has none of its own
  // leaves them as they are.
  void SetLinkType(std::int32_t type);
  std::int32_t GetLinkType() const { return LinkType; }

  void SetPage(const std::string& page) { Page = page; }
  const std::string& GetPage() const { return Page; }
  void SetFilename(const std::string& filename) { Filename = filename; }
  const std::string& GetFilename() const { return Filename; }
  // Whether a line is drawn under the label.
  void SetDrawLine(bool line) { DrawLine = line; }
  void SetFontSize(std::int32_t size) { fontsize = size; }

  void Event_Open() override { init(); }
  void Event_Paint() override;
  bool Event_MouseDown(std::int32_t x, std::int32_t y) override;
  void Event_MouseUp(std::int32_t x, std::int32_t y) override;
  void Event_MouseEnter() override;
  void Event_MouseExit() override;

  // Raised with the button that was pushed. Without a handler a push does
  // nothing.
  std::function<void(TextButton&)> IsPushed;

  // Ours, not the domain's: hides and disables the button without touching its
  // label.
  void PutAway();

 private:
  void DrawText();
  void SetColors();

  // Ours, not the domain's:
  bool PrepareBackdrop(bool green);
  void TakeOutOfUse();

  // The domain's:
  std::string text;
  base::Color TextColor;
  base::Color HighlightColor;
  base::Color BackgroundColor;
  bool DrawLine = false;  // under the label
  bool Rollover = false;  // the mouse is over the button
  std::int32_t LinkType = 0;
  std::string Page;  // where it leads: as a rule a page number
  std::string Filename;
  std::int32_t fontsize = 0;  // points; 0 is the host's default

  // Ours, not the domain's:
  app::App& app_;
  bool backdrop_is_green_ = false;
};

}  // namespace quill::nav
