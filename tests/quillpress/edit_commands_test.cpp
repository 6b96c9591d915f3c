#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

using testing::HasSubstr;
using tests::Bundle;
using tests::Outcome;

class EditTest : public testing::Test {
 protected:
  // Runs a command of two words on the file of the Stage area.
  Outcome Run(std::vector<std::string> command, const std::string& before = "true") {
    command.insert(command.begin() + 2, file_);
    return bundle_.Run(command, before);
  }

  std::string Shown(const std::string& path) { return bundle_.Run({"show", file_, "Root." + path}).out; }

  const Bundle bundle_;
  const std::string file_ = "StageQMR.xml";
};

struct Edit {
  std::vector<std::string> command;
  std::string path;  // of what is looked at then
  std::string shown;
};

// Each on the file that the ones before it have left.
// clang-format off
const std::vector<Edit> kEdits = {
    {{"page", "add", "--title", "\xC3\xA9<&>", "--text", "One two\\n\\tthree two", "--text", "two"}, "Page(4)",
     "<Page Columns=\"2\"><PageID>3</PageID><Title>&amp;#233;&amp;lt;&amp;amp;&amp;gt;</Title>"
     "<Text>One two\n\tthree two</Text><Text>two</Text><Links/></Page>"},
    {{"page", "update", "3", "--title", "Front", "--bump"}, "Page(4).Title", "<Title>Front</Title>"},
    {{"page", "update", "0", "--text", "new"}, "Page(1).Title", "<Title>Cover</Title>"},
    {{"link", "add", "3", "--on", "two", "--nth", "2", "--to", "1"}, "Page(4).Links.Link.Offset",
     "<Offset>16</Offset>"},
    {{"link", "add", "3", "--on", "two", "--column", "2", "--file", "a&b.pdf"}, "Page(4).Links.Link(2)",
     "<Link Column=\"2\"><Offset>0</Offset><Length>3</Length><LinkToPage>0</LinkToPage>"
     "<LinkType>9</LinkType><Filename>a&amp;amp;b.pdf</Filename></Link>"},
    {{"link", "add", "3", "--offset", "0", "--length", "7", "--to", "2", "--type", "4"},
     "Page(4).Links.Link(3).LinkType", "<LinkType>4</LinkType>"},
    {{"link", "update", "1", "--on", "Next", "--to", "0"}, "Page(2).Links.Link.LinkToPage",
     "<LinkToPage>0</LinkToPage>"},
    {{"link", "update", "1", "--offset", "16", "--move-to", "word of"}, "Page(2).Links.Link.Length",
     "<Length>7</Length>"},
    // Two links have this offset, and the one that comes first in the file stays.
    {{"link", "delete", "3", "--offset", "0", "--column", "1"}, "Page(4).Links.Link(3)",
     "<Link Column=\"1\"/>"},
    {{"link", "delete", "3", "--on", "two", "--column", "2"}, "Page(4).Links.Link(2)",
     "<Link Column=\"2\"/>"},
};
// clang-format on

TEST_F(EditTest, ChangesWhatTheFileHolds) {
  for (const Edit& edit : kEdits) {
    const Outcome outcome = Run(edit.command);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(Shown("Document." + edit.path), edit.shown + "\n") << edit.command[0] << " " << edit.command[1];
  }
  EXPECT_EQ(Shown("AppInfo.Version"), "<Version>1.4</Version>\n");
  EXPECT_EQ(Shown("AppInfo.LastPageID"), "<LastPageID>3</LastPageID>\n");
}

struct Refusal {
  std::vector<std::string> command;
  std::string sentence;
};

// clang-format off
const std::vector<Refusal> kRefusals = {
    {{"page", "update", "8", "--title", "x"}, "StageQMR.xml: there is no page 8."},
    {{"page", "update", "1", "--text", "a", "--text", "b"}, "page 1: it has 1 columns"},
    {{"page", "add", "--title", "\xE2\x80\x9Cx", "--text", "a"}, "(U+201C)"},
    {{"link", "add", "1", "--on", "Nex", "--to", "1"}, "page 1: the words \"Nex\" don't stand there."},
    {{"link", "add", "1", "--on", "word", "--nth", "2", "--to", "1"}, "\"word\" don't stand there 2 times."},
    {{"link", "add", "1", "--on", "Next", "--to", "1"}, "a link starts at the words \"Next\" already"},
    {{"link", "add", "1", "--offset", "1", "--length", "3", "--to", "1"},
     "no word starts at offset 1 of column 1."},
    {{"link", "add", "1", "--offset", "0", "--length", "45", "--to", "1"},
     "the paragraph ends 44 characters behind"},
    {{"link", "add", "1", "--offset", "0", "--to", "1"}, "--offset asks for --length."},
    {{"link", "update", "1", "--to", "1"}, "Name the words of the link with --on"},
    {{"link", "update", "1", "--on", "here", "--to", "1"}, "no link starts at the words \"here\"."},
    {{"link", "update", "1", "--on", "Next", "--move-to", "rehearsal"}, "\"rehearsal\" already."},
    {{"link", "delete", "2", "--offset", "0"}, "page 2: no link starts at offset 0 of column 1."},
    {{"link", "delete", "2"}, "Name the words of the link with --on"},
};
// clang-format on

TEST_F(EditTest, WritesNothingWhenAnythingIsWrong) {
  const std::string before = tests::ReadFile(bundle_.data / file_);
  for (const Refusal& refusal : kRefusals) {
    const Outcome outcome = Run(refusal.command);
    EXPECT_EQ(outcome.status, 1) << refusal.sentence;
    EXPECT_THAT(outcome.err, HasSubstr(refusal.sentence));
  }
  const Outcome full = Run({"page", "add", "--title", "x", "--text", "y"}, "trap '' XFSZ && ulimit -f 0");
  EXPECT_EQ(full.status, 2);
  EXPECT_THAT(full.err, HasSubstr("it can't be written; the old file is what it was."));
  EXPECT_EQ(tests::ReadFile(bundle_.data / file_), before);
}

TEST_F(EditTest, RefusesWhatItCannotRead) {
  EXPECT_THAT(bundle_.Run({"page", "update", ".", "1"}).err, HasSubstr("can't be opened"));
  EXPECT_THAT(bundle_.Run({"show", "."}).err, HasSubstr("can't be read."));
  EXPECT_THAT(bundle_.Run({"show", file_, "Root.Nothing"}).err,
              HasSubstr("no element at the path Root.Nothing."));
  EXPECT_EQ(bundle_.Run({"page", "add", file_, "--text", "no title"}).status, 2);
  EXPECT_EQ(bundle_.Run({"fly"}).status, 2);
}

}  // namespace
}  // namespace quill::quillpress
