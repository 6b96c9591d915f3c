#include "quillpress/area.h"

#include <utility>

#include "host/desktop.h"

namespace quill::quillpress {
namespace {

std::shared_ptr<host::FolderItem> ItemOf(const std::string& name) {
  std::shared_ptr<host::FolderItem> item = host::GetFolderItem("");
  for (const char* const folder : {"Quillmere.app", "Contents", "Data"}) {
    if (item) item = item->TrueChild(folder);
  }
  return item ? item->TrueChild(name) : nullptr;
}

}  // namespace

std::optional<OpenedFile> OpenFile(const std::string& name) {
  OpenedFile opened;
  opened.name = name;
  const auto item = ItemOf(name);
  if (!item) return std::nullopt;
  opened.file = std::make_unique<content::zkXMLFileClass>(name);
  opened.document = std::make_shared<content::Document>();
  if (!opened.file->Init() || !opened.file->GetDocument(opened.document)) return std::nullopt;
  opened.bytes = host::ReadWhole(*item).value_or("");
  return opened;
}

std::string CannotOpen(const std::string& name) {
  return name + (ItemOf(name) ? " can't be opened as a content file" : " isn't there");
}

std::vector<std::shared_ptr<content::Page>> PagesOf(const content::Document& document) {
  std::vector<std::shared_ptr<content::Page>> pages;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) pages.push_back(document.GetPageByOffset(i));
  return pages;
}

bool IsWholeNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace quill::quillpress
