// The fixture of tests that parse. Message boxes that a test doesn't take fail it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/memory/memory_desktop.h"
#include "markup/container.h"
#include "support/texts.h"

namespace quill::markup {

struct MarkupTest : testing::Test {
  void TearDown() override { EXPECT_EQ(TakeMessages(), std::vector<std::string>()) << "nobody asked for"; }

  std::vector<std::string> TakeMessages() { return std::exchange(desktop_.messages, {}); }

  // What the document that `make` makes holds, `kRefused` if there is none.
  template <typename Make>
  std::string Parsed(const Make& make) {
    const std::string dump = tests::DumpOrRefused([&] { return tests::DumpContent(make()); });
    EXPECT_EQ(TakeMessages().size(), dump == tests::kRefused ? 2u : 0u) << dump;
    return dump;
  }

  host::MemoryDesktop desktop_;
};

}  // namespace quill::markup
