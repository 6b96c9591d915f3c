// The file that a command writes: whole, or not at all.
#pragma once

#include <filesystem>
#include <string>

namespace quill::quillpress {

// Puts a new file in the old one's place once it is whole. Returns false if that can't
// be done; what was there is there still.
bool WriteFile(const std::filesystem::path& path, const std::string& bytes);

// Whether both are one file, by whatever paths and links they lead there: what a command
// reads would be lost if it wrote there.
bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace quill::quillpress
