#include "quillpress/press.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "host/numbers.h"
#include "host/text.h"
#include "quillpress/area.h"
#include "quillpress/build_command.h"
#include "quillpress/page_words.h"
#include "support/texts.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;

constexpr const char* kGlossary = "# First {#first}\n\na\n\n# Second {#second}\n\nb\n";
constexpr const char* kLives = "# Bio {#cover}\n\n# Ann {#ann}\n\n# Bob {#bob}\n";

// The content file, or a line for each problem.
std::string PressText(const std::string& markdown) {
  const Manuscript manuscript = ReadManuscript(markdown);
  const Manuscript glossary = ReadManuscript(kGlossary);
  const Manuscript lives = ReadManuscript(kLives);
  Problems problems = manuscript.problems;
  const auto bytes = Press(manuscript, {&glossary, &lives}, problems);
  EXPECT_NE(bytes.has_value(), !problems.empty());
  std::string lines;
  for (const Problem& problem : problems) lines += host::Str(problem.line) + ": " + problem.sentence + "\n";
  return bytes.value_or(lines);
}

// A document as the reader's store loads it.
struct Loaded {
  explicit Loaded(const std::string& xml) {
    desktop.files.AddFile("Quillmere.app/Contents/Data/a.xml", xml);
    EXPECT_TRUE(file.Init() && file.GetDocument(document)) << xml;
  }

  host::MemoryDesktop desktop;
  content::zkXMLFileClass file{"a.xml"};
  std::shared_ptr<content::Document> document = std::make_shared<content::Document>();
};

// Of each page id, title and texts, and each link as column, offset, length,
// target, type and file.
std::string Dump(const content::Document& document) {
  std::string dump;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) {
    const content::Page& page = *document.GetPageByOffset(i);
    dump += page.GetPageID() + " " + page.GetTitle();
    for (std::int32_t c = 1; c <= page.GetColumns(); ++c) dump += " " + tests::Quoted(page.GetText(c));
    for (const auto& link : LinksOf(page)) {
      dump += " " + std::to_string(link->GetColumn()) + ":" + link->GetOffset() + "+" + link->GetLength() +
              ">" + link->GetLinkToPage() + ":" + std::to_string(link->GetType()) + link->GetFilename();
    }
    dump += "\n";
  }
  return dump;
}

std::string Load(const std::string& markdown) { return Dump(*Loaded(PressText(markdown)).document); }

TEST(PressTest, NamesOffsetsByTheLayoutsCount) {
  tests::ExpectEach(Load,
                    {{"# A\n\n[No](plain:) **now.**\n\n- [See](plain:) [it](plain:)\n",
                      "0 A \"No now.\\n\\tSee it\" 1:0+2>0:2 1:3+4>0:4 1:10+3>0:2 1:14+2>0:2\n",
                      "the layout's own example"},
                     {"# A\n\n<br>\n\n{2} [b](plain:) c\n\n---\n\nd {1} *e f*\n\n---\n\n**g**\n",
                      "0 A \"\\n\\t \\tb c\" \"d \\te f\" \"g\" 1:4+1>0:2 2:3+3>0:3 3:0+1>0:4\n",
                      "each column counts anew"},
                     {"# A {#a}\n\n[b](#b) [f](glossary:first) [s](glossary:second)\n\n# B {#b}\n\n[a](#a) "
                      "[d](doc:d.pdf)\n",
                      "0 A \"b f s\" 1:0+1>1:0 1:2+1>0:1 1:4+1>1:1\n1 B \"a d\" 1:0+1>0:0 1:2+1>0:9d.pdf\n"},
                     {"# A\n\n[Stage](mode:2) [Ann](bio:ann) *x*\n",
                      "0 A \"Stage Ann x\" 1:0+5>2:2 1:6+3>101:2 1:10+1>0:3\n"}});
}

TEST(PressTest, KeepsAwkwardTextToTheLetter) {
  const Loaded loaded(
      PressText("<!--\nApplication: Q & é\nVersion: 2.3\n-->\n# T & <\"'é\n\n"
                "a &amp; b \\<c> \"d\" 'e' ]]> f\n\n---\n\ncafé & {1} x\n\ny &lt;b&gt;\n\n"
                "---\n\n&nbsp; ^ % &#38; ;\n\n# B\n"));
  EXPECT_EQ(loaded.file.GetAppName() + loaded.file.GetAppVersion(),
            "Q & \x8E"
            "2.3");
  EXPECT_EQ(loaded.file.GetLastPageID(), 1);
  EXPECT_EQ(Dump(*loaded.document),
            "0 T & <\"'\x8E \"a & b <c> \"d\" 'e' ]]> f\" \"caf\\x8E & \\tx\\ny <b>\" \"\\xCA ^ % & ;\"\n1 B "
            "\"\"\n");
}

TEST(PressTest, EveryLinkFindsItsWordsInTheLayout) {
  std::mt19937 random(11);
  const std::vector<std::string> pieces = {"end. ",    "a&#9;b ",       "\n\n- ", "\n\n3. ",
                                           "\n\n",     "na\xC3\xAFve ", "*s* ",   "[a b](plain:) ",
                                           "**c d** ", "\n\n<br>\n\n"};
  for (int i = 0; i < 200; ++i) {
    const std::string text = "# A\n\n" + tests::RandomText(random, pieces, 30) + "\n\n---\n\n" +
                             tests::RandomText(random, pieces, 20) + "\n";
    Loaded loaded(PressText(text));
    const auto page = loaded.document->GetPage(0);
    const auto links = LinksOf(*page);
    const auto layout = LayOutPage(*page, ViewerSettings(*page, 1, "0"), loaded.desktop.Metrics());
    ASSERT_EQ(layout.links.size(), links.size()) << text;
    for (const render::PlacedLink& placed : layout.links)
      EXPECT_EQ(std::to_string(placed.text.size()), links[placed.index]->GetLength()) << placed.text << text;
  }
}

TEST(PressTest, SaysWhatCantBePressed) {
  const std::string many = tests::Repeated("*a* b\n", 61);
  tests::ExpectEach(
      PressText,
      {{"# A\n\n[x](#y) [x](glossary:y)\n[z](glossary:first)",
        "3: the manuscript itself has no page named \"y\"\n3: the glossary beside this manuscript has no "
        "page "
        "named \"y\"\n"},
       {"# A\n\n" + many + "[c](plain:)",
        "64: a page has 61 links and styled runs at most: this is one more\n"},
       {"# A {#a}\n\n[x](mode:1)\n[y](#a)",
        "4: on the opening page, the one with mode: and bio: links, every link leads to an area\n"},
       {"# A\n\na &amp;lt; b",
        "1: a content file can't keep this page's text to the letter: is there something like "
        "&lt; or &#65; spelled out in it?\n"}});
}

// A folder of its own, which goes with the test.
struct BuildTest : testing::Test {
  BuildTest() { fs::create_directories(folder); }
  ~BuildTest() override { fs::remove_all(folder); }

  void Write(const std::string& name, const std::string& text) const { std::ofstream(folder / name) << text; }

  // Status and errors, without the path of the folder.
  std::string Run(const std::string& manuscript, const std::string& output) const {
    std::ostringstream errors;
    const int status = Build(folder / manuscript, folder / output, errors);
    return host::ReplaceAll(host::Str(status) + " " + errors.str(), folder.string() + "/", "");
  }

  const fs::path folder = fs::temp_directory_path() / ("press_" + std::to_string(std::random_device()()));
};

TEST_F(BuildTest, WritesAllOrNothing) {
  Write("a.md", "# A\n\n[b](glossary:second)\n");
  EXPECT_EQ(Run("a.md", "a.xml"),
            "1 a.md:3: there is no glossary beside this manuscript to look for \"second\"\n");
  EXPECT_FALSE(fs::exists(folder / "a.xml"));
  Write("a_glossary.md", kGlossary);
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

TEST_F(BuildTest, FailsOnFilesThatCantBeReadOrWritten) {
  Write("a.md", "# A\n");
  fs::create_directories(folder / "a.xml/b");
  EXPECT_EQ(Run("none.md", "b.xml"), "2 none.md: can't be read\n");
  EXPECT_EQ(Run("a.md", "a.md"), "2 a.md: this is the manuscript itself; nothing was written\n");
  EXPECT_EQ(Run("a.md", "a.xml"), "2 a.xml: can't be written\n");
  EXPECT_EQ(Run("a.md", "a.md/b.xml"), "2 a.md/b.xml: can't be written\n");
}

}  // namespace
}  // namespace quill::quillpress
