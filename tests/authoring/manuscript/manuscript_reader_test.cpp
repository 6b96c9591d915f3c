#include "authoring/manuscript/manuscript_reader.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "support/texts.h"

namespace quill::authoring {
namespace {

constexpr std::string_view kKindLetters = "-#gdnmb";

std::string Dump(const Run& run) {
  return " " + std::to_string(run.word) + "+" + base::Str(run.length) + ":" + base::Str(run.target.type) +
         kKindLetters[static_cast<std::size_t>(run.target.kind)] + run.target.name;
}

// A line for each page with its columns, text quoted; behind a column its runs, as
// first word, length, type, kind and name.
std::string Dump(const Manuscript& manuscript) {
  std::string dump;
  for (const ManuscriptPage& page : manuscript.pages) {
    dump += page.title + (page.name.empty() ? "" : " #" + page.name);
    for (const Column& column : page.columns) {
      dump += " | " + tests::Quoted(column.text);
      for (const Run& run : column.runs) dump += Dump(run);
    }
    dump += "\n";
  }
  return dump;
}

std::string Dump(const Diagnostics& diagnostics) {
  std::string dump;
  for (const Diagnostic& d : diagnostics) dump += base::Str(d.line) + ": " + d.sentence + "\n";
  return dump;
}

std::string Read(const std::string& markdown) {
  const Manuscript manuscript = ReadManuscript(markdown);
  return Dump(manuscript) + Dump(manuscript.diagnostics);
}

// The text and runs of a page that holds `body`.
std::string ReadBody(const std::string& body) {
  const std::string dump = Read("# T\n\n" + body);
  return dump.substr(4, dump.size() - 5);
}

TEST(ManuscriptTest, PagesAndColumns) {
  tests::ExpectEach(
      Read,
      {{"# One {#a-1_B}\ntext\n# Two\n", "One #a-1_B | \"text\"\nTwo | \"\"\n"},
       {"# A\n\nx\ny\n\n---\n\nz\n\n***\n", "A | \"x y\" | \"z\" | \"\"\n", "a line end makes a blank"},
       {"\xEF\xBB\xBF# A  é &amp; b {#x} #\r\n\r\nc\r\n", "A \x8E & b #x | \"c\"\n", "from a word processor"},
       {"# A\n\n<br>\n\na\n\n<br>\n<br />\n\nb\n\n---\n\n<br>\n\nc", "A | \"\\na\\n\\n\\nb\" | \"\\nc\"\n"},
       {"<!--\nnote\nGutter: yes\n-->\n# A\n\na\n\n- b\n\n---\n\nc\n\n- d\n\n<br>\n\n2. e {3} f\n",
        "A | \"a\\n\\tb\" | \"\\tc\\n\\t \\td\\n\\n\\t2 \\te \\t \\tf\"\n",
        "the gutter moves all but empty ones"}});
}

TEST(ManuscriptTest, IndentsAndBlanks) {
  tests::ExpectEach(ReadBody,
                    {{"- a\n- b\n  c\n\n  d\n  - e\n", "\"\\ta\\n\\tb c\\n\\td\\n\\t \\te\""},
                     {"3. a\n4. b\n\n   c\n   1) d\n", "\"3 \\ta\\n4 \\tb\\n\\tc\\n\\t1 \\td\""},
                     {"{2} a {5} b", "\"\\t \\ta \\t \\t \\tb\""},
                     {"a&#9;b &#9;&#9; c", "\"a \\tb \\t \\tc\"", "a tab leads to the next stop"},
                     {"a  b   c  ", "\"a b c\"", "the layout knows no wider gap"},
                     {"a&nbsp;b \xC2\xA0", "\"a\\xCAb \\xCA\"", "a no-break blank is a letter"},
                     {"`{2}` {x} {} {123} \\{4\\} {4}`x`", "\"{2} {x} {} {123} \\t \\t \\t \\t{4}x\"",
                      "a stop stands alone, and not in backticks"}});
}

TEST(ManuscriptTest, StylesAndLinks) {
  tests::ExpectEach(
      ReadBody,
      {{"*a* **b** ***c*** <u>d</u> <u>*e*</u> *<u>e</u>* <u>**f**</u>",
        "\"a b c d e e f\" 0+1:3- 1+1:4- 2+1:5- 3+1:6- 4+1:7- 5+1:7- 6+1:8-"},
       {"*a **b** c* _d_", "\"a b c d\" 0+1:3- 1+1:5- 2+1:3- 3+1:3-", "the inner style parts the outer"},
       {"from *him*, *two\nwords*.)", "\"from him, two words.)\" 1+3:3- 2+9:3-", "points go along"},
       {"[a](#x) [b c](glossary:y) [d](doc:e.pdf) [f](notes:) [g](plain:) [h](mode:3) [i](bio:z)",
        "\"a b c d f g h i\" 0+1:0#x 1+3:1gy 3+1:9de.pdf 4+1:0n 5+1:2- 6+1:2m3 7+1:2bz"},
       {"- [a\nb](#x) {3} **c**", "\"\\ta b \\t \\tc\" 0+3:0#x 3+1:4-", "a tab alone counts as a word"},
       {"[&amp; `*`](#x) 5 * 3 = 15 [sic] a_b__ <!-- x -->", "\"& * 5 * 3 = 15 [sic] a_b__\" 0+3:0#x"}});
}

TEST(ManuscriptTest, ListsTermsWhereTheIndexStands) {
  tests::ExpectEach(
      Read,
      {{"# A {#a}\n<!-- Index: acts; Éclair;; Act two -->\n# I {#i}\n\nx\n\n{index:A-L}\n\n[y](#a)\n\n"
        "---\n\n- {index:A-L}\n\n---\n\n{index:M-Z}\n\nz\n# B {#b}\n\n<!-- mine\nIndex: {2} *b*; V.O. -->\n",
        "A #a | \"\"\n"
        "I #i | \"x\\n{2}\\xCA*b*\\nAct\\xCAtwo\\ny\" 1+7:0#b 2+7:0#a 3+1:0#a"
        " | \"\\tacts\\n\\t\\x83clair\" 0+4:0#a 1+6:0#a | \"V.O.\\nz\" 0+4:0#b\nB #b | \"\"\n",
        "in the order of letters, in even shares, each as it is written"},
       {"# A\n\n{index:A-Z}\n\n`{index:A-Z}`\n", "A | \"\\n{index:A-Z}\"\n", "no terms"}});
}

// Of each diagnostic the line and how its sentence begins.
TEST(ManuscriptTest, SaysWhatIsWrongAndWhere) {
  const std::vector<tests::TextCase> cases = {
      {"", "1: there is no page"},
      {"a\n\n# A", "1: this stands before the first page"},
      {"<!--\nAuthor: x\n-->\n# A", "2: before the first page a comment sets"},
      {"<!--\n\nVersion: 1.25\n-->\n# A", "3: a version is a number"},
      {"<!-- Version: 1000 -->\n# A", "1: a version is a number"},
      {"# A {#a}\n# B {#a}", "2: the name \"a\" has been given"},
      {"# A\n\ntext\n---\n", "3: a page has one title", "no empty line before the column's end"},
      {"# A\n---\n---\n---\n", "4: a page has three columns at most"},
      {"# A\n\na\nb [c](http://d)",
       "4: a link can't lead to \"http://d\": write #name, glossary:name, doc:file, notes:, plain:, mode:1"},
      {"# A\n\n[a](mode:0)", "3: a link can't lead", "the opening page itself"},
      {"# A\n\n[a](mode:5)", "3: a link can't lead", "Bio, which is entered by page"},
      {"# A\n\n[a](mode:01)", "3: a link can't lead"},
      {"# A\n\n[c](doc:../d.pdf)", "3: a link can't lead to \"doc:../d.pdf\"", "out of the folder"},
      {"# A\n\na [b\n\nc](#a)", "3: this link is not whole"},
      {"# A\n\na [b](#a).", "3: the link \"b\" doesn't end with a word"},
      {"# A\n\n([b](#a) c)", "3: the link \"b\" doesn't start at a word"},
      {"# A\n\n*un*sure", "3: the styled text \"un\" doesn't end with a word"},
      {"# A\n\na\n**b\n\nc**", "4: the star at \"**b\" has no partner"},
      {"# A\n\n*a {2} b*", "3: the styled text \"a {2} b\" has a stop in it"},
      {"# A\n\n{3} a {2} b", "3: the stop {2} isn't to the right"},
      {"# A\n\n{2} a {2} b", "3: the stop {2} isn't to the right"},
      {"# A\n\n<br>\na", "3: of HTML a page knows"},
      {"# A\n\n`\n`\na “b", "5: a page can't show the character \"“\" (U+201C); write \"\n"},
      {"# A\n\n½", "3: a page can't show the character \"½\" (U+00BD)\n", "the program lacks it"},
      {"# A\n<!-- Index: b -->\n\n{index:A-Z}", "2: a page with terms for the index has a name"},
      {"# A {#a}\n<!-- Index: b -->\n\n{index:C-Z}", "2: no page lists the term \"b\""},
      {"# A {#a}\n<!-- Index: vo\nIndex: V.O. -->\n\n{index:A-Z}",
       "3: the index has the term \"V.O.\" already"},
      {"# A {#a}\n<!-- Index: c -->\n\n{index:A-C}\n\n{index:C-Z}",
       "6: other letters of the index take C in"},
      {"# A\n\n{index:F-A}", "3: the index, or a part of it, is {index:A-F}"},
      {"# A\n\n{index:A-F} x", "3: the index, or a part of it, is {index:A-F}"},
      {"# A\n\n\x01\xFF", "3: a page can't show the character (U+0001)\n3: these bytes are no characters"},
  };
  for (const tests::TextCase& c : cases) {
    const std::string found = Dump(ReadManuscript(c.text).diagnostics);
    EXPECT_TRUE(found.starts_with(c.expected)) << tests::Quoted(c.text) << " " << c.story << "\n" << found;
  }
}

}  // namespace
}  // namespace quill::authoring
