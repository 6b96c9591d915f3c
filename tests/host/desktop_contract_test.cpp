// What both desktops promise of pictures, metrics and files.
#include <limits>
#include <set>

#include "base/exceptions.h"
#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

using DesktopContract = OnBothDesktops;
INSTANTIATE_TEST_SUITE_P(Both, DesktopContract, BothDesktops(), DesktopName);

TEST_P(DesktopContract, APictureHasTheSizeAskedForOrIsNull) {
  for (const auto& [width, height] : {std::pair(1, 1), std::pair(30'000, 24)}) {
    const auto picture = NewPicture(width, height, 16);
    EXPECT_TRUE(picture && picture->Width() == width && picture->Height() == height) << width;
  }
  for (const auto& [width, height] : {std::pair(0, 10), std::pair(10, -1), std::pair(kLeast, kLeast),
                                      std::pair(kMost, kMost), std::pair(100'000, 100'000)}) {
    EXPECT_EQ(NewPicture(width, height, 16), nullptr) << width << " x " << height;
  }
}

TEST_P(DesktopContract, APictureHasOnePenWhoseStateStays) {
  auto picture = NewPicture(40, 20, 16);
  const auto pen = GraphicsOf(picture);
  EXPECT_EQ(static_cast<const TextFace&>(*pen), TextFace());
  EXPECT_EQ(pen->ForeColor, base::kBlack);
  pen->Bold = true;
  EXPECT_EQ(picture->GetGraphics(), pen.get());
  EXPECT_EQ(pen->StringWidth("wide"), desktop_.Metrics().StringWidth(*pen, "wide"));
  picture.reset();
  pen->DrawString("the pen keeps its picture", 0, 15);
}

TEST_P(DesktopContract, PicturesOfTheProductAreStored) {
  std::set<std::int32_t> stored;
  for (const std::int32_t id : {kLeast, 0, 6, 7, 8, 9, 168, kMost})
    if (ResourceFork::GetPicture(id)) stored.insert(id);
  EXPECT_EQ(stored, (std::set<std::int32_t>{7, 9}));
  EXPECT_NE(ResourceFork::GetPicture(7), ResourceFork::GetPicture(7)) << "read anew each time";
}

// Nothing of this may crash, hang or take long.
TEST_P(DesktopContract, APictureTakesWhateverIsDrawn) {
  const auto pen = GraphicsOf(NewPicture(100, 50, 16));
  const std::string long_text(3'000'000, 'm');
  for (const std::int32_t at : {kLeast, -1, 49, kMost}) {
    pen->TextSize = at;
    pen->DrawString(std::string("\0\t\r\n\x7F\xF0\xDB&<b>", 10), at, at);
    pen->DrawString(long_text, at, 20);
    pen->DrawString("", at, at);
    pen->FillRect({at, at, kMost, kMost});
    pen->FillRect({at, at, kLeast, -1});
    pen->DrawLine(at, kLeast, 20, kMost);
    pen->DrawPicture(*NewPicture(10, 10, 16), at, at);
  }
}

TEST_P(DesktopContract, WidthsAddUp) {
  const TextFace face;
  FontMetrics& metrics = desktop_.Metrics();
  const double blank = metrics.StringWidth(face, " ");
  EXPECT_EQ(metrics.StringWidth(face, ""), 0);
  for (const std::string word : {"a", "end.", "caf\x8E", "\xD2quoted\xD3", "left\tright", "\r"}) {
    const double width = metrics.StringWidth(face, word);
    EXPECT_GT(width, 0) << word;
    EXPECT_NEAR(metrics.StringWidth(face, word + " "), width + blank, 0.5) << "a trailing blank: " << word;
    EXPECT_NEAR(metrics.StringWidth(face, word + word), 2 * width, 2) << word;
  }
  EXPECT_EQ(metrics.StringWidth(face, "\t"), blank) << "a tab is as wide as it is drawn";
}

TEST_P(DesktopContract, WhatAFaceIsMadeOf) {
  FontMetrics& metrics = desktop_.Metrics();
  const double plain = metrics.StringWidth({"", 12}, "minimum");
  EXPECT_GT(metrics.StringWidth({"", 12, true}, "minimum"), plain) << "bold";
  for (const TextFace& face : {TextFace{"", 0}, TextFace{"System", 12}, TextFace{"Nowhere Grotesk", 12},
                               TextFace{"", 12, false, false, true}}) {
    EXPECT_EQ(metrics.StringWidth(face, "minimum"), plain) << face.TextFont << face.TextSize;
    EXPECT_EQ(metrics.TextHeight(face), 15) << face.TextFont << face.TextSize;
  }
}

TEST_P(DesktopContract, ChildIsAPlaceRightInsideAFolder) {
  under_test_->AddFile("Quillmere.app/Contents/page.xml", "<page/>");
  EXPECT_TRUE(!GetFolderItem("Quillmere.app") && !GetFolderItem("", 1)) << "only the empty path is known";
  const auto folder = GetFolderItem("");
  ASSERT_TRUE(folder && folder->Exists());
  for (const std::string name : {"", ".", "..", "a/b", "/etc"})
    EXPECT_TRUE(!folder->Child(name) && !folder->TrueChild(name)) << name;
  EXPECT_EQ(folder->Child(std::string("a\0b", 3)), nullptr);
  const auto nothing = folder->Child("nothing here");
  EXPECT_FALSE(nothing->Exists() || nothing->Child("deeper")->Exists());
  EXPECT_TRUE(!folder->TrueChild("nothing here") && !folder->TrueChild("quillmere.app"));
  const auto bundle = folder->TrueChild("Quillmere.app");
  ASSERT_TRUE(bundle && bundle->Name() == "Quillmere.app");
  EXPECT_TRUE(bundle->Child("Contents")->Child("page.xml")->Exists());
}

TEST_P(DesktopContract, FilesAreReadInBytesAndFoldersAreNot) {
  under_test_->AddFile("folder/file", std::string("ab\r\n\0z", 6));
  const auto folder = GetFolderItem("")->Child("folder");
  for (const auto& none : {folder, folder->Child("other"), folder->Child("file")->Child("inside a file")})
    EXPECT_EQ(none->OpenAsBinaryFile(), nullptr) << none->Path();
  const auto stream = folder->Child("file")->OpenAsBinaryFile();
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(stream->Length(), 6u);
  EXPECT_EQ(stream->Read(2), "ab");
  EXPECT_EQ(stream->Read(std::numeric_limits<std::uint64_t>::max()), std::string("\r\n\0z", 4));
  EXPECT_EQ(stream->Read(1), "");
  stream->Close();
  EXPECT_EQ(stream->Read(1), "") << "closed";
}

TEST_P(DesktopContract, LinesKeepTheirEnds) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},
      {"a\rb\r", "[a\r][b\r]"},
      {"a\nb\r\nc", "[a\n][b\r\n][c]"},
      {"\n\r\n\r\r\n", "[\n][\r\n][\r][\r\n]"},
  };
  for (const auto& [text, lines] : rows) {
    under_test_->AddFile("text", text);
    EXPECT_EQ(LinesOf(*GetFolderItem("")->Child("text")), lines);
  }
  const auto stream = GetFolderItem("")->Child("text")->OpenAsTextFile();
  stream->Close();
  EXPECT_TRUE(stream->AtEnd());
  EXPECT_EQ(stream->ReadLine(), "");
}

TEST_P(DesktopContract, AFileMadeAnewAppearsWhenItIsClosed) {
  const auto file = GetFolderItem("")->Child("on the way")->Child("made too")->Child("notes");
  std::string before = "none";
  for (const std::string text : {"the longest of them", "short", ""}) {
    file->CreateTextFile()->Write("dropped");
    EXPECT_EQ(LinesOf(*file), before);
    EXPECT_TRUE(Save(*file, text));
    before = text.empty() ? "" : "[" + text + "]";
    EXPECT_EQ(LinesOf(*file), before);
  }
}

TEST(Desktop, NoneIsCurrentWithoutOne) {
  EXPECT_THROW(Desktop::Current(), base::NilObjectException);
  EXPECT_THROW(NewPicture(1, 1, 16), base::NilObjectException);
}

TEST_P(DesktopContract, TheFirstQuitCountsAndSilencesMessages) {
  testing::internal::CaptureStderr();
  Quit(3);
  Quit(4);
  MsgBox("too late");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(under_test_->QuitCode(), 3);
}

}  // namespace
}  // namespace quill::host
