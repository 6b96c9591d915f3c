// How the viewer draws a page.
#include "base/numbers.h"
#include "base/text.h"
#include "host/desktop.h"
#include "nav/display_window.h"
#include "render/page_canvas.h"
#include "render/page_furniture.h"
#include "render/page_settings.h"

namespace quill::nav {
namespace {

std::string TitleOf(const std::shared_ptr<content::Document>& document, std::int32_t number) {
  const auto page = document ? document->GetPage(number) : nullptr;
  return page ? page->GetTitle() : "";
}

}  // namespace

// A page that the document doesn't hold shows the mode's ground, no title and
// no text, with the trail as ever.
void DisplayWindow::DrawPage(const std::string& page_number) {
  app_.Trace("DisplayWindow DrawPage");
  CurrentPage = base::IntVal(page_number);
  InitializeCanvas();
  InitLinkButtons();
  Stext.SetMarks({});
  layout_ = {};
  const auto page = app_.doc ? app_.doc->GetPage(CurrentPage) : nullptr;
  TitleField.SetText(page ? page->GetTitle() : "");
  PageNumber.SetText(page_number);
  if (page) {
    app_.Trace("DisplayWindow DrawPage have page and links");
    DrawText(*page, page_number);
  }
  ShowBackButtons();
  TellReading(page.get(), page_number);
  returning_ = false;
}

void DisplayWindow::InitializeCanvas() {
  app_.Trace("DisplayWindow InitializeCanvas");
  G = nullptr;
  Stext.SetBackdrop(host::NewPicture(Stext.Width(), Stext.Height(), kDepth));
  if (!Stext.Backdrop()) {
    host::MsgBox("out of memory, initialize cavas");
    return;
  }
  G = host::GraphicsOf(Stext.Backdrop());
  if (G) render::DrawBackground(app_, *G);
  if (const auto top = app_.CurrentMode().title_top) TitleField.SetTop(*top);
  if (!G) {
    host::MsgBox("invalid graphics handle, Initialize Canvas");
    return;
  }
  render::SetPageInk(app_, Font, *G);
}

// Empties the pools and parks them to the right of all that is seen. The label
// and size of a history button stay; it is hidden until the row takes it.
void DisplayWindow::InitLinkButtons() {
  app_.Trace("DisplayWindow InitLinkButtons");
  ExitPB.init();
  std::int32_t left = Left() + Width();
  for (std::size_t i = 0; i < LinkButtonArray.size(); ++i, left += 10) {
    TextButton& link = *LinkButtonArray[i];
    link.init();
    link.SetText("");
    link.SetFontSize(app_.fontsize);
    link.SetWidth(1);
    link.SetHeight(1);
    link.SetLeft(left);
    link.SetTop(static_cast<std::int32_t>(i) + 10);
    if (i >= BackButtonArray.size()) continue;
    TextButton& back = *BackButtonArray[i];
    back.init();
    back.PutAway();
    back.SetFontSize(render::kRowFontSize);
    back.SetTop(render::kRowTop);
    back.SetLeft(left);
  }
  ExitPB.SetLinkType(content::link_type::kTrail);
  ExitPB.SetFontSize(render::kRowFontSize);
  ExitPB.SetPurpose({host::Purpose::Kind::kButton, app_.CurrentMode().opening ? "" : "opening page"});
  ExitPB.SetText(render::ExitLabel(app_.CurrentMode()));
  ExitPB.SetEnabled(true);
  ExitPB.Show();
  ExitPB.SetTop(render::kRowTop);
}

// Without a pen there is nothing to draw on, and the message has been shown.
void DisplayWindow::DrawText(const content::Page& page, const std::string& page_number) {
  if (!G) return;
  render::LayoutSettings settings = render::PageSettings(app_.CurrentMode(), page.GetColumns(), page_number);
  settings.face.TextSize = app_.fontsize;
  settings.button_rise = app_.fontheightoffset;
  settings.face.TextFont = Font;
  settings.show_offsets = NumberCB.Value();
  layout_ = render::LayOutPage(page, settings, host::Desktop::Current().Metrics());
  render::DrawWords(layout_, *G);
  const auto links = LinksOf(page);
  for (const render::PlacedLink& placed : layout_.links) PlaceLink(placed, *links[placed.index]);
}

void DisplayWindow::PlaceLink(const render::PlacedLink& placed, const content::Link& link) {
  TextButton& button = *LinkButtonArray[placed.index];
  button.SetLeft(placed.left);
  button.SetTop(placed.top);
  button.SetPage(link.GetLinkToPage());
  button.SetLinkType(link.GetType());
  button.SetFilename(link.GetFilename());
  button.SetPurpose(PurposeOf(link));
  button.SetEnabled(true);
  if (!placed.text.empty()) button.SetText(placed.text);
  if (placed.shown) button.Show();
}

void DisplayWindow::ShowBackButtons() {
  if (CurrentPage == 1 || app_.CurrentMode().opening) return;
  std::int32_t left = render::kRowLeft;
  for (const TrailButton& place : history.Row()) {
    const std::string& page = history.Pages()[place.step];
    TextButton& button = *BackButtonArray[place.pool];
    button.SetLeft(left);
    button.SetEnabled(true);
    button.SetLinkType(content::link_type::kTrail);
    button.SetPage(page);
    button.SetPurpose({host::Purpose::Kind::kTrail, "page " + TitleOf(app_.doc, base::IntVal(page))});
    button.SetText(place.prefix + TitleOf(app_.doc, base::IntVal(page)) + " ");
    button.Show();
    left = base::AddSaturating(left, button.Width());
  }
}

}  // namespace quill::nav
