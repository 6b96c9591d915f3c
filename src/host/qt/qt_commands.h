// The desktop's own commands: what a user may ask of any window without the
// program's knowing. One table of them, for the keys, the menu and the help.
#pragma once

#include <QKeyEvent>
#include <QString>
#include <vector>

namespace quill::host {

enum class Command {
  kNone,
  kFind,
  kCopy,
  kPrint,
  kLarger,
  kSmaller,
  kActualSize,
  kFullScreen,
  kHighContrast,
  kKeys,
  kQuit,
  kBack,
  kHome,
  kSave,
  kClose,
};

struct CommandRow {
  Command command;
  const char* text;  // in the menu and the help
  std::vector<QKeySequence> keys;
  bool in_menu;
};

const std::vector<CommandRow>& Commands();

// The command of a key; `kNone` for any other key.
Command CommandOf(const QKeyEvent& event);

// All keys, for people to read: a line each.
QString KeysInWords();

}  // namespace quill::host
