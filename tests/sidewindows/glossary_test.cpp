#include <gtest/gtest.h>

#include "host/memory/memory_graphics.h"
#include "sidewindows/glossary_layout.h"
#include "support/reader.h"

namespace quill::sidewindows {
namespace {

// Every character is 10 wide and a line 15 high; the text may run from 10 to
// 110, so that a line holds 10 characters with their blanks.
std::string LayOut(const std::string& text) {
  host::FixedMetrics metrics;
  std::string dump;
  for (const EntryWord& word : LayOutEntry(text, {10, 30, 110}, {}, metrics)) {
    dump += word.text + " " + host::Str(word.x) + "," + host::Str(word.y) + "\n";
  }
  return dump;
}

TEST(GlossaryLayoutTest, PlacesWords) {
  struct Case {
    std::string story, text, expected;
  };
  for (const Case& row : {
           Case{"an empty entry", "", ""},
           Case{"words stand a blank apart, after a sentence too", "a. b", "a. 10,45\nb 40,45\n"},
           Case{"two blanks leave a gap as wide as the word before", "abc  d", "abc 10,45\nd 90,45\n"},
           Case{"leading blanks take the last width, at first none", " a\n b", "a 10,45\nb 30,75\n"},
           Case{"a line holds what ends at the margin, blank included", "abcd efgh i",
                "abcd 10,45\nefgh 60,45\ni 10,67\n"},
           Case{"a word too wide moves to a new line once", "abcdefghijkl m",
                "abcdefghijkl 10,67\nm 10,89\n"},
           Case{"a tab is a character like any other", "\ta", "\ta 10,45\n"},
           Case{"an empty paragraph moves the pen by two lines", "a\n\nb", "a 10,45\nb 10,105\n"},
       }) {
    EXPECT_EQ(LayOut(row.text), row.expected) << row.story;
  }
}

class GlossaryWindowTest : public testing::Test {
 protected:
  GlossaryWindowTest() {
    const std::vector<tests::TestPage> pages = {
        {"P0", {""}}, {"P1", {"one two far"}, {{0, 3, "0", 1}, {4, 3, "1", 1}, {8, 3, "7", 1}}}};
    for (std::size_t mode = 1; mode <= 5; ++mode) {
      reader_.SetPages(mode, pages);
      reader_.SetFile(app::kModes[mode].glossary_file,
                      tests::ContentXml({{"First", {"a bc"}}, {"Second", {""}}}));
    }
    reader_.Viewer();
  }

  host::MemoryScreen& Glossary() { return *reader_.desktop.screens.back(); }

  std::vector<std::string> Drawn() {
    return dynamic_cast<host::MemoryPicture&>(*Glossary().controls[0]->backdrop).GetGraphics()->Drawn();
  }

  tests::Reader reader_;
};

TEST_F(GlossaryWindowTest, OpensInTheMiddleOfTheViewerWithTheLookOfItsMode) {
  for (const auto& [mode, ground] :
       {std::pair{1, "#172"}, {2, "#169"}, {3, "#169"}, {4, "#169"}, {5, "#169"}}) {
    reader_.Viewer().ChooseMode(mode);
    if (mode == 5) reader_.Viewer().ShowPage("1");
    ASSERT_TRUE(reader_.Click({"one"})) << mode;
    EXPECT_EQ(Glossary().frame, (host::Rect{188, 110, 464, 360})) << mode;
    EXPECT_EQ(Glossary().Dump(), "button \"Close\" 378,327 50x24\ntext \"First\" 9,8 428x20\n") << mode;
    EXPECT_EQ(Drawn(),
              (std::vector<std::string>{std::string("picture ") + ground + " 0,0",
                                        "text \"a\" 10,45 12 #ffffff", "text \"bc\" 30,45 12 #ffffff"}))
        << mode;
    ASSERT_TRUE(Glossary().ClickLabel("Close"));
    EXPECT_FALSE(Glossary().shown) << mode;
  }
}

TEST_F(GlossaryWindowTest, ASecondLinkDrawsOnACleanGround) {
  reader_.Viewer().ChooseMode(2);
  ASSERT_TRUE(reader_.Click({"one", "two"}));
  EXPECT_EQ(reader_.desktop.screens.size(), 2U) << "the window that is open serves";
  EXPECT_EQ(Glossary().controls[2]->text, "Second");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{"picture #169 0,0"}));
  ASSERT_TRUE(reader_.Click({"Back"})) << "the viewer can be used behind it";
  EXPECT_TRUE(Glossary().shown);
}

TEST_F(GlossaryWindowTest, AnEntryThatIsNotThereLeavesTheGroundBare) {
  reader_.Viewer().ChooseMode(2);
  ASSERT_TRUE(reader_.Click({"far"}));
  EXPECT_EQ(Glossary().controls[2]->text, "Label:");
  EXPECT_EQ(Drawn().size(), 1U);
  EXPECT_TRUE(reader_.desktop.messages.empty());
}

}  // namespace
}  // namespace quill::sidewindows
