// The message boxes of a test: each that comes up must be looked at.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/memory/memory_desktop.h"

namespace quill::tests {

// The messages since the last look.
inline std::vector<std::string> TakeMessages(host::MemoryDesktop& desktop) {
  return std::exchange(desktop.messages, {});
}

// Fails the test when this goes and the desktop has messages that nobody took.
// Stands behind the desktop in a fixture, before what may still show some.
class NoUnseenMessages {
 public:
  explicit NoUnseenMessages(host::MemoryDesktop& desktop) : desktop_(desktop) {}
  ~NoUnseenMessages() {
    EXPECT_EQ(desktop_.messages, std::vector<std::string>()) << "nobody looked at these messages";
  }
  NoUnseenMessages(const NoUnseenMessages&) = delete;
  NoUnseenMessages& operator=(const NoUnseenMessages&) = delete;

 private:
  host::MemoryDesktop& desktop_;
};

}  // namespace quill::tests
