#include "host/qt/qt_documents.h"

#include <unistd.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <set>
#include <utility>

namespace quill::host {
namespace {

// An opener that can't do anything with a document says so soon; one that shows it
// may go on for hours, and how it ends then is its own affair.
constexpr qint64 kPatience = 2000;  // milliseconds

// Path of what is to be started, empty if there is nothing.
QString ExecutableFor(const std::string& program) {
  const QString wanted =
      program.empty() ? QString() : QStandardPaths::findExecutable(QString::fromStdString(program));
  return wanted.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("xdg-open")) : wanted;
}

// A process that is watched for as long as it is new. The toolkit would end it
// with its object, so that those that still run are never destroyed.
class Opener final : public QProcess {
 public:
  Opener(const QString& executable, const QString& document,
         std::function<void(const std::string& what)> failed)
      : document_(QFileInfo(document).fileName()), failed_(std::move(failed)) {
    setProgram(executable);
    setArguments({document});
    setStandardInputFile(nullDevice());
    setStandardOutputFile(nullDevice());
    setStandardErrorFile(nullDevice());
    setChildProcessModifier([] { setsid(); });
    connect(this, &QProcess::finished, this, [this] { Finished(); });
  }

  bool Start() {
    age_.start();
    start();
    if (!waitForStarted()) return false;
    Running().insert(this);
    return true;
  }

 private:
  static std::set<Opener*>& Running() {
    static auto* const running = new std::set<Opener*>;
    return *running;
  }

  void Finished() {
    const bool well = exitStatus() == NormalExit && exitCode() == 0;
    if (!well && age_.elapsed() < kPatience) {
      const QString name = QFileInfo(program()).fileName();
      failed_(QStringLiteral("%1 could not open \"%2\".").arg(name, document_).toStdString());
    }
    Running().erase(this);
    deleteLater();
  }

  QString document_;
  std::function<void(const std::string& what)> failed_;
  QElapsedTimer age_;
};

}  // namespace

bool StartApplication(const std::string& program, const std::string& path,
                      std::function<void(const std::string& what)> failed) {
  const QString executable = ExecutableFor(program);
  if (executable.isEmpty()) return false;
  auto opener = std::make_unique<Opener>(executable, QString::fromStdString(path), std::move(failed));
  if (!opener->Start()) return false;
  static_cast<void>(opener.release());  // goes when its process ends
  return true;
}

}  // namespace quill::host
