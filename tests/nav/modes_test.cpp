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

}  // namespace
}  // namespace quill::nav
