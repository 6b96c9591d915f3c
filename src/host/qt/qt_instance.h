// One reader for each user and configuration folder: the first one holds a name, and
// whoever is started after it asks it to come to the front.
//
// The name is an address in the kernel's abstract namespace of sockets (unix(7)): it
// goes with the process that holds it, whatever ends that, and leaves no file behind.
#pragma once

#include <QObject>
#include <functional>
#include <string>

namespace quill::host {

class Instance final : public QObject {
 public:
  // Takes the name for this program and user, and the configuration folder in use. Of
  // two at the same instant one gets it. Needs no toolkit yet.
  explicit Instance(const std::string& program);
  ~Instance() override;

  // Whether another one holds the name, and has been asked to come to the front. False
  // too where no name can be had, or somebody else's program sits on it.
  bool IsSecond() const { return is_second_; }

  // From now on calls `raise` when a later one asks. Needs the toolkit.
  void Listen(std::function<void()> raise);

 private:
  void Answer();

  int socket_ = -1;
  bool is_second_ = false;
  std::function<void()> raise_;
};

}  // namespace quill::host
