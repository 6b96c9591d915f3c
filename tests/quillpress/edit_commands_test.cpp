#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

using testing::HasSubstr;
using tests::Bundle;
using tests::Outcome;

struct EditTest : testing::Test {
  Outcome Run(const std::string& arguments, const std::string& before = "true") {
    return bundle.Run(arguments, "F=StageQMR.xml; " + before);
  }

  std::string Shown(const std::string& path) { return Run("show $F Root." + path).out; }

  const Bundle bundle;
};

struct Edit {
  const char* command;
  const char* path;  // of what is looked at then
  const char* shown;
};

// Each on the file that the ones before it have left.
constexpr Edit kEdits[] = {
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
  for (const Edit& edit : kEdits) {
    const Outcome outcome = Run(edit.command);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(Shown(std::string("Document.") + edit.path), std::string(edit.shown) + "\n") << edit.command;
  }
  EXPECT_EQ(Shown("AppInfo.Version"), "<Version>1.4</Version>\n");
  EXPECT_EQ(Shown("AppInfo.LastPageID"), "<LastPageID>3</LastPageID>\n");
}

struct Refusal {
  const char* command;
  const char* sentence;
};

constexpr Refusal kRefusals[] = {
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
  for (const Refusal& refusal : kRefusals) {
    const Outcome outcome = Run(refusal.command);
    EXPECT_EQ(outcome.status, 1) << refusal.sentence;
    EXPECT_THAT(outcome.err, HasSubstr(refusal.sentence));
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
}

// The store passes over what isn't there; an edit must not.
TEST_F(EditTest, GivesALinkWhatItLacks) {
  bundle.Replace("StageQMR.xml", "<LinkToPage>2</LinkToPage>", "");
  EXPECT_EQ(Run("link update $F 1 --on Next --to 0").status, 0);
  EXPECT_EQ(Shown("Document.Page'(2).Links.Link.LinkToPage'"), "<LinkToPage>0</LinkToPage>\n");
}

}  // namespace
}  // namespace quill::quillpress
