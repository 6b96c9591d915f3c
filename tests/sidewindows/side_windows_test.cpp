#include <gtest/gtest.h>

#include <optional>

#include "support/reader.h"

namespace quill::sidewindows {
namespace {

struct NotesTest : testing::Test {
  NotesTest() { Start(); }

  // A run of the program on the files that the run before left, however it ended.
  void Start() {
    const auto left = reader_ ? reader_->desktop.files.All() : std::map<std::string, std::string>();
    reader_.reset();
    reader_.emplace();
    for (const auto& [path, bytes] : left)
      if (!path.starts_with("Quillmere.app")) reader_->desktop.files.AddFile(path, bytes);
    reader_->SetPages(1, {{"P0", {""}}, {"P1", {"notes"}, {{0, 5, "0", 0}}}});
    reader_->SetPages(2, {{"P0", {""}}, {"P1", {"notes"}, {{0, 5, "0", 0}}}});
    reader_->Viewer().ChooseMode(1);
  }

  host::MemoryScreen& Notes() { return *reader_->desktop.screens.back(); }
  std::string Field() { return Notes().controls.at(0)->text; }
  std::string OnDisk() { return reader_->desktop.files.Bytes(kNotes); }

  // What all files in the folder hold, but the notes themselves.
  std::string In(const std::string& folder) {
    std::string texts;
    for (const auto& [path, bytes] : reader_->desktop.files.All())
      if (path.starts_with(folder + "/") && path != kNotes) texts += bytes;
    return texts;
  }

  // Faults by name, several in one.
  void Break(const std::string& fault) {
    host::MemoryFiles& files = reader_->desktop.files;
    if (fault == "lock") files.Lock(kNotes);
    if (fault == "spoil") files.Spoil(kNotes);
    if (fault == "refuse") files.Refuse(kNotes);
    if (fault.starts_with("fill")) files.Fill("preferences");
    if (fault == "fill most" || fault == "fill all") files.Fill("state");
    if (fault == "fill all") files.Fill("runtime");
  }

  static constexpr const char* kNotes = "preferences/QMR";
  std::optional<tests::Reader> reader_;
};

TEST_F(NotesTest, TextSurvivesClosingAndANewRun) {
  for (const std::string text :
       {"one", "two\nlines\n", "cr lf\r\ncr\rnone", "\ttab", "\xF0\x9F\x96\x8B", ""}) {
    ASSERT_TRUE(reader_->Click({"notes"}));
    Notes().Type(text);
    Notes().CloseBox();
    EXPECT_FALSE(Notes().shown);
    EXPECT_EQ(OnDisk(), text);
    Start();
    ASSERT_TRUE(reader_->Click({"notes"}));
    EXPECT_EQ(Field(), text);
    Notes().CloseBox();
  }
}

TEST_F(NotesTest, ASecondPushShowsTheOpenPadWithItsTyping) {
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().Type("unsaved");
  Notes().shown = false;
  ASSERT_TRUE(reader_->Click({"notes"}));
  EXPECT_EQ(reader_->desktop.screens.size(), 2U);
  EXPECT_TRUE(Notes().shown);
  EXPECT_EQ(Field(), "unsaved");
  reader_->Viewer().ChooseMode(2);
  EXPECT_TRUE(Notes().shown) << "a change of mode doesn't touch it";
  ASSERT_TRUE(reader_->Click({"notes"}));
  EXPECT_EQ(reader_->desktop.screens.size(), 2U);
  EXPECT_TRUE(reader_->Viewer().Dump().starts_with("mode 2 page 0")) << "page 0 of other modes is a page";
}

TEST_F(NotesTest, TheEndOfTheProgramSaves) {
  ASSERT_TRUE(reader_->Click({"notes"}));
  Notes().Type("kept");
  const auto screen = reader_->desktop.screens.back();
  reader_->EndProgram();
  EXPECT_EQ(OnDisk(), "kept");
  EXPECT_TRUE(screen->closed);
}

// What becomes of two texts, one on the disk and one typed, when something is amiss.
// "-" stands for nothing: no file, nothing typed, nobody else's text.
struct Mishap {
  const char* story;
  const char* on_disk;
  const char* at_opening;  // a fault: see Break
  const char* typed;
  const char* by_another;  // written to the file meanwhile
  const char* at_closing;  // a fault, or "kill": the pad never closes
  const char* then_on_disk;
  const char* beside;  // under other names in the folder
  const char* told;    // part of what the desktop says
  const char* next;    // what the pad shows next time, when all is well again
};

TEST_F(NotesTest, NothingThatWasTypedIsLostWithoutAWord) {
  static constexpr Mishap kMishaps[] = {
      {"all is well", "old", "-", "new", "-", "-", "new", "", "", "new"},
      {"no file, nothing typed", "-", "-", "-", "-", "-", "", "", "", ""},
      {"nothing typed, changed", "old", "-", "-", "other", "-", "other", "", "", "other"},
      {"nothing typed, unreadable", "old", "lock", "-", "-", "-", "old", "", "", "old"},
      {"unreadable", "old", "lock", "new", "-", "-", "old", "new", "couldn't be read", "old"},
      {"a read error in the middle", "old", "spoil", "new", "-", "-", "old", "new", "couldn't be read",
       "old"},
      {"unreadable later", "old", "-", "new", "-", "lock", "old", "new", "couldn't be read", "old"},
      {"unreadable and full", "old", "lock", "new", "-", "fill", "old", "", "can't be saved", "old"},
      {"can't be made", "old", "-", "new", "-", "refuse", "old", "", "kept in \"state/", "new"},
      {"no room", "old", "-", "new", "-", "fill", "old", "", "kept in \"state/", "new"},
      {"no room there either", "old", "fill most", "new", "-", "-", "old", "", "kept in \"runtime/", "new"},
      {"no room anywhere", "old", "fill all", "new", "-", "-", "old", "", "copied from here.\nnew", "old"},
      {"changed", "old", "-", "new", "other", "-", "new", "other", "changed by another", "new"},
      {"made by another", "-", "-", "new", "other", "-", "new", "other", "changed by another", "new"},
      {"changed alike", "old", "-", "new", "new", "-", "new", "", "", "new"},
      {"changed, no room", "old", "-", "new", "other", "fill", "other", "", "can't be saved", "new"},
      {"killed", "old", "-", "new", "-", "kill", "old", "", "", "new"},
      {"killed without a file", "-", "-", "new", "-", "kill", "", "", "", "new"},
      {"killed after another's change", "old", "-", "new", "other", "kill", "other", "", "", "new"},
      {"killed over unreadable notes", "old", "lock", "new", "-", "kill", "old", "", "", "old"},
  };
  for (const Mishap& row : kMishaps) {
    SCOPED_TRACE(row.story);
    reader_.reset();
    Start();
    host::MemoryFiles& files = reader_->desktop.files;
    const auto put = [&files](const char* text) {
      if (*text != '-') files.AddFile(kNotes, text);
    };
    put(row.on_disk);
    Break(row.at_opening);
    ASSERT_TRUE(reader_->Click({"notes"}));
    if (*row.typed != '-') Notes().Type(row.typed);
    Notes().window->Event_Keep();
    put(row.by_another);
    Break(row.at_closing);
    if (row.at_closing != std::string("kill")) Notes().CloseBox();
    EXPECT_EQ(OnDisk(), row.then_on_disk);
    EXPECT_EQ(In("preferences"), row.beside);
    std::string told;
    for (const std::string& words : std::exchange(reader_->desktop.told, {})) told += words;
    EXPECT_EQ(told.empty(), *row.told == 0) << told;
    EXPECT_NE(told.find(row.told), std::string::npos) << told;
    Start();
    ASSERT_TRUE(reader_->Click({"notes"}));
    EXPECT_EQ(Field(), row.next);
    Notes().CloseBox();
    EXPECT_EQ(OnDisk(), row.next);
    EXPECT_EQ(In("state") + In("runtime"), "") << "no copy is left";
  }
}

struct GlossaryWindowTest : testing::Test {
  GlossaryWindowTest() {
    const std::vector<tests::TestPage> pages = {
        {"P0", {""}}, {"P1", {"one two far"}, {{0, 3, "0", 1}, {4, 3, "1", 1}, {8, 3, "7", 1}}}};
    for (std::size_t mode = 1; mode <= 5; ++mode) {
      reader_.SetPages(mode, pages);
      reader_.SetFile(app::kModes[mode].glossary_file,
                      tests::ContentXml({{"First", {"a bc"}}, {"Next", {""}}}));
    }
    reader_.Viewer();
  }

  host::MemoryScreen& Glossary() { return *reader_.desktop.screens.back(); }

  std::vector<std::string> Drawn() {
    return dynamic_cast<host::MemoryPicture&>(*Glossary().controls[0]->backdrop).GetGraphics()->Drawn();
  }

  tests::Reader reader_;
};

TEST_F(GlossaryWindowTest, OpensInTheMiddleOfTheViewerWithTheLookOfItsMode) {
  for (const auto& [mode, bg] : {std::pair{1, "#172"}, {2, "#169"}, {3, "#169"}, {4, "#169"}, {5, "#169"}}) {
    reader_.Viewer().ChooseMode(mode);
    if (mode == 5) reader_.Viewer().ShowPage("1");
    ASSERT_TRUE(reader_.Click({"one"})) << mode;
    EXPECT_EQ(Glossary().frame, (base::Rect{188, 110, 464, 360})) << mode;
    EXPECT_EQ(Glossary().Dump(), "button \"Close\" 376,325 50x24\ntext \"First\" 7,6 428x20\n") << mode;
    EXPECT_EQ(Drawn(),
              (std::vector<std::string>{std::string("picture ") + bg + " 0,0", "text \"a\" 10,45 12 #ffffff",
                                        "text \"bc\" 30,45 12 #ffffff"}))
        << mode;
    ASSERT_TRUE(Glossary().ClickLabel("Close"));
    EXPECT_FALSE(Glossary().shown) << mode;
  }
}

TEST_F(GlossaryWindowTest, ASecondLinkDrawsOnACleanGround) {
  reader_.Viewer().ChooseMode(2);
  ASSERT_TRUE(reader_.Click({"one", "two"}));
  EXPECT_EQ(reader_.desktop.screens.size(), 2U) << "the window that is open serves";
  EXPECT_EQ(Glossary().controls[2]->text, "Next");
  EXPECT_EQ(Drawn(), (std::vector<std::string>{"picture #169 0,0"}));
  ASSERT_TRUE(reader_.Click({"Back"})) << "the viewer can be used behind it";
  EXPECT_TRUE(Glossary().shown);
}

TEST_F(GlossaryWindowTest, AnEntryThatIsNotThereLeavesTheGroundBare) {
  reader_.Viewer().ChooseMode(2);
  ASSERT_TRUE(reader_.Click({"far"}));
  EXPECT_EQ(Glossary().controls[2]->text, "Label:");
  EXPECT_EQ(Drawn().size(), 1U);
}

struct FindWindowTest : testing::Test {
  FindWindowTest() {
    reader_.SetPages(
        2, {{"P0", {""}}, {"Way in", {"on stage"}}, {"Acts", {"an act, acted\nplays"}, {{0, 2, "1", 0}}}});
    reader_.SetPages(5, {{"P0", {""}}, {"Lives", {"of writers"}}, {"Ann", {"She acted."}}});
    reader_.SetFile(app::kModes[5].glossary_file, tests::ContentXml({{"Actor", {"one who plays"}}}));
    Open();
  }

  // From the viewer, as the desktop does.
  void Open() {
    reader_.Viewer().Event_Find();
    find_ = reader_.desktop.screens.back();
  }

  std::string Rows(const std::string& words) {
    find_->Type(words);
    std::string rows;
    for (const host::FoundRow& row : find_->controls.at(0)->found)
      rows += row.title + " (" + row.place + ") ";
    return rows;
  }

  std::string Shown() { return reader_.Viewer().Dump().substr(0, reader_.Viewer().Dump().find('\n')); }

  tests::Reader reader_;
  std::shared_ptr<host::MemoryScreen> find_;
};

TEST_F(FindWindowTest, ShowsHitsAsALinkWould) {
  EXPECT_EQ(Rows("act"), "Acts (Stage) Ann (Bio) Actor (Bio, glossary) ");
  find_->Choose(0);
  EXPECT_EQ(Shown(), "mode 2 page 2 \"Acts\" trail 1 2");
  const auto& marks = reader_.Screen().controls.at(0)->marks;
  EXPECT_EQ(marks, (std::vector<base::Rect>{{58, 62, 44, 18}, {108, 62, 54, 18}}))
      << "not the link before them";
  ASSERT_TRUE(reader_.Click({"an"}));
  EXPECT_EQ(Shown(), "mode 2 page 1 \"Way in\" trail 1 2 1");
  EXPECT_TRUE(marks.empty()) << "another page";
  Rows("acted");
  find_->Choose(1);
  EXPECT_EQ(Shown(), "mode 5 page 2 \"Ann\" trail 2") << "this area opens on any page";
  find_->Choose(1);
  EXPECT_EQ(Shown(), "mode 5 page 2 \"Ann\" trail 2") << "it is on show already";
}

TEST_F(FindWindowTest, AnEntryOfAnotherAreaOpensOverItsWayIn) {
  EXPECT_EQ(Rows("area:bio actor"), "Actor (Bio, glossary) ");
  find_->Choose(0);
  EXPECT_EQ(Shown(), "mode 5 page 1 \"Lives\" trail 1");
  EXPECT_EQ(reader_.desktop.screens.back()->controls.at(2)->text, "Actor");
}

TEST_F(FindWindowTest, OffersWhatThereIsAndKeepsItsWords) {
  EXPECT_EQ(Rows("stge"), "Nothing found. Did you mean: () stage () ");
  find_->Choose(0);
  find_->Choose(1);
  EXPECT_EQ(find_->controls.at(0)->text, "stage");
  find_->CloseBox();
  Open();
  EXPECT_EQ(find_->controls.at(0)->text, "stage");
  EXPECT_EQ(find_->controls.at(0)->found.at(0).title, "Way in");
  EXPECT_EQ(Rows(" ,"), "");
  find_->Choose(0);
  EXPECT_EQ(Shown(), "mode 0 page 0 \"Cover\" trail");
}

}  // namespace
}  // namespace quill::sidewindows
