#include "markup/parser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

#include "base/exceptions.h"
#include "host/memory/memory_desktop.h"
#include "markup/container.h"
#include "markup/exceptions.h"
#include "support/messages.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

using tests::kRefused;
using tests::Repeated;

// Message boxes that a test does not take fail it.
struct MarkupTest : testing::Test {
  std::vector<std::string> TakeMessages() { return tests::TakeMessages(desktop_); }

  // What the document that `make` makes holds, `kRefused` if there is none.
  template <typename Make>
  std::string Parsed(const Make& make) {
    std::string dump = tests::DumpOrRefused([&] { return tests::DumpContent(make()); });
    EXPECT_EQ(TakeMessages().size(), dump == kRefused ? 2u : 0u) << dump;
    return dump;
  }

  host::MemoryDesktop desktop_;
  const tests::NoUnseenMessages no_unseen_messages_{desktop_};
};

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
    for (const char* const refused : {"</a>", "<a", "<?a", "<!a [>", "<!--->", "<![CDATA[a]]", "<a b></a>"})
      EXPECT_EQ(Read(refused, relaxed), kRefused) << refused;
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
    odd.append("<").append(name).append("></").append(name).append(" >");
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

using ContainerTest = MarkupTest;

TEST_F(ContainerTest, IsCompleteOrNotThereAtAll) {
  zkXMLContainer container("<a/></>xy");
  EXPECT_EQ(container.UnreadText(), "<a/></>xy") << "an end tag without a name ends it";
  container.ParseIncrementally("<b/>xx");
  EXPECT_EQ(tests::DumpContent(container), "a");
  EXPECT_EQ(zkXMLContainer("<a/>xy").UnreadText(), "");

  EXPECT_THROW(zkXMLContainer("<a>"), zkXMLParsingException);
  const std::vector<std::string> expected = {
      "An error occurred while parsing the XML/HTML file.",
      "If the program crashes after this, it doesn't handle the exception raised. Please report to the "
      "author."};
  EXPECT_EQ(TakeMessages(), expected);
}

TEST_F(ContainerTest, ReadsFiles) {
  tests::ExpectEach(
      [this](const std::string& name) {
        desktop_.files.AddFile(name, "<a b=1><c>xx</a>");
        return Parsed([&] { return zkXMLContainer(desktop_.files.Item(name)); });
      },
      {{"page.HTML", R"(a{b=1}[c "xx"])"},
       {"page.htm", R"(a{b=1}[c "xx"])"},
       {"htm", kRefused},
       {"page.xhtml", kRefused},
       {"a.html.xml", kRefused}});
  desktop_.files.Lock("page.htm");
  EXPECT_THROW(zkXMLContainer(desktop_.files.Item("page.htm")), base::NilObjectException);
  EXPECT_THROW(zkXMLContainer(std::shared_ptr<host::FolderItem>()), base::NilObjectException);
}

// What the tree has come to, and what is unread, after each of the chunks, which
// end at "|".
std::string Fed(const std::string& chunks, bool relaxed) {
  zkXMLContainer container;
  std::istringstream in(chunks);
  std::string steps;
  for (std::string chunk; std::getline(in, chunk, '|');) {
    container.ParseIncrementally(chunk, relaxed);
    steps += (steps.empty() ? "" : " | ") + tests::DumpContent(container);
    if (!container.UnreadText().empty()) steps += " unread " + container.UnreadText();
  }
  EXPECT_TRUE(container.IsConsistent()) << chunks;
  EXPECT_FALSE(container.IsComplete()) << chunks;
  return steps;
}

TEST_F(ContainerTest, GrowsByChunks) {
  tests::ExpectEach(
      [](const std::string& chunks) { return Fed(chunks, false); },
      {{"<a><b>te|xt</b>y", R"(a..[b..["te"]] | a[b["te" "xt"]])", "cut in two; last character goes"},
       {"<a>x&am|p;y</a>", R"(a..["x&am"] | a["x&am" "p;y"])", "a cut entity stays"},
       {"<a>xx<!-- c| --></a>", R"(a..["xx"] unread <!-- c | a["xx" Comment" c "])", "a construct waits"},
       {"<a></a ><b/>xx|yy", R"(a unread <b/>xx | a b "xxyy")", "an end tag out of sight ends the chunk"},
       {"<a></a ><!--</A>-->xx", R"(a Comment"</A>" "xx")", "one in sight doesn't"},
       {"<a><b/>", "a[b]", "out of sight, where the text has ended"}});
  tests::ExpectEach(
      [](const std::string& chunks) { return Fed(chunks, true); },
      {{"<p>1<b>2<i>33|4<u>5</p>xx| ",
        R"(p..["1" b..["2" i..["33"]]] | p..["1" b..["2" i..["33" "4" u "5"]]] unread </p>xx)"
        R"( | p["1" b "2" i "33" "4" u "5"] "xx ")",
        "what earlier chunks left moves up too"},
       {"<q><p>1</q></p>xx", R"(q[p "1"] unread <q><p>1</q></p>xx)", "another's end tag, its own in sight"},
       {"<a/></b>xx", "a unread <a/></b>xx", "an end tag that nobody takes stops in silence"}});
}

TEST_F(ContainerTest, KeepsToItsFirstChunksSetting) {
  zkXMLContainer container;
  container.ParseIncrementally("<a>xx");
  EXPECT_FALSE(container.IsConsistent());
  EXPECT_THROW(container.ParseIncrementally("<b/></c>", true), zkXMLParsingException);
  EXPECT_EQ(tests::DumpContent(container), R"(a..["xx" b])") << "what was read stays";
  const std::vector<std::string> expected = {
      "An error occurred while parsing the XML file.",
      "If the program crashes after this, it doesn't handle this exception. Please report to the author."};
  EXPECT_EQ(TakeMessages(), expected);
}

TEST_F(ContainerTest, ChunksNestNoDeeperThanWholes) {
  zkXMLContainer container;
  container.ParseIncrementally(Repeated("<a>", kMaxOpenElements) + "xx");
  EXPECT_THROW(container.ParseIncrementally("<a>xx"), base::StackOverflowException);
  EXPECT_THROW(container.ParseIncrementally("xx"), base::StackOverflowException);
  EXPECT_FALSE(container.IsConsistent());
}

}  // namespace
}  // namespace quill::markup
