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

void FreeAssociation::OpenFile() {
  const auto folder = host::PreferencesFolder();
  TheFile = folder ? folder->Child(kNotesFile) : nullptr;
  notes_.emplace(folder, kNotesFile, host::Desktop::Current().RecoveryFolders());
  const host::KeptNotes::Opened opened = notes_->Open();
  EditField1.SetText(opened.text);
  SetNotice(opened.words);
}

host::KeptNotes::Saved FreeAssociation::SaveFile() {
  return notes_ ? notes_->Save(EditField1.Text()) : host::KeptNotes::Saved();
}

// While the pad is open there is nothing to rescue: the text stays in the field.
void FreeAssociation::Event_Save() { SetNotice(SaveFile().words); }

void FreeAssociation::Event_Keep() {
  if (notes_) notes_->Keep(EditField1.Text());
}

void FreeAssociation::Event_Close() {
  const host::KeptNotes::Saved saved = SaveFile();
  if (!saved.words.empty()) host::Desktop::Current().Tell(saved.words, saved.lost ? EditField1.Text() : "");
}

}  // namespace quill::sidewindows
