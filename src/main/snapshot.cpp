// Writes a picture of a page, as the reader shows it, without a display:
//
//   quillmere-snapshot OUT.png [MODE [PAGE ...]]
//
// and prints what is on it, one line each. Without a mode it shows the opening
// page. From a mode's first page it goes on to the pages named, one after the
// other, so that the last has their trail.
#include <cstdio>
#include <string>

#include "host/numbers.h"
#include "host/qt/qt_desktop.h"
#include "host/text_converter.h"
#include "main/program.h"

namespace {

// Shows what was asked for; false if there is no such mode.
bool Show(quill::Program& program, int argc, char** argv) {
  quill::nav::DisplayWindow& viewer = program.DisplayWindow();
  if (argc < 3) return true;
  const std::int32_t mode = quill::host::IntVal(argv[2]);
  if (!quill::app::IsMode(mode)) return false;
  viewer.ChooseMode(mode);
  for (int i = 3; i < argc; ++i) viewer.ShowPage(argv[i]);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argv[1][0] == '-') {
    std::fputs("usage: quillmere-snapshot OUT.png [MODE [PAGE ...]]\n", stderr);
    return 2;
  }
  quill::host::QtDesktop::Options options;
  options.messages = quill::host::QtDesktop::Messages::kStandardError;
  options.screen = quill::host::QtDesktop::Screen::kNone;
  quill::host::QtDesktop desktop(argc, argv, options);
  quill::Program program;
  if (!Show(program, argc, argv)) {
    std::fprintf(stderr, "quillmere-snapshot: there is no mode %s\n", argv[2]);
    return 2;
  }
  std::fputs(quill::host::MacRomanToUtf8(program.DisplayWindow().Dump()).c_str(), stdout);
  if (desktop.SaveScreen(program.DisplayWindow(), argv[1])) return 0;
  std::fprintf(stderr, "quillmere-snapshot: can't write %s\n", argv[1]);
  return 1;
}
