#include "content/xml_file.h"

#include <gtest/gtest.h>

#include "base/exceptions.h"
#include "host/memory/memory_desktop.h"
#include "support/messages.h"
#include "support/texts.h"

namespace quill::content {
namespace {

constexpr const char* kPath = "Quillmere.app/Contents/Data/a.xml";

struct XmlFileTest : testing::Test {
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

}  // namespace
}  // namespace quill::content
