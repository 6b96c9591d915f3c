// The reader. It takes no arguments: everything it shows lies in its bundle.
#include <cstdio>
#include <exception>
#include <string>

#include "app/product.h"
#include "host/qt/qt_desktop.h"
#include "reader/program.h"

namespace {

// Exceptions in the event loop are the desktop's; these come before it.
int Read(quill::host::QtDesktop& desktop) {
  try {
    quill::Program program;
    program.DisplayWindow();
    return desktop.Run(program.App());
  } catch (const std::exception& failure) {
    desktop.MsgBox(std::string("Quillmere has to stop: ") + failure.what());
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!quill::host::HasDisplay()) {
    std::fputs("quillmere: there is no display to open a window on\n", stderr);
    return 1;
  }
  quill::host::QtDesktop desktop(argc, argv, quill::app::Quillmere());
  return Read(desktop);
}
