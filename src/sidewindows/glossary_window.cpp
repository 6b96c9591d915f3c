#include "sidewindows/glossary_window.h"

#include "base/numbers.h"
#include "content/link_types.h"
#include "host/desktop.h"
#include "render/entry_layout.h"

namespace quill::sidewindows {
namespace {

constexpr std::int32_t kDepth = 32;  // bits a pixel

host::WindowStyle GlossaryStyle() {
  host::WindowStyle style;
  style.title = "Glossary";
  style.width = 464;
  style.height = 360;
  style.frame = host::WindowStyle::Frame::kDialog;
  style.back_color = base::kWhite;
  return style;
}

// Where a length stands when it is centred in another.
std::int32_t Centred(std::int32_t start, std::int32_t outer, std::int32_t inner) {
  return base::ToInt32(start + (outer - inner) / 2.0);
}

}  // namespace

GlossaryWindow::GlossaryWindow(app::App& app, const host::Window& viewer)
    : Window(GlossaryStyle()),
      app_(app),
      viewer_(viewer),
      PageCanvas(AddControl<host::Canvas>(nullptr, render::kEntryCanvas)),
      ClosePB(AddControl<nav::TextButton>(&PageCanvas, render::kEntryClose, app)),
      TitleField(AddControl<host::StaticText>(&PageCanvas, base::Rect{9, 8, 428, 20},
                                              host::SystemText(12, base::kWhite, host::TextAlign::kCenter),
                                              "Label:")) {
  PageCanvas.SetBackdrop(app_.pictures.Black());
  ClosePB.IsPushed = [this](nav::TextButton&) { ClosePB_IsPushed(); };
}

void GlossaryWindow::Init() {
  MoveTo(Centred(viewer_.Left(), viewer_.Width(), Width()),
         Centred(viewer_.Top(), viewer_.Height(), Height()));
  PrepareCanvas();
  ClosePB.SetLinkType(content::link_type::kPlain);
  ClosePB.SetText("Close");
  ClosePB.Show();
}

// A clean picture with the ground of the current mode.
void GlossaryWindow::PrepareCanvas() {
  PageCanvas.SetBackdrop(host::NewPicture(PageCanvas.Width(), PageCanvas.Height(), kDepth));
  g = host::GraphicsOf(PageCanvas.Backdrop());
  if (!g) return;
  const auto ground = app_.pictures.Get(app_.CurrentMode().glossary_picture);
  if (ground) g->DrawPicture(*ground, 0, 0);
  g->ForeColor = base::kWhite;
  g->TextFont = "system";
  g->TextSize = app_.fontsize;
}

void GlossaryWindow::ShowPage(const std::string& page) {
  Page = page;
  PrepareCanvas();
  DrawPage();
}

void GlossaryWindow::DrawPage() {
  if (!app_.glossary || !g) return;
  app_.debugmethod();
  const auto entry = app_.glossary->GetPage(base::IntVal(Page));
  if (!entry) return;
  TitleField.SetText(entry->GetTitle());
  for (const render::EntryWord& word :
       LayOutEntry(entry->GetText(), render::kEntryMargins, *g, host::Desktop::Current().Metrics())) {
    g->DrawString(word.text, word.x, word.y);
  }
}

}  // namespace quill::sidewindows
