#include "markup/end_tag_search.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

TEST(EndTagSearch, AgreesWithPlainSearches) {
  const std::vector<std::string> pieces = {"<", "/", "/", "a", "A", "b", ">"};
  std::mt19937 random(11);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = tests::RandomText(random, pieces, 30);
    EndTagSearch search;
    bool expected = true;
    std::vector<std::string> names(1 + random() % 3);
    for (std::string& name : names) {
      name = tests::RandomText(random, pieces, random() % 4);
      const std::size_t from = random() % 20;
      search.Require(name, from);
      expected = expected && base::InStr(from + 1, text, "</" + name) > 0;
    }
    ASSERT_EQ(search.AllFollow(text), expected) << text << ", first name " << names[0];
  }
}

}  // namespace
}  // namespace quill::markup
