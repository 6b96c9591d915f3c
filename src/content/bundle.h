// The application's bundle, a folder of fixed form beside the executable, and
// the documents around it:
//
//   Quillmere.app/Contents/Data/    content files, and documents of some modes
//   Quillmere.app/Contents/Version  the version that the viewer shows
//   Data/                           the documents of the other modes
//
// All of it is looked up on the current desktop at each call; nothing is kept.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/files.h"

namespace quill::content {

inline constexpr const char* kBundleFolder = "Quillmere.app";
inline constexpr const char* kContentsFolder = "Contents";
inline constexpr const char* kDataFolder = "Data";

// Returns the bundle's folder `Contents`; null if it isn't there, or a folder on
// the way.
std::shared_ptr<host::FolderItem> BundleContents();

// Returns the content file of that name, UTF-8; null if it isn't there.
std::shared_ptr<host::FolderItem> ContentFile(const std::string& name);

// Where documents lie: beside the bundle, or in it with the content files.
enum class DocumentPlace { kBesideBundle, kInBundle };

// Returns the document of that name, Mac Roman; null if it isn't there.
std::shared_ptr<host::FolderItem> FindDocument(DocumentPlace place, const std::string& name);

// Returns the version that the bundle states, without white space around it;
// empty if it states none.
std::string BundleVersion();

}  // namespace quill::content
