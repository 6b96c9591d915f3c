// The notes pad: a window with one field of free text. The text is read from
// the notes file when the window opens and written back when it closes, which
// is the only moment of saving.
//
// The file is "QMR" in the user's preferences folder: exactly the field's text,
// in UTF-8, with no header and no line end of its own. A file that can't be
// read leaves the field empty, and the program says nothing of one that can't be
// written. The desktop does, and keeps what was typed: see host/kept_notes.h.
#pragma once

#include <memory>
#include <optional>

#include "host/controls.h"
#include "host/files.h"
#include "host/kept_notes.h"

namespace quill::sidewindows {

class FreeAssociation final : public host::Window {
 public:
  FreeAssociation();

  // Ours, not the domain's: a desktop's command saves without closing.
  void Event_Save() override;
  void Event_Keep() override;

 private:
  void Event_Close() override;
  void Event_Open() override { OpenFile(); }
  void OpenFile();
  host::KeptNotes::Saved SaveFile();

  host::EditField& EditField1;
  std::shared_ptr<host::FolderItem> TheFile;

  // Ours, not the domain's:
  std::optional<host::KeptNotes> notes_;  // from the moment the window opens
};

}  // namespace quill::sidewindows
