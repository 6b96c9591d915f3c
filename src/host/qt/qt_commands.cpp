#include "host/qt/qt_commands.h"

#include <algorithm>

namespace quill::host {
namespace {

using Keys = std::vector<QKeySequence>;

// Keys that belong to no command: they move the focus, or press what has it.
struct KeyInWords {
  const char* keys;
  const char* text;
};
constexpr KeyInWords kFocusKeys[] = {
    {"Tab, Shift+Tab", "To the next link, to the one before"},
    {"Arrows", "To the nearest link on that side"},
    {"Letters", "To the next link with a word that begins so"},
    {"Enter, Space", "Follow the link"},
    {"Escape", "Close the glossary, the notes or Find"},
};

QString Line(const QString& keys, const QString& text) {
  return QStringLiteral("<tr><td style='padding-right:18px'><b>%1</b></td><td>%2</td></tr>")
      .arg(keys.toHtmlEscaped(), text.toHtmlEscaped());
}

QString Names(const Keys& keys) {
  return keys.empty() ? QString() : keys.front().toString(QKeySequence::NativeText);
}

}  // namespace

const std::vector<CommandRow>& Commands() {
  static const std::vector<CommandRow> commands = {
      {Command::kFind, "Find...", Keys{Qt::CTRL | Qt::Key_F, QKeySequence::Find}, true},
      {Command::kCopy, "Copy page", Keys{QKeySequence::Copy}, true},
      {Command::kPrint, "Print page...", Keys{QKeySequence::Print}, true},
      {Command::kLarger, "Larger",
       Keys{Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal, Qt::CTRL | Qt::SHIFT | Qt::Key_Plus}, true},
      {Command::kSmaller, "Smaller", Keys{Qt::CTRL | Qt::Key_Minus}, true},
      {Command::kActualSize, "Actual size", Keys{Qt::CTRL | Qt::Key_0}, true},
      {Command::kFullScreen, "Full screen", Keys{Qt::Key_F11}, true},
      {Command::kHighContrast, "High contrast", Keys{Qt::Key_F2}, false},
      {Command::kKeys, "Keys", Keys{Qt::Key_F1}, true},
      {Command::kQuit, "Quit", Keys{Qt::CTRL | Qt::Key_Q, QKeySequence::Quit}, true},
      {Command::kBack, "One page back", Keys{Qt::ALT | Qt::Key_Left, Qt::Key_Back}, false},
      {Command::kHome, "To the opening page", Keys{Qt::Key_Home}, false},
      {Command::kSave, "Save the notes", Keys{QKeySequence::Save, Qt::CTRL | Qt::Key_S}, false},
      {Command::kClose, "Close the glossary, the notes or Find", Keys{Qt::CTRL | Qt::Key_W, Qt::Key_Escape},
       false},
  };
  return commands;
}

// The keypad's keys are the same keys. A desktop may have no key for some standard
// command, which is then no key at all.
Command CommandOf(const QKeyEvent& event) {
  if (event.key() == 0 || event.key() == Qt::Key_unknown) return Command::kNone;
  const QKeySequence pressed(
      QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
  for (const CommandRow& row : Commands()) {
    if (std::find(row.keys.begin(), row.keys.end(), pressed) != row.keys.end()) return row.command;
  }
  return Command::kNone;
}

QString KeysInWords() {
  QString lines;
  for (const KeyInWords& row : kFocusKeys) lines += Line(QLatin1String(row.keys), QLatin1String(row.text));
  for (const CommandRow& row : Commands()) lines += Line(Names(row.keys), QLatin1String(row.text));
  lines += Line(QStringLiteral("Ctrl+wheel"), QStringLiteral("Larger, smaller"));
  return QStringLiteral("<table>") + lines + QStringLiteral("</table>");
}

}  // namespace quill::host
