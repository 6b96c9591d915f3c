// The files of the machine's own disk, by the C++ library alone, so that the
// desktop and the command-line tools share them.
#pragma once

#include <filesystem>
#include <memory>

#include "host/files.h"

namespace quill::host {

// The item at `path`, whether or not anything is there.
std::shared_ptr<FolderItem> DiskItem(const std::filesystem::path& path);

}  // namespace quill::host
