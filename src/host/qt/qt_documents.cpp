#include "host/qt/qt_documents.h"

#include <QProcess>
#include <QStandardPaths>

namespace quill::host {
namespace {

// Path of what is to be started, empty if there is nothing.
QString ExecutableFor(const std::string& program) {
  const QString wanted =
      program.empty() ? QString() : QStandardPaths::findExecutable(QString::fromStdString(program));
  return wanted.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("xdg-open")) : wanted;
}

}  // namespace

bool StartApplication(const std::string& program, const std::string& path) {
  const QString executable = ExecutableFor(program);
  if (executable.isEmpty()) return false;
  QProcess process;
  process.setProgram(executable);
  process.setArguments({QString::fromStdString(path)});
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return process.startDetached();
}

}  // namespace quill::host
