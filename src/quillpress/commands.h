// The commands of the tool: each function here adds one to the command line, with
// its arguments and its help, and says what it does when it is chosen.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace quill::quillpress {

// What the chosen command does; gives the exit status of the process. Throws
// `Complaint`.
using Action = std::function<int()>;

// Exit statuses. Bad arguments are the third kind, and so is a check that couldn't
// look at everything.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kNotRun = 2;

// Both arguments must outlive the parsing of the command line, which sets `action`.
void AddBuildCommand(CLI::App& app, Action& action);
void AddCheckCommand(CLI::App& app, Action& action);
void AddShowCommand(CLI::App& app, Action& action);
void AddPageCommands(CLI::App& app, Action& action);
void AddLinkCommands(CLI::App& app, Action& action);
void AddSnapshotCommand(CLI::App& app, Action& action);

}  // namespace quill::quillpress
