// A library to be loaded before a program's own (LD_PRELOAD). It makes one of the program's calls fail, or
// kills the program there, so that a test sees what a save leaves behind on a bad disk.
//   QUILL_FAULT=KIND:K:WHAT   what the K-th call of that kind does; with "K+", each from the K-th on
//   QUILL_FAULT_UNDER=FOLDER  only calls on what lies in there count; a path without links
// Kinds: open, read, write, sync, close, rename, mkdir. It fails with the error WHAT, as ENOSPC, kills
// (KILL), or, of read and write, moves half of the bytes (SHORT). A line on standard error names the file.
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

namespace {

std::string Setting(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

// 0 for what is no error.
int ErrorOf(const std::string& what) {
  int error = 133;
  while (error > 0 && (strerrorname_np(error) == nullptr || what != strerrorname_np(error))) --error;
  return error;
}

std::string PathOf(int file) {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), error).string();
}

// Whether this call is to fail; `errno` is set then, to 0 if it is to be short.
bool Fails(const std::string& kind, const std::string& path) {
  static const std::string fault = Setting("QUILL_FAULT");
  static const std::string under = Setting("QUILL_FAULT_UNDER") + "/";
  static std::atomic<int> calls = 0;
  static std::atomic<bool> lasting = false;
  if (!fault.starts_with(kind + ":") || !path.starts_with(under)) return false;
  const std::string call = kind + ":" + std::to_string(++calls);
  lasting = lasting || fault.starts_with(call + "+:");
  if (!lasting && !fault.starts_with(call + ":")) return false;
  dprintf(STDERR_FILENO, "fault: %s\n", path.c_str() + under.size());
  const std::string what = fault.substr(fault.rfind(':') + 1);
  if (what == "KILL") kill(getpid(), SIGKILL);
  errno = ErrorOf(what);
  return true;
}

// The function that the program meant.
template <typename Function>
Function* Real(Function* /*ours*/, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// The same for calls that move bytes; a short one moves half of them and goes well.
bool FailsToMove(const char* kind, int file, std::size_t& count) {
  if (!Fails(kind, PathOf(file))) return false;
  count = (count + 1) / 2;
  return errno != 0;
}

}  // namespace

extern "C" {

// <fcntl.h> has it with "..." in place of the mode, which can't be handed on.
int open(const char* path, int flags, mode_t mode) {
  return Fails("open", path) ? -1 : Real(&open, "open")(path, flags, mode);
}

FILE* fopen64(const char* path, const char* mode) {
  return Fails("open", path) ? nullptr : Real(&fopen64, "fopen64")(path, mode);
}

ssize_t read(int file, void* bytes, std::size_t count) {
  return FailsToMove("read", file, count) ? -1 : Real(&read, "read")(file, bytes, count);
}

ssize_t write(int file, const void* bytes, std::size_t count) {
  return FailsToMove("write", file, count) ? -1 : Real(&write, "write")(file, bytes, count);
}

int fsync(int file) { return Fails("sync", PathOf(file)) ? -1 : Real(&fsync, "fsync")(file); }

int fdatasync(int file) { return Fails("sync", PathOf(file)) ? -1 : Real(&fdatasync, "fdatasync")(file); }

// A close that fails has closed all the same.
int close(int file) {
  const std::string path = PathOf(file);
  const int result = Real(&close, "close")(file);
  return Fails("close", path) ? -1 : result;
}

int rename(const char* from, const char* to) {
  return Fails("rename", to) ? -1 : Real(&rename, "rename")(from, to);
}

int mkdir(const char* path, mode_t mode) {
  return Fails("mkdir", path) ? -1 : Real(&mkdir, "mkdir")(path, mode);
}

}  // extern "C"
