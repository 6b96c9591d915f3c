#include "host/qt/qt_documents.h"

#include <QProcess>
#include <QStandardPaths>

namespace quill::host {
namespace {

// Path of the program for that creator code, empty if there is none.
QString ProgramFor(const std::string& creator) {
  const QString companion =
      creator == "QLD7" ? QStandardPaths::findExecutable(QStringLiteral("qld7")) : QString();
  return companion.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("xdg-open")) : companion;
}

}  // namespace

bool StartApplication(const std::string& creator, const std::string& path) {
  const QString program = ProgramFor(creator);
  if (program.isEmpty()) return false;
  QProcess process;
  process.setProgram(program);
  process.setArguments({QString::fromStdString(path)});
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return process.startDetached();
}

}  // namespace quill::host
