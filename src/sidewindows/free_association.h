// The notes pad: a window with one field of free text. The text is read from
// the notes file when the window opens and written back when it closes, which
// is the only moment of saving.
//
// The file is "QMR" in the user's preferences folder: exactly the field's text,
// in UTF-8, with no header and no line end of its own. A file that can't be
// read leaves the field empty, one that can't be written is given up in
// silence; what it couldn't read, an untouched pad doesn't replace.
#pragma once

#include <memory>

#include "host/controls.h"
#include "host/files.h"

namespace quill::sidewindows {

class FreeAssociation final : public host::Window {
 public:
  FreeAssociation();

  // Ours, not the domain's: a desktop's command saves without closing.
  void Event_Save() override { SaveFile(); }

 private:
  void Event_Close() override { SaveFile(); }
  void Event_Open() override { OpenFile(); }
  void OpenFile();
  void SaveFile();

  host::EditField& EditField1;
  std::shared_ptr<host::FolderItem> TheFile;

  // Ours, not the domain's:
  bool unread_ = false;  // there are notes that couldn't be read
};

}  // namespace quill::sidewindows
