#include "host/qt/qt_instance.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <utility>

#include "base/hash.h"
#include "host/qt/qt_places.h"

namespace quill::host {
namespace {

constexpr int kTries = 100;                   // to reach one that has its name but doesn't listen yet
constexpr useconds_t kBetweenTries = 10'000;  // microseconds
constexpr int kWaiting = 16;                  // that ask at the same time

struct Address {
  sockaddr_un name = {};
  socklen_t length = 0;
};

// The same folder has one name, however it is spelt.
std::string NameOf(const std::string& program) {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::weakly_canonical(ConfigFolder(), error);
  return program + "-" + std::to_string(getuid()) + "-" + std::to_string(base::Hash64(folder.string()));
}

// A first byte of 0 makes the address abstract.
Address AddressOf(const std::string& name) {
  Address address;
  address.name.sun_family = AF_UNIX;
  std::memcpy(address.name.sun_path + 1, name.data(),
              std::min(name.size(), sizeof address.name.sun_path - 1));
  address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  return address;
}

const sockaddr* Bare(const Address& address) { return reinterpret_cast<const sockaddr*>(&address.name); }

bool IsOfThisUser(int connection) {
  ucred peer = {};
  socklen_t size = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

// Binds the address and listens there; -1 with `errno` if that can't be done.
int Hold(const Address& address) {
  const int holder = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (holder < 0) return -1;
  if (bind(holder, Bare(address), address.length) == 0 && listen(holder, kWaiting) == 0) return holder;
  const int kept = errno;
  close(holder);
  errno = kept;
  return -1;
}

enum class Holder { kOurs, kSomebodyElses, kNotListening };

// Asks whoever holds the address to come to the front. One that is too busy to take it
// has been asked often enough.
Holder Ask(const Address& address) {
  const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (connection < 0) return Holder::kSomebodyElses;
  Holder holder = Holder::kNotListening;
  if (connect(connection, Bare(address), address.length) == 0) {
    holder = IsOfThisUser(connection) ? Holder::kOurs : Holder::kSomebodyElses;
  } else if (errno == EAGAIN) {
    holder = Holder::kOurs;
  }
  close(connection);
  return holder;
}

}  // namespace

Instance::Instance(const std::string& program) {
  const Address address = AddressOf(NameOf(program));
  for (int i = 0; i < kTries; ++i) {
    socket_ = Hold(address);
    if (socket_ >= 0 || errno != EADDRINUSE) return;
    const Holder holder = Ask(address);
    is_second_ = holder == Holder::kOurs;
    if (holder != Holder::kNotListening) return;
    usleep(kBetweenTries);
  }
}

Instance::~Instance() {
  if (socket_ >= 0) close(socket_);
}

void Instance::Listen(std::function<void()> raise) {
  if (socket_ < 0) return;
  raise_ = std::move(raise);
  auto* const notifier = new QSocketNotifier(socket_, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { Answer(); });
}

// Several that asked at once get one answer.
void Instance::Answer() {
  bool asked = false;
  for (int connection = 0; (connection = accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
    asked = asked || IsOfThisUser(connection);
    close(connection);
  }
  if (asked) raise_();
}

}  // namespace quill::host
