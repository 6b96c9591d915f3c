#include "quillpress/build_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "authoring/complaint.h"
#include "authoring/manuscript/manuscript_reader.h"
#include "authoring/press/press.h"
#include "host/qt/qt_files.h"
#include "quillpress/output_file.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGlossaryEnd = "_glossary";

// The text of a manuscript. Throws `FileComplaint` if it can't be read.
std::string ReadText(const fs::path& path) {
  auto text = host::ReadWhole(*host::DiskItem(path));
  if (!text) throw authoring::FileComplaint(path.string() + ": can't be read");
  return std::move(*text);
}

// The manuscript beside another; none if it isn't there. Throws as `ReadText` does.
std::optional<authoring::Manuscript> ReadNeighbour(const fs::path& manuscript, const std::string& stem) {
  const fs::path path = manuscript.parent_path() / (stem + manuscript.extension().string());
  if (!host::DiskItem(path)->Exists()) return std::nullopt;
  return authoring::ReadManuscript(ReadText(path));
}

// The press finds what is wrong in its own order; an author reads from the top.
authoring::Diagnostics ByLine(authoring::Diagnostics diagnostics) {
  std::stable_sort(
      diagnostics.begin(), diagnostics.end(),
      [](const authoring::Diagnostic& a, const authoring::Diagnostic& b) { return a.line < b.line; });
  return diagnostics;
}

// The bytes of the content file; none if there are `diagnostics`. Throws as `ReadText`
// does.
std::optional<std::string> Typeset(const fs::path& path, const std::string& text,
                                   authoring::Diagnostics& diagnostics) {
  const authoring::Manuscript manuscript = authoring::ReadManuscript(text);
  const std::string stem = path.stem().string();
  diagnostics = manuscript.diagnostics;
  if (diagnostics.empty() && stem.ends_with(kGlossaryEnd))
    diagnostics = authoring::DiagnoseGlossary(manuscript);
  if (!diagnostics.empty()) return std::nullopt;
  const auto glossary = ReadNeighbour(path, stem + std::string(kGlossaryEnd));
  const auto lives = ReadNeighbour(path, "bio");
  return authoring::Press(manuscript, {glossary ? &*glossary : nullptr, lives ? &*lives : nullptr},
                          diagnostics);
}

}  // namespace

ExitStatus Build(const fs::path& manuscript, const fs::path& output, std::ostream& errors) {
  try {
    const std::string text = ReadText(manuscript);
    if (IsSameFile(manuscript, output))
      throw authoring::FileComplaint(output.string() +
                                     ": this is the manuscript itself; nothing was written");
    authoring::Diagnostics diagnostics;
    const auto bytes = Typeset(manuscript, text, diagnostics);
    for (const authoring::Diagnostic& diagnostic : ByLine(diagnostics))
      errors << manuscript.string() << ":" << diagnostic.line << ": " << diagnostic.sentence << "\n";
    if (!bytes) return kRefused;
    if (!WriteFile(output, *bytes)) throw authoring::FileComplaint(output.string() + ": can't be written");
    return kDone;
  } catch (const authoring::FileComplaint& complaint) {
    errors << complaint.what() << "\n";
    return kCannotRun;
  }
}

void AddBuildCommand(CLI::App& app, Action& action) {
  struct Arguments {
    std::string manuscript;
    std::string output;
  };
  auto* const command = app.add_subcommand("build", "Typesets a manuscript into a content file");
  const auto arguments = std::make_shared<Arguments>();
  command->add_option("MANUSCRIPT", arguments->manuscript, "the manuscript, in CommonMark and UTF-8")
      ->required();
  command->add_option("-o,--output", arguments->output, "the content file to write")
      ->required()
      ->type_name("FILE.xml");
  command->footer("Example: quillpress build data/manuscripts/screen.md -o ScreenQMR.xml");
  command->callback([arguments, &action] {
    action = [arguments] { return Build(arguments->manuscript, arguments->output, std::cerr); };
  });
}

}  // namespace quill::quillpress
