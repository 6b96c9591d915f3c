#include "nav/display_window.h"

#include "base/numbers.h"
#include "base/text.h"
#include "host/desktop.h"
#include "render/page_furniture.h"

namespace quill::nav {
namespace {

host::WindowStyle ViewerStyle() {
  host::WindowStyle style;
  style.title = "Quillmere";
  style.width = render::kPageCanvas.width;
  style.height = render::kPageCanvas.height;
  style.back_color = base::RGB(95, 95, 95);
  return style;
}

}  // namespace

DisplayWindow::DisplayWindow(app::App& app, SideWindows side_windows)
    : Window(ViewerStyle()),
      Stext(AddControl<host::Canvas>(nullptr, render::kPageCanvas)),
      TitleField(AddControl<host::StaticText>(&Stext, base::Rect{77, 5, 494, 27},
                                              host::SystemText(14, base::kWhite, host::TextAlign::kCenter),
                                              "title")),
      PageNumber(AddControl<host::StaticText>(&Stext, base::Rect{536, 9, 100, 20},
                                              host::SystemText(12, base::kWhite, host::TextAlign::kRight),
                                              "")),
      NumberCB(AddControl<host::CheckBox>(&Stext, base::Rect{0, 9, 80, 20}, "numbers",
                                          host::SystemText(12, base::kBlack).face)),
      ExitPB(AddControl<TextButton>(&Stext, render::kExitFrame, app)),
      VersionField(AddControl<host::StaticText>(&Stext, base::Rect{340, 61, 73, 20},
                                                host::SystemText(9, base::kBlack), "")),
      app_(app),
      side_windows_(std::move(side_windows)) {
  Stext.SetBackdrop(app_.pictures.qmr());
  PageNumber.SetVisible(false);
  NumberCB.SetVisible(false);
  NumberCB.SetEnabled(false);
  ExitPB.IsPushed = [this](TextButton&) { ExitPB_IsPushed(); };
}

void DisplayWindow::Event_Open() {
  app_.Trace("DisplayWindow Open");
  app_.mode = app::kOpeningMode;
  SetFile();
  Init();
  InitializeCanvas();
  InitLinkButtons();
  OpenFiles();
  ShowPage(base::Str(CurrentPage));
}

void DisplayWindow::Init() {
  app_.Trace("DisplayWindow Init");
  history.Clear();
  LinkButtonArray.clear();
  BackButtonArray.clear();
  for (std::size_t i = 0; i < render::kLinkButtons; ++i) {
    TextButton& link = AddButton(render::kLinkFrame);
    link.PutAway();
    link.IsPushed = [this](TextButton& button) { LinkButton_IsPushed(button); };
    LinkButtonArray.push_back(&link);
    if (i >= kBackButtons) continue;
    TextButton& back = AddButton(render::kTrailFrame);
    back.PutAway();
    back.IsPushed = [this](TextButton& button) { BackButton_IsPushed(button); };
    BackButtonArray.push_back(&back);
  }
  VersionField.SetText("V " + app::App::LongVersion());
}

TextButton& DisplayWindow::AddButton(const base::Rect& frame) {
  return AddControl<TextButton>(&Stext, frame, app_);
}

void DisplayWindow::ShowPage(const std::string& page) {
  app_.Trace("DisplayWindow ShowPage");
  if (!app_.CurrentMode().opening && base::Val(page) > 0) history.Append(page);
  DrawPage(page);
}

// The page that the button leads to may take the button for a link of its own:
// what it opens is known before anything is shown.
void DisplayWindow::LinkButton_IsPushed(TextButton& button) {
  using Kind = app::Destination::Kind;
  const app::Destination destination = app::DestinationOf(
      app_.AllModes(), app_.CurrentMode(), button.GetLinkType(), button.GetPage(), button.GetFilename());
  if (destination.kind == Kind::kPage || destination.kind == Kind::kMode) RememberLeaving(button);
  switch (destination.kind) {
    case Kind::kPage:
      return ShowPage(destination.name);
    case Kind::kEntry:
      return side_windows_.show_glossary(destination.name);
    case Kind::kNotes:
      return side_windows_.show_notes();
    case Kind::kDocument:
      return app_.CurrentMode().documents == content::DocumentPlace::kInBundle
                 ? ShowPDF(destination.name)
                 : ShowDocument(destination.name);
    case Kind::kMode:
      return EnterMode(destination);
    case Kind::kNothing:
      return;
  }
}

void DisplayWindow::EnterMode(const app::Destination& destination) {
  if (!app::IsMode(app_.AllModes(), destination.mode)) return;
  if (destination.page) CurrentPage = *destination.page;
  ChooseMode(destination.mode);
}

// A mode that opens on no page of its own opens on this one.
void DisplayWindow::Visit(std::int32_t mode, std::int32_t page) {
  if (mode != app_.mode) EnterMode({.kind = app::Destination::Kind::kMode, .mode = mode, .page = page});
  if (CurrentPage != page) ShowPage(base::Str(page));
}

void DisplayWindow::ExitPB_IsPushed() {
  if (app_.CurrentMode().opening) {
    host::Quit(0);
  } else {
    returning_ = true;
    ChooseMode(app::kOpeningMode);
  }
}

// `ShowPage` puts back the page that the cut took away, so that the trail ends
// with the page on show.
void DisplayWindow::BackButton_IsPushed(TextButton& button) {
  const auto page = std::string(button.GetPage());
  history.ResetHistory(page);
  returning_ = true;
  ShowPage(page);
}

std::string DisplayWindow::Dump() const {
  std::string dump = "mode " + base::Str(app_.mode) + " page " + base::Str(CurrentPage) + " \"" +
                     TitleField.Text() + "\" trail";
  for (const std::string& page : history.Pages()) dump += " " + page;
  dump += "\n" + layout_.Dump();
  for (std::size_t i = 0; i < LinkButtonArray.size(); ++i) {
    const TextButton& button = *LinkButtonArray[i];
    if (!button.Visible()) continue;
    dump += "link " + std::to_string(i) + " type " + base::Str(button.GetLinkType()) + " -> " +
            button.GetPage() + "\n";
  }
  for (const TextButton* button : BackButtonArray) {
    if (!button->Visible()) continue;
    dump +=
        "back " + base::Str(button->Left()) + " \"" + button->GetText() + "\" -> " + button->GetPage() + "\n";
  }
  return dump + "exit \"" + ExitPB.GetText() + "\"\n";
}

}  // namespace quill::nav
