#include "content/xml_file.h"

#include <gtest/gtest.h>

#include "host/exceptions.h"
#include "host/memory/memory_desktop.h"

namespace quill::content {
namespace {

constexpr const char* kPath = "Quillmere.app/Contents/Data/a.xml";

class XmlFileTest : public testing::Test {
 protected:
  bool Opens(const std::string& text) {
    desktop_.files.AddFile(kPath, text);
    return file_.Init();
  }

  host::MemoryDesktop desktop_;
  zkXMLFileClass file_{"a.xml"};
};

TEST_F(XmlFileTest, ReadsItsHead) {
  EXPECT_TRUE(
      Opens("<?xml version='1.0'?><root><appinfo><Application>Quillmere</Application>"
            "<Version>1.3</Version><LastPageID>12</LastPageID></appinfo></root>"));
  EXPECT_EQ(file_.GetAppName(), "Quillmere");
  EXPECT_EQ(file_.GetAppVersion(), "1.3");
  EXPECT_EQ(file_.GetLastPageID(), 12);
  EXPECT_FALSE(file_.GetDocument(std::make_shared<Document>()))
      << "no document, which is not the head's matter";
  EXPECT_TRUE(desktop_.messages.empty());
}

TEST_F(XmlFileTest, HeadMayBeEmpty) {
  EXPECT_TRUE(Opens("<Root><AppInfo/><Document><Page/><Page/></Document></Root>"));
  EXPECT_EQ(file_.GetAppName() + file_.GetAppVersion(), "");
  EXPECT_EQ(file_.GetLastPageID(), 0);
  const auto document = std::make_shared<Document>();
  EXPECT_TRUE(file_.GetDocument(document));
  EXPECT_TRUE(file_.GetDocument(document)) << "appends: a document is not emptied";
  EXPECT_EQ(document->GetUbound(), 3);
}

TEST_F(XmlFileTest, SaysWhatIsWrong) {
  const std::string box1 = "An error occurred while parsing the XML/HTML file.";
  const std::string box2 =
      "If the program crashes after this, it doesn't handle the exception raised. Please report to the "
      "author.";
  const struct {
    std::string text;
    std::vector<std::string> messages;
  } cases[] = {
      {"<Root>", {box1, box2, "Unable to parse a.xml"}},
      {"", {"No Root found in a.xml"}},
      {"<x><Root/></x>", {"No Root found in a.xml"}},
      {"<Root><Document/></Root>", {"No AppInfo found in a.xml"}},
      {"<Root><AppInfo><Application/></AppInfo></Root>", {}},
      {"<Root><AppInfo><LastPageID></LastPageID></AppInfo></Root>", {}},
      {[] {
         std::string deep;
         for (int i = 0; i < 20000; ++i) deep += "<Root>";
         return deep + "</Root>";
       }(),
       {}},
  };
  for (const auto& c : cases) {
    desktop_.messages.clear();
    EXPECT_FALSE(Opens(c.text)) << c.text.substr(0, 80);
    EXPECT_EQ(desktop_.messages, c.messages) << c.text.substr(0, 80);
  }
  EXPECT_FALSE(desktop_.quit_code.has_value());
}

TEST_F(XmlFileTest, EndsTheProgramWithoutTheFileButNotWithoutTheBundle) {
  EXPECT_FALSE(file_.Init()) << "no bundle";
  desktop_.files.AddFile("Quillmere.app/other", "");
  EXPECT_FALSE(file_.Init()) << "no contents";
  desktop_.no_application_folder = true;
  EXPECT_FALSE(file_.Init());
  desktop_.no_application_folder = false;
  EXPECT_TRUE(desktop_.messages.empty());
  EXPECT_FALSE(desktop_.quit_code.has_value());

  const std::string gone = "Unable to locate a.xml.  Program Aborting.";
  desktop_.files.AddFile("Quillmere.app/Contents/other", "");
  EXPECT_FALSE(file_.Init()) << "no folder of content files";
  desktop_.files.AddFile("Quillmere.app/Contents/Data/b.xml", "");
  EXPECT_FALSE(file_.Init()) << "no such file";
  EXPECT_EQ(desktop_.messages, std::vector<std::string>({gone, gone}));
  EXPECT_EQ(desktop_.quit_code, 0);
}

TEST_F(XmlFileTest, AFileThatCantBeOpenedFailsInSilence) {
  desktop_.files.AddFile(kPath, "<Root/>");
  desktop_.files.Lock(kPath);
  EXPECT_FALSE(file_.Init());
  EXPECT_TRUE(desktop_.messages.empty());
  EXPECT_THROW(file_.GetDocument(std::make_shared<Document>()), host::NilObjectException);
}

}  // namespace
}  // namespace quill::content
