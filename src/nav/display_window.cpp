#include "nav/display_window.h"

#include "host/desktop.h"
#include "host/numbers.h"
#include "host/text.h"
#include "render/page_settings.h"

namespace quill::nav {
namespace {

constexpr host::Rect kCanvasFrame = {0, 0, render::kPageWidth, render::kPageHeight};
constexpr host::Rect kLinkFrame = {53, 51, 541, 22};
constexpr host::Rect kTrailFrame = {23, 438, 342, 22};

host::WindowStyle ViewerStyle() {
  host::WindowStyle style;
  style.title = "Quillmere";
  style.width = kCanvasFrame.width;
  style.height = kCanvasFrame.height;
  style.back_color = host::RGB(95, 95, 95);
  return style;
}

}  // namespace

DisplayWindow::DisplayWindow(app::App& app, SideWindows side_windows)
    : Window(ViewerStyle()),
      app_(app),
      side_windows_(std::move(side_windows)),
      Stext(AddControl<host::Canvas>(nullptr, kCanvasFrame)),
      TitleField(AddControl<host::StaticText>(&Stext, host::Rect{77, 5, 494, 27},
                                              host::SystemText(14, host::kWhite, host::TextAlign::kCenter),
                                              "title")),
      PageNumber(AddControl<host::StaticText>(&Stext, host::Rect{536, 9, 100, 20},
                                              host::SystemText(12, host::kWhite, host::TextAlign::kRight),
                                              "")),
      NumberCB(AddControl<host::CheckBox>(&Stext, host::Rect{0, 9, 80, 20}, "numbers",
                                          host::SystemText(12, host::kBlack).face)),
      ExitPB(AddButton({587, 432, 49, 25})),
      VersionField(AddControl<host::StaticText>(&Stext, host::Rect{340, 61, 73, 20},
                                                host::SystemText(9, host::kBlack), "")) {
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
  ShowPage(host::Str(CurrentPage));
}

void DisplayWindow::Init() {
  app_.Trace("DisplayWindow Init");
  history.Clear();
  LinkButtonArray.clear();
  BackButtonArray.clear();
  for (std::size_t i = 0; i < render::kLinkButtons; ++i) {
    TextButton& link = AddButton(kLinkFrame);
    link.PutAway();
    link.IsPushed = [this](TextButton& button) { LinkButton_IsPushed(button); };
    LinkButtonArray.push_back(&link);
    if (i >= kBackButtons) continue;
    TextButton& back = AddButton(kTrailFrame);
    back.PutAway();
    back.IsPushed = [this](TextButton& button) { BackButton_IsPushed(button); };
    BackButtonArray.push_back(&back);
  }
  VersionField.SetText("V " + app_.LongVersion());
}

TextButton& DisplayWindow::AddButton(const host::Rect& frame) {
  return AddControl<TextButton>(&Stext, frame, app_, static_cast<const FontSource&>(*this));
}

void DisplayWindow::ShowPage(const std::string& page) {
  app_.Trace("DisplayWindow ShowPage");
  if (app_.mode != app::kOpeningMode && host::Val(page) > 0) history.Append(page);
  DrawPage(page);
}

void DisplayWindow::LinkButton_IsPushed(TextButton& button) {
  if (app_.mode == app::kOpeningMode) {
    PushInOpeningMode(button);
    return;
  }
  // The page that the button leads to may take the button for a link of its
  // own, so that the target is kept apart from it.
  const auto page = std::string(button.GetPage());
  switch (button.GetLinkType()) {
    case link_type::kDocument:
      if (app_.mode == app::kWgaMode) {
        ShowPDF(button.GetFilename());
      } else {
        ShowDocument(button.GetFilename());
      }
      break;
    case link_type::kPage:
      if (app_.mode == app::kScreenMode && host::EqualText(page, "0")) {
        side_windows_.show_notes();
      } else {
        ShowPage(page);
      }
      break;
    case link_type::kGlossary:
      side_windows_.show_glossary(page);
      break;
    default:
      break;
  }
}

// There a link's target alone counts: a mode, or 100 and a page of Bio.
void DisplayWindow::PushInOpeningMode(const TextButton& button) {
  const double target = host::Val(button.GetPage());
  if (target >= app::kBioPages) {
    CurrentPage = host::ToInt32(target - app::kBioPages);
    ChooseMode(app::kBioMode);
  } else if (const std::int32_t mode = host::ToInt32(target); app::IsMode(mode)) {
    ChooseMode(mode);
  }
}

void DisplayWindow::ExitPB_IsPushed() {
  if (app_.mode == app::kOpeningMode) {
    host::Quit(0);
  } else {
    ChooseMode(app::kOpeningMode);
  }
}

// `ShowPage` puts back the entry that the cut took away, so that the trail ends
// with the page on show.
void DisplayWindow::BackButton_IsPushed(TextButton& button) {
  const auto page = std::string(button.GetPage());
  history.ResetHistory(page);
  ShowPage(page);
}

std::string DisplayWindow::Dump() const {
  std::string dump = "mode " + host::Str(app_.mode) + " page " + host::Str(CurrentPage) + " \"" +
                     TitleField.Text() + "\" trail";
  for (const std::string& page : history.Pages()) dump += " " + page;
  dump += "\n" + layout_.Dump();
  for (std::size_t i = 0; i < LinkButtonArray.size(); ++i) {
    const TextButton& button = *LinkButtonArray[i];
    if (!button.Visible()) continue;
    dump += "link " + std::to_string(i) + " type " + host::Str(button.GetLinkType()) + " -> " +
            button.GetPage() + "\n";
  }
  for (const TextButton* button : BackButtonArray) {
    if (!button->Visible()) continue;
    dump +=
        "back " + host::Str(button->Left()) + " \"" + button->GetText() + "\" -> " + button->GetPage() + "\n";
  }
  return dump + "exit \"" + ExitPB.GetText() + "\"\n";
}

}  // namespace quill::nav
