#include "authoring/area.h"

#include <utility>

#include "authoring/complaint.h"
#include "content/bundle.h"

namespace quill::authoring {

// A file that isn't there is found out beforehand: the store ends the program then.
std::optional<OpenedFile> OpenFile(const std::string& name) {
  OpenedFile opened;
  opened.name = name;
  const auto item = content::ContentFile(name);
  if (!item) return std::nullopt;
  opened.file = std::make_unique<content::zkXMLFileClass>(name);
  opened.document = std::make_shared<content::Document>();
  if (!opened.file->Init() || !opened.file->GetDocument(opened.document)) return std::nullopt;
  opened.bytes = host::ReadWhole(*item).value_or("");
  return opened;
}

std::string CannotOpen(const std::string& name) {
  return name + (content::ContentFile(name) ? " can't be opened as a content file" : " isn't there");
}

bool IsReadable(const std::string& name) {
  const auto item = content::ContentFile(name);
  return item && item->OpenAsBinaryFile();
}

void ComplainOfFile(const std::string& name, const std::string& sentence) {
  if (!IsReadable(name)) throw FileComplaint(sentence);
  throw Complaint(sentence);
}

OpenedFile RequireFile(const std::string& name) {
  std::optional<OpenedFile> opened = OpenFile(name);
  if (!opened) ComplainOfFile(name, CannotOpen(name) + ".");
  return std::move(*opened);
}

std::vector<std::shared_ptr<content::Page>> PagesOf(const content::Document& document) {
  std::vector<std::shared_ptr<content::Page>> pages;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) pages.push_back(document.GetPageByOffset(i));
  return pages;
}

bool IsWholeNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace quill::authoring
