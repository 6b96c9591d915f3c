#include "authoring/check/checker.h"

#include <gmock/gmock.h>

#include <sstream>

#include "host/memory/memory_desktop.h"
#include "support/content_xml.h"

namespace quill::authoring {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr const char* kPages = "\xC3\xA9t\xC3\xA9.xml";

// A bundle in which nothing is wrong, with an area more than the program has: the
// seventh, which the opening page leads to.
struct CheckerTest : testing::Test {
  CheckerTest() {
    modes.push_back(app::kModes[2]);
    modes.back().area = "Radio";
    modes.back().content_file = kPages;
    modes.back().glossary_file = "RadioGlossary.xml";
    for (const app::Mode& mode : modes) {
      Write(mode.content_file, {{"Cover", {"cover"}}, {"First", {"first"}}});
      Write(mode.glossary_file, {{"About", {"about"}}});
    }
    Write("initQMR.xml", {{"Opening", {"Life Radio"}, {{0, 4, "101", 2}, {5, 5, "6", 2}}}});
    Write(kPages, {{"Cover", {"cover"}}, {"First", {"on air"}, {{3, 3, "2"}}}, {"Next", {"off"}}});
  }
  ~CheckerTest() override { EXPECT_THAT(desktop.messages, testing::IsEmpty()); }

  void Write(std::string_view file, const std::vector<tests::TestPage>& pages) {
    std::string xml = tests::ContentXml(pages);
    const std::string head = tests::Element("LastPageID", std::to_string(pages.size() - 1));
    xml.replace(xml.find("<AppInfo/>"), 10, "<AppInfo>" + head + "</AppInfo>");
    desktop.files.AddFile("Quillmere.app/Contents/Data/" + std::string(file), xml);
  }

  // The report as text, of so many of the areas.
  std::string Run(std::size_t areas, decltype(WriteText)* write = WriteText) {
    CheckOptions options;
    options.modes = app::Modes(modes).first(areas);
    std::ostringstream notes, text;
    const CheckResult result = Check(options, notes);
    EXPECT_TRUE(result.report) << notes.str();
    if (result.report) write(*result.report, text);
    return text.str();
  }

  host::MemoryDesktop desktop;
  std::vector<app::Mode> modes{app::kModes.begin(), app::kModes.end()};
};

TEST_F(CheckerTest, WalksThroughEveryRowOfTheTable) {
  const std::string report = Run(7);
  EXPECT_THAT(report, testing::StartsWith("init: 1 page, 2 words, 2 links"));
  EXPECT_THAT(report, EndsWith("Radio: 3 pages, 4 words, 1 link, 1 click to the farthest page\n"));
  EXPECT_THAT(Run(6), HasSubstr("link 2 \"Radio\": it leads to area 6, which there isn't\n"));
}

// In the order of pages and links, whichever rule has found what.
TEST_F(CheckerTest, FindsWhatIsWrongInAnyArea) {
  Write(kPages, {{"Cover", {"cover"}}, {"A\tB", {"on air"}, {{3, 3, "9"}, {3, 3, "0"}}}, {"Next", {"off"}}});
  const std::string file = kPages;
  const std::string reason = "it leads to page 9 of " + file + ", which there isn't";
  const std::string page = file + ": page 1 \"A B\", column 1, ";
  EXPECT_THAT(Run(7), HasSubstr(page + "link 1 \"air\": " + reason + "\n" + page +
                                "link 2 \"air\": an earlier link starts at the same word, and hides it\n" +
                                file + ": page 2 \"Next\": no page links to it\n"));
  const std::string json = Run(7, WriteJson);
  EXPECT_THAT(json, HasSubstr("\"file\": \"" + file + "\", \"page\": 1, \"title\": \"A\\u0009B\""));
  EXPECT_THAT(json, HasSubstr(reason));
}

// The paragraph with index 10 stands beside the button, that with 11 below the window.
TEST_F(CheckerTest, MindsTheEdgesOfTheGlossarysWindow) {
  const auto found = [&](std::size_t paragraph, std::size_t letters) {
    Write("RadioGlossary.xml", {{"About", {std::string(paragraph, '\n') + std::string(letters, 'x')}}});
    const std::string report = Run(7);
    return report.find("behind the button \"Close\" from \"x") != std::string::npos    ? "behind"
           : report.find("below the edge of the window from \"x") != std::string::npos ? "below"
                                                                                       : "";
  };
  EXPECT_STREQ(found(9, 37), "");
  EXPECT_STREQ(found(10, 36), "");
  EXPECT_STREQ(found(10, 37), "behind");
  EXPECT_STREQ(found(11, 1), "below");
}

// Each character once for a page, and again on another.
TEST_F(CheckerTest, TellsOfACharacterOnceAPage) {
  Write(kPages, {{"Cover", {"cover"}}, {"A \x93", {"b \x93 \x94"}, {{2, 1, "2"}}}, {"B", {"\x93"}}});
  const std::string report = Run(7);
  std::size_t told = 0;
  for (std::size_t i = 0; (i = report.find("reader has no character", i)) != std::string::npos; ++i) ++told;
  EXPECT_EQ(told, 3U) << report;
}

}  // namespace
}  // namespace quill::authoring
