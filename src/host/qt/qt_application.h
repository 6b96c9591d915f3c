// The toolkit's application object, with the last resort for exceptions: none
// may travel through the toolkit's own code.
#pragma once

#include <QApplication>
#include <functional>
#include <string>
#include <utility>

namespace quill::host {

class GuardedApplication final : public QApplication {
 public:
  // Told of each exception that an event handler lets out; must not throw.
  using Report = std::function<void(const std::string& what)>;

  GuardedApplication(int& argc, char** argv, Report report)
      : QApplication(argc, argv), report_(std::move(report)) {}

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  Report report_;
};

}  // namespace quill::host
