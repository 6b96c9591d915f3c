#include "markup/container.h"

#include <gtest/gtest.h>

#include "host/exceptions.h"
#include "host/memory/memory_desktop.h"
#include "markup/exceptions.h"
#include "support/tree_dump.h"

namespace quill::markup {
namespace {

class ContainerTest : public testing::Test {
 protected:
  host::MemoryDesktop desktop_;
};

TEST_F(ContainerTest, IsCompleteOrNotThereAtAll) {
  const zkXMLContainer container("<a/>xy");
  EXPECT_TRUE(container.IsComplete());
  EXPECT_EQ(container.UnreadText(), "");
  EXPECT_EQ(zkXMLContainer("<a/></>xy").UnreadText(), "<a/></>xy") << "an end tag without a name ends it";

  EXPECT_TRUE(desktop_.messages.empty());
  EXPECT_THROW(zkXMLContainer("<a>"), zkXMLParsingException);
  const std::vector<std::string> expected = {
      "An error occurred while parsing the XML/HTML file.",
      "If the program crashes after this, it doesn't handle the exception raised. Please report to the "
      "author."};
  EXPECT_EQ(desktop_.messages, expected);
}

TEST_F(ContainerTest, ReadsFiles) {
  for (const char* const name : {"page.HTML", "page.htm"}) {
    desktop_.files.AddFile(name, "<a b=1><c>xx</a>");
    EXPECT_EQ(tests::DumpContent(zkXMLContainer(desktop_.files.Item(name))), R"(a{b=1}[c "xx"])") << name;
  }
  for (const char* const name : {"page.xml", "htm", "page.html.xml"}) {
    desktop_.files.AddFile(name, "<a b=1/>");
    EXPECT_THROW(zkXMLContainer(desktop_.files.Item(name)), zkXMLParsingException) << name;
  }
  desktop_.messages.clear();
  desktop_.files.Lock("page.htm");
  EXPECT_THROW(zkXMLContainer(desktop_.files.Item("page.htm")), host::NilObjectException);
  EXPECT_THROW(zkXMLContainer(std::shared_ptr<host::FolderItem>()), host::NilObjectException);
  EXPECT_TRUE(desktop_.messages.empty());
}

TEST_F(ContainerTest, GrowsByChunks) {
  struct Chunk {
    const char* text;
    const char* tree;
    const char* unread;
  };
  const struct {
    const char* story;
    bool relaxed;
    std::vector<Chunk> chunks;
  } cases[] = {
      {"a cut run makes two sections",
       false,
       {{"<a><b>te", R"(a..[b..["te"]])", ""}, {"xt</b></a>", R"(a[b["te" "xt"]])", ""}}},
      {"a cut entity stays",
       false,
       {{"<a>x&am", R"(a..["x&am"])", ""}, {"p;y</a>", R"(a["x&am" "p;y"])", ""}}},
      {"a cut construct waits",
       false,
       {{"<a>xx<!-- c", R"(a..["xx"])", "<!-- c"}, {" --></a>", R"(a["xx" Comment" c "])", ""}}},
      {"a cut tag waits",
       false,
       {{"xx<a b=", R"("xx")", "<a b="}, {"'1'>yy</a>", R"("xx" a{b=1}["yy"])", ""}}},
      {"an end tag that the look-ahead can't see ends the chunk",
       false,
       {{"<a></a ><b/>xx", "a", "<b/>xx"}, {"yy", R"(a b "xxyy")", ""}}},
      {"what earlier chunks left moves up too",
       true,
       {{"<p>1<b>2<i>33", R"(p..["1" b..["2" i..["33"]]])", ""},
        {"4<u>5</p>xx", R"(p..["1" b..["2" i..["33" "4" u "5"]]])", "</p>xx"},
        {"", R"(p["1" b "2" i "33" "4" u "5"] "xx")", ""}}},
      {"an end tag that nobody takes stops in silence", true, {{"<a/></b>xx", "a", "<a/></b>xx"}}},
  };
  for (const auto& c : cases) {
    zkXMLContainer container;
    for (const Chunk& chunk : c.chunks) {
      container.ParseIncrementally(chunk.text, c.relaxed);
      EXPECT_EQ(tests::DumpContent(container), chunk.tree) << c.story << ": " << chunk.text;
      EXPECT_EQ(container.UnreadText(), chunk.unread) << c.story << ": " << chunk.text;
    }
    EXPECT_TRUE(container.IsConsistent()) << c.story;
    EXPECT_FALSE(container.IsComplete()) << c.story;
  }
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

  zkXMLContainer whole("<a/>");
  whole.ParseIncrementally("<b/>xx");
  EXPECT_EQ(tests::DumpContent(whole), "a");
}

TEST_F(ContainerTest, ChunksNestNoDeeperThanWholes) {
  std::string opening;
  for (std::size_t i = 0; i < kMaxOpenElements; ++i) opening += "<a>";
  zkXMLContainer container;
  container.ParseIncrementally(opening + "xx");
  EXPECT_THROW(container.ParseIncrementally("<a>xx"), host::StackOverflowException);
  EXPECT_THROW(container.ParseIncrementally("xx"), host::StackOverflowException);
  EXPECT_FALSE(container.IsConsistent());
}

}  // namespace
}  // namespace quill::markup
