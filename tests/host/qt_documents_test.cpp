// Documents handed to other applications, for which scripts stand in.
#include <QDeadlineTimer>
#include <QThread>

#include "host/apple_events.h"
#include "host/desktop_under_test.h"
#include "host/qt/qt_files.h"

namespace quill::host {
namespace {

class QtDocuments : public testing::Test {
 protected:
  QtDocuments() { qputenv("PATH", under_test_.Folder().c_str()); }
  ~QtDocuments() override { qputenv("PATH", path_); }

  // A program that writes its name and its arguments, one a line, beside itself.
  void Install(const char* program) {
    under_test_.AddFile(program, "#!/bin/sh\nprintf '%s\\n' \"${0##*/}\" \"$@\" > \"${0%/*}/told\"\n");
    std::filesystem::permissions(under_test_.Folder() / program, std::filesystem::perms::owner_all);
  }

  static bool Send(const std::string& header, const std::vector<std::shared_ptr<FolderItem>>& items,
                   const char* target = "MACS") {
    AppleEventDescList list;
    for (const auto& item : items) list.AppendFolderItem(item);
    const auto event = NewAppleEvent(header.substr(0, 4), header.substr(4, 4), target);
    event->SetDescListParam(header.substr(8), list);
    return event->Send();
  }

  const QByteArray path_ = qgetenv("PATH");
  QtUnderTest under_test_;
  std::shared_ptr<FolderItem> folder_ = GetFolderItem("");
};

TEST_F(QtDocuments, GoToTheProgramThatIsThereForThem) {
  struct Step {
    const char *installed, *target, *document, *started;
  };
  for (const Step& step : {Step{"xdg-open", "MACS", "plain.pdf", "xdg-open"},
                           Step{"xdg-open", "COMP", " two  blanks ", "xdg-open"},
                           Step{"companion", "COMP", "-o it's \"$(x)\" `y`; *", "companion"},
                           Step{"companion", "MACS", "caf\xC3\xA9 %20", "xdg-open"}}) {
    Install(step.installed);
    under_test_.AddFile(step.document, "");
    const auto item = folder_->Child(step.document);
    EXPECT_TRUE(Send("aevtodoc----", {item}, step.target)) << step.document;
    const std::string told = "[" + std::string(step.started) + "\n][" + item->Path() + "\n]";
    const QDeadlineTimer patience(5000);
    while (LinesOf(*folder_->Child("told")) != told && !patience.hasExpired()) QThread::msleep(5);
    EXPECT_EQ(LinesOf(*folder_->Child("told")), told);
  }
}

TEST_F(QtDocuments, AreNotSentWhereSomethingIsMissing) {
  Install("xdg-open");
  EXPECT_FALSE(Send("aevtodoc----", {})) << "no document";
  EXPECT_FALSE(Send("aevtodoc----", {folder_, nullptr})) << "one is null";
  EXPECT_FALSE(Send("aevtodoc----", {folder_, folder_->Child("missing")})) << "one isn't there";
  for (const char* header : {"aevtodocsubj", "aevtquit----", "miscodoc----"}) {
    EXPECT_FALSE(Send(header, {folder_})) << header;
  }
  for (const char* path : {"", "/proc/self/fd"}) {
    qputenv("PATH", path);
    EXPECT_FALSE(Send("aevtodoc----", {folder_})) << "no program in " << path;
  }
}

}  // namespace
}  // namespace quill::host
