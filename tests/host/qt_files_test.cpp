// What only a disk can show: rights, links, no room left, and the end of the
// program in the middle of it all.
#include "host/qt/qt_files.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QThread>
#include <array>
#include <csignal>
#include <set>

#include "host/apple_events.h"
#include "host/desktop_under_test.h"
#include "support/temporary_folder.h"

namespace quill::host {
namespace {

namespace fs = std::filesystem;

struct QtFiles : testing::Test {
  QtFiles() { EXPECT_TRUE(Save(*file_, "old")); }

  const tests::TemporaryFolder folder_;
  const fs::path root_ = folder_.Path();
  const std::shared_ptr<FolderItem> file_ = DiskItem(root_ / "file");
};

TEST_F(QtFiles, AreForTheirOwnerAloneAndLinksStayLinks) {
  fs::permissions(root_ / "file", fs::perms(0644));
  fs::create_symlink("file", root_ / "link");
  fs::create_symlink("missing", root_ / "link to nothing");
  for (const std::string name : {"new", "file", "link", "link to nothing"}) {
    EXPECT_TRUE(Save(*DiskItem(root_ / name), name));
    EXPECT_EQ(LinesOf(*DiskItem(root_ / name)), "[" + name + "]");
    EXPECT_EQ(fs::status(root_ / name).permissions(), fs::perms(0600)) << name;
    EXPECT_EQ(fs::is_symlink(root_ / name), name.starts_with("link")) << name;
  }
  EXPECT_EQ(LinesOf(*file_), "[link]");
}

// A limit of a thousand bytes stands for a disk that is full.
bool SaveWithoutRoom(const FolderItem& file, std::size_t length) {
  rlimit kept = {};
  getrlimit(RLIMIT_FSIZE, &kept);
  const rlimit small = {1000, kept.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const bool saved = Save(file, std::string(length, 'x'));
  setrlimit(RLIMIT_FSIZE, &kept);
  std::signal(SIGXFSZ, handler);
  return saved;
}

// None of this hangs on the user's rights, of which root has all.
TEST_F(QtFiles, WhatCantBeWrittenLeavesWhatWasThere) {
  fs::create_directory(root_ / "folder");
  for (const fs::path& path : {root_ / "file" / "inside", root_ / "folder", fs::path("/proc/version")})
    EXPECT_EQ(DiskItem(path)->CreateTextFile(), nullptr) << path;
  // The first is short enough to fail when it is closed, the other when written.
  for (const std::size_t length : {std::size_t{1'001}, std::size_t{100'000}})
    EXPECT_FALSE(SaveWithoutRoom(*file_, length)) << length;
  EXPECT_EQ(LinesOf(*file_), "[old]");
  const auto late = DiskItem(root_ / "late")->CreateTextFile();
  fs::create_directory(root_ / "late");
  EXPECT_FALSE(late->Close()) << "a folder has come in its place";
  EXPECT_EQ(std::distance(fs::directory_iterator(root_), {}), 3) << "nothing is left over";
}

// Tests of this name run first, when there are no threads yet that a fork would
// lose.
using SavingDeathTest = QtFiles;

TEST_F(SavingDeathTest, LeavesOneTextOrTheOther) {
  const std::string a(1 << 20, 'a');
  const std::string b(1 << 20, 'b');
  ASSERT_TRUE(Save(*file_, a));
  std::set<char> seen;
  for (unsigned round = 0; round < 40; ++round) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) Save(*file_, b) && Save(*file_, a);
    }
    usleep(2000 + 1000 * round);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string text = LinesOf(*file_);
    ASSERT_TRUE(text == "[" + a + "]" || text == "[" + b + "]") << text.size() << " in round " << round;
    seen.insert(text[1]);
  }
  EXPECT_EQ(seen.size(), 2u) << "was anything saved at all?";
}

struct QtDocuments : testing::Test {
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
  const std::array<const char*, 4> steps[] = {
      {"xdg-open", "MACS", "plain.pdf", "xdg-open"},
      {"xdg-open", "COMP", " two  blanks ", "xdg-open"},
      {"companion", "COMP", "-o it's \"$(x)\" `y`; *", "companion"},
      {"companion", "MACS", "caf\xC3\xA9 %20", "xdg-open"},
  };
  for (const auto& [installed, target, document, started] : steps) {
    Install(installed);
    under_test_.AddFile(document, "");
    const auto item = folder_->Child(document);
    EXPECT_TRUE(Send("aevtodoc----", {item}, target)) << document;
    const std::string told = "[" + std::string(started) + "\n][" + item->Path() + "\n]";
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
  for (const char* to : {"aevtodocsubj", "aevtquit----", "miscodoc----"})
    EXPECT_FALSE(Send(to, {folder_})) << to;
  under_test_.AddFile("xdg-open", "#!/bin/sh\nexit 4\n");
  testing::internal::CaptureStderr();
  EXPECT_TRUE(Send("aevtodoc----", {folder_}));
  QThread::msleep(300);
  under_test_.Settle();
  EXPECT_NE(testing::internal::GetCapturedStderr().find("xdg-open could not open"), std::string::npos);
  for (const char* path : {"", "/proc/self/fd"}) {
    qputenv("PATH", path);
    EXPECT_FALSE(Send("aevtodoc----", {folder_})) << "no program in " << path;
  }
}

}  // namespace
}  // namespace quill::host
