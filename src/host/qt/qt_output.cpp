#include "host/qt/qt_output.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

namespace quill::host {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;             // in a row, as the kernel has it
constexpr std::size_t kLongestName = 200;  // of which a draft's own name still leaves room for more
constexpr int kMostDrafts = 100;           // of one process for one file at one time
constexpr std::string_view kDraftEnd = ".draft";

// Where the links lead at last; none if they lead around.
std::optional<fs::path> Followed(fs::path path) {
  std::error_code error;
  for (int links = 0; fs::is_symlink(path, error); ++links) {
    if (links == kMostLinks) return std::nullopt;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

// ".QMR", before the number of the process and the number of the draft.
std::string DraftBegin(const fs::path& target) {
  return "." + target.filename().string().substr(0, kLongestName);
}

fs::path DraftPath(const fs::path& target, int number) {
  const std::string own = "." + std::to_string(getpid()) + "-" + std::to_string(number);
  return target.parent_path() / (DraftBegin(target) + own + std::string(kDraftEnd));
}

// Makes the folder and those above it.
bool MakeFolder(const fs::path& folder, DiskOutput::Rights rights) {
  std::error_code error;
  if (fs::is_directory(folder, error)) return true;
  if (folder.has_relative_path() && !MakeFolder(folder.parent_path(), rights)) return false;
  const mode_t mode = rights == DiskOutput::Rights::kOwnerAlone ? 0700 : 0777;
  return mkdir(folder.c_str(), mode) == 0 || errno == EEXIST;
}

bool SyncFolder(const fs::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return false;
  const bool synced = fsync(opened) == 0 || errno == EINVAL;  // some disks have nothing to sync
  close(opened);
  return synced;
}

// The process that wrote the draft of that name; 0 if it is no draft of a file whose name begins so.
pid_t WriterOf(std::string_view name, std::string_view begin) {
  if (!name.starts_with(begin) || !name.ends_with(kDraftEnd)) return 0;
  const std::size_t dot = name.rfind('.', name.size() - kDraftEnd.size() - 1);
  pid_t writer = 0;
  const auto end = std::from_chars(name.data() + dot + 1, name.data() + name.size(), writer);
  return end.ec == std::errc() && *end.ptr == '-' && writer > 0 ? writer : 0;
}

bool IsGone(pid_t process) { return kill(process, 0) != 0 && errno == ESRCH; }

}  // namespace

std::unique_ptr<DiskOutput> DiskOutput::Make(const fs::path& path, Rights rights) {
  const std::optional<fs::path> target = Followed(path);
  if (!target || !MakeFolder(target->parent_path(), rights)) return nullptr;
  struct stat before = {};
  const bool exists = stat(target->c_str(), &before) == 0;
  if (exists && (!S_ISREG(before.st_mode) || access(target->c_str(), W_OK) != 0)) return nullptr;
  SweepDrafts(*target);
  const mode_t mode = rights == Rights::kOwnerAlone ? 0600 : 0666;
  for (int number = 0; number < kMostDrafts; ++number) {
    const fs::path draft = DraftPath(*target, number);
    const int file = open(draft.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0 && errno == EEXIST) continue;
    if (file < 0) return nullptr;
    auto output = std::unique_ptr<DiskOutput>(new DiskOutput(*target, draft, file));
    if (exists && rights == Rights::kAsBefore && fchmod(file, before.st_mode & 0777) != 0) return nullptr;
    return output;
  }
  return nullptr;
}

DiskOutput::~DiskOutput() {
  if (file_ < 0) return;
  close(file_);
  unlink(draft_.c_str());
}

void DiskOutput::Write(const std::string& text) {
  const char* at = text.data();
  std::size_t left = text.size();
  while (left > 0 && !failed_) {
    const ssize_t written = write(file_, at, left);
    if (written < 0 && errno == EINTR) continue;
    failed_ = written <= 0;
    if (failed_) return;
    at += written;
    left -= static_cast<std::size_t>(written);
  }
}

// Everything that may fail late: a quota, a disk in the net, a disk that is dying.
bool DiskOutput::Finish() {
  const bool written = !failed_ && fdatasync(file_) == 0;
  return close(std::exchange(file_, -1)) == 0 && written;
}

bool DiskOutput::Close() {
  if (file_ < 0) return false;
  if (!Finish() || rename(draft_.c_str(), target_.c_str()) != 0) {
    unlink(draft_.c_str());
    return false;
  }
  return SyncFolder(target_.parent_path());
}

void SweepDrafts(const fs::path& path) {
  const std::string begin = DraftBegin(path);
  std::error_code error;
  for (fs::directory_iterator entry(path.parent_path(), error), end; !error && entry != end;
       entry.increment(error)) {
    const pid_t writer = WriterOf(entry->path().filename().string(), begin);
    if (writer != 0 && IsGone(writer)) unlink(entry->path().c_str());
  }
}

}  // namespace quill::host
