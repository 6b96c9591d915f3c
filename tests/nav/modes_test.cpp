#include <gtest/gtest.h>

#include "support/reader.h"

namespace quill::nav {
namespace {

// A further area is a further row of the table, and nothing else knows of it.
TEST(ModesTest, ASeventhRowIsAnArea) {
  std::vector<app::Mode> modes(app::kModes.begin(), app::kModes.end());
  modes.push_back({.area = "Radio",
                   .content_file = "RadioQMR.xml",
                   .glossary_file = "RadioGlossary.xml",
                   .first_page = 1,
                   .page_picture = app::PictureId::kTv,
                   .has_notes = true,
                   .documents = content::DocumentPlace::kInBundle});
  tests::Reader reader(modes);
  reader.SetPages(0, {{"Welcome", {"radio"}, {{0, 5, "6"}}}});
  reader.SetPages(6, {{"R0", {""}},
                      {"R1",
                       {"next notes doc word"},
                       {{0, 4, "2"}, {5, 5, "0"}, {11, 3, "0", 9, 1, "a.pdf"}, {15, 4, "1", 1}}},
                      {"R2", {""}}});
  reader.SetFile("RadioGlossary.xml", tests::ContentXml({{"E0", {""}}, {"E1", {""}}}));
  reader.SetFile("a.pdf", "inside the bundle");
  const auto after = [&reader](const std::string& label) {
    EXPECT_TRUE(reader.Viewer().IsOpen() && reader.Click({label})) << label;
    const std::string dump = reader.Viewer().Dump();
    return dump.substr(0, dump.find('\n'));
  };
  EXPECT_EQ(after("radio"), "mode 6 page 1 \"R1\" trail 1");
  EXPECT_EQ(after("next"), "mode 6 page 2 \"R2\" trail 1 2");
  EXPECT_EQ(after("R1 "), "mode 6 page 1 \"R1\" trail 1");
  EXPECT_EQ(after("notes"), "mode 6 page 1 \"R1\" trail 1");
  EXPECT_EQ(reader.desktop.screens.back()->style.title, "Free Association");
  after("doc");
  EXPECT_EQ(reader.desktop.opened_documents,
            std::vector<std::string>{"MACS Quillmere.app/Contents/Data/a.pdf"});
  after("word");
  EXPECT_EQ(reader.desktop.screens.back()->controls[2]->text, "E1");
  EXPECT_EQ(after("Back"), "mode 0 page 0 \"Welcome\" trail");
}

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
  tests::Reader reader;
  reader.desktop.files.AddFile("Data/a.pdf", "beside");
  reader.desktop.files.AddFile("Data/caf\xC3\xA9.pdf", "named in UTF-8 on disk");
  reader.SetFile("a.pdf", "inside the bundle");
  reader.SetFile("b.pdf", "inside alone");
  const std::tuple<int, const char*, const char*> rows[] = {
      {4, "a.pdf", "MACS Quillmere.app/Contents/Data/a.pdf"},
      {1, "a.pdf", "QLD7 Data/a.pdf"},
      {2, "a.pdf", "QLD7 Data/a.pdf"},
      {5, "a.pdf", "QLD7 Data/a.pdf"},
      {4, "b.pdf", "MACS Quillmere.app/Contents/Data/b.pdf"},
      {3, "b.pdf", kFailed},
      {3, "caf\xE9.pdf", "QLD7 Data/caf\xC3\xA9.pdf"},
      {3, "", kFailed},
      {4, "..", kFailed},
      {3, "../Quillmere.app/Contents/Data/b.pdf", kFailed},
      {4, "/etc/passwd", kFailed},
  };
  for (const auto& [mode, name, seen] : rows) EXPECT_EQ(Push(reader, mode, name), seen) << mode << name;
  reader.desktop.no_applications = true;
  EXPECT_EQ(Push(reader, 4, "a.pdf"), kFailed);
}

}  // namespace
}  // namespace quill::nav
