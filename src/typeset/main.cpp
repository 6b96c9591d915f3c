// Sets a document as a PDF file, for the build and without a display:
//
//   quillmere-typeset IN.md OUT.pdf
//
// The document is Markdown and begins with its title, "# Title".
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "host/qt/qt_desktop.h"
#include "typeset/pdf.h"

namespace {

std::optional<std::string> FileText(const char* path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || !(text << file.rdbuf())) return std::nullopt;
  return text.str();
}

// The words of the heading that `markdown` begins with; empty without one.
std::string TitleOf(const std::string& markdown) {
  return markdown.rfind("# ", 0) == 0 ? markdown.substr(2, markdown.find('\n') - 2) : "";
}

int Fail(const char* what, const char* path) {
  std::fprintf(stderr, "quillmere-typeset: %s %s\n", what, path);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: quillmere-typeset IN.md OUT.pdf\n", stderr);
    return 2;
  }
  const std::optional<std::string> markdown = FileText(argv[1]);
  if (!markdown) return Fail("can't read", argv[1]);
  const std::string title = TitleOf(*markdown);
  if (title.empty()) return Fail("there is no title at the head of", argv[1]);
  quill::host::QtDesktop::Options options;
  options.messages = quill::host::QtDesktop::Messages::kStandardError;
  options.screen = quill::host::QtDesktop::Screen::kNone;
  const quill::host::QtDesktop desktop(argc, argv, {}, options);
  return quill::typeset::WritePdf(*markdown, title, argv[2]) ? 0 : Fail("can't write", argv[2]);
}
