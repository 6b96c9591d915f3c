#include "markup/parser.h"

#include <chrono>

#include "base/exceptions.h"
#include "markup_test.h"

namespace quill::markup {
namespace {

using tests::kRefused;
using tests::Repeated;

struct ParserTest : MarkupTest {
  std::string Read(const std::string& text, bool relaxed) {
    return Parsed([&] { return zkXMLContainer(text, relaxed); });
  }
  void Expect(bool relaxed, std::initializer_list<tests::TextCase> cases) {
    tests::ExpectEach([&](const std::string& text) { return Read(text, relaxed); }, cases);
  }
};

TEST_F(ParserTest, ReadsTheSameInBothSettings) {
  for (const bool relaxed : {false, true}) {
    Expect(relaxed, {{"", ""},
                     {"x", "", "a last single character is never looked at"},
                     {"<a/>\n\n", R"(a "\n\n")"},
                     {"<a>x</A><B></b>", R"(a["x"] B)"},
                     {"< a ></a>", "a"},
                     {"<><c/></>xy", R"([c] "xy")"},
                     {"<a>1<!--c-->2<![cdata[<&amp;]]>3<?p?>4</a>",
                      R"(a["1" Comment"c" "2" CDATA"<&amp;" "3" Processing Instruction"p" "4"])"},
                     {"<!--><a>-->", R"(Comment"><a>")"},
                     {"<?xml encoding='UTF-8'?><a>\xE9</a>",
                      R"(Processing Instruction"xml encoding='UTF-8'" a["\x8E"])"},
                     {"<!DOCTYPE x [<!ENTITY y \"z\">]><a/>", R"(!DOCTYPE"x [<!ENTITY y "z">]" a)"},
                     {"<!a ]>[>", R"(!a"]>[")"},
                     {"<!>xx", R"(!"" "xx")"},
                     {"<a b=\"1>2\"></a>", kRefused, "the tag ends inside the value"}});
    for (const char* const refused : {"</a>", "<a", "<?a", "<!a [>", "<!--->", "<![CDATA[a]]", "<a b></a>"}) {
      EXPECT_EQ(Read(refused, relaxed), kRefused) << refused;
    }
  }
}

TEST_F(ParserTest, StrictAsksForAnEndTagSomewhereBehind) {
  Expect(false, {{"<a><b></a></b>", kRefused},
                 {"<a></ a>", kRefused},
                 {"<a><a></a>", R"(a[a] "")", "both found the one end tag"},
                 {"<a>xx<!--</A>-->", R"(a["xx" Comment"</A>"] "")", "a commented one will do"},
                 {"<!--</a>--><a>xx", kRefused, "but not one before"},
                 {"<a></a >", kRefused, "the key is </a>"},
                 {"<a></a ><!--</a>-->", R"(a Comment"</a>")"},
                 {"<a b=\"1\"></a >", "a{b=1}", "the key is </a"},
                 {"<a b='1'><ab></ab>", R"(a{b=1}[ab] "")"},
                 {"<a\tb=\"1\"></a>", kRefused, "the key is the whole tag"},
                 {"<a\tb=\"1\"></a><!--</a\tb=\"1\">-->", R"(a{b=1} Comment"</a\tb="1">")"},
                 {"<a></a ></>xx", kRefused, "asked for, though the document ends early"}});
}

TEST_F(ParserTest, RelaxedLetsElementsGiveWay) {
  Expect(true, {{"<p>one<br>two</p>", R"(p["one" br "two"])"},
                {"<a><b>1<c d=1>2<e/></a>34", R"(a[b "1" c{d=1} "2" e] "34")"},
                {"<a><b>x</c></a>", kRefused},
                {"<a><b><c>", R"(a[b[c ""] ""] "")", "one empty section for each level above"},
                {"<a></a ><b\tc=1></b>", "a b{c=1}"},
                {"<a b=x/y/>", "a{b=x/y}"},
                {"<a><b>x</>", R"(a b "x")"}});
}

TEST_F(ParserTest, NestsAsDeepAsItSays) {
  const std::string deepest = Repeated("<a>", kMaxOpenElements) + Repeated("</a>", kMaxOpenElements);
  EXPECT_EQ(zkXMLContainer(deepest).ContentCount(), 1);
  EXPECT_THROW(zkXMLContainer("<a>" + deepest + "</a>"), base::StackOverflowException);
  EXPECT_THROW(zkXMLContainer(Repeated("<a>", 1000000), true), base::StackOverflowException);
  EXPECT_EQ(Read(Repeated("<a>", 1000000), false), kRefused) << "the missing end tag comes first";
}

// Each of these took time with the square of its length, or worse, if the parser
// did in the plain way what it has to do.
TEST_F(ParserTest, HostileTextsAreQuick) {
  const auto start = std::chrono::steady_clock::now();
  std::string odd;
  std::string answers;
  for (int i = 0; i < 30000; ++i) {
    const std::string name = "n" + std::to_string(i);
    odd += "<" + name + "></" + name + " >";
    answers += "</" + name + ">";
  }
  const std::string answered = odd + "<!--" + answers + "-->xx";
  EXPECT_NE(Read(answered, false), kRefused);
  zkXMLContainer fed;
  fed.ParseIncrementally(answered, true);
  EXPECT_EQ(fed.ContentCount(), 30002);
  fed.ParseIncrementally("<q>" + Repeated("<q><p></q>", 60000) + "</q><!--</p>-->xx");
  EXPECT_EQ(fed.UnreadText(), "");

  const std::string swallowed = Repeated("<b>", 9000) + Repeated("<i/>", 200000);
  EXPECT_EQ(zkXMLContainer("<a>" + swallowed + "</a>", true).GetElement(1)->ContentCount(), 209000);
  EXPECT_EQ(Read(swallowed + "</" + Repeated("long", 200000) + ">", true), kRefused);
  EXPECT_EQ(Read("<![" + Repeated(">", 300000), false), kRefused);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

}  // namespace
}  // namespace quill::markup
