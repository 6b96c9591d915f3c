#include "content/document.h"

#include <gtest/gtest.h>

#include "content/bundle.h"
#include "content/loader.h"
#include "host/memory/memory_desktop.h"
#include "markup/container.h"
#include "support/document_dump.h"
#include "support/texts.h"

namespace quill::content {
namespace {

TEST(Document, FindsPagesByIdAndByIndex) {
  Document document;
  document.AddPage("03", "first", "");
  document.AddPage("3", "second", "", "");
  document.AddPage("x", "third", "", "", "");
  EXPECT_EQ(document.GetPage(3)->GetTitle(), "first");
  EXPECT_EQ(document.GetPage(0)->GetTitle(), "third") << "an id that is no number reads as 0";
  EXPECT_EQ(document.GetPage(2), nullptr);
  EXPECT_EQ(document.GetPageByOffset(2)->GetColumns(), 3) << "the last page too";
  for (const std::int32_t outside : {-1, 3}) EXPECT_EQ(document.GetPageByOffset(outside), nullptr);
}

TEST(Page, KeepsTextsOutOfSight) {
  Page page("0", "t", "1", "2", "3");
  page.SetText("a", "b");
  EXPECT_EQ(page.GetText(1) + page.GetText(2) + page.GetText(0) + page.GetText(4), "ab33");
}

// The targets of the page's links, in order.
std::string Targets(const Page& page) {
  std::vector<std::shared_ptr<Link>> links = {nullptr};
  page.GetLinks(links);
  std::string targets;
  for (const auto& link : links) targets += link->GetLinkToPage();
  return targets;
}

TEST(Page, TellsLinksApartByText) {
  Page page;
  page.AddLink("012", "5", "a", 0);
  page.AddLink("12", "5", "b", 0, 1);
  page.AddLink("12", "5", "c", 0, 2, "file");
  EXPECT_EQ(page.GetLink("12", "5")->GetLinkToPage(), "b");
  EXPECT_FALSE(page.LinkExists("12", "05"));
  EXPECT_TRUE(page.LinkExists("12", "5", 2));
  EXPECT_FALSE(page.LinkExists("12", "5", 0));

  page.DeleteLink("12");
  EXPECT_EQ(Targets(page), "ac") << "the first of that offset, in whatever column";
  page.UpdateLink(1, "1", "2", "d", 3);
  EXPECT_EQ(page.GetLink("1", "2")->GetFilename(), "file");
  for (const std::int32_t outside : {-1, 2}) page.DeleteLink(outside);
  EXPECT_EQ(Targets(page), "ad");
}

std::string Loaded(const std::string& pages) {
  const markup::zkXMLContainer container("<Document>" + pages + "</Document>");
  Document document;
  LoadPages(*container.GetElement(1), document);
  return tests::DumpDocument(document);
}

TEST(Loader, ReadsPages) {
  tests::ExpectEach(
      Loaded,
      {{"<!--c--><page COLUMNS='2'>t<TEXT>x</TEXT><Link/><text>y</text><text>z</text><title>T</title>"
        "<pageid>0</pageid></page><other/>",
        "0 T \"x\" \"y\"\n",
        "names in any case, children in any order, strangers and a text too many between"},
       {"<Page><Title>T</Title><Title>U</Title><PageID>0</PageID><PageID>1</PageID><Text>x</Text></Page>",
        "0 T \"x\"\n", "the first of each name counts, in one column if nothing is said"},
       {"<Page><PageID> 0 </PageID><Title>a&amp;amp;b\r\n<b>c</b>d</Title><Text><!--c-->x</Text></Page>",
        " 0  a&b\n \"c\"\n", "nothing trimmed, up to the first inner tag"},
       {"<Page><PageID>0</PageID><Title>T</Title><Text>x</Text></Page>"
        "<Page><PageID/><Title></Title><Text></Text></Page>",
        "0 T \"x\"\n  \"\"\n", "an element with nothing inside is empty, also behind a page that had a text"},
       {"<Page Columns='2'><PageID>0</PageID><Title>T</Title><Text>x</Text><Text>y</Text></Page>"
        "<Page Columns='2'><Text>z</Text></Page><Page Columns='0'><Text>!</Text></Page>",
        "0 T \"x\" \"y\"\n0 T \"z\" \"y\"\n0 T \"z\" \"y\" \"\"\n",
        "what is left out comes from the page before; no columns read no text and make three"},
       {"<Page Columns='2147483647'><Text>x</Text><Text>y</Text><Text>z</Text><Text>!</Text></Page>",
        "  \"x\" \"y\" \"z\"\n", "a fourth text is not read"},
       {"<Page><PageID>1</PageID><Links><Link><Offset>1</Offset></Link></Links></Page>"
        "<Page><PageID>x</PageID><Links><Link><Offset>2</Offset></Link></Links></Page>",
        "1  \"\" 1:2+>:0\nx  \"\"\n",
        "a link goes to the index that its page's id reads as, if there is one"}});
}

TEST(Loader, ReadsLinks) {
  const auto loaded = [](const std::string& links) {
    return Loaded("<Page><PageID>0</PageID><Links>" + links + "</Links></Page>").substr(5);
  };
  tests::ExpectEach(
      loaded,
      {{"<Link Column='2'><Offset>07</Offset><Length>5</Length><LinkToPage>1</LinkToPage>"
        "<LinkType>3</LinkType><Filename>f</Filename></Link><x/><Link><Offset>2</Offset></Link>",
        " 2:07+5>1:3f 1:2+5>1:0\n", "length and target come from the link before, the rest doesn't"},
       {"<Link column='2'/><Link><Length>4</Length></Link><LINK column='3'><Offset>7</Offset></LINK>",
        " 3:7+>:0\n", "without an offset all of a link is skipped"},
       {"<Link Column='x'><Offset>1</Offset><LinkType>y</LinkType></Link>", " 0:1+>:0\n", "no number is 0"},
       {"</Links><Links><Link><Offset>1</Offset></Link>", "\n", "a second list is not read"}});
}

std::string PathOf(const std::shared_ptr<host::FolderItem>& item) { return item ? item->Path() : "-"; }

// What is found of the bundle, of "a" as a content file, and of "a" as a document in
// it and beside it.
std::string Found() {
  return PathOf(BundleContents()) + " " + PathOf(ContentFile("a")) + " " +
         PathOf(FindDocument(DocumentPlace::kInBundle, "a")) + " " +
         PathOf(FindDocument(DocumentPlace::kBesideBundle, "a"));
}

TEST(BundleTest, LooksInBothPlaces) {
  const auto found = [](const std::string& file) {
    host::MemoryDesktop desktop;
    desktop.files.AddFile(file, "");
    return Found();
  };
  const std::string contents = "Quillmere.app/Contents";
  tests::ExpectEach(
      found, {{"other", "- - - -"},
              {"Data/a", "- - - Data/a"},
              {"Data/b", "- - - -"},
              {"Quillmere.app/a", "- - - -"},
              {contents + "/a", contents + " - - -"},
              {contents + "/Data/b", contents + " - - -"},
              {contents + "/Data/a", contents + " " + contents + "/Data/a " + contents + "/Data/a -"}});
  host::MemoryDesktop nowhere;
  nowhere.files.AddFile(contents + "/Data/a", "");
  nowhere.no_application_folder = true;
  EXPECT_EQ(Found(), "- - - -");
}

TEST(BundleTest, StatesItsVersionTrimmed) {
  const auto version = [](const std::string& bytes) {
    host::MemoryDesktop desktop;
    desktop.files.AddFile("Quillmere.app/Contents/Version", bytes);
    return BundleVersion();
  };
  tests::ExpectEach(version, {{" 1.2 b\r\n", "1.2 b"},
                              {"\n", ""},
                              {std::string(300, '1'), std::string(256, '1'), "one that is no version"}});
  host::MemoryDesktop desktop;
  EXPECT_EQ(BundleVersion(), "");
  desktop.files.AddFile("Quillmere.app/Contents/other", "");
  EXPECT_EQ(BundleVersion(), "");
  desktop.files.AddFile("Quillmere.app/Contents/Version", "1");
  desktop.files.Lock("Quillmere.app/Contents/Version");
  EXPECT_EQ(BundleVersion(), "");
}

}  // namespace
}  // namespace quill::content
