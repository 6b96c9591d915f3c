// The commands of the tool: each function here adds one to the command line, with
// its arguments and its help, and says what it does when it is chosen.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace quill::quillpress {

// The exit statuses of the process, for all commands.
enum ExitStatus : int {
  kDone = 0,
  kRefused = 1,    // something was found, or what was given is refused
  kCannotRun = 2,  // bad arguments; a file isn't there, or can't be read or written
};
inline constexpr const char* kStatuses =
    "Exit status: 0 done, 1 something found or refused, 2 could not run.";

// What the chosen command does; returns the exit status. Throws
// `authoring::Complaint`.
using Action = std::function<ExitStatus()>;

// Both arguments must outlive the parsing of the command line, which sets `action`.
void AddBuildCommand(CLI::App& app, Action& action);
void AddCheckCommand(CLI::App& app, Action& action);
void AddShowCommand(CLI::App& app, Action& action);
void AddPageCommands(CLI::App& app, Action& action);
void AddLinkCommands(CLI::App& app, Action& action);
void AddSnapshotCommand(CLI::App& app, Action& action);

}  // namespace quill::quillpress
