#include "sidewindows/free_association.h"

#include <string>

#include "host/desktop.h"

namespace quill::sidewindows {
namespace {

constexpr const char* kNotesFile = "QMR";

host::WindowStyle NotesStyle() {
  host::WindowStyle style;
  style.title = "Free Association";
  style.width = 632;
  style.height = 361;
  style.close_button = true;
  style.resizeable = true;
  return style;
}

}  // namespace

FreeAssociation::FreeAssociation()
    : Window(NotesStyle()),
      EditField1(AddControl<host::EditField>(nullptr, base::Rect{4, 4, 624, 341},
                                             host::SystemText(10, base::kBlack), base::kWhite)) {}

// Each line comes with its line end, so that the lines stay lines.
void FreeAssociation::OpenFile() {
  const auto folder = host::PreferencesFolder();
  TheFile = folder ? folder->Child(kNotesFile) : nullptr;
  if (!TheFile) return;
  std::string text;
  if (const auto stream = TheFile->OpenAsTextFile()) {
    while (!stream->AtEnd()) text += stream->ReadLine();
    stream->Close();
  } else {
    unread_ = TheFile->Exists();
  }
  EditField1.SetText(text);
}

void FreeAssociation::SaveFile() {
  const auto folder = host::PreferencesFolder();
  TheFile = folder ? folder->Child(kNotesFile) : nullptr;
  const std::string text = EditField1.Text();
  if (!TheFile || (unread_ && text.empty())) return;
  if (const auto stream = TheFile->CreateTextFile()) {
    stream->Write(text);
    stream->Close();
  }
}

}  // namespace quill::sidewindows
