#include "render/page_layout.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "base/numbers.h"
#include "host/graphics.h"
#include "host/memory/memory_graphics.h"
#include "render/entry_layout.h"
#include "render/link_style.h"
#include "render/page_geometry.h"
#include "support/content_xml.h"
#include "support/texts.h"

namespace quill::render {
namespace {

using tests::TestLink;

content::Page MakePage(const std::vector<std::string>& columns, const std::vector<TestLink>& links) {
  content::Page page;
  page.SetTexts(columns);
  for (const TestLink& link : links)
    page.AddLink(base::Str(link.offset), base::Str(link.length), link.target, link.type, link.column);
  return page;
}

LayoutSettings Settings(std::int32_t columns) {
  LayoutSettings settings;
  settings.geometry.TopMargin = 60;
  settings.geometry.SetMargins(columns, 640);
  settings.face.TextSize = 12;
  settings.button_rise = 15;
  return settings;
}

// Every character is 10 wide, in bold 12; a line is 15 high. One column runs
// from 30 to 610, so that it holds 58 characters with their blanks.
PageLayout LayOut(const std::vector<std::string>& columns, const std::vector<TestLink>& links,
                  const LayoutSettings& settings) {
  host::FixedMetrics metrics;
  metrics.bold_extra = 2;
  return LayOutPage(MakePage(columns, links), settings, metrics);
}

// The links of a row, each as column, offset, length and type: "1:0+2:9 2:3+1:4".
std::vector<TestLink> Links(const std::string& row) {
  std::istringstream in(row);
  std::vector<TestLink> links;
  TestLink link;
  char to = 0;
  while (in >> link.column >> to >> link.offset >> to >> link.length >> to >> link.type)
    links.push_back(link);
  return links;
}

std::string Wide(std::size_t length) { return std::string(length, 'w'); }

// Of each a story, its columns with "|" between, its links, and the layout.
const std::vector<std::array<std::string, 4>> kCases = {
    {"an empty column draws nothing", "", "1:0+1:0", ""},
    {"a tab indents its paragraph and counts", "No now.\n\tSee it!", "1:14+2:2 1:10+3:2",
     "No 30,75\nnow. 60,75\nbutton 1 \"See\" 55,90\nbutton 0 \"it!\" 95,90\n"},
    {"a sentence ends with two blanks, a bracket or a colon does not", "a. b.) c: d", "",
     "a. 30,75\nb.) 70,75\nc: 110,75\nd 140,75\n"},
    {"two blanks part words by one and count one", "a  b", "1:2+1:2", "a 30,75\nbutton 0 \"b\" 50,60\n"},
    {"an empty paragraph is two lines and counts one", "\nb", "1:1+1:2", "button 0 \"b\" 30,90\n"},
    {"a word that just fits stays", Wide(54) + " ab x", "", Wide(54) + " 30,75\nab 580,75\nx 30,97\n"},
    {"one more pixel moves it", Wide(54) + " abc x", "", Wide(54) + " 30,75\nabc 30,97\nx 70,97\n"},
    {"a word too wide leaves a line empty and runs on", Wide(60) + " x", "", Wide(60) + " 30,97\nx 30,119\n"},
    {"a sentence's gap counts for the break", Wide(54) + ". x", "", Wide(54) + ". 30,75\nx 30,97\n"},
    {"wrapped lines indent", "\t" + Wide(50) + " abcdefg\nx", "",
     Wide(50) + " 55,75\nabcdefg 55,97\nx 30,127\n"},
    {"a second tab moves the margin again and the pen back to it", "\ta \tb", "", "a 55,75\nb 80,75\n"},
    {"of two tabs at a word's head one is removed", "\t\ta", "", "\ta 55,75\n"},
    {"a tab alone takes a blank's width and counts two", "\t b", "1:2+1:2", " 55,75\nbutton 0 \"b\" 65,60\n"},
    {"a carriage return is no line end", "a\rb", "", "a\rb 30,75\n"},
    {"columns all start at the top", "a\nb|c|\nd", "", "a 30,75\nb 30,105\nc 223,75\nd 416,105\n"},
    {"a link takes whole fields", "a bc def", "1:0+3:2", "bc 50,75\ndef 80,75\nbutton 0 \"a bc\" 30,60\n"},
    {"a link of length 0 or less takes its first word", "ab cd ef", "1:0+0:2 1:3+-5:9",
     "ef 90,75\nbutton 0 \"ab\" 30,60\nbutton 1 \"cd\" 60,60\n"},
    {"of two links on a word the earlier counts", "a", "1:0+1:1 1:0+1:2", "button 0 \"a\" 30,60\n"},
    {"columns count apart", "a|b", "2:0+1:2 1:0+1:2", "button 1 \"a\" 30,60\nbutton 0 \"b\" 320,60\n"},
    {"inside a word, behind the text, in no column", "ab", "1:1+1:0 1:3+1:0 0:0+1:0 4:0+1:0", "ab 30,75\n"},
    {"bold still holds for the advance and for the next word's break", "aa bb cc", "1:0+5:4",
     "aa 30,75 bold\nbb 66,75 bold\ncc 102,75\nrun 0 \"aa bb\" 30,60\n"},
    {"italic doesn't", "aa bb", "1:0+2:3", "aa 30,75 italic\nbb 60,75\nrun 0 \"aa\" 30,60\n"},
    {"a bold word's blank breaks the line of the next", Wide(44) + " b x y", "1:45+1:4",
     Wide(44) + " 30,75\nb 480,75 bold\nx 504,75\ny 524,75\nrun 0 \"b\" 480,60\n"},
    {"a run that outruns its paragraph goes on over the next", "a\nb c d", "1:0+3:6",
     "a 30,75 underline\nb 30,105 underline\nc 50,105 underline\nd 70,105\nrun 0 \"a  \" 30,60\n"},
    {"an empty field in a run lets it reach one word further", "a  b c", "1:0+4:3",
     "a 30,75 italic\nb 50,75 italic\nc 70,75 italic\nrun 0 \"a  b\" 30,60\n"},
    {"a button ends the run under way", "a b c", "1:0+5:3 1:2+1:0",
     "a 30,75 italic\nc 70,75\nrun 0 \"a b c\" 30,60\nbutton 1 \"b\" 50,60\n"},
    {"a run ends with its column", "a|b", "1:0+9:3", "a 30,75 italic\nb 320,75\nrun 0 \"a        \" 30,60\n"},
};

TEST(PageLayoutTest, PlacesWordsAndLinks) {
  for (const auto& [story, text, links, expected] : kCases) {
    std::vector<std::string> columns;
    std::istringstream in(text + "|");
    for (std::string column; std::getline(in, column, '|');) columns.push_back(column);
    const auto settings = Settings(static_cast<std::int32_t>(columns.size()));
    EXPECT_EQ(LayOut(columns, Links(links), settings).Dump(), expected) << story;
  }
}

TEST(PageLayoutTest, LabelsPlainWordsAndButtonsButNotRuns) {
  LayoutSettings settings = Settings(1);
  settings.show_offsets = true;
  EXPECT_EQ(LayOut({"a b c"}, {{2, 1, "", 4}, {4, 1, "1", 0}}, settings).Dump(),
            "a 30,75\n0 30,86\nb 50,75 bold\n4 74,86 bold\nrun 0 \"b\" 50,60\nbutton 1 \"c\" 74,60\n");
}

TEST(PageLayoutTest, DrawsTheWordsOfLinksBeyondThePoolPlain) {
  const auto laid_out = [](const TestLink& last, const TestLink& beyond) {
    std::vector<TestLink> links(kLinkButtons, TestLink{-1, 1, "1"});
    links.back() = last;
    links.push_back(beyond);
    return LayOut({"a b c"}, links, Settings(1)).Dump();
  };
  EXPECT_EQ(laid_out({0, 1, "1", 2}, {2, 3, "1", 3}), "b 50,75\nc 70,75\nbutton 60 \"a\" 30,60\n");
  EXPECT_EQ(laid_out({0, 5, "1", 3}, {2, 1, "1", 0}),
            "a 30,75 italic\nb 50,75\nc 70,75\nrun 60 \"a b c\" 30,60\n")
      << "it ends a run under way all the same";
}

// Offsets and lengths come from files, and a length may ask for a text that no
// machine can hold.
TEST(PageLayoutTest, HostileNumbersSaturate) {
  content::Page page = MakePage({"a b\nc"}, {});
  page.AddLink("0.5", "1", "1", 2, 1);
  page.AddLink("1e999", "1", "1", 2, 1);
  page.AddLink("0", "1e999", "1", 3, 1);
  host::FixedMetrics metrics;
  metrics.line_height = 2000000000;
  const PageLayout layout = LayOutPage(page, Settings(1), metrics);
  ASSERT_EQ(layout.links.size(), 1U);
  EXPECT_EQ(layout.links[0].text, "a b" + std::string(4096, ' '));
  EXPECT_TRUE(layout.words[2].italic) << "the run goes on over the next paragraph";
  EXPECT_EQ(layout.words[2].y, 2147483647);
}

// Every character is 10 wide and a line 15 high; the text may run from 10 to
// 110, so that a line holds 10 characters with their blanks.
std::string LayOutText(const std::string& text) {
  host::FixedMetrics metrics;
  std::string dump;
  for (const EntryWord& word : LayOutEntry(text, {10, 30, 110}, {}, metrics))
    dump += word.text + " " + base::Str(word.x) + "," + base::Str(word.y) + "\n";
  return dump;
}

TEST(EntryLayoutTest, PlacesWords) {
  tests::ExpectEach(
      LayOutText,
      {{"", ""},
       {"a. b", "a. 10,45\nb 40,45\n", "words stand a blank apart, after a sentence too"},
       {"abc  d", "abc 10,45\nd 90,45\n", "two blanks leave a gap as wide as the word before"},
       {" a\n b", "a 10,45\nb 30,75\n", "leading blanks take the last width, at first none"},
       {"abcd efgh i", "abcd 10,45\nefgh 60,45\ni 10,67\n", "a line ends at the margin, blank included"},
       {"abcdefghijkl m", "abcdefghijkl 10,67\nm 10,89\n", "a word too wide moves to a new line once"},
       {"\ta", "\ta 10,45\n", "a tab is a character like any other"},
       {"a\n\nb", "a 10,45\nb 10,105\n", "an empty paragraph moves the pen by two lines"}});
}

TEST(PageGeometryTest, DividesThePageBetweenItsColumns) {
  PageGeometry geometry;
  geometry.SetMargins(3, 640);
  EXPECT_EQ(geometry.LeftMargin, (std::array{30, 30, 223, 416}));
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 223, 416, 609}));
  geometry.SetMargins(2, 640);
  EXPECT_EQ(geometry.LeftMargin, (std::array{30, 30, 320, 416})) << "the third column's stay";
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 320, 610, 609}));
  geometry.SetMargins(4, 640);
  EXPECT_EQ(geometry.RightMargin, (std::array{610, 320, 610, 609})) << "no such layout";
  geometry.SetMargins(1, 640);
  EXPECT_EQ(geometry.RightMargin[1], 610);
}

TEST(LinkStyleTest, EachTypeStartsFromClearFlags) {
  host::TextFace face;
  face.Bold = face.Italic = face.Underline = true;
  const std::pair<std::int32_t, const char*> rows[] = {
      {3, "i"}, {4, "b"}, {5, "bi"}, {6, "u"}, {7, "iu"}, {8, "bu"},
  };
  for (const auto& [type, style] : rows) {
    SetLinkStyle(type, face);
    EXPECT_EQ(std::string(face.Bold ? "b" : "") + (face.Italic ? "i" : "") + (face.Underline ? "u" : ""),
              style);
  }
}

}  // namespace
}  // namespace quill::render
