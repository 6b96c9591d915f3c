#include "content/loader.h"

#include <gtest/gtest.h>

#include "markup/container.h"
#include "support/document_dump.h"
#include "support/texts.h"

namespace quill::content {
namespace {

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
       {"<Page><Title>T</Title><Title>U</Title><PageID>0</PageID><PageID>1</PageID><Text>x</Text>"
        "<Text>y</Text></Page>",
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

}  // namespace
}  // namespace quill::content
