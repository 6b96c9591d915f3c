// The signals with which a session ends a program.
#pragma once

#include <QObject>
#include <functional>

namespace quill::host {

// While it lives, SIGTERM, SIGINT and SIGHUP don't end the process: the event
// loop calls `ended` instead, once for each or for several. So do SIGPIPE and SIGXFSZ
// that another process sends; those that a write of our own brings do nothing more
// than fail the write. One at a time.
class SessionSignals final : public QObject {
 public:
  explicit SessionSignals(std::function<void()> ended);
  ~SessionSignals() override;

 private:
  void Take();

  std::function<void()> ended_;
};

}  // namespace quill::host
