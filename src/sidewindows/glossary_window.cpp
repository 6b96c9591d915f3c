#include "sidewindows/glossary_window.h"

#include "base/numbers.h"
#include "base/text.h"
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
      PageCanvas(AddControl<host::Canvas>(nullptr, render::kEntryCanvas)),
      ClosePB(AddControl<nav::TextButton>(&PageCanvas, render::kEntryClose, app)),
      TitleField(AddControl<host::StaticText>(&PageCanvas, base::Rect{9, 8, 428, 20},
                                              host::SystemText(12, base::kWhite, host::TextAlign::kCenter),
                                              "Label:")),
      app_(app),
      viewer_(viewer),
      look_(app.CurrentMode()) {
  PageCanvas.SetBackdrop(app_.pictures.Black());
  ClosePB.IsPushed = [this](nav::TextButton&) { ClosePB_IsPushed(); };
}

void GlossaryWindow::Init() {
  MoveTo(Centred(viewer_.Left(), viewer_.Width(), Width()),
         Centred(viewer_.Top(), viewer_.Height(), Height()));
  PrepareCanvas();
  ClosePB.SetLinkType(content::link_type::kPlain);
  ClosePB.SetPurpose({host::Purpose::Kind::kButton, ""});
  ClosePB.SetText("Close");
  ClosePB.Show();
  TellReading("");
}

// A clean picture with the window's ground.
void GlossaryWindow::PrepareCanvas() {
  PageCanvas.SetBackdrop(host::NewPicture(PageCanvas.Width(), PageCanvas.Height(), kDepth));
  g = host::GraphicsOf(PageCanvas.Backdrop());
  if (!g) return;
  const auto ground = app_.pictures.Get(look_.glossary_picture);
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
  TellReading(entry->GetText());
}

void GlossaryWindow::TellReading(const std::string& text) {
  host::Reading reading;
  reading.title = TitleField.Text();
  reading.source = std::string(look_.area) + ", glossary";
  host::Reading::Column& paragraphs = reading.columns.emplace_back();
  for (const std::string_view paragraph : base::Fields(text, '\n'))
    paragraphs.push_back({{.text = std::string(paragraph)}});
  reading.way_out = &ClosePB;
  SetReading(reading);
}

}  // namespace quill::sidewindows
