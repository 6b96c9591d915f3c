#include "markup/end_tag_search.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

TEST(EndTagSearch, AgreesWithPlainSearches) {
  const std::vector<std::string> of_names = {"</", "<", "/", "a", "A", "b"};
  const std::vector<std::string> of_texts = {"</", "</", "<", "/", "a", "A", "b", ">", " "};
  std::mt19937 random(11);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = tests::RandomText(random, of_texts, 30);
    EndTagSearch search;
    EndTagIndex index(text);
    bool all_follow = true;
    std::vector<std::string> names(1 + random() % 2);
    for (std::string& name : names) {
      name = tests::RandomText(random, of_names, 1 + random() % 3) + (random() % 3 == 0 ? ">" : "");
      const std::size_t from = random() % 20;
      const bool follows = base::InStr(from + 1, text, "</" + name) > 0;
      ASSERT_EQ(index.Follows(name, from), follows) << name << " from " << from << " in " << text;
      search.Require(name, from);
      all_follow = all_follow && follows;
    }
    ASSERT_EQ(search.AllFollow(text), all_follow) << text << ", first name " << names[0];
  }
}

}  // namespace
}  // namespace quill::markup
