#include <gtest/gtest.h>

#include <optional>

#include "support/reader.h"

namespace quill::sidewindows {
namespace {

struct NotesTest : testing::Test {
  NotesTest() { Start(); }

  // A run of the program on the files that the run before left.
  void Start() {
    host::MemoryFiles files = reader_ ? reader_->desktop.files : host::MemoryFiles();
    reader_.reset();
    reader_.emplace();
    if (!files.Bytes(kNotes).empty()) reader_->desktop.files.AddFile(kNotes, files.Bytes(kNotes));
    reader_->SetPages(1, {{"P0", {""}}, {"P1", {"notes"}, {{0, 5, "0", 0}}}});
    reader_->SetPages(2, {{"P0", {""}}, {"P1", {"notes"}, {{0, 5, "0", 0}}}});
    reader_->Viewer().ChooseMode(1);
  }

  host::MemoryScreen& Notes() { return *reader_->desktop.screens.back(); }
  std::string Field() { return Notes().controls.at(0)->text; }
  std::string OnDisk() { return reader_->desktop.files.Bytes(kNotes); }

  static constexpr const char* kNotes = "preferences/QMR";
  std::optional<tests::Reader> reader_;
};

TEST_F(NotesTest, TextSurvivesClosingAndANewRun) {
  for (const std::string text :
       {"one", "two\nlines\n", "cr lf\r\ncr\rnone", "\ttab", "\xF0\x9F\x96\x8B", ""}) {
    ASSERT_TRUE(reader_->Click({"notes"}));
    Notes().Type(text);
    Notes().CloseBox();
    EXPECT_FALSE(Notes().shown);
    EXPECT_EQ(OnDisk(), text);
    Start();
    ASSERT_TRUE(reader_->Click({"notes"}));
    EXPECT_EQ(Field(), text);
    Notes().CloseBox();
  }
}

TEST_F(NotesTest, ASecondPushShowsTheOpenPadWithItsTyping) {
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().Type("unsaved");
  Notes().shown = false;
  ASSERT_TRUE(reader_->Click({"notes"}));
  EXPECT_EQ(reader_->desktop.screens.size(), 2U);
  EXPECT_TRUE(Notes().shown);
  EXPECT_EQ(Field(), "unsaved");
  reader_->Viewer().ChooseMode(2);
  EXPECT_TRUE(Notes().shown) << "a change of mode doesn't touch it";
  ASSERT_TRUE(reader_->Click({"notes"}));
  EXPECT_EQ(reader_->desktop.screens.size(), 2U);
  EXPECT_TRUE(reader_->Viewer().Dump().starts_with("mode 2 page 0")) << "page 0 of other modes is a page";
}

TEST_F(NotesTest, TheEndOfTheProgramSaves) {
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().Type("kept");
  const auto screen = reader_->desktop.screens.back();
  reader_->EndProgram();
  EXPECT_EQ(OnDisk(), "kept");
  EXPECT_TRUE(screen->closed);
}

// None of it is reported, and none of it costs what the file holds.
TEST_F(NotesTest, WhatCannotBeReadOrWrittenStays) {
  reader_->desktop.files.AddFile(kNotes, "old");
  reader_->desktop.files.Lock(kNotes);
  ASSERT_TRUE(reader_->Click({"notes"}));
  EXPECT_EQ(Field(), "");
  Notes().CloseBox();
  EXPECT_EQ(OnDisk(), "old") << "an untouched pad must not replace what it couldn't read";
  reader_->desktop.files.Refuse(kNotes);
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().Type("new");
  Notes().CloseBox();
  EXPECT_EQ(OnDisk(), "old");
  reader_->desktop.no_preferences_folder = true;
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().CloseBox();
}

struct GlossaryWindowTest : testing::Test {
  GlossaryWindowTest() {
    const std::vector<tests::TestPage> pages = {
        {"P0", {""}}, {"P1", {"one two far"}, {{0, 3, "0", 1}, {4, 3, "1", 1}, {8, 3, "7", 1}}}};
    for (std::size_t mode = 1; mode <= 5; ++mode) {
      reader_.SetPages(mode, pages);
      reader_.SetFile(app::kModes[mode].glossary_file,
                      tests::ContentXml({{"First", {"a bc"}}, {"Next", {""}}}));
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
  for (const auto& [mode, bg] : {std::pair{1, "#172"}, {2, "#169"}, {3, "#169"}, {4, "#169"}, {5, "#169"}}) {
    reader_.Viewer().ChooseMode(mode);
    if (mode == 5) reader_.Viewer().ShowPage("1");
    ASSERT_TRUE(reader_.Click({"one"})) << mode;
    EXPECT_EQ(Glossary().frame, (base::Rect{188, 110, 464, 360})) << mode;
    EXPECT_EQ(Glossary().Dump(), "button \"Close\" 376,325 50x24\ntext \"First\" 7,6 428x20\n") << mode;
    EXPECT_EQ(Drawn(),
              (std::vector<std::string>{std::string("picture ") + bg + " 0,0", "text \"a\" 10,45 12 #ffffff",
                                        "text \"bc\" 30,45 12 #ffffff"}))
        << mode;
    ASSERT_TRUE(Glossary().ClickLabel("Close"));
    EXPECT_FALSE(Glossary().shown) << mode;
  }
}

TEST_F(GlossaryWindowTest, ASecondLinkDrawsOnACleanGround) {
  reader_.Viewer().ChooseMode(2);
  ASSERT_TRUE(reader_.Click({"one", "two"}));
  EXPECT_EQ(reader_.desktop.screens.size(), 2U) << "the window that is open serves";
  EXPECT_EQ(Glossary().controls[2]->text, "Next");
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
