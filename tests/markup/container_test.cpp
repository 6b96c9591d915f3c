#include "markup/container.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/exceptions.h"
#include "host/memory/memory_desktop.h"
#include "markup/exceptions.h"
#include "support/texts.h"

namespace quill::markup {
namespace {

struct ContainerTest : testing::Test {
  host::MemoryDesktop desktop_;
};

TEST_F(ContainerTest, IsCompleteOrNotThereAtAll) {
  zkXMLContainer container("<a/></>xy");
  EXPECT_EQ(container.UnreadText(), "<a/></>xy") << "an end tag without a name ends it";
  container.ParseIncrementally("<b/>xx");
  EXPECT_EQ(tests::DumpContent(container), "a");
  EXPECT_EQ(zkXMLContainer("<a/>xy").UnreadText(), "");

  EXPECT_TRUE(desktop_.messages.empty());
  EXPECT_THROW(zkXMLContainer("<a>"), zkXMLParsingException);
  const std::vector<std::string> expected = {
      "An error occurred while parsing the XML/HTML file.",
      "If the program crashes after this, it doesn't handle the exception raised. Please report to the "
      "author."};
  EXPECT_EQ(desktop_.messages, expected);
}

TEST_F(ContainerTest, ReadsFiles) {
  const auto read = [this](const std::string& name) {
    desktop_.files.AddFile(name, "<a b=1><c>xx</a>");
    return tests::DumpOrRefused(
        [&] { return tests::DumpContent(zkXMLContainer(desktop_.files.Item(name))); });
  };
  for (const char* const name : {"page.HTML", "page.htm"}) EXPECT_EQ(read(name), R"(a{b=1}[c "xx"])") << name;
  for (const char* const name : {"page.xml", "htm", "a.html.xml"}) EXPECT_EQ(read(name), "refused") << name;

  desktop_.messages.clear();
  desktop_.files.Lock("page.htm");
  EXPECT_THROW(zkXMLContainer(desktop_.files.Item("page.htm")), base::NilObjectException);
  EXPECT_THROW(zkXMLContainer(std::shared_ptr<host::FolderItem>()), base::NilObjectException);
  EXPECT_TRUE(desktop_.messages.empty());
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
       {"xx<a b=|'1'>yy</a>", R"("xx" unread <a b= | "xx" a{b=1}["yy"])", "a cut tag waits"},
       {"<a></a ><b/>xx|yy", R"(a unread <b/>xx | a b "xxyy")", "an end tag out of sight ends the chunk"}});
  tests::ExpectEach([](const std::string& chunks) { return Fed(chunks, true); },
                    {{"<p>1<b>2<i>33|4<u>5</p>xx| ",
                      R"(p..["1" b..["2" i..["33"]]] | p..["1" b..["2" i..["33" "4" u "5"]]] unread </p>xx)"
                      R"( | p["1" b "2" i "33" "4" u "5"] "xx ")",
                      "what earlier chunks left moves up too"},
                     {"<a/></b>xx", "a unread <a/></b>xx", "an end tag that nobody takes stops in silence"}});
  EXPECT_TRUE(desktop_.messages.empty());
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
  EXPECT_EQ(desktop_.messages, expected);
}

TEST_F(ContainerTest, ChunksNestNoDeeperThanWholes) {
  zkXMLContainer container;
  container.ParseIncrementally(tests::Repeated("<a>", kMaxOpenElements) + "xx");
  EXPECT_THROW(container.ParseIncrementally("<a>xx"), base::StackOverflowException);
  EXPECT_THROW(container.ParseIncrementally("xx"), base::StackOverflowException);
  EXPECT_FALSE(container.IsConsistent());
}

}  // namespace
}  // namespace quill::markup
