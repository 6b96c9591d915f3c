#include <gmock/gmock.h>

#include <array>
#include <sstream>

#include "base/numbers.h"
#include "base/text.h"
#include "quillpress/build_command.h"
#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

using testing::HasSubstr;
using tests::Bundle;
using tests::Outcome;

namespace fs = tests::fs;

struct BuildTest : testing::Test {
  void Write(const char* name, const char* text) const { tests::WriteFile(folder / name, text); }

  // Status and errors, without the path of the folder.
  std::string Run(const std::string& manuscript, const std::string& output) const {
    std::ostringstream errors;
    const int status = Build(folder / manuscript, folder / output, errors);
    return base::ReplaceAll(base::Str(status) + " " + errors.str(), (folder / "").string(), "");
  }

  const tests::TemporaryFolder folder;
};

TEST_F(BuildTest, WritesAllOrNothing) {
  Write("a.md", "# A\n\n[b](glossary:second)\n");
  EXPECT_EQ(Run("a.md", "a.xml"),
            "1 a.md:3: there is no glossary beside this manuscript to look for \"second\"\n");
  EXPECT_FALSE(fs::exists(folder / "a.xml"));
  Write("a_glossary.md", "# First {#first}\n\na\n\n# Second {#second}\n\nb\n");
  EXPECT_EQ(Run("a.md", "new/a.xml"), "0 ");
  EXPECT_EQ(Run("a_glossary.md", "b.xml"), "0 ");
  const auto size = fs::file_size(folder / "b.xml");
  Write("a_glossary.md", "# A\n\n**a**\n\n- b\n\n---\n");
  EXPECT_EQ(Run("a_glossary.md", "b.xml"),
            "1 a_glossary.md:1: a glossary entry has one column\n"
            "a_glossary.md:1: a glossary entry has no indents and no lists\n"
            "a_glossary.md:3: a glossary entry has no links and no styles\n");
  EXPECT_EQ(fs::file_size(folder / "b.xml"), size);
}

using testing::StartsWith;

TEST(SnapshotTest, ShowsThePageAsPictureAndAsText) {
  const Bundle bundle;
  const std::string command = "snapshot . --mode 2 --page 2 -o page.png";
  EXPECT_EQ(bundle.Run(command).out, "");
  EXPECT_EQ(tests::ReadFile(bundle.data / "page.png").substr(1, 3), "PNG");
  const std::string dump = bundle.Run(command + " --dump").out;
  EXPECT_THAT(dump, StartsWith("mode 2 page 2 \"Next\" trail 1 2\nLast. 30,"));
  const std::string labelled = bundle.Run(command + " --dump --offsets").out;
  EXPECT_THAT(labelled, HasSubstr("\n0 30,"));
  EXPECT_EQ(labelled.size() - dump.size(), std::string("0 30,86\n").size()) << labelled << "a label a word";
}

Outcome Check(const Bundle& bundle, const std::string& format = "text") {
  return bundle.Run("check . --format " + format);
}

TEST(CheckTest, FindsNothingInACleanBundle) {
  const Outcome outcome = Check(Bundle());
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            "init: 1 page, 2 words, 2 links, 0 clicks to the farthest page\n"
            "Screen: 2 pages, 2 words, 0 links, 0 clicks to the farthest page\n"
            "Stage: 3 pages, 14 words, 3 links, 1 click to the farthest page\n"
            "TV: 2 pages, 11 words, 0 links, 0 clicks to the farthest page\n"
            "WGA: 2 pages, 2 words, 1 link, 0 clicks to the farthest page\n"
            "Bio: 2 pages, 2 words, 0 links, 0 clicks to the farthest page\n");
}

std::string ManyLinks() {
  std::string links = "<Links>";
  for (int i = 0; i < 62; ++i) links += tests::LinkXml({i, 1, "1"});
  return links + "</Links></Page></Document>";
}

const std::string kBehindBold =
    "<Links>" + tests::LinkXml({11, 4, "", 4}) + tests::LinkXml({16, 8, "2"}) + "<Link";

const std::string kStage = "StageQMR.xml";
const std::string kTv = "TVQMR.xml";
const std::string kLow = std::string(13, '\n') + "low";
const std::string kDeep = std::string(30, '\n') + "low";

// clang-format off
// In which file, what is replaced by what, and what the report says then.
const std::vector<std::array<std::string, 4>> kFaults = {
    {kStage, "<PageID>2<", "<PageID>5<", "page 2 \"Next\": its id is \"5\", and its place 2\n"},
    {kStage, "ID>2</Last", "ID>7</Last", "StageQMR.xml: LastPageID is 7, and the last page 2\n"},
    {kStage, "Page>2<", "Page>9<", "1 \"Way in\", column 1, link 1 \"Next\": it leads to page 9 of StageQMR.xml, which there isn't\n"},
    {kStage, "Page>1<", "Page>4<", "link 2 \"rehearsal\": it leads to page 4 of StageGlossary.xml"},
    {"initQMR.xml", "Page>2<", "Page>7<", "link 1 \"Stage\": it leads to area 7, which there isn't\n"},
    {"initQMR.xml", ">101<", ">150<", "link 2 \"Life\": it leads to page 50 of BioQMR.xml"},
    {kStage, "Type>0<", "Type>12<", "link 1 \"Next\": its type 12 leads nowhere\n"},
    {kStage, ">16<", ">x<", "link 1 \"Begin\": its offset \"x\" is no whole number\n"},
    {kStage, "Length>4<", "Length><", "link 1 \"Next\": its length \"\" is no whole number\n"},
    {kStage, ">16<", ">17<", "column 1, link 1: no word starts at its offset 17\n"},
    {kStage, "Column=\"1\">", "Column=\"3\">", "column 3, link 1: it lies in column 3, and the page has 1\n"},
    {kStage, "Length>5<", "Length>10<", "its length 10 runs past the end of the paragraph, which is 9 char"},
    {kStage, ">35<", ">16<", "link 2 \"Next and\": an earlier link starts at the same word, and hides it\n"},
    {kStage, "Length>4<", "Length>28<", "its button and that of link 1 \"Next and a word of rehearsal\" cover each other\n"},
    {kTv, "Length>3<", "Length>30<", "link 1 \"one two three four five six seven\": its words break across"},
    {kTv, "one two", "one-and-two-and-three-and-four-and-five two", "pixels past its column\n"},
    {kStage, "Next and", "N" + std::string(90, 'x'), "its button runs past the edge of the window\n"},
    {kTv, "five six", "five \tsix", "column 1: \"six\" is written over what stands before its stop\n"},
    {kStage, "<Links><Link", kBehindBold, "its words stick out from under its button, since the word before it is bold\n"},
    {kTv, "right", "right-and-on-and-on-and-on-and-on", "its button lies under the button \"Back\"\n"},
    {kStage, "<Links></Links></Page></Document>", ManyLinks(), "page 2 \"Next\": it has 62 links, and the"},
    {kStage, "Last.", kDeep, "column 1: its text runs below the edge of the window from \"low\" on\n"},
    {kStage, "Last.", kLow, "column 1: its text runs into the row of the trail from \"low\" on\n"},
    {"StageGlossary.xml", "entry", kDeep, "page 1 \"Entry\": its text runs below the edge of the window"},
    {kStage, "Page>2<", "Page>1<", "page 2 \"Next\": no page links to it\n"},
    {kStage, "Type>1<", "Type>0<", "page 1 \"Entry\": no page links to this entry\n"},
    {kStage, "here", "h\x93re", "page 1 \"Way in\": the reader has no character 147 and shows \"?\" for it\n"},
    {kStage, "here", "h&#8217;re", "the reader has no character 8217 and shows \"'\" for it\n"},
    {kStage, "here", "h\xC3\xA9re", "StageQMR.xml: it is written in UTF-8, and the reader takes it for"},
    {kStage, "p.pdf", "q.pdf", "link 3 \"Paper\": the document \"q.pdf\" isn't there\n"},
    {"wgaqmr.xml", "w.pdf", "p.pdf", "link 1 \"first\": the document \"p.pdf\" isn't there\n"},
};
// clang-format on

TEST(CheckTest, FindsEveryKindOfFault) {
  for (const auto& [file, from, to, line] : kFaults) {
    const Bundle bundle;
    bundle.Replace(file, from, to);
    const Outcome outcome = Check(bundle);
    EXPECT_EQ(outcome.status, 1) << line;
    EXPECT_THAT(outcome.out, HasSubstr(line));
  }
}

TEST(CheckTest, GivesProgramsOneObject) {
  const Bundle bundle;
  bundle.Replace(kStage, "<Title>Way in", "<Title>\"A\" \\ B");
  bundle.Replace(kStage, "Page>2<", "Page>9<");
  const Outcome outcome = Check(bundle, "json");
  EXPECT_THAT(outcome.out, testing::StartsWith(
                               "{\n  \"findings\": [\n    {\"kind\": \"target\", \"file\": \"StageQMR.xml\", "
                               "\"page\": 1, \"title\": \"\\\"A\\\" \\\\ B\", \"column\": 1, \"link\": 1, "
                               "\"words\": \"Next\", \"reason\": \"it leads to page 9"));
  EXPECT_THAT(outcome.out,
              HasSubstr("{\"area\": \"Stage\", \"file\": \"StageQMR.xml\", \"pages\": 3, \"words\": 14, "
                        "\"links\": 3, \"clicks\": 0},\n"));
  EXPECT_THAT(outcome.out, testing::EndsWith("}\n  ]\n}\n"));
}

TEST(CheckTest, TellsOfAllFilesThatCantBeOpened) {
  const Bundle bundle;
  bundle.Replace("BioQMR.xml", "</Document>", "</Dokument>");
  tests::fs::remove(bundle.data / kTv);
  const Outcome outcome = Check(bundle);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("TVQMR.xml isn't there.\n"));
  EXPECT_THAT(outcome.err, HasSubstr("BioQMR.xml can't be opened as a content file.\n"));
}

// With the index beside the content and without, by file and by manuscript.
TEST(SearchTest, TellsWhereAnAuthorFindsIt) {
  const Bundle bundle;
  tests::WriteFile(bundle.data / "m/stage.md", "# Cover\n\n# Way in\n\nBegin\n\nA word of rehearsal\n");
  const std::string found =
      "page 1: \"Way in\": Begin here with Next and a word of rehearsal The Paper end\n1 of 1 hit\n";
  EXPECT_EQ(bundle.Run("search . words rehears").out, kStage + ": " + found);
  EXPECT_EQ(bundle.Run("search . words rehears", "'" QUILLPRESS "' index . -o index.db").out,
            kStage + ": " + found);
  EXPECT_THAT(bundle.Run("search . rehearsal --manuscripts m").out, StartsWith("m/stage.md:7: \"Way in\""));
  EXPECT_EQ(bundle.Run("search . rehersal").out,
            "0 of 0 hits\n\"rehersal\" stands nowhere; the nearest words: rehearsal\n");
  EXPECT_THAT(
      bundle.Run("search . paper --format json").out,
      HasSubstr("\"file\": \"StageQMR.xml\", \"page\": 1, \"title\": \"Way in\", \"text\": \"...and a word"));
}

struct EditTest : testing::Test {
  Outcome Run(const std::string& arguments, const std::string& before = "true") {
    return bundle.Run(arguments, "F=StageQMR.xml; " + before);
  }

  std::string Shown(const std::string& path) { return Run("show $F Root." + path).out; }

  const Bundle bundle;
};

// Each on the file that the ones before it have left: the command, the path of what is
// looked at then, and what is there.
constexpr std::array<const char*, 3> kEdits[] = {
    {"page add $F --title 'é<&>' --text 'One two\\n\\tthree two' --text two", "Page'(4)'",
     "<Page Columns=\"2\"><PageID>3</PageID><Title>&amp;#233;&amp;lt;&amp;amp;&amp;gt;</Title>"
     "<Text>One two\n\tthree two</Text><Text>two</Text><Links/></Page>"},
    {"page update $F 3 --title Front --bump", "Page'(4).Title'", "<Title>Front</Title>"},
    {"page update $F 0 --text new", "Page'(1).Title'", "<Title>Cover</Title>"},
    {"link add $F 3 --on two --nth 2 --to 1", "Page'(4).Links.Link.Offset'", "<Offset>16</Offset>"},
    {"link add $F 3 --on two --column 2 --file 'a&b.pdf'", "Page'(4).Links.Link(2)'",
     "<Link Column=\"2\"><Offset>0</Offset><Length>3</Length><LinkToPage>0</LinkToPage>"
     "<LinkType>9</LinkType><Filename>a&amp;amp;b.pdf</Filename></Link>"},
    {"link add $F 3 --offset 0 --length 7 --to 2 --type 4", "Page'(4).Links.Link(3).LinkType'",
     "<LinkType>4</LinkType>"},
    {"link update $F 1 --on Next --to 0", "Page'(2).Links.Link.LinkToPage'", "<LinkToPage>0</LinkToPage>"},
    {"link update $F 1 --on Next --move-to 'Next and'", "Page'(2).Links.Link.Length'", "<Length>8</Length>"},
    {"link update $F 1 --offset 16 --move-to 'word of'", "Page'(2).Links.Link.Length'", "<Length>7</Length>"},
    // Two links have this offset, and the one that comes first in the file stays.
    {"link delete $F 3 --offset 0 --column 1", "Page'(4).Links.Link(3)'", "<Link Column=\"1\"/>"},
    {"link delete $F 3 --on two --column 2", "Page'(4).Links.Link(2)'", "<Link Column=\"2\"/>"},
};

TEST_F(EditTest, ChangesWhatTheFileHolds) {
  for (const auto& [command, path, shown] : kEdits) {
    EXPECT_EQ(Run(command).status, 0) << command;
    EXPECT_EQ(Shown(std::string("Document.") + path), std::string(shown) + "\n") << command;
  }
  EXPECT_EQ(Shown("AppInfo.Version"), "<Version>1.4</Version>\n");
  EXPECT_EQ(Shown("AppInfo.LastPageID"), "<LastPageID>3</LastPageID>\n");
}

constexpr std::array<const char*, 2> kRefusals[] = {
    {"page update $F 8 --title x", "StageQMR.xml: there is no page 8."},
    {"page update $F 1 --text a --text b", "page 1: it has 1 columns"},
    {"page add $F --title '“x' --text a", "(U+201C)"},
    {"link add $F 1 --on Nex --to 1", "page 1: the words \"Nex\" don't stand there."},
    {"link add $F 1 --on word --nth 2 --to 1", "\"word\" don't stand there 2 times."},
    {"link add $F 1 --on Next --to 1", "a link starts at the words \"Next\" already"},
    {"link add $F 1 --offset 1 --length 3 --to 1", "no word starts at offset 1 of column 1."},
    {"link add $F 1 --offset 0 --length 45 --to 1", "the paragraph ends 44 characters behind"},
    {"link update $F 1 --on here --to 1", "no link starts at the words \"here\"."},
    {"link update $F 1 --on Next --move-to rehearsal", "\"rehearsal\" already."},
    {"link delete $F 2 --offset 0", "page 2: no link starts at offset 0 of column 1."},
};

TEST_F(EditTest, WritesNothingWhenAnythingIsWrong) {
  const std::string before = tests::ReadFile(bundle.data / "StageQMR.xml");
  for (const auto& [command, sentence] : kRefusals) {
    const Outcome outcome = Run(command);
    EXPECT_EQ(outcome.status, 1) << sentence;
    EXPECT_THAT(outcome.err, HasSubstr(sentence));
  }
  const Outcome full = Run("page add $F --title x --text y", "trap '' XFSZ && ulimit -f 0");
  EXPECT_EQ(full.status, 2);
  EXPECT_THAT(full.err, HasSubstr("it can't be written; the old file is what it was."));
  EXPECT_EQ(tests::ReadFile(bundle.data / "StageQMR.xml"), before);
}

// What the file must hold for a page or a link to be found by its number.
TEST_F(EditTest, RefusesFilesThatAreOutOfOrder) {
  const auto refusal = [&](const std::string& from, const std::string& to, const std::string& command) {
    const Bundle fresh;
    fresh.Replace("StageQMR.xml", from, to);
    const std::string before = tests::ReadFile(fresh.data / "StageQMR.xml");
    const Outcome outcome = fresh.Run(command);
    EXPECT_EQ(outcome.status, 1) << command;
    EXPECT_EQ(tests::ReadFile(fresh.data / "StageQMR.xml"), before) << command;
    return outcome.err;
  };
  const std::string add = "page add StageQMR.xml --title x --text y";
  EXPECT_THAT(refusal("ID>2</Last", "ID>2147483647</Last", add),
              HasSubstr("LastPageID is the largest number there is, and no id is left for a page."));
  EXPECT_THAT(refusal("ID>2</Last", "ID>7</Last", add), HasSubstr("LastPageID is 7, and the last page 2;"));
  EXPECT_THAT(refusal("<PageID>2<", "<PageID>5<", "page update StageQMR.xml 2 --title x"),
              HasSubstr("page 2: its id is \"5\"; put the ids of the file in order first."));
  EXPECT_THAT(refusal("<Title>Next</Title>", "", "page update StageQMR.xml 1 --title x"),
              HasSubstr("page 2: it would change too"))
      << "a page without a title took the new one";
}

// The store passes over what isn't there; an edit must not.
TEST_F(EditTest, GivesALinkWhatItLacks) {
  bundle.Replace("StageQMR.xml", "<LinkToPage>2</LinkToPage>", "");
  EXPECT_EQ(Run("link update $F 1 --on Next --to 0").status, 0);
  EXPECT_EQ(Shown("Document.Page'(2).Links.Link.LinkToPage'"), "<LinkToPage>0</LinkToPage>\n");
}

}  // namespace
}  // namespace quill::quillpress
