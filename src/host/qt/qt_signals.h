// The signals with which a session ends a program.
#pragma once

#include <QObject>
#include <functional>

namespace quill::host {

// While it lives, SIGTERM, SIGINT and SIGHUP don't end the process: the event
// loop calls `ended` instead. One at a time.
class SessionSignals final : public QObject {
 public:
  explicit SessionSignals(std::function<void()> ended);
  ~SessionSignals() override;

 private:
  void Take();

  std::function<void()> ended_;
};

}  // namespace quill::host
