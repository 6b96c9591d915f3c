// The commands of the tool: each function here adds one to the command line, with
// its arguments and its help, and says what it does when it is chosen. What is done
// is the authoring floors' business; a command knows arguments, files and what to
// tell on which stream.
#pragma once

#include <functional>

#include "authoring/complaint.h"

namespace CLI {
class App;
}

namespace quill::quillpress {

// The exit statuses of the process, for all commands. A script may take 1 for the
// author's to mend, and 2 for its own.
enum ExitStatus : int {
  kDone = 0,
  kRefused = 1,    // something was found, or what was given is refused
  kCannotRun = 2,  // bad arguments; a file isn't there, or can't be read or written
};
inline constexpr const char* kStatuses =
    "Exit status: 0 done, 1 something found or refused, 2 could not run.";

// Arguments that don't go together, where the command line's own rules can't say so.
class ArgumentComplaint : public authoring::Complaint {
 public:
  using Complaint::Complaint;
};

// What the chosen command does; returns the exit status. Throws
// `authoring::Complaint`: for `FileComplaint` and `ArgumentComplaint` the status is
// `kCannotRun`, for all others `kRefused`.
using Action = std::function<ExitStatus()>;

// Both arguments must outlive the parsing of the command line, which leaves in `action`
// what the chosen command does.
void AddBuildCommand(CLI::App& app, Action& action);
void AddCheckCommand(CLI::App& app, Action& action);
void AddShowCommand(CLI::App& app, Action& action);
void AddPageCommands(CLI::App& app, Action& action);
void AddLinkCommands(CLI::App& app, Action& action);
void AddIndexCommand(CLI::App& app, Action& action);
void AddSearchCommand(CLI::App& app, Action& action);
void AddSnapshotCommand(CLI::App& app, Action& action);

}  // namespace quill::quillpress
