#include "markup/text_helpers.h"

#include <gtest/gtest.h>

namespace quill::markup {
namespace {

TEST(TextHelpers, WhiteSpaceIsFourCharacters) {
  for (const char* const white : {" ", "\t", "\n", "\r"}) EXPECT_TRUE(IsWhiteSpaceChar(white));
  for (const char* const other : {"", "  ", "\v", "\f", "\xA0", "a"}) EXPECT_FALSE(IsWhiteSpaceChar(other));

  EXPECT_EQ(WhiteSpaceInStr("ab\tc d"), 3u);
  EXPECT_EQ(WhiteSpaceInStr("ab\tc d", 4), 5u);
  EXPECT_EQ(WhiteSpaceInStr("ab ", 4), 0u) << "start behind the end";
  EXPECT_EQ(WhiteSpaceInStr(""), 0u);
  EXPECT_EQ(NonWhiteSpaceInStr("  a b", 4), 5u);
  EXPECT_EQ(NonWhiteSpaceInStr("  "), 0u);
}

struct TextCase {
  const char* story;
  const char* text;
  const char* expected;
};

TEST(TextHelpers, Decodes) {
  const TextCase cases[] = {
      {"plain", "abc", "abc"},
      {"a decimal reference", "&#65;", "A"},
      {"two of a kind", "&#65;&#65;", "AA"},
      {"hexadecimal, zero and negative stay", "&#x41;&#0;&#-5;", "&#x41;&#0;&#-5;"},
      {"leading zero: the plain spelling occurs nowhere", "&#065;", "&#065;"},
      {"leading zero: the plain spelling follows", "&#065;x&#65;", "&#065;xA"},
      {"no semicolon ends the scan", "&#65", "&#65"},
      {"a made reference is behind the cursor", "&#38;#65;", "&#65;"},
      {"the next like it replaces the made one", "&#38;#65; &#65;", "A &#65;"},
      {"ampersand first, so a double escape comes out whole", "&amp;lt;", "<"},
      {"one layer only", "&amp;amp;", "&amp;"},
      {"numbers see what the ampersands uncovered", "&amp;#233;", "\x8E"},
      {"a raw byte is converted", "\xE9", "\x8E"},
      {"a code above the character set", "&#8211;&#9999;", "-?"},
      {"quotes are not this layer's business", "&apos;&quot;", "&apos;&quot;"},
      {"bare ampersands stay", "a & b &nbsp; &", "a & b &nbsp; &"},
  };
  for (const TextCase& c : cases) EXPECT_EQ(DecodeXMLText(c.text), c.expected) << c.story << ": " << c.text;
}

TEST(TextHelpers, Encodes) {
  const TextCase cases[] = {
      {"escapes", "a<b>&", "a&lt;b&gt;&amp;"},
      {"pure ASCII keeps its control characters", "a\tb\n", "a\tb\n"},
      {"one foreign character, and control characters go too", "\x8E\tb", "&#233;&#9;b"},
      {"delete is a control character", "\x8E\x7F", "&#233;&#127;"},
      {"the references themselves stay", "\x8E&", "&#233;&amp;"},
  };
  for (const TextCase& c : cases) EXPECT_EQ(EncodeXMLText(c.text), c.expected) << c.story;
}

}  // namespace
}  // namespace quill::markup
