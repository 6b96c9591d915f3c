#include "content/loader.h"

#include <gtest/gtest.h>

#include "host/memory/memory_desktop.h"
#include "markup/container.h"

namespace quill::content {
namespace {

// A page as "id title|text1|text2|text3" with as many texts as columns, a link
// as "(offset length target type column file)".
std::string Dump(const Document& document) {
  std::string dump;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) {
    const std::shared_ptr<Page> page = document.GetPageByOffset(i);
    dump += (i == 0 ? "" : "; ") + page->GetPageID() + " " + page->GetTitle();
    for (std::int32_t column = 1; column <= page->GetColumns(); ++column) dump += "|" + page->GetText(column);
    std::vector<std::shared_ptr<Link>> links;
    page->GetLinks(links);
    for (const auto& link : links) {
      dump += " (" + link->GetOffset() + " " + link->GetLength() + " " + link->GetLinkToPage() + " " +
              std::to_string(link->GetType()) + " " + std::to_string(link->GetColumn()) + " " +
              link->GetFilename() + ")";
    }
  }
  return dump;
}

std::string Loaded(const std::string& pages) {
  const markup::zkXMLContainer container("<Document>" + pages + "</Document>");
  Document document;
  LoadPages(*container.GetElement(1), document);
  return Dump(document);
}

constexpr const char* kHead = "<Page><PageID>0</PageID><Title>T</Title><Text>x</Text>";

TEST(Loader, ReadsPages) {
  const struct {
    const char* story;
    const char* pages;
    const char* expected;
  } cases[] = {
      {"none", "", ""},
      {"one column if nothing is said",
       "<Page><PageID>0</PageID><Title>T</Title><Text>x</Text><Text>y</Text></Page>", "0 T|x"},
      {"two columns of three texts",
       "<Page Columns='2'><PageID>0</PageID><Text>x</Text><Text>y</Text><Text>z</Text></Page>", "0 |x|y"},
      {"names in any case, children in any order, strangers between",
       "<!--c--><page "
       "COLUMNS='2'>t<TEXT>x</TEXT><Link/><text>y</text><title>T</title><pageid>0</pageid></page>"
       "<other/>",
       "0 T|x|y"},
      {"the first of each name counts",
       "<Page><Title>T</Title><Title>U</Title><PageID>0</PageID><PageID>1</PageID></Page>", "0 T|"},
      {"nothing trimmed, up to the first inner tag",
       "<Page><PageID> 0 </PageID><Title>a&amp;amp;b\r\n<b>c</b>d</Title><Text><!--c-->x</Text></Page>",
       " 0  a&b\n|c"},
      {"an element with nothing inside is empty, also behind a page that had a text",
       "<Page><PageID>0</PageID><Title>T</Title><Text>x</Text></Page>"
       "<Page><PageID/><Title></Title><Text></Text></Page>",
       "0 T|x;  |"},
      {"what is left out comes from the page before",
       "<Page Columns='2'><PageID>0</PageID><Title>T</Title><Text>x</Text><Text>y</Text></Page>"
       "<Page Columns='2'><Text>z</Text></Page>",
       "0 T|x|y; 0 T|z|y"},
      {"no columns read no text and make three",
       "<Page><PageID>0</PageID><Title>T</Title><Text>x</Text></Page>"
       "<Page Columns='0'><Text>y</Text></Page><Page Columns='many'/>",
       "0 T|x; 0 T|x||; 0 T|x||"},
      {"a fourth text is not read",
       "<Page Columns='2147483647'><PageID>0</PageID><Text>x</Text><Text>y</Text><Text>z</Text><Text>!</Text>"
       "</Page>",
       "0 |x|y|z"},
  };
  for (const auto& c : cases) EXPECT_EQ(Loaded(c.pages), c.expected) << c.story;
}

TEST(Loader, ReadsLinks) {
  const struct {
    const char* story;
    const char* links;
    const char* expected;
  } cases[] = {
      {"no list", "", ""},
      {"an empty list", "<Links/>", ""},
      {"all that a link may have",
       "<Links><Link Column='2'><Offset>7</Offset><Length>5</Length><LinkToPage>1</LinkToPage>"
       "<LinkType>3</LinkType><Filename>f</Filename></Link></Links>",
       " (7 5 1 3 2 f)"},
      {"the least it must have",
       "<Links><Link><Offset>07</Offset><Length>5</Length><LinkToPage>1</LinkToPage></Link></Links>",
       " (07 5 1 0 1 )"},
      {"without an offset it is skipped, also when its content was deleted",
       "<Links><Link column='2'/><Link><Length>4</Length></Link>"
       "<LINK column='3'><Offset>7</Offset></LINK></Links>",
       " (7   0 3 )"},
      {"length and target come from the link before, type and file don't",
       "<Links><Link><Offset>1</Offset><Length>5</Length><LinkToPage>1</LinkToPage><LinkType>3</LinkType>"
       "<Filename>f</Filename></Link><x/><Link><Offset>2</Offset></Link></Links>",
       " (1 5 1 3 1 f) (2 5 1 0 1 )"},
      {"what is no number is 0",
       "<Links><Link Column='x'><Offset>1</Offset><LinkType>y</LinkType></Link></Links>", " (1   0 0 )"},
      {"a second list is not read", "<Links/><Links><Link><Offset>1</Offset></Link></Links>", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Loaded(kHead + std::string(c.links) + "</Page>"), std::string("0 T|x") + c.expected) << c.story;
  }
}

TEST(Loader, DropsLinksOfAPageWhoseIdIsNoPosition) {
  EXPECT_EQ(Loaded("<Page><PageID>1</PageID><Links><Link><Offset>1</Offset></Link></Links></Page>"
                   "<Page><PageID>0</PageID><Links><Link><Offset>2</Offset></Link></Links></Page>"),
            "1 | (2   0 1 ); 0 |");
}

}  // namespace
}  // namespace quill::content
