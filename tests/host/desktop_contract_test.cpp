// What both desktops promise of pictures, metrics and files.
#include <limits>
#include <set>

#include "host/desktop_under_test.h"
#include "host/exceptions.h"

namespace quill::host {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

using PictureContract = OnBothDesktops;
INSTANTIATE_TEST_SUITE_P(Both, PictureContract, BothDesktops(), DesktopName);

TEST_P(PictureContract, HasTheSizeAskedForOrIsNull) {
  struct Row {
    std::int32_t width, height;
    bool made;
  };
  for (const Row& row : {Row{1, 1, true}, Row{640, 480, true}, Row{30'000, 24, true}, Row{0, 10, false},
                         Row{10, 0, false}, Row{-1, 10, false}, Row{kLeast, kLeast, false},
                         Row{kMost, kMost, false}, Row{100'000, 100'000, false}}) {
    const auto picture = NewPicture(row.width, row.height, 16);
    ASSERT_EQ(picture != nullptr, row.made) << row.width << " x " << row.height;
    if (!picture) continue;
    EXPECT_EQ(picture->Width(), row.width);
    EXPECT_EQ(picture->Height(), row.height);
  }
}

TEST_P(PictureContract, HasOnePenWhoseStateStays) {
  auto picture = NewPicture(40, 20, 16);
  const auto pen = GraphicsOf(picture);
  ASSERT_NE(pen, nullptr);
  EXPECT_EQ(static_cast<const TextFace&>(*pen), TextFace());
  EXPECT_EQ(pen->ForeColor, kBlack);
  pen->ForeColor = kWhite;
  pen->Bold = true;
  EXPECT_EQ(picture->GetGraphics(), pen.get());
  EXPECT_EQ(pen->StringWidth("wide"), desktop_.Metrics().StringWidth(*pen, "wide"));
  picture.reset();
  pen->DrawString("the pen keeps its picture", 0, 15);
}

TEST_P(PictureContract, SixPicturesAreStored) {
  std::set<std::int32_t> stored;
  for (const std::int32_t id : {kLeast, -1, 0, 1, 167, 168, 169, 170, 171, 172, 173, 174, kMost}) {
    if (ResourceFork::GetPicture(id)) stored.insert(id);
  }
  EXPECT_EQ(stored, (std::set<std::int32_t>{168, 169, 170, 171, 172, 173}));
  EXPECT_NE(ResourceFork::GetPicture(169), ResourceFork::GetPicture(169)) << "read anew each time";
}

// Nothing of this may crash, hang or take long.
TEST_P(PictureContract, TakesWhateverIsDrawn) {
  const auto pen = GraphicsOf(NewPicture(100, 50, 16));
  const std::string long_text(3'000'000, 'm');
  for (const std::int32_t at : {kLeast, -1, 0, 49, kMost}) {
    for (const std::int32_t size : {kLeast, 0, 9, kMost}) {
      pen->TextSize = size;
      pen->DrawString(std::string("\0\t\r\n\x7F\xF0\xDB&<b>", 10), at, at);
      pen->DrawString(long_text, at, 20);
      pen->DrawString("", at, at);
    }
    pen->FillRect({at, at, kMost, kMost});
    pen->FillRect({at, at, kLeast, -1});
    pen->DrawLine(at, kLeast, 20, kMost);
    pen->DrawLine(kLeast, at, kMost, at);
    pen->DrawPicture(*NewPicture(10, 10, 16), at, at);
  }
}

using MetricsContract = OnBothDesktops;
INSTANTIATE_TEST_SUITE_P(Both, MetricsContract, BothDesktops(), DesktopName);

TEST_P(MetricsContract, WidthsAddUp) {
  TextFace face;
  FontMetrics& metrics = desktop_.Metrics();
  const double blank = metrics.StringWidth(face, " ");
  EXPECT_EQ(metrics.StringWidth(face, ""), 0);
  EXPECT_GT(blank, 0);
  for (const std::string word : {"a", "word", "end.", "caf\x8E", "\xD2quoted\xD3", "left\tright", "\r"}) {
    const double width = metrics.StringWidth(face, word);
    EXPECT_GT(width, 0) << word;
    EXPECT_NEAR(metrics.StringWidth(face, word + " "), width + blank, 0.5) << "a trailing blank: " << word;
    EXPECT_NEAR(metrics.StringWidth(face, word + word), 2 * width, 2) << word;
    EXPECT_EQ(metrics.StringWidth(face, word), width) << "measured twice: " << word;
  }
  EXPECT_EQ(metrics.StringWidth(face, "\t"), blank) << "a tab is as wide as it is drawn";
}

TEST_P(MetricsContract, WhatAFaceIsMadeOf) {
  struct Row {
    const char* story;
    TextFace face;
    bool wider;
  };
  FontMetrics& metrics = desktop_.Metrics();
  const TextFace plain = {"", 12};
  for (const Row& row : {Row{"bold", {"", 12, true}, true}, Row{"size 0 is 12", {"", 0}, false},
                         Row{"the one font by name", {"System", 12}, false},
                         Row{"an unknown font", {"Nowhere Grotesk", 12}, false},
                         Row{"underlined", {"", 12, false, false, true}, false}}) {
    const double difference =
        metrics.StringWidth(row.face, "minimum") - metrics.StringWidth(plain, "minimum");
    EXPECT_EQ(difference > 0, row.wider) << row.story;
    EXPECT_EQ(metrics.TextHeight(row.face), 15) << row.story;
  }
}

using FileContract = OnBothDesktops;
INSTANTIATE_TEST_SUITE_P(Both, FileContract, BothDesktops(), DesktopName);

TEST_P(FileContract, ChildIsAPlaceRightInsideAFolder) {
  under_test_->AddFile("Quillmere.app/Contents/Data/page.xml", "<page/>");
  const auto folder = GetFolderItem("");
  ASSERT_NE(folder, nullptr);
  EXPECT_TRUE(folder->Exists());
  for (const std::string name : {"", ".", "..", "a/b", "/", "../Quillmere.app", "/etc"}) {
    EXPECT_EQ(folder->Child(name), nullptr) << name;
    EXPECT_EQ(folder->TrueChild(name), nullptr) << name;
  }
  EXPECT_EQ(folder->Child(std::string("a\0b", 3)), nullptr);
  const auto nothing = folder->Child("nothing here");
  ASSERT_NE(nothing, nullptr);
  EXPECT_FALSE(nothing->Exists());
  EXPECT_FALSE(nothing->Child("deeper")->Exists());
  EXPECT_EQ(folder->TrueChild("nothing here"), nullptr);
  EXPECT_EQ(folder->TrueChild("quillmere.app"), nullptr) << "letter case counts";
  const auto bundle = folder->TrueChild("Quillmere.app");
  ASSERT_NE(bundle, nullptr);
  EXPECT_EQ(bundle->Name(), "Quillmere.app");
  EXPECT_TRUE(bundle->Child("Contents")->Child("Data")->Child("page.xml")->Exists());
}

TEST_P(FileContract, FilesAreReadInBytesAndFoldersAreNot) {
  under_test_->AddFile("folder/file", std::string("ab\r\n\0z", 6));
  const auto folder = GetFolderItem("")->Child("folder");
  EXPECT_EQ(folder->OpenAsBinaryFile(), nullptr);
  EXPECT_EQ(folder->Child("other")->OpenAsBinaryFile(), nullptr);
  EXPECT_EQ(folder->Child("file")->Child("inside a file")->OpenAsBinaryFile(), nullptr);
  const auto stream = folder->Child("file")->OpenAsBinaryFile();
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(stream->Length(), 6u);
  EXPECT_EQ(stream->Read(2), "ab");
  EXPECT_EQ(stream->Read(std::numeric_limits<std::uint64_t>::max()), std::string("\r\n\0z", 4));
  EXPECT_EQ(stream->Read(1), "");
  stream->Close();
  EXPECT_EQ(stream->Read(1), "") << "closed";
}

TEST_P(FileContract, OnlyTheEmptyPathIsKnown) {
  EXPECT_EQ(GetFolderItem("Quillmere.app"), nullptr);
  EXPECT_EQ(GetFolderItem("", 1), nullptr);
}

TEST(Desktop, NoneIsCurrentWithoutOne) {
  EXPECT_THROW(Desktop::Current(), NilObjectException);
  EXPECT_THROW(NewPicture(1, 1, 16), NilObjectException);
}

}  // namespace
}  // namespace quill::host
