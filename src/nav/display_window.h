// The viewer: the program's one main window, fixed in size, which shows a page
// at a time. It owns all state of navigation: the page on show, the trail, the
// two open content files and the pools of buttons, which are made once and
// serve every page.
//
// A request to see a page goes through `ShowPage`; a page is drawn from nothing
// every time.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/app.h"
#include "app/destination.h"
#include "content/xml_file.h"
#include "host/controls.h"
#include "nav/history.h"
#include "nav/text_button.h"
#include "render/page_layout.h"
#include "render/page_reading.h"

namespace quill::nav {

// The windows that a link, or the reader, can open beside the viewer. They stand above this
// floor; who joins the parts hands them in.
struct SideWindows {
  std::function<void(const std::string& page)> show_glossary;
  std::function<void()> show_notes;
  std::function<void()> show_find = [] {};
};

class DisplayWindow final : public host::Window {
 public:
  // `app` must outlive the window. Nothing is loaded and no page drawn before
  // `Open`.
  explicit DisplayWindow(app::App& app, SideWindows side_windows);

  // Shows a page of the current mode, given by its number as decimal text, and
  // records it in the trail unless it is page 0 or the mode the opening one.
  void ShowPage(const std::string& page);

  // Enters a mode and shows its first page. `mode` must be one of the table.
  void ChooseMode(std::int32_t mode);

  // Returns the name of the text face of pages and buttons; empty, which is the
  // desktop's. No program of ours calls this.
  const std::string& GetFont() const { return Font; }

  // Ours, not the domain's:

  // Shows a page as a link to it would, entering its mode first if it is another.
  // `mode` must be one of the table. The page on show stays as it is.
  void Visit(std::int32_t mode, std::int32_t page);

  // Given the words on show, Mac Roman and parted by blanks, returns which of them are
  // meant: characters from and up to, from left to right.
  using Finder = std::function<std::vector<std::pair<std::size_t, std::size_t>>(const std::string& words)>;

  // Marks words of the page on show, until the next page is.
  void Mark(const Finder& finder);

  void Event_Find() override { side_windows_.show_find(); }

  // Returns what the viewer shows, as a few lines of text: mode, page, title,
  // trail, words and buttons in use.
  std::string Dump() const;

  // Writes each word's offset below it from the next page on: an author's help.
  void ShowOffsets(bool show) { NumberCB.SetValue(show); }

 private:
  void Event_Open() override;
  void Init();

  // Files of a mode.
  void SetFile();
  void OpenFiles();

  // Drawing a page.
  void DrawPage(const std::string& page_number);
  void InitializeCanvas();
  void InitLinkButtons();
  void ShowBackButtons();

  // What pushing a button does.
  void LinkButton_IsPushed(TextButton& button);
  void ExitPB_IsPushed();
  void BackButton_IsPushed(TextButton& button);

  // Hand a document to another application; `filename` is Mac Roman.
  void ShowDocument(const std::string& filename);
  void ShowPDF(const std::string& filename);

  // Ours, not the domain's:
  void DrawText(const content::Page& page, const std::string& page_number);
  void PlaceLink(const render::PlacedLink& placed, const content::Link& link);
  void EnterMode(const app::Destination& destination);
  TextButton& AddButton(const base::Rect& frame);

  // What the desktop is told of the page.
  void TellReading(const content::Page* page, const std::string& page_number);
  void AddColumn(const render::ReadColumn& column, host::Reading& reading) const;
  host::Purpose PurposeOf(const content::Link& link) const;
  host::Canvas* StepBack(const std::vector<host::Canvas*>& trail);
  void RememberLeaving(const TextButton& button);

  // The domain's:

  // The controls, in the order they are made. Each but the first lies on it.
  host::Canvas& Stext;
  host::StaticText& TitleField;
  host::StaticText& PageNumber;
  host::CheckBox& NumberCB;
  TextButton& ExitPB;
  host::StaticText& VersionField;

  std::unique_ptr<content::zkXMLFileClass> xmlFile;
  std::vector<TextButton*> LinkButtonArray;  // button i shows link i of the page
  std::int32_t CurrentPage = 0;              // the page on show, or next to be shown
  std::shared_ptr<host::Graphics> G;         // pen of the page's picture
  History history;
  std::string Font;  // names the desktop's own text face
  std::vector<TextButton*> BackButtonArray;
  std::unique_ptr<content::zkXMLFileClass> glossaryFile;
  std::string GlossaryFileName;
  std::string XMLFileName;

  // Ours, not the domain's:
  app::App& app_;
  SideWindows side_windows_;
  render::PageLayout layout_;  // of the page on show

  // By mode and page, the link by which the reader went on from there the last
  // time; and whether they are on their way back.
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> left_by_;
  bool returning_ = false;
};

}  // namespace quill::nav
