#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "quillpress/process.h"

namespace quill::quillpress {
namespace {

using testing::HasSubstr;
using tests::Bundle;
using tests::Outcome;

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

struct Fault {
  std::string file;
  std::string from, to;
  std::string line;
};

const std::string kStage = "StageQMR.xml";
const std::string kTv = "TVQMR.xml";
const std::string kLow = std::string(13, '\n') + "low";
const std::string kDeep = std::string(30, '\n') + "low";

// clang-format off
const std::vector<Fault> kFaults = {
    {kStage, "<PageID>2<", "<PageID>5<", "page 2 \"Next\": its id is \"5\", and its place 2\n"},
    {kStage, "ID>2</Last", "ID>7</Last", "StageQMR.xml: LastPageID is 7, and the last page 2\n"},
    {kStage, "Page>2<", "Page>9<",
     "page 1 \"Way in\", column 1, link 1 \"Next\": it leads to page 9 of StageQMR.xml, which there isn't\n"},
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
    {kStage, "Length>4<", "Length>28<",
     "link 2 \"rehearsal\": its button and that of link 1 \"Next and a word of rehearsal\" cover each other\n"},
    {kTv, "Length>3<", "Length>30<", "link 1 \"one two three four five six seven\": its words break across"},
    {kTv, "one two", "one-and-two-and-three-and-four-and-five two", "pixels past its column\n"},
    {kStage, "Next and", "N" + std::string(90, 'x'), "its button runs past the edge of the window\n"},
    {kTv, "five six", "five \tsix", "column 1: \"six\" is written over what stands before its stop\n"},
    {kStage, "<Links><Link", kBehindBold,
     "link 2 \"Next and\": its words stick out from under its button, since the word before it is bold\n"},
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
  for (const Fault& fault : kFaults) {
    const Bundle bundle;
    bundle.Replace(fault.file, fault.from, fault.to);
    const Outcome outcome = Check(bundle);
    EXPECT_EQ(outcome.status, 1) << fault.line;
    EXPECT_THAT(outcome.out, HasSubstr(fault.line));
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

}  // namespace
}  // namespace quill::quillpress
