#include "quillpress/build_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "authoring/manuscript/manuscript_reader.h"
#include "authoring/press/press.h"
#include "host/qt/qt_files.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGlossaryEnd = "_glossary";

// The manuscript beside another; none if it isn't there.
std::optional<authoring::Manuscript> ReadNeighbour(const fs::path& manuscript, const std::string& stem) {
  const auto text =
      host::ReadWhole(*host::DiskItem(manuscript.parent_path() / (stem + manuscript.extension().string())));
  return text ? std::optional(authoring::ReadManuscript(*text)) : std::nullopt;
}

authoring::Diagnostics ByLine(authoring::Diagnostics diagnostics) {
  std::stable_sort(
      diagnostics.begin(), diagnostics.end(),
      [](const authoring::Diagnostic& a, const authoring::Diagnostic& b) { return a.line < b.line; });
  return diagnostics;
}

// The bytes of the content file; none, with the diagnostics told, if there are any.
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

bool IsSameFile(const fs::path& a, const fs::path& b) {
  std::error_code error;
  return fs::equivalent(a, b, error);
}

bool WriteFile(const fs::path& path, const std::string& bytes) {
  const auto file = host::DiskItem(path)->CreateSharedFile();
  if (!file) return false;
  file->Write(bytes);
  return file->Close();
}

}  // namespace

ExitStatus Build(const fs::path& manuscript, const fs::path& output, std::ostream& errors) {
  const auto text = host::ReadWhole(*host::DiskItem(manuscript));
  if (!text) {
    errors << manuscript.string() << ": can't be read\n";
    return kCannotRun;
  }
  if (IsSameFile(manuscript, output)) {
    errors << output.string() << ": this is the manuscript itself; nothing was written\n";
    return kCannotRun;
  }
  authoring::Diagnostics diagnostics;
  const auto bytes = Typeset(manuscript, *text, diagnostics);
  for (const authoring::Diagnostic& diagnostic : ByLine(diagnostics))
    errors << manuscript.string() << ":" << diagnostic.line << ": " << diagnostic.sentence << "\n";
  if (!bytes) return kRefused;
  if (WriteFile(output, *bytes)) return kDone;
  errors << output.string() << ": can't be written\n";
  return kCannotRun;
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
