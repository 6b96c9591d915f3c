#include "app/app.h"

#include <gtest/gtest.h>

#include <array>

#include "app/destination.h"
#include "app/file_types.h"
#include "app/product.h"
#include "base/numbers.h"
#include "host/memory/memory_desktop.h"
#include "support/messages.h"

namespace quill::app {
namespace {

TEST(AppTest, TranslatesBetweenFieldsAndColumns) {
  for (std::int32_t columns = 1, field = 0; columns <= 3; ++columns) {
    for (std::int32_t column = 1; column <= columns; ++column, ++field) {
      EXPECT_EQ(App::GetColumnFromField(field), column);
      EXPECT_EQ(App::GetFieldFromColumn(column, columns), field);
    }
  }
  for (const std::int32_t none : {-1, 6}) EXPECT_EQ(App::GetColumnFromField(none), 0);
  for (const auto& [column, columns] : {std::pair(3, 2), {2, 1}, {1, 4}})
    EXPECT_EQ(App::GetFieldFromColumn(column, columns), 0) << column;
}

TEST(AppTest, FillsTheTablesAndSaysNothing) {
  host::MemoryDesktop desktop;
  const tests::NoUnseenMessages no_unseen_messages(desktop);
  App app;
  app.TestMode = true;
  app.Event_Open();
  EXPECT_EQ(app.QMRFileName[5], "BioQMR.xml");
  EXPECT_EQ(app.GlossaryFileName[0], "initglossary.xml");
  EXPECT_EQ(app.QMRFileName[6], "");
  EXPECT_EQ(app.fontsize, 12);
  EXPECT_EQ(app.fontheightoffset, 15);
}

TEST(PicturesTest, AreReadOnceAndKept) {
  host::MemoryDesktop desktop(Quillmere());
  Pictures pictures;
  const auto board = pictures.board();
  EXPECT_EQ(pictures.board(), board);
  EXPECT_NE(pictures.green(), board);
  EXPECT_EQ(desktop.pictures_read, (std::vector{171, 172}));
}

TEST(FileTypesTest, AreKnownAsLongAsTheyLive) {
  {
    FileTypes types;
    EXPECT_TRUE(host::IsFileTypeRegistered("RTF"));
    EXPECT_EQ(types.pQMRFile.MacCreator(), "Qmrx");
    types.pQMRFile.SetExtensions(".text");
    EXPECT_FALSE(host::IsFileTypeRegistered("QMRFile")) << "a changed type must be registered again";
    EXPECT_EQ(types.pQMRFile.ToString(), "QMRFile");
    EXPECT_TRUE(host::IsFileTypeRegistered("QMRFile"));
  }
  EXPECT_FALSE(host::IsFileTypeRegistered("RTF"));
}

// What a link with that target and the file "f" opens, in words.
std::string Opened(Modes modes, std::size_t mode, std::int32_t type, const std::string& target) {
  constexpr std::array kKinds = {"nothing", "page", "entry", "notes", "document", "mode"};
  const Destination destination = DestinationOf(modes, modes[mode], type, target, "f");
  std::string opened = kKinds.at(static_cast<std::size_t>(destination.kind));
  if (!destination.name.empty()) opened += " " + destination.name;
  if (destination.kind == Destination::Kind::kMode) opened += " " + base::Str(destination.mode);
  if (destination.page) opened += " page " + base::Str(*destination.page);
  return opened;
}

TEST(DestinationTest, IsOneRuleForEveryMode) {
  // Mode, type of the link, target, and what opens.
  const std::tuple<std::size_t, std::int32_t, const char*, const char*> rows[] = {
      {0, 0, "5", "mode 5"},           {0, 0, "6", "mode 6"},
      {0, 0, "99.9", "mode 99"},       {0, 0, "100", "mode 5 page 0"},
      {0, 0, "112", "mode 5 page 12"}, {0, 0, "1e99", "mode 5 page 2147483647"},
      {0, 0, "-1", "mode -1"},         {0, 0, "x", "mode 0"},
      {0, 1, "3", "mode 3"},           {0, 9, "3", "mode 3"},
      {1, 0, "7", "page 7"},           {1, 0, "0", "notes"},
      {1, 0, "00", "page 00"},         {2, 0, "0", "page 0"},
      {5, 0, "112", "page 112"},       {1, 1, "0", "entry 0"},
      {4, 9, "0", "document f"},       {1, 2, "7", "nothing"},
      {1, 3, "7", "nothing"},          {1, 8, "7", "nothing"},
      {1, 10, "7", "nothing"},         {1, -1, "7", "nothing"},
  };
  for (const auto& [mode, type, target, opened] : rows)
    EXPECT_EQ(Opened(kModes, mode, type, target), opened) << mode << " " << type << " " << target;
  EXPECT_EQ(Opened(Modes(kModes).first(5), 0, 0, "112"), "mode 112") << "no mode is chosen by page";
}

}  // namespace
}  // namespace quill::app
