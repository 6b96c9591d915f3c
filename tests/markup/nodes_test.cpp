#include "markup/nodes.h"

#include <gtest/gtest.h>

namespace quill::markup {
namespace {

TEST(TextSection, DecodesRawText) {
  const struct {
    const char* story;
    const char* raw;
    const char* expected;
  } cases[] = {
      {"one layer", "a&amp;b", "a&b"},
      {"two layers, as the writer makes them", "a&amp;amp;b", "a&b"},
      {"an escaped escape reads as one", "&amp;lt;", "<"},
      {"three layers leave one", "&amp;amp;amp;", "&amp;"},
      {"quotes", "&apos;&quot;&amp;quot;", "'\"\""},
      {"line ends", "a\r\nb\rc\nd\r\r\ne", "a\nb\nc\nd\n\ne"},
      {"a referenced carriage return", "a&#13;b", "a\nb"},
      {"long enough to be read in blocks, special at the end", "0123456789012345678901234567890123456789&lt;",
       "0123456789012345678901234567890123456789<"},
      {"accent in the second block", "0123456789012345678901234567890123456789\xE9",
       "0123456789012345678901234567890123456789\x8E"},
  };
  for (const auto& c : cases) EXPECT_EQ(zkXMLTextSection(c.raw).GetText(), c.expected) << c.story;
}

TEST(TextSection, GuardsWithoutDecoding) {
  zkXMLTextSection section("x");
  section.SetData("x]]>y");
  EXPECT_EQ(section.GetText(), "x]]>y");
  section.SetData("x]]&gt;y");
  EXPECT_EQ(section.GetText(), "x]]>y") << "the guard can't be told from such a text";
  section.SetData("a&amp;\r\n");
  EXPECT_EQ(section.GetText(), "a&amp;\r\n");
  section.SetName("other");
  EXPECT_EQ(section.GetName(), "Text");
}

TEST(TextSection, KnowsWhiteSpace) {
  EXPECT_TRUE(zkXMLTextSection("").IsWhiteSpace());
  EXPECT_TRUE(zkXMLTextSection(" \t\n\r").IsWhiteSpace());
  EXPECT_FALSE(zkXMLTextSection(" \v").IsWhiteSpace());
}

TEST(CDataSection, KeepsTheBytesOfTheFile) {
  EXPECT_EQ(zkXMLCDataSection("&amp;\xE9\r\n").GetData(), "&amp;\xE9\r\n");
  EXPECT_EQ(zkXMLCDataSection("]]]>").GetData(), "]]]>");
}

TEST(Comment, LosesDashes) {
  const std::pair<const char*, const char*> cases[] = {{"a--b", "a-b"}, {"a---b", "a-b"}, {"a-", "a"},
                                                       {"a---", "a"},   {"----", ""},     {"-a-b", "-a-b"},
                                                       {"", ""}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(zkXMLComment(text).GetData(), expected) << text;
}

TEST(PInstruction, GuardsBehindItsTarget) {
  for (const char* const text : {"xml version='1'", "t ?> ?>", "?>", "a?>b c", ""}) {
    EXPECT_EQ(zkXMLPInstruction(text).GetData(), text);
  }
  EXPECT_EQ(zkXMLPInstruction("t ?&gt;").GetData(), "t ?>");
}

TEST(Declaration, SplitsItsText) {
  const struct {
    const char* text;
    const char* type;
    const char* data;
  } cases[] = {
      {"DOCTYPE \n x y", "DOCTYPE", "x y"},
      {"FOO", "", "FOO"},
      {"FOO ", "FOO", "FOO "},
      {" FOO", "", "FOO"},
      {"", "", ""},
      {" ", "", " "},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(zkXMLDeclaration(c.text).GetName(), c.type) << c.text;
    EXPECT_EQ(zkXMLDeclaration(c.text).GetData(), c.data) << c.text;
  }
}

TEST(Attribute, DecodesEveryValue) {
  zkXMLAttribute attribute("a b", "&amp;amp;&lt;&apos;&#233;\r\n");
  EXPECT_EQ(attribute.GetName(), "a b");
  EXPECT_EQ(attribute.GetValue(), "&<&apos;\x8E\r\n") << "quotes and line ends stay";
  attribute.SetData("&amp;");
  EXPECT_EQ(attribute.GetData(), "&");
}

}  // namespace
}  // namespace quill::markup
