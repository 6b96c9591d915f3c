#include "nav/display_window.h"

#include <gtest/gtest.h>

#include "support/reader.h"

namespace quill::nav {
namespace {

using tests::Reader;
using tests::TestPage;

// Pages 1 to `count` titled P1, P2 ...; each links to all others by buttons
// to1, to2 ... of which three stand on a line.
std::vector<TestPage> LinkedPages(int count) {
  std::string text;
  std::vector<tests::TestLink> links;
  for (int n = 0; n <= count; ++n) {
    const std::string word = "to" + std::to_string(n);
    links.push_back({static_cast<int>(text.size()), static_cast<int>(word.size()), std::to_string(n)});
    text += word + " ";
  }
  std::vector<TestPage> pages;
  for (int n = 0; n <= count; ++n) pages.push_back({"P" + std::to_string(n), {text}, links});
  return pages;
}

std::string FirstLine(const std::string& dump) { return dump.substr(0, dump.find('\n')); }

class DisplayWindowTest : public testing::Test {
 protected:
  DisplayWindowTest() {
    reader_.SetPages(0, {{"Welcome",
                          {"one two three four five bio zero none wga"},
                          {{0, 3, "1", 9, 1, "x.pdf"},
                           {4, 3, "2"},
                           {8, 5, "3"},
                           {14, 4, "4", 1},
                           {19, 4, "5"},
                           {24, 3, "112"},
                           {28, 4, "0"},
                           {33, 4, "6"},
                           {38, 3, "100"}}}});
    for (std::size_t mode = 1; mode <= 5; ++mode) reader_.SetPages(mode, LinkedPages(30));
    reader_.Viewer();
  }

  std::string State() { return FirstLine(reader_.Viewer().Dump()); }

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
  struct Session {
    std::vector<std::string> clicks;
    std::string state;
  };
  for (const Session& row : {
           Session{{"one"}, "mode 1 page 1 \"P1\" trail 1"},
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
    EXPECT_TRUE(reader_.Click(row.clicks)) << row.state;
    EXPECT_EQ(State(), row.state);
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
  reader_.SetPages(2, LinkedPages(30));
  reader_.Viewer().ChooseMode(2);
  EXPECT_EQ(reader_.Screen().Dump(), full);
}

TEST_F(DisplayWindowTest, DrawsThePageInWhiteOnItsGround) {
  reader_.SetPages(1, {{"P0", {""}}, {"P1", {"ab cd"}, {{3, 2, "", 4}}}});
  ASSERT_TRUE(reader_.Click({"one"}));
  auto& picture = dynamic_cast<host::MemoryPicture&>(*reader_.Screen().controls[0]->backdrop);
  EXPECT_EQ(picture.GetGraphics()->Drawn(),
            (std::vector<std::string>{"picture #171 0,0", "text \"ab\" 30,75 12 #ffffff",
                                      "text \"cd\" 60,75 12 #ffffff b"}));
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
  struct Case {
    std::int32_t mode;
    std::string page, second_line;
  };
  for (const Case& row :
       {Case{1, "191", "b 30,95\n"}, Case{1, "0191", "b 30,105\n"}, Case{2, "191", "b 30,105\n"}}) {
    reader_.Viewer().ChooseMode(row.mode);
    reader_.Viewer().ShowPage(row.page);
    EXPECT_NE(reader_.Viewer().Dump().find(row.second_line), std::string::npos) << row.mode << row.page;
  }
}

TEST_F(DisplayWindowTest, AFailedChangeOfModeKeepsTheOldPages) {
  ASSERT_TRUE(reader_.Click({"two", "to3"}));
  struct Case {
    std::string content, glossary;
    std::vector<std::string> messages;
  };
  for (const Case& row :
       {Case{"<Root/>", "<Root><AppInfo/></Root>", {"No AppInfo found in TVQMR.xml", "XMLFile.ini Failed!"}},
        Case{"<Root><AppInfo/></Root>",
             "<a/>",
             {"No Root found in TVGlossary.xml", "GlossaryFile.ini Failed!"}}}) {
    reader_.SetFile("TVQMR.xml", row.content);
    reader_.SetFile("TVGlossary.xml", row.glossary);
    reader_.Viewer().ChooseMode(3);
    EXPECT_EQ(reader_.TakeMessages(), row.messages);
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
            (std::vector<std::string>{"DisplayWindow ShowPage", "DisplayWindow DrawPage",
                                      "DisplayWindow InitializeCanvas", "DisplayWindow InitLinkButtons",
                                      "DisplayWindow DrawPage have page and links"}));
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
  EXPECT_EQ(reader.TakeMessages(),
            (std::vector<std::string>{"Unable to locate initQMR.xml.  Program Aborting."}));
  EXPECT_EQ(reader.desktop.quit_code, 0);
}

}  // namespace
}  // namespace quill::nav
