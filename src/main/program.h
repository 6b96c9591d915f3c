// The program, put together: what comes up in which order, on whatever desktop
// is current, and who is handed to whom.
#pragma once

#include <memory>

#include "app/app.h"
#include "app/file_types.h"
#include "nav/display_window.h"

namespace quill {

class Program {
 public:
  // Makes the file types known, makes the application object with its empty
  // menu bar and raises its Open event, on which every window relies.
  Program();

  // The viewer: the one that is open, or a new one, which then opens on the
  // first page.
  nav::DisplayWindow& DisplayWindow();

  app::App& App() { return app_; }

 private:
  app::FileTypes file_types_;
  app::App app_;
  std::unique_ptr<nav::DisplayWindow> viewer_;
};

}  // namespace quill
