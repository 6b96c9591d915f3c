// The authors' tool. The reader has no command line; this is where those who write
// its content work. Here stands which exit status each kind of failure has.
#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "quillpress/commands.h"

namespace {

using namespace quill::quillpress;

constexpr const char* kAbout =
    "Builds, checks, searches, shows and changes the content files of Quillmere.\n"
    "\"quillpress COMMAND --help\" tells all about a command.";

int Tell(const std::exception& error, const char* before, ExitStatus status) {
  std::cerr << "quillpress: " << before << error.what() << "\n";
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app(kAbout, "quillpress");
  app.footer(kStatuses);
  app.require_subcommand(1);
  Action action;
  AddBuildCommand(app, action);
  AddCheckCommand(app, action);
  AddShowCommand(app, action);
  AddPageCommands(app, action);
  AddLinkCommands(app, action);
  AddIndexCommand(app, action);
  AddSearchCommand(app, action);
  AddSnapshotCommand(app, action);
  try {
    app.parse(argc, argv);
    return action();
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kCannotRun;
  } catch (const quill::authoring::FileComplaint& complaint) {
    return Tell(complaint, "", kCannotRun);
  } catch (const ArgumentComplaint& complaint) {
    return Tell(complaint, "", kCannotRun);
  } catch (const quill::authoring::Complaint& complaint) {
    return Tell(complaint, "", kRefused);
  } catch (const std::exception& error) {
    return Tell(error, "it has to stop: ", kCannotRun);
  }
}
