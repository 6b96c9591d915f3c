// Where a command works: a desktop without a screen, on which the bundle is the
// author's folder and messages go to standard error. Text measures there what it
// measures in the reader's window. Each command that needs one owns its own; there is
// one at a time.
#pragma once

#include <array>
#include <memory>

#include "host/qt/qt_desktop.h"

namespace quill::quillpress {

class Workplace {
 public:
  // `application` is the folder that holds the bundle; see `BundleView`.
  explicit Workplace(std::shared_ptr<host::FolderItem> application);

  host::QtDesktop& Desktop() { return desktop_; }

 private:
  // What the toolkit takes for the command line, and keeps; the real one isn't its
  // business.
  int argc_ = 1;
  char name_[11] = "quillpress";
  std::array<char*, 2> argv_ = {name_, nullptr};
  host::QtDesktop desktop_;
};

}  // namespace quill::quillpress
