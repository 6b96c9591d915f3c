// The bundle as the tool makes it up: content files are opened by the reader's
// own code, which looks for them in the folder `Data` of a bundle beside the
// executable. The view makes the author's folder that one, wherever it lies and
// whatever it is called. It holds nothing; the files stay where they are.
#pragma once

#include <filesystem>
#include <memory>

#include "host/files.h"

namespace quill::quillpress {

// Whether `data` lies where it would in a real bundle, so that the folder of
// documents beside the bundle is known.
bool IsInBundle(const std::filesystem::path& data);

// Throws `authoring::FileComplaint` unless `path` is a folder.
void RequireFolder(const std::filesystem::path& path);

// Throws what `authoring::RequireFile` does unless all content files of the current
// desktop's bundle can be opened.
void RequireContent();

// The folder that seems to hold the bundle. Inside it "Quillmere.app", "Contents"
// and "Data" lead to `data`, and "Data" beside the bundle to `documents`; an empty
// `documents` stands for the folder beside a real bundle around `data`. Both
// paths count from the current folder.
std::shared_ptr<host::FolderItem> BundleView(const std::filesystem::path& data,
                                             const std::filesystem::path& documents = {});

}  // namespace quill::quillpress
