#include "host/qt/qt_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace quill::host {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP, SIGPIPE, SIGXFSZ};

// A handler may do next to nothing, but it may write: what goes in here at the
// second end comes out at the first, where the event loop watches.
std::array<int, 2> wake = {-1, -1};

void Wake(int signal, siginfo_t* info, void* /*context*/) {
  const bool by_a_write = (signal == SIGPIPE || signal == SIGXFSZ) && info->si_pid == getpid();
  if (by_a_write) return;
  const int kept = errno;
  const char byte = 0;
  [[maybe_unused]] const auto written = write(wake[1], &byte, 1);
  errno = kept;
}

// A signal that whoever started the program has it ignore stays ignored. A handler,
// other than ignoring, isn't handed down to the programs that open documents.
void TakeSignals() {
  for (const int signal : kSignals) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_sigaction = Wake;
    action.sa_flags = SA_RESTART | SA_SIGINFO;
    sigaction(signal, &action, nullptr);
  }
}

void GiveSignalsBack() {
  for (const int signal : kSignals) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if ((action.sa_flags & SA_SIGINFO) != 0 && action.sa_sigaction == Wake) std::signal(signal, SIG_DFL);
  }
}

}  // namespace

// Without a pipe the signals keep their ways.
SessionSignals::SessionSignals(std::function<void()> ended) : ended_(std::move(ended)) {
  if (pipe2(wake.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* const notifier = new QSocketNotifier(wake[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { Take(); });
  TakeSignals();
}

SessionSignals::~SessionSignals() {
  if (wake[0] < 0) return;
  GiveSignalsBack();
  for (int& end : wake) close(std::exchange(end, -1));
}

void SessionSignals::Take() {
  std::array<char, 16> bytes = {};
  while (read(wake[0], bytes.data(), bytes.size()) > 0) continue;
  ended_();
}

}  // namespace quill::host
