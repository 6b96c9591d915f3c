#include "app/destination.h"

#include <gtest/gtest.h>

#include <array>

#include "base/numbers.h"

namespace quill::app {
namespace {

// What a link with that target and the file "f" opens, in words.
std::string Opened(Modes modes, std::size_t mode, std::int32_t type, const std::string& target) {
  constexpr std::array kKinds = {"nothing", "page", "entry", "notes", "document", "mode"};
  const Destination destination = DestinationOf(modes, modes[mode], type, target, "f");
  std::string opened = kKinds.at(static_cast<std::size_t>(destination.kind));
  if (!destination.name.empty()) opened += " " + destination.name;
  if (destination.kind == Destination::Kind::kMode) opened += " " + base::Str(destination.mode);
  if (destination.page) opened += " page " + base::Str(*destination.page);
  return opened;
}

struct Case {
  std::size_t mode;
  std::int32_t type;
  std::string target, opened;
};

TEST(DestinationTest, IsOneRuleForEveryMode) {
  const Case rows[] = {{0, 0, "5", "mode 5"},
                       {0, 0, "6", "mode 6"},
                       {0, 0, "99", "mode 99"},
                       {0, 0, "99.9", "mode 99"},
                       {0, 0, "100", "mode 5 page 0"},
                       {0, 0, "112", "mode 5 page 12"},
                       {0, 0, "1e99", "mode 5 page 2147483647"},
                       {0, 0, "-1", "mode -1"},
                       {0, 0, "x", "mode 0"},
                       {0, 1, "3", "mode 3"},
                       {0, 4, "3", "mode 3"},
                       {0, 9, "3", "mode 3"},
                       {1, 0, "7", "page 7"},
                       {1, 0, "0", "notes"},
                       {1, 0, "00", "page 00"},
                       {2, 0, "0", "page 0"},
                       {5, 0, "112", "page 112"},
                       {1, 1, "0", "entry 0"},
                       {4, 9, "0", "document f"},
                       {1, 2, "7", "nothing"},
                       {1, 3, "7", "nothing"},
                       {1, 8, "7", "nothing"},
                       {1, 10, "7", "nothing"},
                       {1, 99, "7", "nothing"},
                       {1, -1, "7", "nothing"}};
  for (const Case& row : rows) {
    EXPECT_EQ(Opened(kModes, row.mode, row.type, row.target), row.opened)
        << row.mode << " " << row.type << " " << row.target;
  }
  EXPECT_EQ(Opened(Modes(kModes).first(5), 0, 0, "112"), "mode 112") << "no mode is chosen by page";
}

}  // namespace
}  // namespace quill::app
