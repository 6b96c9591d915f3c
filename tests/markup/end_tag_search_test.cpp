#include "markup/end_tag_search.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "host/text.h"

namespace quill::markup {
namespace {

TEST(EndTagSearch, AgreesWithPlainSearches) {
  std::mt19937 random(11);
  const auto random_text = [&](std::size_t length) {
    std::string text;
    while (text.size() < length) text += "<//aAb>"[random() % 7];
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string text = random_text(30);
    EndTagSearch search;
    bool expected = true;
    std::vector<std::string> names(1 + random() % 3);
    for (std::string& name : names) {
      name = random_text(random() % 4);
      const std::size_t from = random() % 20;
      search.Require(name, from);
      expected = expected && host::InStr(from + 1, text, "</" + name) > 0;
    }
    ASSERT_EQ(search.AllFollow(text), expected) << text << ", first name " << names[0];
  }
}

}  // namespace
}  // namespace quill::markup
