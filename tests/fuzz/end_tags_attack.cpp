// The search for many end tags at once against plain searches.
#include <list>

#include "base/text.h"
#include "fuzz/attack.h"
#include "markup/end_tag_search.h"

namespace quill::tests {

void AttackEndTags(std::string_view bytes) {
  const std::string text = TakeText(bytes);
  markup::EndTagSearch search;
  markup::EndTagIndex index(text);
  bool all_follow = true;
  std::list<std::string> names;
  while (!bytes.empty()) {
    const std::size_t from = TakeNumber(bytes, 255);
    std::string& name = names.emplace_back(TakeText(bytes));
    std::erase_if(name, [](char c) { return c == ' ' || c == '>'; });
    if (from % 2 == 1) name += '>';
    if (name.empty()) continue;
    const bool follows = base::InStr(from + 1, text, "</" + name) > 0;
    Require(index.Follows(name, from) == follows, name);
    search.Require(name, from);
    all_follow = all_follow && follows;
  }
  Require(search.AllFollow(text) == all_follow, "all together");
}

}  // namespace quill::tests
