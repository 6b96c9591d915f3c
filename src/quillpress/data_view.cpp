#include "quillpress/data_view.h"

#include <map>
#include <string>
#include <utility>

#include "app/mode_table.h"
#include "authoring/area.h"
#include "authoring/complaint.h"
#include "content/bundle.h"
#include "host/qt/qt_files.h"

namespace quill::quillpress {
namespace {

namespace fs = std::filesystem;
using Item = std::shared_ptr<host::FolderItem>;

// A folder that need not be there, some of whose items lie elsewhere. All others are
// looked for at `path`, for which the folder stands.
class ViewFolder final : public host::FolderItem {
 public:
  ViewFolder(fs::path path, std::map<std::string, Item> items)
      : path_(std::move(path)), items_(std::move(items)) {}

  std::string Name() const override { return path_.filename().string(); }
  std::string Path() const override { return path_.string(); }
  bool Exists() const override { return true; }

  Item Child(const std::string& name) const override {
    const auto found = items_.find(name);
    if (found != items_.end()) return found->second;
    return host::IsPlainName(name) ? host::DiskItem(path_ / name) : nullptr;
  }

  std::unique_ptr<host::BinaryStream> OpenAsBinaryFile() const override { return nullptr; }
  bool Remove() const override { return false; }
  std::unique_ptr<host::TextOutputStream> Create(Readers /*readers*/) const override { return nullptr; }

 private:
  fs::path path_;
  std::map<std::string, Item> items_;
};

Item View(const fs::path& path, std::map<std::string, Item> items) {
  return std::make_shared<ViewFolder>(path, std::move(items));
}

// Without links and without a "/" at its end, so that what lies around it can
// be told by its parents.
fs::path Plain(const fs::path& path) {
  std::error_code error;
  const fs::path plain = fs::weakly_canonical(fs::absolute(path, error), error);
  return plain.has_filename() ? plain : plain.parent_path();
}

}  // namespace

bool IsInBundle(const fs::path& data) {
  const fs::path contents = Plain(data).parent_path();
  return Plain(data).filename() == content::kDataFolder && contents.filename() == content::kContentsFolder &&
         contents.parent_path().filename() == content::kBundleFolder;
}

void RequireFolder(const fs::path& path) {
  std::error_code error;
  if (!fs::is_directory(path, error)) throw authoring::FileComplaint(path.string() + " is no folder.");
}

void RequireContent() {
  for (const app::Mode& mode : app::kModes)
    for (const auto name : {mode.content_file, mode.glossary_file}) authoring::RequireFile(std::string(name));
}

// The folders around `data` are made up by name: whatever they are called on the disk,
// the reader's code finds the ones that it looks for.
Item BundleView(const fs::path& data, const fs::path& documents) {
  const fs::path contents = Plain(data).parent_path();
  const fs::path bundle = contents.parent_path();
  const fs::path folder = bundle.parent_path();
  const Item inner = View(contents, {{content::kDataFolder, host::DiskItem(Plain(data))}});
  return View(folder, {{content::kBundleFolder, View(bundle, {{content::kContentsFolder, inner}})},
                       {content::kDataFolder,
                        host::DiskItem(documents.empty() ? folder / content::kDataFolder : documents)}});
}

}  // namespace quill::quillpress
