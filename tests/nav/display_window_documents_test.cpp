#include <gtest/gtest.h>

#include "support/reader.h"

namespace quill::nav {
namespace {

// Pushes a document link with that file name in that mode; says what was opened
// and shown.
std::string Push(tests::Reader& reader, int mode, const std::string& filename) {
  reader.SetPages(static_cast<std::size_t>(mode),
                  {{"P0", {""}}, {"P1", {"doc"}, {{0, 3, "0", 9, 1, filename}}}});
  reader.Viewer().ChooseMode(mode);
  if (mode == 5) reader.Viewer().ShowPage("1");
  const std::string before = reader.Viewer().Dump();
  reader.desktop.opened_documents.clear();
  EXPECT_TRUE(reader.Click({"doc"}));
  EXPECT_EQ(reader.Viewer().Dump(), before) << "the page stays, and the trail";
  std::string seen;
  for (const std::string& opened : reader.desktop.opened_documents) seen += opened;
  for (const std::string& message : reader.TakeMessages()) seen += message;
  return seen;
}

TEST(ExternalDocumentsTest, TheModeChoosesApplicationAndFolder) {
  constexpr const char* kFailed = "Unable to open document.";
  struct Case {
    int mode;
    std::string filename, seen;
  };
  tests::Reader reader;
  reader.desktop.files.AddFile("Data/a.pdf", "beside the bundle");
  reader.desktop.files.AddFile("Data/caf\xC3\xA9.pdf", "named in UTF-8 on disk");
  reader.SetFile("a.pdf", "inside the bundle");
  reader.SetFile("b.pdf", "inside alone");
  for (const Case& row : {
           Case{4, "a.pdf", "MACS Quillmere.app/Contents/Data/a.pdf"},
           Case{1, "a.pdf", "QLD7 Data/a.pdf"},
           Case{2, "a.pdf", "QLD7 Data/a.pdf"},
           Case{3, "a.pdf", "QLD7 Data/a.pdf"},
           Case{5, "a.pdf", "QLD7 Data/a.pdf"},
           Case{4, "b.pdf", "MACS Quillmere.app/Contents/Data/b.pdf"},
           Case{3, "b.pdf", kFailed},
           Case{3, "caf\xE9.pdf", "QLD7 Data/caf\xC3\xA9.pdf"},
           Case{3, "", kFailed},
           Case{4, "..", kFailed},
           Case{3, "../Quillmere.app/Contents/Data/b.pdf", kFailed},
           Case{4, "/etc/passwd", kFailed},
       }) {
    EXPECT_EQ(Push(reader, row.mode, row.filename), row.seen) << row.mode << " " << row.filename;
  }
  reader.desktop.no_applications = true;
  EXPECT_EQ(Push(reader, 4, "a.pdf"), kFailed);
}

}  // namespace
}  // namespace quill::nav
