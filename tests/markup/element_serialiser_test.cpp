#include <gtest/gtest.h>

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
      {{"<a></a><b>]]></b>", R"("<a/><b>]]&amp;amp;gt;</b>")"},
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

}  // namespace
}  // namespace quill::markup
