#include "markup/nodes.h"

#include <gtest/gtest.h>

#include "markup/numeric_references.h"
#include "markup/text_helpers.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::ExpectEach;
using tests::Quoted;

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

std::string SplitDeclaration(const std::string& text) {
  const zkXMLDeclaration declaration(text);
  return declaration.GetName() + "|" + declaration.GetData();
}

TEST(Nodes, TakeTheirText) {
  ExpectEach(TextSetTo, {{"a&amp;\r\n]]>y", "a&amp;\r\n]]>y", "not decoded"},
                         {"]]&gt;", "]]>", "can't be told from a guard"}});
  ExpectEach(DataOf<zkXMLCDataSection>, {{"&amp;\xE9\r\n]]]>", "&amp;\xE9\r\n]]]>"}});
  ExpectEach(DataOf<zkXMLComment>,
             {{"a---b", "a-b"}, {"a---", "a"}, {"----", ""}, {"-a-b", "-a-b"}, {"", ""}});
  ExpectEach(DataOf<zkXMLPInstruction>, {{"t ?> ?>", "t ?> ?>"}, {"a?&gt;b ?&gt;", "a?>b ?>"}, {"", ""}});
  ExpectEach(SplitDeclaration, {{"DOCTYPE \n x y", "DOCTYPE|x y"},
                                {"FOO ", "FOO|FOO ", "nothing behind the first word: all is the data"},
                                {" FOO", "|FOO"},
                                {" ", "| "}});
}

std::string TextWritten(const std::string& plain) {
  zkXMLTextSection section("");
  section.SetData(plain);
  return section.GetXMLString();
}

std::string ValueWritten(const std::string& plain) { return zkXMLAttribute(" a b ", plain).GetXMLString(); }

// In the program \x8E is an accented e (\xE9 in a file), \xA5 a bullet (none in a file).
TEST(Nodes, EscapeInTwoLayers) {
  ExpectEach(TextWritten, {{"<'\">", "&amp;lt;&apos;&quot;&amp;gt;"},
                           {"a]]>b", "a]]&amp;amp;gt;b", "the guard is text like other text"},
                           {"a\n\t\r\nb", "a\r\t\r\rb"},
                           {"\x8E\n\t", "&amp;#233;&amp;#10;&amp;#9;", "no line break beside an accent"},
                           {"&#65;", "&amp;amp;#65;"}});
  ExpectEach(ValueWritten, {{"it's ^\"", "ab=\"its \""},
                            {"a\rb\nc", "ab=\"a b\nc\""},
                            {"<&>", "ab=\"&amp;lt;&amp;amp;&amp;gt;\""},
                            {"\xE9\r^", "ab=\"&amp;#233;&amp;#13;\""}});
}

// Written and read again.
std::string TextBack(const std::string& plain) { return zkXMLTextSection(TextWritten(plain)).GetText(); }

TEST(TextSection, ComesBackBarAFewLosses) {
  for (const char* const text :
       {"a&b<c>d'e\"f", "]]>", "]]]]>>", "&amp;", "&amp;amp;", "&#65;", "&#233; \x8E", " \n\t ",
        "\x01\x1F\x7F", "\x8E\n\t\x01'\"<&", "--?>-->", "&#", "&;", ""}) {
    EXPECT_EQ(Quoted(TextBack(text)), Quoted(text));
  }
  ExpectEach(TextBack, {{"&lt;&gt;&quot;&apos;", "<>\"'", "entities that the text spells"},
                        {"a\rb\r\nc", "a\nb\n\nc"},
                        {"\x8E\r\xA5", "\x8E\n*"},
                        {std::string("\x8E\0", 2), "\x8E&#0;"}});
}

TEST(TextHelpers, Decodes) {
  ExpectEach(DecodeXMLText,
             {{"&#65;&#x41;&#0;&#-5;&#65", "A&#x41;&#0;&#-5;&#65", "decimal, positive and closed"},
              {"&#38;#7;&#7&#65;", "\x07&#7&#65;", "one behind the cursor goes: text is skipped"},
              {"&amp;lt;&amp;amp;", "<&amp;", "ampersands first, though one layer only"},
              {"&amp;#233;", "\x8E", "numbers see what the ampersands uncovered"},
              {"&#8211;&#9999;", "-?", "codes above the character set"},
              {"&apos;&quot; & &nbsp; &", "&apos;&quot; & &nbsp; &", "not this layer's business"}});
}

TEST(TextHelpers, Encodes) {
  ExpectEach(EncodeXMLText,
             {{"a<b>&\t\n", "a&lt;b&gt;&amp;\t\n", "pure ASCII keeps its control characters"},
              {"\xA9\t\xA3\x01", "\xA9\t\xA3\x01", "so does text that is the same in both encodings"},
              {"\x8E\t\xA3&\x7F", "&#233;&#9;&#163;&amp;&#127;", "with one foreign character they go too"}});
}

using tests::Repeated;

std::string Replaced(std::string text) {
  ReplaceNumericReferences(text);
  return text;
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
