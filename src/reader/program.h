// The program, put together: what comes up in which order, on whatever desktop
// is current, and who is handed to whom.
#pragma once

#include <memory>
#include <string>

#include "app/app.h"
#include "app/file_types.h"
#include "nav/display_window.h"
#include "sidewindows/find_window.h"
#include "sidewindows/free_association.h"
#include "sidewindows/glossary_window.h"

namespace quill {

class Program {
 public:
  // Makes the file types known, makes the application object with its empty
  // menu bar and raises its Open event, on which every window relies. `modes`
  // must outlive the program.
  explicit Program(app::Modes modes = app::kModes);

  // Closes the notes pad, which saves the notes.
  ~Program();

  // The viewer: the one that is open, or a new one, which then opens on the
  // first page.
  nav::DisplayWindow& DisplayWindow();

  // The glossary, the notes pad, Find: the window that is open, or a new one.
  sidewindows::GlossaryWindow& GlossaryWindow();
  sidewindows::FreeAssociation& FreeAssociation();
  sidewindows::FindWindow& FindWindow();

  app::App& App() { return app_; }

 private:
  app::FileTypes file_types_;
  app::App app_;
  std::unique_ptr<nav::DisplayWindow> viewer_;
  std::unique_ptr<sidewindows::GlossaryWindow> glossary_;
  std::unique_ptr<sidewindows::FreeAssociation> notes_;
  std::unique_ptr<sidewindows::FindWindow> find_;
  std::string find_words_;  // typed last, UTF-8
};

}  // namespace quill
