#include <gtest/gtest.h>

#include <utility>

#include "markup/container.h"
#include "markup/text_helpers.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::Quoted;

// The toolkit's settings are its process's: every test leaves them as they were.
struct Serialiser : testing::Test {
  ~Serialiser() override {
    Format(false);
    zkXMLToolkitGlobals::zkXMLLineDelimiter.clear();
    zkXMLToolkitGlobals::zkXMLIndentationChar.clear();
  }
  static void Format(bool formatting) { zkXMLToolkitGlobals::UseXMLFormatting = formatting; }
};

std::string Rewritten(const std::string& markup) { return Quoted(zkXMLContainer(markup).GetXMLString()); }

// Formatting would add to the text before an element, with every round.
TEST_F(Serialiser, WithoutFormattingWhatWasWrittenIsWrittenAgainAsItWas) {
  tests::ExpectEach(
      [](const std::string& markup) {
        const std::string once = zkXMLContainer(markup).GetXMLString();
        EXPECT_EQ(Rewritten(once), Quoted(once)) << Quoted(markup);
        return Quoted(once);
      },
      {{"<a></a>", R"("<a/>")"},
       {"<?xml version='1.0'?>\n<!doctype x [<!y>]>\r\n<!-- c -->\r<a> <![CDATA[&amp;\n]]>\t</a>\n\n",
        R"("<?xml version='1.0'?>\r<!DOCTYPE x [<!y>]>\r<!-- c -->\r<a> <![CDATA[&amp;\n]]>\t</a>\r\r")"},
       {"<!FOO><!FOO ><a/>", R"("<! FOO><!FOO FOO ><a/>")", "a declaration of one word"},
       {"<A b ='1' c=\"\" C='x'/>", R"("<A b="1" c="" C="x"/>")", "blanks leave a name, order stays"},
       {"<a b='^\r&amp;\"'>&lt;\r\n'&#1;<!--x--> ]]>\xE9\n&#0;</a>",
        "\"<a b=\" &amp;amp;\">&amp;lt;\\r&apos;\\x01<!--x--> "
        "]]&amp;amp;gt;&amp;#233;&amp;#10;&amp;amp;#0;</a>\""}});
}

TEST_F(Serialiser, WithFormattingIndents) {
  Format(true);
  tests::ExpectEach(
      Rewritten,
      {{"<Root><Doc a='1'> <Page>Hi</Page>\n</Doc></Root>",
        R"("<Root>\r\t<Doc a="1">\r\t\t<Page>Hi</Page>\r\t</Doc>\r</Root>\r")"},
       {"<r><a> \n</a></r>", R"("<r>\r\t<a>\r\t</a>\r</r>\r")", "white space alone is no empty element"},
       {"<r>t<b/> </r><r>t<b/>u</r>", R"("<r>t\r\t<b/>\r</r>\r<r>t\r\t<b/>u</r>\r")", "text starts no line"},
       {"<r><!--c--><?p i?><![CDATA[d]]><!X y></r>",
        R"("<r>\r\t<!--c-->\r\t<?p i?>\r\t<![CDATA[d]]>\r\t<!X y>\r</r>\r")"},
       {"<?p i?> <!--c-->t\n<a/>", R"("<?p i?>\r<!--c-->\rt\r<a/>\r")", "at the top, text ends no line"}});
}

TEST_F(Serialiser, DepthsAndSettings) {
  Format(true);
  zkXMLContainer document("<a><b>t</b><c><d/></c></a>");
  zkXMLElement& a = *document.GetElement(1);
  EXPECT_EQ(Quoted(a.GetXMLString()), R"("<a>\r<b>t</b>\r<c>\r\t<d/>\r</c>\r</a>")") << "-1 is no depth";

  zkXMLToolkitGlobals::zkXMLLineDelimiter = "\n";
  zkXMLToolkitGlobals::zkXMLIndentationChar = "  ";
  EXPECT_EQ(document.GetXMLString(), "<a>\n  <b>t</b>\n  <c>\n    <d/>\n  </c>\n</a>\n");
  SetXMLLineBreakMac();
  a.AddObject(std::make_shared<zkXMLContainer>("<x/>"));
  EXPECT_EQ(Quoted(a.GetXMLString()), R"("<a>\r<b>t</b>\r<c>\r  <d/>\r</c>\r\r</a>")")
      << "a document inside an element";
}

std::string TextWritten(const std::string& plain) {
  zkXMLTextSection section("");
  section.SetData(plain);
  return section.GetXMLString();
}

std::string ValueWritten(const std::string& plain) { return zkXMLAttribute(" a b ", plain).GetXMLString(); }

// In the program \x8E is an accented e (\xE9 in a file), \xA5 a bullet (none in a file).
TEST_F(Serialiser, EscapesInTwoLayers) {
  tests::ExpectEach(TextWritten,
                    {{"a&b", "a&amp;amp;b"},
                     {"<'\">", "&amp;lt;&apos;&quot;&amp;gt;"},
                     {"a]]>b", "a]]&amp;amp;gt;b", "the guard is text like other text"},
                     {"a\n\t\r\nb", "a\r\t\r\rb"},
                     {"\x8E\n\t", "&amp;#233;&amp;#10;&amp;#9;", "no line break beside an accent"},
                     {"&#65;\x7F", "&amp;amp;#65;\x7F"}});
  tests::ExpectEach(ValueWritten, {{"it's ^\"", "ab=\"its \""},
                                   {"a\rb\nc", "ab=\"a b\nc\""},
                                   {"<&>", "ab=\"&amp;lt;&amp;amp;&amp;gt;\""},
                                   {"\xE9\r^", "ab=\"&amp;#233;&amp;#13;\""}});
}

// Written and read again.
std::string TextBack(const std::string& plain) { return zkXMLTextSection(TextWritten(plain)).GetText(); }

TEST_F(Serialiser, TextComesBackBarAFewLosses) {
  for (const char* const text :
       {"a&b<c>d'e\"f", "]]>", "]]]]>>", "&amp;", "&amp;amp;", "&#65;", "&#233; \x8E", " \n\t ",
        "\x01\x1F\x7F", "\x8E\n\t\x01'\"<&", "--?>-->", "&#", "&;", ""}) {
    EXPECT_EQ(Quoted(TextBack(text)), Quoted(text));
  }
  tests::ExpectEach(TextBack, {{"&lt;&gt;&quot;&apos;", "<>\"'", "entities that the text spells"},
                               {"a\rb\r\nc", "a\nb\n\nc"},
                               {"\x8E\r\xA5", "\x8E\n*"},
                               {std::string("\x8E\0", 2), "\x8E&#0;"}});
}

TEST_F(Serialiser, DepthIsNoMatterOfTheStack) {
  auto root = std::make_shared<zkXMLElement>("e");
  for (int depth = 1; depth < 300000; ++depth) {
    const auto outer = std::make_shared<zkXMLElement>("e");
    outer->AddObject(std::exchange(root, outer));
  }
  EXPECT_EQ(root->GetXMLString().size(), 299999 * 7 + 4u);
}

}  // namespace
}  // namespace quill::markup
