// The reader. Everything it shows lies in its bundle; what may be said to it on a
// command line asks for a word about itself.
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

#include "app/product.h"
#include "content/bundle.h"
#include "host/qt/qt_desktop.h"
#include "host/qt/qt_instance.h"
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

constexpr const char* kHelp =
    "Usage: quillmere\n"
    "A reader of advice for people who write for the screen and the stage.\n\n"
    "  --help     shows this and ends\n"
    "  --version  shows the version and ends\n\n"
    "F1 in the window shows the keys.\n";

// The exit status, if the arguments ask for nothing but words or make no sense.
std::optional<int> Answered(int argc, char** argv) {
  if (argc < 2) return std::nullopt;
  const std::string argument = argv[1];
  if (argument == "--version") {
    std::puts("Quillmere " QUILL_VERSION);
    return 0;
  }
  if (argument == "--help" || argument == "-h") {
    std::fputs(kHelp, stdout);
    return 0;
  }
  // The toolkit has arguments of its own, which begin with one dash.
  if (argument.rfind("--", 0) != 0 && argument.front() == '-') return std::nullopt;
  std::fprintf(stderr, "quillmere: there is no argument \"%s\"; --help tells of those there are\n",
               argument.c_str());
  return 2;
}

// Why the windows stay empty, for those who start it from a terminal.
void TellOfMissingBundle() {
  const auto folder = quill::host::GetFolderItem("");
  if (!folder || quill::content::BundleContents()) return;
  std::fprintf(stderr, "quillmere: there is no %s/%s in %s\n", quill::content::kBundleFolder,
               quill::content::kContentsFolder, folder->Path().c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (const std::optional<int> status = Answered(argc, argv)) return *status;
  if (!quill::host::HasDisplay()) {
    std::fputs("quillmere: there is no display to open a window on\n", stderr);
    return 1;
  }
  quill::host::Instance instance("quillmere");
  if (instance.IsSecond()) return 0;
  quill::host::QtDesktop desktop(argc, argv, quill::app::Quillmere());
  desktop.Heed(instance);
  TellOfMissingBundle();
  return Read(desktop);
}
