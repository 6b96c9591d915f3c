#include "markup/parser.h"

#include <gtest/gtest.h>

#include "host/memory/memory_desktop.h"
#include "markup/container.h"
#include "markup/exceptions.h"
#include "support/tree_dump.h"

namespace quill::markup {
namespace {

constexpr const char* kRefused = "parsing exception";

std::string Parsed(const std::string& text, bool relaxed) {
  try {
    const zkXMLContainer container(text, relaxed);
    return tests::DumpContent(container);
  } catch (const zkXMLParsingException&) {
    return kRefused;
  }
}

struct ParserCase {
  const char* text;
  const char* expected;
};

class ParserTest : public testing::Test {
 protected:
  template <std::size_t N>
  void Expect(const ParserCase (&cases)[N], bool relaxed) {
    for (const ParserCase& c : cases) {
      EXPECT_EQ(Parsed(c.text, relaxed), c.expected) << tests::Quoted(c.text) << " relaxed " << relaxed;
    }
  }

  host::MemoryDesktop desktop_;
};

TEST_F(ParserTest, ReadsTheSameInBothSettings) {
  const ParserCase cases[] = {
      {"", ""},
      {"x", ""},  // a last single character is never looked at
      {"xy", R"("xy")"},
      {"<a/>\n", "a"},
      {"<a/>\n\n", R"(a "\n\n")"},
      {"<a>b</a>x", R"(a["b"])"},
      {"<a>b</a>xy", R"(a["b"] "xy")"},
      {"<a>x</A><B></b>", R"(a["x"] B)"},
      {"< a ></a>", "a"},
      {"<a b=\"1\"/><a b='<'></a>", "a{b=1} a{b=<}"},
      {"<a b=\"1>2\"></a>", kRefused},  // the tag ends inside the value
      {"<><c/></>xy", R"([c] "xy")"},
      {"<a/></>the rest is not read", "a"},
      {"<a>1<!--c-->2<![cdata[<&amp;]]>3<?p?>4</a>",
       R"(a["1" Comment"c" "2" CDATA"<&amp;" "3" Processing Instruction"p" "4"])"},
      {"<!--><a>-->", R"(Comment"><a>")"},
      {"<!--->", kRefused},
      {"<?xml encoding='UTF-8'?><a>\xE9</a>", R"(Processing Instruction"xml encoding='UTF-8'" a["\x8E"])"},
      {"<!DOCTYPE x [<!ENTITY y \"z\">]><a/>", R"(!DOCTYPE"x [<!ENTITY y "z">]" a)"},
      {"<!a ]>[>", R"(!a"]>[")"},
      {"<!>xx", R"(!"" "xx")"},
      {"<!a [>", kRefused},
      {"<!a", kRefused},
      {"<!--a", kRefused},
      {"<![CDATA[a]]", kRefused},
      {"<?a", kRefused},
      {"<a", kRefused},
      {"<a b></a>", kRefused},
      {"</a>", kRefused},
  };
  Expect(cases, false);
  Expect(cases, true);
}

TEST_F(ParserTest, StrictAsksForAnEndTagSomewhereBehind) {
  const ParserCase cases[] = {
      {"<a>x", kRefused},
      {"<a>x</b>", kRefused},
      {"<a><b></a></b>", kRefused},
      {"<a></ a>", kRefused},
      {"<a b=1/>", kRefused},
      {"<a><a></a>", R"(a[a] "")"},  // both found the one end tag
      {"<a><b><a></a></b>", R"(a[b[a]] "")"},
      {"<a>xx<!--</A>-->", R"(a["xx" Comment"</A>"] "")"},  // so does a commented one
      {"<!--</a>--><a>xx", kRefused},                       // but not one before
      {"<a></a >", kRefused},                               // the key is "</a>"
      {"<a></a ><!--</a>-->", R"(a Comment"</a>")"},
      {"<a b=\"1\"></a >", "a{b=1}"},  // the key is "</a"
      {"<a ></a >", "a"},
      {"<a b='1'><ab></ab>", R"(a{b=1}[ab] "")"},
      {"<a\tb=\"1\"></a>", kRefused},  // the key is the whole tag
      {"<a\tb=\"1\"></a><!--</a\tb=\"1\">-->", R"(a{b=1} Comment"</a\tb="1">")"},
      {"<a\n></a>", kRefused},
      {"<a></a ></>xx", kRefused},  // asked for, though the document ends early
  };
  Expect(cases, false);
}

TEST_F(ParserTest, RelaxedLetsElementsGiveWay) {
  const ParserCase cases[] = {
      {"<p>one<br>two</p>", R"(p["one" br "two"])"},
      {"<a><b>x</a>", R"(a[b "x"])"},
      {"<a><b>1<c d=1>2<e/></a>34", R"(a[b "1" c{d=1} "2" e] "34")"},
      {"<a><b>x</c></a>", kRefused},
      {"<a>xy", R"(a["xy"] "")"},
      {"<a>x", R"(a "")"},
      {"<a><b><c>", R"(a[b[c ""] ""] "")"},  // one empty section for each level above
      {"<a></a ><b\tc=1></b>", "a b{c=1}"},
      {"<a b=1/><a b=x/y/>", "a{b=1} a{b=x/y}"},
      {"<a><b>x</>", R"(a b "x")"},
  };
  Expect(cases, true);
}

std::string Repeated(const char* text, std::size_t count) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += text;
  return result;
}

TEST_F(ParserTest, NestsAsDeepAsItSays) {
  const std::string deepest = Repeated("<a>", kMaxOpenElements) + Repeated("</a>", kMaxOpenElements);
  const zkXMLContainer container(deepest);
  std::size_t depth = 0;
  for (auto element = container.GetElement(1); element; element = element->GetElement(1)) ++depth;
  EXPECT_EQ(depth, kMaxOpenElements);

  EXPECT_THROW(zkXMLContainer("<a>" + deepest + "</a>"), host::StackOverflowException);
  EXPECT_THROW(zkXMLContainer(Repeated("<a>", 1000000) + "</a>"), host::StackOverflowException);
  EXPECT_THROW(zkXMLContainer(Repeated("<a>", 1000000), true), host::StackOverflowException);
  EXPECT_TRUE(desktop_.messages.empty());
  EXPECT_EQ(Parsed(Repeated("<a>", 1000000), false), kRefused) << "the missing end tag comes first";
}

// Each of these took time with the square of its length, or worse, if the parser
// did in the plain way what it has to do.
TEST_F(ParserTest, HostileTextsAreQuick) {
  std::string odd;
  std::string answers;
  for (int i = 0; i < 30000; ++i) {
    const std::string name = "n" + std::to_string(i);
    odd += "<" + name + "></" + name + " >";
    answers += "</" + name + ">";
  }
  EXPECT_NE(Parsed(odd + "<!--" + answers + "-->", false), kRefused);

  const std::string swallowed = Repeated("<b>", 9000) + Repeated("<i/>", 200000);
  EXPECT_EQ(zkXMLContainer("<a>" + swallowed + "</a>", true).GetElement(1)->ContentCount(), 209000);
  EXPECT_EQ(Parsed(swallowed + "</" + Repeated("long", 200000) + ">", true), kRefused);
  EXPECT_EQ(Parsed("<![" + Repeated(">", 300000), false), kRefused);
}

}  // namespace
}  // namespace quill::markup
