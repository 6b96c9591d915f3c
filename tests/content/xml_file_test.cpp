#include "content/xml_file.h"

#include <gtest/gtest.h>

#include "base/exceptions.h"
#include "base/numbers.h"
#include "host/memory/memory_desktop.h"
#include "markup/text_helpers.h"
#include "support/document_dump.h"
#include "support/messages.h"
#include "support/texts.h"

namespace quill::content {
namespace {

using tests::Quoted;

constexpr const char* kPath = "Quillmere.app/Contents/Data/a.xml";

std::string DumpOf(zkXMLFileClass& file) {
  const auto document = std::make_shared<Document>();
  EXPECT_TRUE(file.GetDocument(document));
  return tests::DumpDocument(*document);
}

struct XmlFileTest : testing::Test {
  ~XmlFileTest() override { markup::zkXMLToolkitGlobals::UseXMLFormatting = false; }

  bool Opens(const std::string& text, const std::string& path = kPath) {
    desktop_.files.AddFile(path, text);
    return file_.Init();
  }

  // The last message when that fails.
  std::string Complaint(const std::string& text, const std::string& path = kPath) {
    EXPECT_FALSE(Opens(text, path)) << text.substr(0, 80) << " in " << path;
    const std::vector<std::string> messages = tests::TakeMessages(desktop_);
    return messages.empty() ? "" : messages.back();
  }

  void Open(const std::string& text) {
    ASSERT_TRUE(Opens(text));
    DumpOf(file_);
  }

  // `Open` with page 0 alone, which holds this behind its title and text.
  void OpenPage(const std::string& rest) {
    Open("<Root><AppInfo/><Document><Page><PageID>0</PageID><Title>T</Title><Text>x</Text>" + rest +
         "</Page></Document></Root>");
  }

  std::string SavedBytes() {
    EXPECT_TRUE(file_.Save());
    return desktop_.files.Bytes(kPath);
  }

  // What stands between these two in the saved file.
  std::string Saved(const std::string& begin, const std::string& end) {
    const std::string bytes = SavedBytes();
    const std::size_t from = bytes.find(begin) + begin.size();
    return bytes.substr(from, bytes.find(end, from) - from);
  }

  // What the saved file loads to; the tree in memory gives the same.
  std::string Reloaded() {
    const std::string bytes = SavedBytes();
    zkXMLFileClass again("a.xml");
    EXPECT_TRUE(again.Init());
    EXPECT_EQ(DumpOf(file_), DumpOf(again)) << Quoted(bytes);
    EXPECT_EQ(SavedBytes(), bytes);
    return DumpOf(again);
  }

  host::MemoryDesktop desktop_;
  const tests::NoUnseenMessages no_unseen_messages_{desktop_};
  zkXMLFileClass file_{"a.xml"};
};

TEST_F(XmlFileTest, ReadsItsHead) {
  EXPECT_TRUE(
      Opens("<?xml version='1.0'?><root><appinfo><Application>Quillmere</Application>"
            "<Version>1.3</Version><LastPageID>12</LastPageID></appinfo></root>"));
  EXPECT_EQ(file_.GetAppName() + file_.GetAppVersion(), "Quillmere1.3");
  EXPECT_EQ(file_.GetLastPageID(), 12);
  EXPECT_FALSE(file_.GetDocument(std::make_shared<Document>())) << "not the head's matter";

  EXPECT_TRUE(Opens("<Root><AppInfo/><Document><Page/><Page/></Document></Root>"));
  const auto document = std::make_shared<Document>();
  EXPECT_TRUE(file_.GetDocument(document) && file_.GetDocument(document));
  EXPECT_EQ(document->GetUbound(), 3) << "appends: a document is not emptied";
}

TEST_F(XmlFileTest, SaysWhatIsWrong) {
  tests::ExpectEach([this](const std::string& text) { return Complaint(text); },
                    {{"<Root>", "Unable to parse a.xml"},
                     {"<x><Root/></x>", "No Root found in a.xml"},
                     {"<Root><Document/></Root>", "No AppInfo found in a.xml"},
                     {"<Root><AppInfo><Application/></AppInfo></Root>", ""},
                     {tests::Repeated("<Root>", 20000) + "</Root>", "", "too deep"}});
  EXPECT_FALSE(desktop_.quit_code.has_value());
}

TEST_F(XmlFileTest, EndsTheProgramWithoutTheFileButNotWithoutTheBundle) {
  const std::string gone = "Unable to locate a.xml.  Program Aborting., quit";
  const auto complaint = [this](const std::string& present) {
    desktop_.quit_code.reset();
    const std::string message = Complaint("", present);
    return message + (desktop_.quit_code.has_value() ? ", quit" : "");
  };
  tests::ExpectEach(complaint, {{"other", ""},
                                {"Quillmere.app/other", ""},
                                {"Quillmere.app/Contents/other", gone},
                                {"Quillmere.app/Contents/Data/b.xml", gone}});
  EXPECT_EQ(desktop_.quit_code, 0);
}

TEST_F(XmlFileTest, AFileThatCantBeOpenedFailsInSilence) {
  desktop_.files.Lock(kPath);
  EXPECT_EQ(Complaint("<Root><AppInfo/></Root>"), "");
  EXPECT_THROW(file_.GetDocument(std::make_shared<Document>()), base::NilObjectException);
  desktop_.no_application_folder = true;
  EXPECT_EQ(Complaint(""), "");
}

TEST_F(XmlFileTest, AFileGrowsFromNothing) {
  Open("<Root><AppInfo><LastPageID>-1</LastPageID></AppInfo><Document/></Root>");
  file_.AddPage("Start", "See.\r\n&amp;lt; a]]>b");
  file_.AddPage("", "x", "\xE9");
  file_.AddPage("'\"&amp;", "1", "2", " \t");
  file_.AddLink("0", "9", "5", "1", 0);
  file_.AddLink("2.7", "0", "1", "<", -1, 3);
  file_.AddLink("1", "0", "1", "", 9, 2, "a b.pdf");
  const std::string grown =
      "0 Start \"See.\\n< a]]>b\" 1:9+5>1:0\n"
      "1  \"x\" \"\\x8E\" 2:0+1>:9a b.pdf\n"
      "2 '\"& \"1\" \"2\" \" \\t\" 3:0+1><:-1\n";
  EXPECT_EQ(Reloaded(), grown);
  markup::zkXMLToolkitGlobals::UseXMLFormatting = true;
  EXPECT_EQ(Reloaded(), grown) << "indentation would fill the empty title";
  EXPECT_EQ(Saved("<LastPageID>", "<"), "2");
  EXPECT_EQ(
      Saved("</Page>", "</Link>"),
      "<Page Columns=\"2\"><PageID>1</PageID><Title></Title><Text>x</Text><Text>&amp;#233;</Text><Links>"
      "<Link Column=\"2\"><Offset>0</Offset><Length>1</Length><LinkToPage></LinkToPage>"
      "<LinkType>9</LinkType><Filename>a b.pdf</Filename>");
  EXPECT_TRUE(file_.GetPage("2") && !file_.GetPage("3") && !file_.GetPage("-1") && !file_.GetPage("9e99"));
}

TEST_F(XmlFileTest, UpdatesWhatAPageHasToTheLetter) {
  OpenPage("<Text/><Text>z</Text>");
  file_.UpdatePage("0", "&amp;", "a\x8E", "b", "c");
  file_.UpdatePage("0", "&amp;", "y", "b");
  file_.UpdatePage("1", "no", "such page");
  file_.IncrementPageID();
  EXPECT_EQ(Saved("<Title>", "</Document>"),
            "&amp;amp;amp;</Title><Text>y</Text><Text/><Text>c</Text><Links/></Page>")
      << "nothing is made but the links";
  EXPECT_EQ(Saved("<AppInfo", ">") + base::Str(file_.GetLastPageID()), "/1") << "an id goes up untold";
}

TEST_F(XmlFileTest, LinksKeepTheirNumbers) {
  OpenPage("");
  file_.AddLink("0", "1", "2", "3", 4);
  EXPECT_EQ(Reloaded(), "0 T \"x\"\n") << "no place for links, and none made";
  file_.UpdatePage("0", "T", "x");
  file_.AddLink("0", "7", "1", "a", 0, 2);
  file_.AddLink("0", "7", "2", "b", 0, 1);
  file_.AddLink("0", "8", "3", "c", 0, 3, "f");
  for (const char* const offset : {"07", "7"}) file_.DeleteLink("0", offset);
  file_.DeleteLink("1", "7");
  for (const std::int32_t outside : {0, 4}) file_.UpdateLink("0", outside, "!", "!", "!", 1);
  file_.UpdateLink("0", 1, "!", "!", "!", 1);
  EXPECT_EQ(tests::TakeMessages(desktop_), std::vector<std::string>{"Unable to locate link 1"});
  file_.UpdateLink("0", 3, "9", "4", "d", 5);
  EXPECT_EQ(Saved("<Links>", "<Offset>"), "<Link Column=\"2\"/><Link Column=\"1\">");
  EXPECT_EQ(Reloaded(), "0 T \"x\" 1:7+2>b:0 3:9+4>d:5f\n");
}

TEST_F(XmlFileTest, RaisesTheVersionByATenth) {
  const auto raised = [this](const std::string& version) {
    Open("<Root><AppInfo><Version>" + version + "</Version></AppInfo><Document/></Root>");
    file_.IncrementVersion();
    return Saved("<Version>", "<");
  };
  const std::string most = "340282346638528859811704183484516925440";
  tests::ExpectEach(raised, {{"1.3", "1.4"},
                             {"1.9", "2"},
                             {"x", "0.1"},
                             {"nan", "0.1"},
                             {"-0.1", "0"},
                             {"1234.5", "1234.6"},
                             {"1e39", most, "as much as single precision holds"},
                             {most, most, "and no more"},
                             {"-1e39", "-" + most}});
}

TEST_F(XmlFileTest, ThereIsNoPageBehindTheLastId) {
  Open("<Root><AppInfo><LastPageID>2147483647</LastPageID></AppInfo><Document/></Root>");
  const std::string bytes = SavedBytes();
  EXPECT_THROW(file_.AppendPage("T", {"1"}), base::OutOfBoundsException);
  EXPECT_EQ(SavedBytes(), bytes);
}

TEST_F(XmlFileTest, NothingIsEditedOutOfOrder) {
  EXPECT_FALSE(file_.Save());
  EXPECT_THROW(file_.IncrementVersion(), base::NilObjectException);
  desktop_.files.AddFile(kPath, "<Root><AppInfo/></Root>");
  EXPECT_TRUE(file_.Init() && !file_.GetDocument(std::make_shared<Document>()));
  EXPECT_THROW(file_.AddPage("T", "x"), base::NilObjectException);
  EXPECT_EQ(file_.GetLastPageID(), 0) << "no id is lost";
}

TEST_F(XmlFileTest, SavesNothingThatItCantOrThatBelongsElsewhere) {
  OpenPage("<Links/>");
  desktop_.files.Refuse(kPath);
  EXPECT_FALSE(file_.Save());
  desktop_.files.AddFile("Quillmere.app/Contents/Data/b.xml", "<Root>");
  file_.SetFilename("b.xml");
  EXPECT_FALSE(file_.Init() || file_.Save()) << "the tree of one file went into another";
  EXPECT_EQ(tests::TakeMessages(desktop_).back(), "Unable to parse b.xml");
}

}  // namespace
}  // namespace quill::content
