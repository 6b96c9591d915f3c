// The reader. It takes no arguments: everything it shows lies in its bundle.
#include <cstdio>

#include "host/qt/qt_desktop.h"
#include "main/program.h"

int main(int argc, char** argv) {
  if (!quill::host::HasDisplay()) {
    std::fputs("quillmere: there is no display to open a window on\n", stderr);
    return 1;
  }
  quill::host::QtDesktop desktop(argc, argv);
  quill::Program program;
  program.DisplayWindow();
  return desktop.Run(program.App());
}
