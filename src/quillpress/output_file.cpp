#include "quillpress/output_file.h"

#include <system_error>

#include "host/qt/qt_files.h"

namespace quill::quillpress {

bool WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  const auto file = host::DiskItem(path)->CreateSharedFile();
  if (!file) return false;
  file->Write(bytes);
  return file->Close();
}

bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code error;
  return std::filesystem::equivalent(a, b, error);
}

}  // namespace quill::quillpress
