// The glossary: a small window over the viewer that shows one entry of the
// mode's glossary, with one button to close it. The viewer can be used behind
// it; a further link then finds it open and draws its entry on a clean ground.
//
// It takes the look of the mode in which it was made, and isn't told when the
// mode changes.
#pragma once

#include <memory>
#include <string>

#include "app/app.h"
#include "host/controls.h"
#include "nav/text_button.h"

namespace quill::sidewindows {

class GlossaryWindow final : public host::Window {
 public:
  // `viewer` is the window that this one stands over. Both must outlive it.
  GlossaryWindow(app::App& app, const host::Window& viewer);

  // Shows the entry with that number, decimal text. An entry that the glossary
  // doesn't hold leaves the ground bare and the title as it was.
  void ShowPage(const std::string& page);

 private:
  void ClosePB_IsPushed() { Close(); }
  void Event_Open() override { Init(); }
  void Init();
  void DrawPage();

  // Ours, not the domain's:
  void PrepareCanvas();
  void TellReading(const std::string& text);

  // The domain's:
  host::Canvas& PageCanvas;
  nav::TextButton& ClosePB;
  host::StaticText& TitleField;

  std::string Page;
  std::shared_ptr<host::Graphics> g;  // pen of the canvas's picture

  // Ours, not the domain's:
  app::App& app_;
  const host::Window& viewer_;
  const app::Mode& look_;  // of the mode in which the window was made
};

}  // namespace quill::sidewindows
