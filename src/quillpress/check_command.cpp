// `quillpress check`: opens all content files as the reader does and tells what is
// wrong with them.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "authoring/check/checker.h"
#include "quillpress/commands.h"
#include "quillpress/data_view.h"
#include "quillpress/workplace.h"

namespace quill::quillpress {
namespace {

// To a terminal: to the line's begin, and clear what stands there.
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

// In a real bundle the folder of the other documents is known by itself.
authoring::CheckResult Check(const CheckArguments& arguments) {
  RequireFolder(arguments.data);
  if (!arguments.documents.empty()) RequireFolder(arguments.documents);
  const Workplace workplace(BundleView(arguments.data, arguments.documents));
  const Progress progress;
  authoring::CheckOptions options;
  options.documents_known = !arguments.documents.empty() || IsInBundle(arguments.data);
  options.progress = [&progress](const std::string& file) { progress.Show(file); };
  return authoring::Check(options, std::cerr);
}

ExitStatus RunCheck(const CheckArguments& arguments) {
  const authoring::CheckResult result = Check(arguments);
  if (!result.report) return result.unreadable ? kCannotRun : kRefused;
  (arguments.format == "json" ? authoring::WriteJson : authoring::WriteText)(*result.report, std::cout);
  return result.report->findings.empty() ? kDone : kRefused;
}

}  // namespace

void AddCheckCommand(CLI::App& app, Action& action) {
  auto* const command = app.add_subcommand(
      "check", "Opens all content files as the reader does and tells what is wrong with them");
  const auto arguments = std::make_shared<CheckArguments>();
  command->add_option("DATA", arguments->data, "the folder of the content files")->required();
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
      "Example: quillpress check Quillmere.app/Contents/Data");
  command->callback([arguments, &action] { action = [arguments] { return RunCheck(*arguments); }; });
}

}  // namespace quill::quillpress
