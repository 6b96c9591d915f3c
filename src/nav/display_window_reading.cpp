// What the viewer tells the desktop of the page on show: its words and links in the
// order in which they are read, and where each of them leads.
#include "base/numbers.h"
#include "nav/display_window.h"
#include "render/page_reading.h"

namespace quill::nav {
namespace {

using Kind = app::Destination::Kind;
using Use = host::Purpose::Kind;

std::string PageTitle(const std::shared_ptr<content::Document>& document, const std::string& number) {
  const auto page = document ? document->GetPage(base::IntVal(number)) : nullptr;
  return page ? "page " + page->GetTitle() : "page " + number;
}

std::string AreaName(app::Modes modes, std::int32_t mode) {
  if (!app::IsMode(modes, mode)) return "";
  return "area " + std::string(modes[static_cast<std::size_t>(mode)].area);
}

}  // namespace

host::Purpose DisplayWindow::PurposeOf(const content::Link& link) const {
  const app::Destination destination = app::DestinationOf(app_.AllModes(), app_.CurrentMode(), link.GetType(),
                                                          link.GetLinkToPage(), link.GetFilename());
  switch (destination.kind) {
    case Kind::kPage:
      return {Use::kPage, PageTitle(app_.doc, destination.name)};
    case Kind::kEntry:
      return {Use::kGlossary, "glossary"};
    case Kind::kNotes:
      return {Use::kNotes, "notes"};
    case Kind::kDocument:
      return {Use::kDocument, "document " + destination.name};
    case Kind::kMode:
      return {Use::kPage, AreaName(app_.AllModes(), destination.mode)};
    case Kind::kNothing:
      break;
  }
  return {Use::kButton, ""};
}

void DisplayWindow::TellReading(const content::Page* page, const std::string& page_number) {
  const app::Mode& mode = app_.CurrentMode();
  host::Reading reading;
  reading.title = TitleField.Text();
  reading.source = mode.opening ? "Opening page" : std::string(mode.area) + ", page " + page_number;
  if (page != nullptr) {
    for (const render::ReadColumn& column : render::ReadPage(*page, layout_)) AddColumn(column, reading);
  }
  for (TextButton* button : BackButtonArray) {
    if (button->Visible()) reading.trail.push_back(button);
  }
  reading.way_out = &ExitPB;
  if (!mode.opening) {
    reading.home = &ExitPB;
    reading.back = StepBack(reading.trail);
  }
  const auto left_by = left_by_.find({app_.mode, CurrentPage});
  if (returning_ && left_by != left_by_.end()) reading.left_by = LinkButtonArray[left_by->second];
  SetReading(reading);
}

void DisplayWindow::AddColumn(const render::ReadColumn& column, host::Reading& reading) const {
  host::Reading::Column& paragraphs = reading.columns.emplace_back();
  for (const render::ReadParagraph& paragraph : column) {
    host::Reading::Paragraph& runs = paragraphs.emplace_back();
    for (const render::ReadRun& run : paragraph) {
      TextButton* const link = run.link ? LinkButtonArray[*run.link] : nullptr;
      runs.push_back({run.text, run.bold, run.italic, run.underline, link});
    }
  }
}

// The trail's last button, unless all that it offers is the page on show, as where
// an area was entered on a page of its own; then the way out.
host::Canvas* DisplayWindow::StepBack(const std::vector<host::Canvas*>& trail) {
  if (trail.empty()) return &ExitPB;
  const auto& last = static_cast<const TextButton&>(*trail.back());
  const bool here = trail.size() == 1 && base::IntVal(last.GetPage()) == CurrentPage;
  return here ? &ExitPB : trail.back();
}

// Remembers the link by which the reader goes on from here, for when they return.
void DisplayWindow::RememberLeaving(const TextButton& button) {
  for (std::size_t i = 0; i < LinkButtonArray.size(); ++i) {
    if (LinkButtonArray[i] == &button) left_by_[{app_.mode, CurrentPage}] = i;
  }
}

}  // namespace quill::nav
