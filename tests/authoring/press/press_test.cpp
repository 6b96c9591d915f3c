#include "authoring/press/press.h"

#include <gmock/gmock.h>

#include "authoring/area.h"
#include "authoring/manuscript/manuscript_reader.h"
#include "base/numbers.h"
#include "content/xml_file.h"
#include "host/memory/memory_desktop.h"
#include "support/document_dump.h"
#include "support/texts.h"

namespace quill::authoring {
namespace {

constexpr const char* kGlossary = "# First {#first}\n\na\n\n# Second {#second}\n\nb\n";
constexpr const char* kLives = "# Bio {#cover}\n\n# Ann {#ann}\n\n# Bob {#bob}\n";

// The content file, or a line for each diagnostic.
std::string PressText(const std::string& markdown) {
  const Manuscript manuscript = ReadManuscript(markdown);
  const Manuscript glossary = ReadManuscript(kGlossary);
  const Manuscript lives = ReadManuscript(kLives);
  Diagnostics diagnostics = manuscript.diagnostics;
  const auto bytes = Press(manuscript, {&glossary, &lives}, diagnostics);
  EXPECT_NE(bytes.has_value(), !diagnostics.empty());
  std::string lines;
  for (const Diagnostic& d : diagnostics) lines += base::Str(d.line) + ": " + d.sentence + "\n";
  return bytes.value_or(lines);
}

// A document as the reader's store loads it.
struct Loaded {
  explicit Loaded(const std::string& xml) {
    desktop.files.AddFile("Quillmere.app/Contents/Data/a.xml", xml);
    EXPECT_TRUE(file.Init() && file.GetDocument(document)) << xml;
  }
  ~Loaded() { EXPECT_THAT(desktop.messages, testing::IsEmpty()); }

  host::MemoryDesktop desktop;
  content::zkXMLFileClass file{"a.xml"};
  std::shared_ptr<content::Document> document = std::make_shared<content::Document>();
};

std::string Load(const std::string& markdown) {
  return tests::DumpDocument(*Loaded(PressText(markdown)).document);
}

TEST(PressTest, NamesOffsetsByTheLayoutsCount) {
  tests::ExpectEach(
      Load,
      {{"# A\n\n[No](plain:) **now.**\n\n- [See](plain:) [it](plain:)\n",
        "0 A \"No now.\\n\\tSee it\" 1:0+2>0:2 1:3+4>0:4 1:10+3>0:2 1:14+2>0:2\n",
        "the layout's own example"},
       {"# A\n\n<br>\n\n{2} [b](plain:) c\n\n---\n\nd {1} *e f*\n\n---\n\n**g**\n",
        "0 A \"\\n\\t \\tb c\" \"d \\te f\" \"g\" 1:4+1>0:2 2:3+3>0:3 3:0+1>0:4\n",
        "each column counts anew"},
       {"# A {#a}\n[b](#b) [f](glossary:first) [s](glossary:second)\n# B {#b}\n[a](#a) [d](doc:d.pdf)\n",
        "0 A \"b f s\" 1:0+1>1:0 1:2+1>0:1 1:4+1>1:1\n1 B \"a d\" 1:0+1>0:0 1:2+1>0:9d.pdf\n"},
       {"# A {#a}\n<!-- Index: c d; e -->\n\n*b*\n\n{index:A-Z}\n\n[f](#a)\n",
        "0 A \"b\\nc\\xCAd\\ne\\nf\" 1:0+1>0:3 1:3+3>0:0 1:8+1>0:0 1:11+1>0:0\n"},
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
  EXPECT_EQ(tests::DumpDocument(*loaded.document),
            "0 T & <\"'\x8E \"a & b <c> \"d\" 'e' ]]> f\" \"caf\\x8E & \\tx\\ny <b>\" \"\\xCA ^ % & ;\"\n1 B "
            "\"\"\n");
}

TEST(PressTest, SaysWhatCantBePressed) {
  const std::string many = tests::Repeated("*a* b\n", 61);
  tests::ExpectEach(
      PressText,
      {{"# A\n\n[x](#y) [x](glossary:y)\n[z](glossary:first)",
        "3: the manuscript itself has no page named \"y\"\n"
        "3: the glossary beside this manuscript has no page named \"y\"\n"},
       {"# A\n\n" + many + "[c](plain:)",
        "64: a page has 61 links and styled runs at most: this is one more\n"},
       {"# A {#a}\n\n[x](mode:1)\n[y](#a)",
        "4: on the opening page, the one with mode: and bio: links, every link leads to an area\n"},
       {"# A {#a}\n\n[x](notes:) [z](#b)\n[y](#a)\n# B {#b}",
        "4: where there is a notes: link, the first page can't be linked to: its number is the notes'\n"},
       {"# A\n\n[x](doc:\xC3\xA9.pdf)",
        "3: the file name \"\xC3\xA9.pdf\" must do without accents and other signs\n"},
       {"# A\n\na &amp;lt; b",
        "1: a content file can't keep this page's text to the letter: is there something like "
        "&lt; or &#65; spelled out in it?\n"}});
}

}  // namespace
}  // namespace quill::authoring
