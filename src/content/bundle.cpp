#include "content/bundle.h"

#include "base/text.h"
#include "base/text_converter.h"
#include "host/desktop.h"

namespace quill::content {
namespace {

using Item = std::shared_ptr<host::FolderItem>;

constexpr std::uint64_t kLongestVersion = 256;

// The item of that name in the folder `Data` inside `folder`.
Item InData(const Item& folder, const std::string& name) {
  const Item data = folder ? folder->TrueChild(kDataFolder) : nullptr;
  return data ? data->TrueChild(name) : nullptr;
}

}  // namespace

Item BundleContents() {
  Item folder = host::GetFolderItem("");
  for (const char* const name : {kBundleFolder, kContentsFolder}) {
    if (!folder || !folder->Exists()) return nullptr;
    folder = folder->Child(name);
  }
  return folder && folder->Exists() ? folder : nullptr;
}

Item ContentFile(const std::string& name) { return InData(BundleContents(), name); }

Item FindDocument(DocumentPlace place, const std::string& name) {
  const Item folder = place == DocumentPlace::kInBundle ? BundleContents() : host::GetFolderItem("");
  return InData(folder, base::MacRomanToUtf8(name));
}

std::string BundleVersion() {
  const Item contents = BundleContents();
  const Item file = contents ? contents->TrueChild("Version") : nullptr;
  const auto stream = file ? file->OpenAsBinaryFile() : nullptr;
  return stream ? std::string(base::Trim(stream->Read(kLongestVersion))) : std::string();
}

}  // namespace quill::content
