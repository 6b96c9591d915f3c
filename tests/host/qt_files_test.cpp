// What only a disk can show: rights, links, no room left, and the end of the
// program in the middle of it all.
#include "host/qt/qt_files.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <set>

#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

namespace fs = std::filesystem;

class QtFiles : public testing::Test {
 protected:
  QtFiles() { EXPECT_TRUE(Save(*file_, "old")); }

  const QTemporaryDir folder_;
  const fs::path root_ = folder_.path().toStdString();
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
  for (const fs::path& path : {root_ / "file" / "inside", root_ / "folder", fs::path("/proc/version")}) {
    EXPECT_EQ(DiskItem(path)->CreateTextFile(), nullptr) << path;
  }
  // The first is short enough to fail when it is closed, the other when written.
  for (const std::size_t length : {1'001, 100'000}) EXPECT_FALSE(SaveWithoutRoom(*file_, length)) << length;
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
    while (child == 0) Save(*file_, b) && Save(*file_, a);
    usleep(2000 + 1000 * round);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string text = LinesOf(*file_);
    ASSERT_TRUE(text == "[" + a + "]" || text == "[" + b + "]") << text.size() << " in round " << round;
    seen.insert(text[1]);
  }
  EXPECT_EQ(seen.size(), 2u) << "was anything saved at all?";
}

}  // namespace
}  // namespace quill::host
