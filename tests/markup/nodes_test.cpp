#include "markup/nodes.h"

#include <gtest/gtest.h>

#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::ExpectEach;

template <typename Node>
std::string DataOf(const std::string& text) {
  return Node(text).GetData();
}

TEST(TextSection, DecodesRawText) {
  ExpectEach(DataOf<zkXMLTextSection>,
             {{"a&amp;amp;amp;b", "a&amp;b", "two layers, as the writer makes them"},
              {"&amp;amp;lt;", "<", "the second layer begins with the ampersands too"},
              {"&apos;&quot;&amp;amp;quot;", "'\"\"", "quotes come last"},
              {"a\r\nb\rc\nd\r\r\ne", "a\nb\nc\nd\n\ne", "line ends"},
              {"a&#13;b", "a\nb", "a carriage return that was a reference"},
              {std::string(31, 'x') + "\xE9xx", std::string(31, 'x') + "\x8Exx", "at the end of a block"},
              {std::string(32, 'x') + "x\r", std::string(32, 'x') + "x\n", "last of all, behind a block"}});
}

std::string TextSetTo(const std::string& text) {
  zkXMLTextSection section("");
  EXPECT_TRUE(section.IsWhiteSpace()) << "an empty one too";
  section.SetData(text);
  return section.GetText();
}

TEST(Nodes, GuardTheirText) {
  ExpectEach(TextSetTo, {{"a&amp;\r\n]]>y", "a&amp;\r\n]]>y", "not decoded"},
                         {"]]&gt;", "]]>", "can't be told from a guard"}});
  ExpectEach(DataOf<zkXMLCDataSection>, {{"&amp;\xE9\r\n]]]>", "&amp;\xE9\r\n]]]>"}});
  ExpectEach(DataOf<zkXMLComment>,
             {{"a---b", "a-b"}, {"a---", "a"}, {"----", ""}, {"-a-b", "-a-b"}, {"", ""}});
  ExpectEach(DataOf<zkXMLPInstruction>, {{"t ?> ?>", "t ?> ?>"}, {"a?&gt;b ?&gt;", "a?>b ?>"}, {"", ""}});
}

TEST(Declaration, SplitsItsText) {
  ExpectEach(
      [](const std::string& text) {
        return zkXMLDeclaration(text).GetName() + "|" + DataOf<zkXMLDeclaration>(text);
      },
      {{"DOCTYPE \n x y", "DOCTYPE|x y"},
       {"FOO", "|FOO"},
       {"FOO ", "FOO|FOO ", "nothing behind the first word: all is the data"},
       {" FOO", "|FOO"},
       {" ", "| "}});
}

}  // namespace
}  // namespace quill::markup
