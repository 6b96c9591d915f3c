#include "app/app.h"

#include <gtest/gtest.h>

#include "app/file_types.h"
#include "app/product.h"
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
  EXPECT_EQ(App::GetColumnFromField(6), 0);
  EXPECT_EQ(App::GetColumnFromField(-1), 0);
  EXPECT_EQ(App::GetFieldFromColumn(3, 2), 0);
  EXPECT_EQ(App::GetFieldFromColumn(2, 1), 0);
  EXPECT_EQ(App::GetFieldFromColumn(1, 4), 0);
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

}  // namespace
}  // namespace quill::app
