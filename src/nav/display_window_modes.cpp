// How the viewer opens the files of a mode, and changes from one to another.
#include "base/numbers.h"
#include "host/desktop.h"
#include "markup/text_helpers.h"
#include "nav/display_window.h"

namespace quill::nav {

void DisplayWindow::SetFile() {
  const auto slot = static_cast<std::size_t>(app_.mode);
  XMLFileName = app_.QMRFileName.at(slot);
  GlossaryFileName = app_.GlossaryFileName.at(slot);
}

// When either file can't be opened, the documents of the mode before stay.
void DisplayWindow::OpenFiles() {
  app_.Trace("DisplayWindow OpenFiles");
  markup::zkXMLToolkitGlobals::UseXMLFormatting = true;
  xmlFile = std::make_unique<content::zkXMLFileClass>(XMLFileName);
  if (!xmlFile->Init()) {
    host::MsgBox("XMLFile.ini Failed!");
    return;
  }
  glossaryFile = std::make_unique<content::zkXMLFileClass>(GlossaryFileName);
  if (!glossaryFile->Init()) {
    host::MsgBox("GlossaryFile.ini Failed!");
    return;
  }
  app_.doc = std::make_shared<content::Document>();
  app_.glossary = std::make_shared<content::Document>();
  if (glossaryFile->GetDocument(app_.glossary)) xmlFile->GetDocument(app_.doc);
  if (const auto first = app_.CurrentMode().first_page) CurrentPage = *first;
}

void DisplayWindow::ChooseMode(std::int32_t mode) {
  app_.mode = mode;
  history.Clear();
  SetFile();
  OpenFiles();
  ShowPage(base::Str(CurrentPage));
}

}  // namespace quill::nav
