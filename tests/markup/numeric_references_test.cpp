#include "markup/numeric_references.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "base/text.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::Repeated;

std::string Replaced(std::string text) {
  ReplaceNumericReferences(text);
  return text;
}

// The rule as it reads, with no thought of time.
std::string ReplacedNaively(std::string text) {
  for (std::size_t start = 0;;) {
    const std::size_t found = text.find("&#", start);
    if (found == std::string::npos) return text;
    const std::size_t semicolon = text.find(';', found + 2);
    if (semicolon == std::string::npos) return text;
    const std::int32_t number = base::IntVal(text.substr(found + 2, semicolon - found - 2));
    if (number > 0) text = base::Replace(text, "&#" + base::Str(number) + ";", base::Chr(number));
    start = found + 1;
  }
}

TEST(NumericReferences, AgreeWithTheRule) {
  const std::vector<std::string> characters = {"&", "&", "#", ";", ";", "0", "1", "2", "3",
                                               "4", "5", "6", " ", "9", "a", "-", "e", "."};
  // References that decode to parts of references: & is 38, # 35, ; 59, 0 to 6
  // are 48 to 54.
  const std::vector<std::string> parts = {"&#38;",  "&#35;", "&#59;", "&#54;",        "&#53;",
                                          "&#065;", "&#65;", "&#",    "#65;",         "65;",
                                          "5;",     ";",     "x",     "&#2147483647;"};
  std::mt19937 random(7);
  for (std::size_t round = 0; round < 20000; ++round) {
    for (const auto& pieces : {characters, parts}) {
      const std::string text = tests::RandomText(random, pieces, 4 + round % 20);
      ASSERT_EQ(Replaced(text), ReplacedNaively(text)) << text;
    }
  }
}

TEST(NumericReferences, LongTextsAreQuick) {
  const int count = 200000;
  const std::string made = Repeated("&#38;#65;", count);  // the last ones replace what these make
  const std::string tail = Repeated("&#65;", count);
  const std::string unread = Repeated("&#x", count);
  EXPECT_EQ(Replaced(tail), std::string(count, 'A'));
  EXPECT_EQ(Replaced(unread + ";&#65;").substr(unread.size()), ";A");
  EXPECT_EQ(Replaced("&#065;" + unread + ";").size(), unread.size() + 7);
  EXPECT_LT(Replaced(made + tail).size(), made.size() + tail.size());
}

}  // namespace
}  // namespace quill::markup
