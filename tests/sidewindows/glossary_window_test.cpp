#include <gtest/gtest.h>

#include "support/reader.h"

namespace quill::sidewindows {
namespace {

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
    EXPECT_EQ(Glossary().frame, (base::Rect{188, 110, 464, 360})) << mode;
    EXPECT_EQ(Glossary().Dump(), "button \"Close\" 376,325 50x24\ntext \"First\" 7,6 428x20\n") << mode;
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
}

}  // namespace
}  // namespace quill::sidewindows
