// Texts for tests: tables of them, and long ones.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/tree_dump.h"

namespace quill::tests {

struct TextCase {
  std::string text;
  std::string expected;
  const char* story = "";
};

// Compares what `function` makes of each text; a failure shows text and story.
template <typename Function>
void ExpectEach(const Function& function, std::initializer_list<TextCase> cases) {
  for (const TextCase& c : cases)
    EXPECT_EQ(function(c.text), c.expected) << Quoted(c.text.substr(0, 200)) << " " << c.story;
}

inline std::string Repeated(const std::string& text, std::size_t count) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += text;
  return result;
}

}  // namespace quill::tests
