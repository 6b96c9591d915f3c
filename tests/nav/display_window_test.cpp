#include "nav/display_window.h"

#include <gtest/gtest.h>

#include <sstream>

#include "nav/history.h"
#include "support/reader.h"

namespace quill::nav {
namespace {

using tests::Reader;
using tests::TestPage;
using Messages = std::vector<std::string>;

// A page of words, each of which leads to its target: "word:target word:target".
TestPage PageOfLinks(const std::string& title, const std::string& words) {
  TestPage page{title, {""}};
  std::istringstream in(words);
  for (std::string word, target; std::getline(in, word, ':') && in >> target; in.ignore()) {
    const auto offset = static_cast<int>(page.columns[0].size());
    page.links.push_back({offset, static_cast<int>(word.size()), target});
    page.columns[0] += word + " ";
  }
  return page;
}

// Pages 0 to 30 titled P0, P1 ...; each links to all by buttons to0, to1 ...
std::vector<TestPage> LinkedPages() {
  std::string words;
  for (int n = 0; n <= 30; ++n) words += "to" + std::to_string(n) + ":" + std::to_string(n) + " ";
  std::vector<TestPage> pages;
  for (int n = 0; n <= 30; ++n) pages.push_back(PageOfLinks("P" + std::to_string(n), words));
  return pages;
}

struct DisplayWindowTest : testing::Test {
  DisplayWindowTest() {
    const std::string words = "one:1 two:2 three:3 four:4 five:5 bio:112 zero:0 none:6 wga:100";
    reader_.SetPages(0, {PageOfLinks("Welcome", words)});
    for (std::size_t mode = 1; mode <= 5; ++mode) reader_.SetPages(mode, LinkedPages());
    reader_.Viewer();
  }

  // The first line of the dump.
  std::string State() {
    const std::string dump = reader_.Viewer().Dump();
    return dump.substr(0, dump.find('\n'));
  }

  std::string Row() {
    const std::string dump = reader_.Viewer().Dump();
    const std::size_t row = dump.find("back ");
    return row == std::string::npos ? "" : dump.substr(row, dump.find("exit ") - row);
  }

  Reader reader_;
};

TEST_F(DisplayWindowTest, ComesUpOnTheOpeningPageWhereExitLeadsOut) {
  EXPECT_EQ(State(), "mode 0 page 0 \"Welcome\" trail");
  EXPECT_TRUE(reader_.Screen().shown);
  EXPECT_TRUE(reader_.Screen().Dump().starts_with(
      "text \"Welcome\" 77,4 494x27\nbutton \"Exit\" 587,437 40x24\ntext \"V 1.2.3\" 340,61 73x20\n"));
  ASSERT_TRUE(reader_.Click({"one", "to3", "Back"}));
  EXPECT_FALSE(reader_.desktop.quit_code);
  ASSERT_TRUE(reader_.Click({"Exit"}));
  EXPECT_EQ(reader_.desktop.quit_code, 0);
}

// A session: the labels clicked one after the other, and where that leads.
TEST_F(DisplayWindowTest, ClicksLead) {
  using Session = std::pair<std::vector<std::string>, std::string>;
  for (const auto& [clicks, state] : {
           Session{{"four"}, "mode 4 page 1 \"P1\" trail 1"},
           Session{{"five"}, "mode 5 page 0 \"P0\" trail"},
           Session{{"bio"}, "mode 5 page 12 \"P12\" trail 12"},
           Session{{"wga"}, "mode 5 page 0 \"P0\" trail"},
           Session{{"zero"}, "mode 0 page 0 \"Welcome\" trail"},
           Session{{"none"}, "mode 0 page 0 \"Welcome\" trail"},
           Session{{"two", "to4", "to7"}, "mode 2 page 7 \"P7\" trail 1 4 7"},
           Session{{"two", "to4", "to0"}, "mode 2 page 0 \"P0\" trail 1 4"},
           Session{{"two", "to4", "to1", "to7", "P1 "}, "mode 2 page 1 \"P1\" trail 1 4 1"},
           Session{{"two", "to4", "to7", "> P4 "}, "mode 2 page 4 \"P4\" trail 1 4"},
           Session{{"bio", "P12 "}, "mode 5 page 12 \"P12\" trail 12"},
           Session{{"two", "to4", "Back", "three"}, "mode 3 page 1 \"P1\" trail 1"},
       }) {
    reader_.Viewer().ChooseMode(0);
    EXPECT_TRUE(reader_.Click(clicks)) << state;
    EXPECT_EQ(State(), state);
  }
}

TEST_F(DisplayWindowTest, RowStandsSideBySideAndSkipsPageOne) {
  ASSERT_TRUE(reader_.Click({"two"}));
  EXPECT_EQ(Row(), "") << "no row on a mode's first page";
  ASSERT_TRUE(reader_.Click({"to2", "to3", "to4", "to5"}));
  EXPECT_EQ(Row(), "back 20 \"P1 \" -> 1\nback 50 \"...> P3 \" -> 3\nback 130 \"> P4 \" -> 4\n");
  ASSERT_TRUE(reader_.Click({"to1"}));
  EXPECT_EQ(Row(), "") << "nor when the trail comes back to it";
  ASSERT_TRUE(reader_.Click({"to6"}));
  EXPECT_EQ(Row(), "back 20 \"P1 \" -> 1\nback 50 \"...> P5 \" -> 5\nback 130 \"> P1 \" -> 1\n");
}

TEST_F(DisplayWindowTest, ALongTrailKeepsToThePool) {
  ASSERT_TRUE(reader_.Click({"two"}));
  for (int n = 2; n <= 30; ++n) ASSERT_TRUE(reader_.Click({"to" + std::to_string(n)}));
  EXPECT_EQ(Row(), "back 20 \"P1 \" -> 1\nback 50 \"...> P28 \" -> 28\nback 140 \"> P29 \" -> 29\n");
  ASSERT_TRUE(reader_.Click({"> P29 "}));
  EXPECT_EQ(Row(), "back 20 \"P1 \" -> 1\nback 50 \"...> P27 \" -> 27\nback 140 \"> P28 \" -> 28\n");
}

TEST_F(DisplayWindowTest, TitleStandsWhereTheLastModeThatPlacesItPutIt) {
  const host::MemoryControl& title = *reader_.Screen().controls[1];
  for (const auto& [mode, top] : {std::pair{1, 14}, {3, 14}, {4, 14}, {2, 4}, {5, 4}, {0, 4}}) {
    reader_.Viewer().ChooseMode(mode);
    EXPECT_EQ(title.frame.top, top) << mode;
  }
}

TEST_F(DisplayWindowTest, APageLeavesNothingOfTheOneBefore) {
  ASSERT_TRUE(reader_.Click({"two"}));
  const std::string full = reader_.Screen().Dump();
  const auto picture = reader_.Screen().controls[0]->backdrop;
  reader_.SetPages(2, {{"P0", {""}}, {"Bare", {"x"}}});
  reader_.Viewer().ChooseMode(2);
  EXPECT_EQ(reader_.Screen().Dump(),
            "text \"Bare\" 77,4 494x27\nbutton \"Back\" 587,437 40x24\ntext \"V 1.2.3\" 340,61 73x20\n");
  EXPECT_NE(reader_.Screen().controls[0]->backdrop, picture);
  reader_.SetPages(2, LinkedPages());
  reader_.Viewer().ChooseMode(2);
  EXPECT_EQ(reader_.Screen().Dump(), full);
}

TEST_F(DisplayWindowTest, DrawsThePageInWhiteOnItsGround) {
  reader_.SetPages(1, {{"P0", {""}}, {"P1", {"ab cd"}, {{3, 2, "", 4}}}});
  ASSERT_TRUE(reader_.Click({"one"}));
  auto& picture = dynamic_cast<host::MemoryPicture&>(*reader_.Screen().controls[0]->backdrop);
  EXPECT_EQ(picture.GetGraphics()->Drawn(),
            (Messages{"picture #171 0,0", "text \"ab\" 30,75 12 #ffffff", "text \"cd\" 60,75 12 #ffffff b"}));
  EXPECT_FALSE(reader_.Screen().ClickLabel("cd")) << "the button of a styled run stays hidden";
}

TEST_F(DisplayWindowTest, APageThatIsNotThereShowsTheGroundAndTheRow) {
  ASSERT_TRUE(reader_.Click({"two", "to3"}));
  reader_.Viewer().ShowPage("77");
  EXPECT_EQ(
      reader_.Viewer().Dump(),
      "mode 2 page 77 \"\" trail 1 3 77\nback 20 \"P1 \" -> 1\nback 50 \"> P3 \" -> 3\nexit \"Back\"\n");
}

TEST_F(DisplayWindowTest, OnlyPage191OfTheScreenAreaIsSetClose) {
  std::vector<TestPage> pages(192, {"P", {"a\nb"}});
  reader_.SetPages(1, pages);
  reader_.SetPages(2, pages);
  for (const auto& [mode, page, second_line] :
       {std::tuple{1, "191", "b 30,95\n"}, {1, "0191", "b 30,105\n"}, {2, "191", "b 30,105\n"}}) {
    reader_.Viewer().ChooseMode(mode);
    reader_.Viewer().ShowPage(page);
    EXPECT_NE(reader_.Viewer().Dump().find(second_line), std::string::npos) << mode << page;
  }
}

TEST_F(DisplayWindowTest, AFailedChangeOfModeKeepsTheOldPages) {
  ASSERT_TRUE(reader_.Click({"two", "to3"}));
  const std::string good = "<Root><AppInfo/></Root>";
  for (const auto& [content, glossary, messages] :
       {std::tuple{"<Root/>", good, Messages{"No AppInfo found in TVQMR.xml", "XMLFile.ini Failed!"}},
        {good.c_str(), "<a/>", Messages{"No Root found in TVGlossary.xml", "GlossaryFile.ini Failed!"}}}) {
    reader_.SetFile("TVQMR.xml", content);
    reader_.SetFile("TVGlossary.xml", glossary);
    reader_.Viewer().ChooseMode(3);
    EXPECT_EQ(reader_.TakeMessages(), messages);
    EXPECT_EQ(State(), "mode 3 page 3 \"P3\" trail 3");
  }
}

TEST_F(DisplayWindowTest, AGlossaryWithoutDocumentLeavesNothingToShow) {
  reader_.SetFile("TVGlossary.xml", "<Root><AppInfo/></Root>");
  reader_.Viewer().ChooseMode(3);
  EXPECT_EQ(State(), "mode 3 page 1 \"\" trail 1");
}

TEST_F(DisplayWindowTest, AnnouncesAPageWhereTheTraceIsOn) {
  reader_.App().TestMode = true;
  reader_.Viewer().ShowPage("0");
  EXPECT_EQ(reader_.TakeMessages(),
            (Messages{"DisplayWindow ShowPage", "DisplayWindow DrawPage", "DisplayWindow InitializeCanvas",
                      "DisplayWindow InitLinkButtons", "DisplayWindow DrawPage have page and links"}));
}

TEST_F(DisplayWindowTest, WithoutAPictureToDrawOnItSaysSoAndGoesOn) {
  reader_.desktop.undrawable_pictures = true;
  reader_.Viewer().ShowPage("0");
  EXPECT_EQ(reader_.TakeMessages().at(0), "invalid graphics handle, Initialize Canvas");
  reader_.desktop.out_of_pictures = true;
  reader_.Viewer().ShowPage("0");
  EXPECT_EQ(reader_.TakeMessages().at(0), "out of memory, initialize cavas");
  EXPECT_EQ(State(), "mode 0 page 0 \"Welcome\" trail");
}

TEST(StartUpTest, WithoutItsFirstFileTheProgramEnds) {
  Reader reader;
  reader.desktop.files.Remove("Quillmere.app/Contents/Data/initQMR.xml");
  reader.Viewer();
  EXPECT_EQ(reader.TakeMessages(), (Messages{"Unable to locate initQMR.xml.  Program Aborting."}));
  EXPECT_EQ(reader.desktop.quit_code, 0);
}

History Trail(std::size_t steps) {
  History history;
  for (std::size_t i = 0; i < steps; ++i) history.Append(std::to_string(i + 1));
  return history;
}

TEST(HistoryTest, RowOffersTheFirstPageAndTheLastTwoBeforeTheOneOnShow) {
  using Row = std::vector<TrailButton>;
  EXPECT_EQ(Trail(0).Row(), Row{});
  EXPECT_EQ(Trail(1).Row(), (Row{{0, 0, ""}}));
  EXPECT_EQ(Trail(2).Row(), (Row{{0, 0, ""}}));
  EXPECT_EQ(Trail(4).Row(), (Row{{0, 0, ""}, {1, 1, "> "}, {2, 2, "> "}}));
  EXPECT_EQ(Trail(5).Row(), (Row{{0, 0, ""}, {2, 2, "...> "}, {3, 3, "> "}}));
  EXPECT_EQ(Trail(21).Row(), (Row{{0, 0, ""}, {18, 18, "...> "}, {19, 19, "> "}}));
  EXPECT_EQ(Trail(22).Row(), (Row{{0, 0, ""}, {18, 19, "...> "}, {19, 20, "> "}})) << "beyond the pool";
}

}  // namespace
}  // namespace quill::nav
