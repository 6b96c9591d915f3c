// The authors' tool. The reader has no command line; this is where those who write
// its content work.
#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "quillpress/commands.h"
#include "quillpress/complaint.h"

namespace {

constexpr const char* kAbout =
    "Builds, checks, shows and changes the content files of Quillmere.\n"
    "\"quillpress COMMAND --help\" tells all about a command.";
constexpr const char* kStatuses =
    "Exit status: 0 done, 1 failed (check: something was found), 2 could not run.";

}  // namespace

int main(int argc, char** argv) {
  using namespace quill::quillpress;
  CLI::App app(kAbout, "quillpress");
  app.footer(kStatuses);
  app.require_subcommand(1);
  Action action;
  AddBuildCommand(app, action);
  AddCheckCommand(app, action);
  AddShowCommand(app, action);
  AddPageCommands(app, action);
  AddLinkCommands(app, action);
  AddSnapshotCommand(app, action);
  try {
    app.parse(argc, argv);
    return action();
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kNotRun;
  } catch (const Complaint& complaint) {
    std::cerr << "quillpress: " << complaint.what() << "\n";
  } catch (const std::exception& error) {
    std::cerr << "quillpress: it has to stop: " << error.what() << "\n";
  }
  return kFailed;
}
