#include "quillpress/build_command.h"

#include <algorithm>
#include <optional>
#include <string>

#include "host/qt/qt_files.h"
#include "quillpress/manuscript.h"
#include "quillpress/press.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGlossaryEnd = "_glossary";
constexpr int kWritten = 0;
constexpr int kWrong = 1;
constexpr int kFailed = 2;

// The manuscript beside another; none if it isn't there.
std::optional<Manuscript> ReadNeighbour(const fs::path& manuscript, const std::string& stem) {
  const auto text =
      host::ReadWhole(*host::DiskItem(manuscript.parent_path() / (stem + manuscript.extension().string())));
  return text ? std::optional(ReadManuscript(*text)) : std::nullopt;
}

Problems ByLine(Problems problems) {
  std::stable_sort(problems.begin(), problems.end(),
                   [](const Problem& a, const Problem& b) { return a.line < b.line; });
  return problems;
}

// The bytes of the content file; none, with the problems told, if there are any.
std::optional<std::string> Set(const fs::path& path, const std::string& text, Problems& problems) {
  const Manuscript manuscript = ReadManuscript(text);
  const std::string stem = path.stem().string();
  problems = manuscript.problems;
  if (problems.empty() && stem.ends_with(kGlossaryEnd)) problems = FindGlossaryProblems(manuscript);
  if (!problems.empty()) return std::nullopt;
  const auto glossary = ReadNeighbour(path, stem + std::string(kGlossaryEnd));
  const auto lives = ReadNeighbour(path, "bio");
  return Press(manuscript, {glossary ? &*glossary : nullptr, lives ? &*lives : nullptr}, problems);
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

int Build(const fs::path& manuscript, const fs::path& output, std::ostream& errors) {
  const auto text = host::ReadWhole(*host::DiskItem(manuscript));
  if (!text) {
    errors << manuscript.string() << ": can't be read\n";
    return kFailed;
  }
  if (IsSameFile(manuscript, output)) {
    errors << output.string() << ": this is the manuscript itself; nothing was written\n";
    return kFailed;
  }
  Problems problems;
  const auto bytes = Set(manuscript, *text, problems);
  for (const Problem& problem : ByLine(problems))
    errors << manuscript.string() << ":" << problem.line << ": " << problem.sentence << "\n";
  if (!bytes) return kWrong;
  if (WriteFile(output, *bytes)) return kWritten;
  errors << output.string() << ": can't be written\n";
  return kFailed;
}

}  // namespace quill::quillpress
