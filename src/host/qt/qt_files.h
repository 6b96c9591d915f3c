// The files of the machine's own disk.
#pragma once

#include <filesystem>
#include <memory>

#include "host/files.h"

namespace quill::host {

// The item at `path`, whether or not anything is there. A relative path counts
// from the current folder, now and for good.
std::shared_ptr<FolderItem> DiskItem(const std::filesystem::path& path);

}  // namespace quill::host
