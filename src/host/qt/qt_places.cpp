#include "host/qt/qt_places.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace quill::host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOwnFolder = "quillmere";

fs::path Absolute(const char* path) { return path != nullptr && *path == '/' ? fs::path(path) : fs::path(); }

fs::path HomeFolder() {
  fs::path named = Absolute(std::getenv("HOME"));
  if (!named.empty()) return named;
  passwd entry = {};
  passwd* found = nullptr;
  std::array<char, 16'384> strings;
  const int failed = getpwuid_r(getuid(), &entry, strings.data(), strings.size(), &found);
  const fs::path listed = failed == 0 && found != nullptr ? Absolute(found->pw_dir) : fs::path();
  std::error_code error;
  return fs::is_directory(listed, error) ? listed : fs::path();
}

fs::path Folder(const char* variable, const char* in_home) {
  fs::path named = Absolute(std::getenv(variable));
  if (!named.empty()) return named;
  const fs::path home = HomeFolder();
  return home.empty() ? home : home / in_home;
}

fs::path Own(const fs::path& folder) { return folder.empty() ? folder : folder / kOwnFolder; }

}  // namespace

fs::path ConfigFolder() { return Folder("XDG_CONFIG_HOME", ".config"); }

fs::path StateFolder() { return Own(Folder("XDG_STATE_HOME", ".local/state")); }

fs::path RuntimeFolder() { return Own(Absolute(std::getenv("XDG_RUNTIME_DIR"))); }

}  // namespace quill::host
