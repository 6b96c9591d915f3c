// The commands that look at content and leave it as it is, and the build, which
// makes it from a manuscript.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "app/mode_table.h"
#include "host/qt/qt_files.h"
#include "host/text_converter.h"
#include "main/program.h"
#include "markup/container.h"
#include "markup/text_helpers.h"
#include "quillpress/area.h"
#include "quillpress/build_command.h"
#include "quillpress/checker.h"
#include "quillpress/commands.h"
#include "quillpress/complaint.h"
#include "quillpress/data_view.h"
#include "quillpress/workplace.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr const char* kClearLine = "\r\033[K";

struct CheckArguments {
  std::string data;
  std::string documents;
  std::string format = "text";
};

// Names the file under way on the terminal's last line; silent in a pipe.
class Progress {
 public:
  ~Progress() {
    if (on_terminal_) std::cerr << kClearLine << std::flush;
  }
  void Show(const std::string& file) const {
    if (on_terminal_) std::cerr << kClearLine << "checking " << file << std::flush;
  }

 private:
  const bool on_terminal_ = isatty(STDERR_FILENO) != 0;
};

void RequireFolder(const std::string& path) {
  std::error_code error;
  if (!fs::is_directory(path, error)) throw Complaint(path + " is no folder.");
}

std::optional<Report> ReportOn(const CheckArguments& arguments) {
  RequireFolder(arguments.data);
  if (!arguments.documents.empty()) RequireFolder(arguments.documents);
  const Workplace workplace(BundleView(arguments.data, arguments.documents));
  const Progress progress;
  CheckOptions options;
  options.documents_known = !arguments.documents.empty() || IsInBundle(arguments.data);
  options.progress = [&progress](const std::string& file) { progress.Show(file); };
  return Check(options, std::cerr);
}

int RunCheck(const CheckArguments& arguments) {
  std::optional<Report> report;
  try {
    report = ReportOn(arguments);
  } catch (const Complaint& complaint) {
    std::cerr << "quillpress: " << complaint.what() << "\n";
  }
  if (!report) return kNotRun;
  (arguments.format == "json" ? WriteJson : WriteText)(*report, std::cout);
  return report->findings.empty() ? kDone : kFailed;
}

// Markup in the form of a terminal: lines end as they do there. What isn't ASCII
// stands in it as references.
std::string ForTerminal(std::string markup) {
  std::replace(markup.begin(), markup.end(), '\r', '\n');
  if (!markup.ends_with('\n')) markup += '\n';
  return markup;
}

int RunShow(const std::string& file, const std::string& path) {
  const Workplace workplace(nullptr);
  const auto item = host::DiskItem(file);
  if (!item->OpenAsBinaryFile()) throw Complaint(file + " can't be read.");
  std::unique_ptr<const markup::zkXMLContainer> container;
  try {
    container = std::make_unique<const markup::zkXMLContainer>(item);
  } catch (const std::exception&) {
    throw Complaint(file + " holds no well-formed markup.");
  }
  if (path.empty()) {
    std::cout << ForTerminal(container->GetXMLString());
    return kDone;
  }
  const auto element = container->GetDeepElement(path);
  if (!element) throw Complaint(file + " has no element at the path " + path + ".");
  std::cout << ForTerminal(element->GetXMLString());
  return kDone;
}

struct SnapshotArguments {
  std::string data;
  std::int32_t mode = 0;
  std::vector<std::int32_t> pages;
  std::string output;
};

// Opens the files as the viewer will, so that it is known beforehand that it can.
void RequirePages(const SnapshotArguments& arguments) {
  const app::Mode& mode = app::kModes.at(static_cast<std::size_t>(arguments.mode));
  for (const auto name : {app::kModes[0].content_file, app::kModes[0].glossary_file, mode.glossary_file}) {
    if (!OpenFile(std::string(name))) throw Complaint(CannotOpen(std::string(name)) + ".");
  }
  const std::string name(mode.content_file);
  const auto opened = OpenFile(name);
  if (!opened) throw Complaint(CannotOpen(name) + ".");
  for (const std::int32_t page : arguments.pages) {
    if (!opened->document->GetPage(page))
      throw Complaint(name + " has no page " + std::to_string(page) + ".");
  }
}

int RunSnapshot(const SnapshotArguments& arguments) {
  RequireFolder(arguments.data);
  Workplace workplace(BundleView(arguments.data));
  RequirePages(arguments);
  Program program;
  nav::DisplayWindow& viewer = program.DisplayWindow();
  if (arguments.mode != app::kOpeningMode || !arguments.pages.empty()) viewer.ChooseMode(arguments.mode);
  for (const std::int32_t page : arguments.pages) viewer.ShowPage(std::to_string(page));
  if (!workplace.Desktop().SaveScreen(viewer, arguments.output))
    throw Complaint(arguments.output + " can't be written.");
  return kDone;
}

}  // namespace

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

void AddCheckCommand(CLI::App& app, Action& action) {
  auto* const command = app.add_subcommand(
      "check", "Opens all content files as the reader does and tells what is wrong with them");
  const auto arguments = std::make_shared<CheckArguments>();
  command->add_option("DATA", arguments->data, "the folder of the twelve content files")->required();
  command->add_option("--format", arguments->format, "text: a line for each finding; json: one object")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  command
      ->add_option("--documents", arguments->documents,
                   "the folder of the documents that lie outside the bundle; unless given, \"Data\" beside\n"
                   "the bundle that DATA lies in")
      ->type_name("DIR");
  command->footer(
      "A finding names file, page, column and link, and a reason. At the end stands a line for each area.\n"
      "Exit status: 0 nothing found, 1 something found, 2 could not run.\n"
      "Example: quillpress check Quillmere.app/Contents/Data");
  command->callback([arguments, &action] { action = [arguments] { return RunCheck(*arguments); }; });
}

void AddShowCommand(CLI::App& app, Action& action) {
  struct Arguments {
    std::string file;
    std::string path;
  };
  auto* const command = app.add_subcommand("show", "Prints a file, or the element that a path leads to");
  const auto arguments = std::make_shared<Arguments>();
  command->add_option("FILE", arguments->file, "the file")->required();
  command->add_option("PATH", arguments->path,
                      "names parted by points, each with its number, and an attribute and its value, in\n"
                      "parentheses if need be; numbers count from 1, so that page 7 is Page(8)");
  command->footer("Example: quillpress show ScreenQMR.xml 'Root.Document.Page(8).Links.Link(2)'");
  command->callback(
      [arguments, &action] { action = [arguments] { return RunShow(arguments->file, arguments->path); }; });
}

void AddSnapshotCommand(CLI::App& app, Action& action) {
  auto* const command =
      app.add_subcommand("snapshot", "Writes a picture of a page as the reader shows it, without a display");
  const auto arguments = std::make_shared<SnapshotArguments>();
  command->add_option("DATA", arguments->data, "the folder of the twelve content files")->required();
  command
      ->add_option("--mode", arguments->mode,
                   "the area: 0 opening page, 1 Screen, 2 Stage, 3 TV, 4 WGA, 5 Bio")
      ->required()
      ->check(CLI::Range(0, 5));
  command
      ->add_option("--page", arguments->pages,
                   "the page; of several the last is shown, with the others in its trail. Unless given, the\n"
                   "one on which the area opens")
      ->allow_extra_args(false)
      ->check(CLI::NonNegativeNumber)
      ->type_name("N");
  command->add_option("-o,--output", arguments->output, "the picture to write")
      ->required()
      ->type_name("OUT.png");
  command->footer("Example: quillpress snapshot Data --mode 1 --page 3 --page 7 -o page7.png");
  command->callback([arguments, &action] { action = [arguments] { return RunSnapshot(*arguments); }; });
}

}  // namespace quill::quillpress
