#include <gtest/gtest.h>

#include <optional>

#include "support/reader.h"

namespace quill::sidewindows {
namespace {

class NotesTest : public testing::Test {
 protected:
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
       {"one", "two\nlines\n", "cr lf\r\nand cr\rand none", "\ttab", "\xF0\x9F\x96\x8B", ""}) {
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

}  // namespace
}  // namespace quill::sidewindows
