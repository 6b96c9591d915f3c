#include <gmock/gmock.h>

#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

// Arguments, status, and part of what standard error shows.
using Row = std::tuple<const char*, int, const char*>;

// The bundle holds besides: page.md, bad.md, the folder "folder" as a file that can't
// be read or written, and no markup in broken.xml.
const std::vector<Row> kRows = {
    {"build page.md -o new/page.xml", 0, ""},
    {"build bad.md -o bad.xml", 1, "bad.md:1: this stands before the first page"},
    {"build none.md -o page.xml", 2, "none.md: can't be read"},
    {"build page.md -o page.md", 2, "page.md: this is the manuscript itself; nothing was written"},
    {"build page.md -o bad.md/a.xml", 2, "bad.md/a.xml: can't be written"},
    {"build lost.md -o page.xml", 2, "lost_glossary.md: can't be read"},
    {"check none", 2, "none is no folder."},
    {"check . --documents none", 2, "none is no folder."},
    {"check . --format xml", 2, "xml not in"},
    {"show StageQMR.xml Root.Nothing", 1, "StageQMR.xml has no element at the path Root.Nothing."},
    {"show broken.xml", 1, "broken.xml holds no well-formed markup."},
    {"show none.xml", 2, "none.xml can't be read."},
    {"page update broken.xml 1", 1, "broken.xml can't be opened as a content file."},
    {"page update none/none.xml 1", 2, "none.xml can't be opened"},
    {"page update folder 1", 2, "folder can't be opened"},
    {"page add StageQMR.xml --text 'no title'", 2, "--title is required"},
    {"link delete StageQMR.xml 1", 2, "Name the words of the link with --on"},
    {"link update StageQMR.xml 1 --to 1", 2, "Name the words of the link with --on"},
    {"link add StageQMR.xml 1 --offset 0 --to 1", 2, "--offset asks for --length."},
    {"link add StageQMR.xml 1 --on Begin", 2, "with --to, or a document with --file."},
    {"snapshot . --mode 2 -o page.png", 0, ""},
    {"snapshot . --mode 2 --page 3 -o page.png", 1, "StageQMR.xml has no page 3."},
    {"snapshot . --mode 2 -o folder", 2, "folder can't be written."},
    {"snapshot . --mode 6 -o page.png", 2, "--mode"},
    {"snapshot folder --mode 2 -o page.png", 2, "initQMR.xml isn't there."},
    {"index . -o index.db", 0, ""},
    {"index . -o folder/../TVQMR.xml", 2, "TVQMR.xml is a content file; nothing was written."},
    {"index folder -o index.db", 2, "initQMR.xml isn't there."},
    {"search . rehears", 0, ""},
    {"search . rehearse --area tv", 1, ""},
    {"search . word --area init", 2, "init not in"},
    {"search . word --manuscripts none", 2, "none is no folder."},
    {"", 2, ""},
    {"--help", 0, ""},
};

TEST(ExitStatusTest, IsTheSameForAllCommands) {
  const tests::Bundle bundle;
  tests::WriteFile(bundle.data / "page.md", "# A\n");
  tests::WriteFile(bundle.data / "bad.md", "A\n");
  tests::WriteFile(bundle.data / "lost.md", "# A\n");
  tests::WriteFile(bundle.data / "broken.xml", "<Root>");
  tests::fs::create_directory(bundle.data / "folder");
  tests::fs::create_directory(bundle.data / "lost_glossary.md");
  for (const auto& [arguments, status, error] : kRows) {
    const tests::Outcome outcome = bundle.Run(arguments);
    EXPECT_EQ(outcome.status, status) << arguments << "\n" << outcome.err;
    EXPECT_THAT(outcome.err, testing::HasSubstr(error)) << arguments;
  }
}

// A folder in the place of a content file, and one that is missing.
TEST(ExitStatusTest, TellsWhatCantBeReadFromWhatIsRefused) {
  const std::string snapshot = "snapshot . --mode 2 -o page.png";
  for (const char* const command : {"check .", snapshot.c_str()}) {
    const tests::Bundle bundle;
    bundle.Replace("StageQMR.xml", "</Root>", "");
    EXPECT_EQ(bundle.Run(command).status, 1) << command;
    tests::fs::remove(bundle.data / "StageQMR.xml");
    EXPECT_EQ(bundle.Run(command).status, 2) << command;
    tests::fs::create_directory(bundle.data / "StageQMR.xml");
    EXPECT_EQ(bundle.Run(command).status, 2) << command;
  }
}

TEST(ExitStatusTest, FileNamesBeyondAsciiShowAsTheyAre) {
  const tests::Bundle bundle;
  const std::string name = "\xC3\xA9t\xC3\xA9";
  tests::WriteFile(bundle.data / (name + ".xml"), "<Root>");
  tests::WriteFile(bundle.data / (name + ".md"), "A\n");
  const std::string page = bundle.Run("page update " + name + ".xml 0 --title x").err;
  EXPECT_THAT(page, testing::HasSubstr("Unable to parse " + name + ".xml\n"));
  EXPECT_THAT(page, testing::HasSubstr("/" + name + ".xml can't be opened as a content file.\n"));
  for (const std::string& command : {"show " + name + ".xml", "show " + name, "check " + name,
                                     "build " + name + ".md -o a.xml", "build " + name + " -o a.xml"})
    EXPECT_THAT(bundle.Run(command).err, testing::HasSubstr(name)) << command;
}

}  // namespace
}  // namespace quill::quillpress
