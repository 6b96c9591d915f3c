#include "markup/element.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "base/exceptions.h"
#include "markup/container.h"
#include "markup/text_helpers.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::ExpectEach;
using tests::Quoted;

std::string Dump(const std::shared_ptr<zkXMLElement>& element) {
  return element ? tests::DumpTree(*element) : "null";
}

// Where the settings differ: what the strict one makes of it, then the other.
std::string ReadTag(const std::string& tag) {
  const auto read = [&](bool relaxed) {
    return tests::DumpOrRefused([&] { return Dump(std::make_shared<zkXMLElement>(tag, relaxed)); });
  };
  return read(false) == read(true) ? read(false) : read(false) + ", relaxed " + read(true);
}

TEST(Element, ReadsStartTags) {
  ExpectEach(ReadTag, {{"a\n\tb=\"1\" c='2'", "a{b=1 c=2}"},
                       {"a\vb c=\"\"", "a\vb{c=}", "white space is four characters"},
                       {"a b=\"1\"c=\"2\"", "a{b=1}", "what follows a quote goes, up to white space"},
                       {"a b=\"1\"x c=\"2\"", "a{b=1 c=2}"},
                       {"a b c =\"1\"", "a{b c =1}", "a name goes on up to the equals sign"},
                       {"a b=\"'=<\" c='\"'", "a{b='=< c=\"}"},
                       {"a b=\"&amp;amp;&lt;&apos;&#233;\r\n\"", "a{b=&<&apos;\x8E\r\n}", "quotes stay"},
                       {"a b=\"1", "refused"},
                       {"a b=\"1\" c", "refused"},
                       {"a b= \"c=1\"", "refused, relaxed a{b= \"c=1\"}"},
                       {"a b=", "refused, relaxed a{b=}"},
                       {"a b=1\"2 c='3' d=4", "refused, relaxed a{b=1\"2 c=3 d=4}"}});
}

// A literal 0 would be taken for a null pointer to text.
template <typename Node>
concept TakesZero = requires(Node& node) {
  node.SetData(0);
}
|| requires(Node& node) { node.SetAttribute("x", 0); };
template <typename... Nodes>
constexpr bool kNoneTakesZero = !(TakesZero<Nodes> || ...);
template <typename Attribute>
concept IsMadeOfZero = requires {
  Attribute("x", 0);
};
static_assert(kNoneTakesZero<zkXMLObject, zkXMLElement, zkXMLContainer, zkXMLAttribute, zkXMLTextSection,
                             zkXMLCDataSection, zkXMLComment, zkXMLPInstruction, zkXMLDeclaration>);
static_assert(!IsMadeOfZero<zkXMLAttribute> && !std::is_constructible_v<zkXMLAttribute, const char*, int>);

std::shared_ptr<zkXMLElement> Child(const char* tag) { return std::make_shared<zkXMLElement>(tag); }

TEST(Element, CountsWhatFitsFromOne) {
  const zkXMLContainer parent("t1<Page n='1'/><![CDATA[c]]><page n='2' n='x'/><Other m=''/>t2<PAGE N='2'/>");
  EXPECT_EQ(Dump(parent.GetElement("page", 3)), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement(3)), "Other{m=}");
  EXPECT_EQ(Dump(parent.GetElement("page", 2, "n", "2")), "PAGE{N=2}");
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "n", "X")), "page{n=2 n=x}") << "any attribute of that name";
  EXPECT_EQ(Dump(parent.GetElement("page", 1, "m")), "null");
  EXPECT_EQ(parent.ElementCount() * 10 + parent.ElementCount("page"), 43);
  EXPECT_EQ(parent.GetTextSection(2)->GetText(), "t2") << "a CDATA section is passed over";
  for (const std::int32_t number : {0, -1, 5}) EXPECT_EQ(Dump(parent.GetElement(number)), "null") << number;
  std::int32_t entry = -7;
  EXPECT_EQ(parent.GetElementAndIndex("none", entry), nullptr);
  EXPECT_EQ(entry, -7);
  EXPECT_EQ(Dump(parent.GetElementAndIndex("other", entry)), "Other{m=}");
  EXPECT_EQ(entry, 5);
}

TEST(Element, ChangesItsLists) {
  zkXMLElement element("e b='1' B='2'");
  element.AddObject(Child("y"));
  element.InsertObject(Child("x"), 1);
  element.InsertObject(Child("z"), 3);
  element.InsertObject(std::make_shared<zkXMLAttribute>("a", "0"), 1);
  element.SetAttribute("B", "&lt;");
  element.SetAttribute("d", "4");
  EXPECT_EQ(tests::DumpTree(element), "e{a=0 b=< B=2 d=4}[x y z]");
  element.RemoveContent(2);
  element.RemoveAttribute("B");
  element.RemoveAttribute(1);
  EXPECT_EQ(tests::DumpTree(element), "e{B=2 d=4}[x z]");

  EXPECT_EQ(element.GetContent(0), nullptr);
  for (const std::int32_t outside : {-1, 3}) {
    EXPECT_THROW(element.GetContent(outside), base::OutOfBoundsException);
    EXPECT_THROW(element.RemoveContent(outside), base::OutOfBoundsException);
    EXPECT_THROW(element.InsertObject(Child("y"), outside + 1), base::OutOfBoundsException);
  }
  EXPECT_THROW(CastToXMLElement(std::make_shared<zkXMLComment>("c")), base::IllegalCastException);
}

TEST(Element, DepthIsNoMatterOfTheStack) {
  const auto held = Child("held");
  held->AddObject(Child("inner"));
  auto root = held;
  for (int depth = 0; depth < 300000; ++depth) {
    const auto outer = Child("e");
    outer->AddObject(std::exchange(root, outer));
  }
  EXPECT_EQ(root->GetXMLString().size(), 2100000 + std::string("<held><inner/></held>").size());
  root.reset();
  EXPECT_EQ(Dump(held), "held[inner]") << "what somebody holds outlives its tree";
}

TEST(PathQuery, WalksDownStepByStep) {
  const zkXMLContainer tree(
      "<r><d n='0'/><d><Page n='1'><a.b><c n='2'/></a.b></Page><Page n='3' Type=''/><page n='4' type='a.b'/>"
      "<Page n='5' TYPE='a)b'/><f(x) n='6'/><\\ n='7'/><\\. n='8'/></d></r>");
  const auto found = [&](const std::string& path) {
    const std::shared_ptr<zkXMLElement> element = tree.GetDeepElement(path);
    return element ? element->GetAttribute("n")->GetValue() : "null";
  };
  const auto below = [&](const std::string& path) { return found("R.d(2)." + path); };

  ExpectEach(found, {{"r.D", "0"},
                     {"r.d.Page", "null", "the first d has none, and no other is tried"},
                     {"", "null", "one step with an empty name"},
                     {"r.", "null"}});
  ExpectEach(below, {{"Page()", "1"},
                     {"PAGE( 2 )ignored", "3"},
                     {"Page(2", "3", "what nothing closes goes to the end of the step"},
                     {"Page(", "1"},
                     {"Page(x)", "null", "no number is 0"},
                     {"Page( )", "null", "one argument, though a blank one"},
                     {"Page( 3 , Type )", "5"},
                     {"Page(4,Type)", "null", "one past the last"},
                     {"Page(1,Type,)", "3", "an empty value"},
                     {"Page(1,Type,a\\.b,x)", "4", "an escape in an argument, and a fourth one"},
                     {"Page.a\\.b.c", "2"},
                     {"f\\(x\\)(1)", "6"},
                     {"\\\\", "7"},
                     {"\\\\.", "8", "the dot is escaped before the backslash can be"}});
}

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
  ExpectEach(
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
  ExpectEach(
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
