#include "markup/container.h"

#include <sstream>

#include "base/exceptions.h"
#include "markup/exceptions.h"
#include "markup_test.h"

namespace quill::markup {
namespace {

using Container = MarkupTest;

TEST_F(Container, IsCompleteOrNotThereAtAll) {
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

TEST_F(Container, ReadsFiles) {
  tests::ExpectEach(
      [this](const std::string& name) {
        desktop_.files.AddFile(name, "<a b=1><c>xx</a>");
        return Parsed([&] { return zkXMLContainer(desktop_.files.Item(name)); });
      },
      {{"page.HTML", R"(a{b=1}[c "xx"])"},
       {"page.htm", R"(a{b=1}[c "xx"])"},
       {"htm", tests::kRefused},
       {"page.xhtml", tests::kRefused},
       {"a.html.xml", tests::kRefused}});
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

TEST_F(Container, GrowsByChunks) {
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

TEST_F(Container, KeepsToItsFirstChunksSetting) {
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

TEST_F(Container, ChunksNestNoDeeperThanWholes) {
  zkXMLContainer container;
  container.ParseIncrementally(tests::Repeated("<a>", kMaxOpenElements) + "xx");
  EXPECT_THROW(container.ParseIncrementally("<a>xx"), base::StackOverflowException);
  EXPECT_THROW(container.ParseIncrementally("xx"), base::StackOverflowException);
  EXPECT_FALSE(container.IsConsistent());
}

}  // namespace
}  // namespace quill::markup
