#include "content/bundle.h"

#include <gtest/gtest.h>

#include "host/memory/memory_desktop.h"
#include "support/texts.h"

namespace quill::content {
namespace {

std::string PathOf(const std::shared_ptr<host::FolderItem>& item) { return item ? item->Path() : "-"; }

// What is found of the bundle, of "a" as a content file, and of "a" as a document in
// it and beside it.
std::string Found() {
  return PathOf(BundleContents()) + " " + PathOf(ContentFile("a")) + " " +
         PathOf(FindDocument(DocumentPlace::kInBundle, "a")) + " " +
         PathOf(FindDocument(DocumentPlace::kBesideBundle, "a"));
}

TEST(BundleTest, LooksInBothPlaces) {
  const auto found = [](const std::string& file) {
    host::MemoryDesktop desktop;
    desktop.files.AddFile(file, "");
    return Found();
  };
  const std::string contents = "Quillmere.app/Contents";
  tests::ExpectEach(
      found, {{"other", "- - - -"},
              {"Data/a", "- - - Data/a"},
              {"Data/b", "- - - -"},
              {"Quillmere.app/a", "- - - -"},
              {contents + "/a", contents + " - - -"},
              {contents + "/Data/b", contents + " - - -"},
              {contents + "/Data/a", contents + " " + contents + "/Data/a " + contents + "/Data/a -"}});
  host::MemoryDesktop nowhere;
  nowhere.files.AddFile(contents + "/Data/a", "");
  nowhere.no_application_folder = true;
  EXPECT_EQ(Found(), "- - - -");
}

TEST(BundleTest, StatesItsVersionTrimmed) {
  const auto version = [](const std::string& bytes) {
    host::MemoryDesktop desktop;
    desktop.files.AddFile("Quillmere.app/Contents/Version", bytes);
    return BundleVersion();
  };
  tests::ExpectEach(version, {{" 1.2 b\r\n", "1.2 b"},
                              {"\n", ""},
                              {std::string(300, '1'), std::string(256, '1'), "one that is no version"}});
  host::MemoryDesktop desktop;
  EXPECT_EQ(BundleVersion(), "");
  desktop.files.AddFile("Quillmere.app/Contents/other", "");
  EXPECT_EQ(BundleVersion(), "");
  desktop.files.AddFile("Quillmere.app/Contents/Version", "1");
  desktop.files.Lock("Quillmere.app/Contents/Version");
  EXPECT_EQ(BundleVersion(), "");
}

}  // namespace
}  // namespace quill::content
