#include "content/document.h"

#include "base/numbers.h"

namespace quill::content {

std::shared_ptr<Page> Document::GetPage(std::int32_t id) const {
  for (const std::shared_ptr<Page>& page : PageList) {
    if (base::IntVal(page->GetPageID()) == id) return page;
  }
  return nullptr;
}

std::shared_ptr<Page> Document::GetPageByOffset(std::int32_t index) const {
  if (index < 0 || index > GetUbound()) return nullptr;
  return PageList[static_cast<std::size_t>(index)];
}

void Document::AddPage(std::string id, std::string title, std::string text) {
  AppendPage(std::move(id), std::move(title), {std::move(text)});
}

void Document::AddPage(std::string id, std::string title, std::string text1, std::string text2) {
  AppendPage(std::move(id), std::move(title), {std::move(text1), std::move(text2)});
}

void Document::AddPage(std::string id, std::string title, std::string text1, std::string text2,
                       std::string text3) {
  AppendPage(std::move(id), std::move(title), {std::move(text1), std::move(text2), std::move(text3)});
}

void Document::AppendPage(std::string id, std::string title, TextList texts) {
  const auto page = std::make_shared<Page>();
  page->SetPageID(std::move(id));
  page->SetTitle(std::move(title));
  page->SetTexts(std::move(texts));
  PageList.push_back(page);
}

void Document::AddLink(const std::string& id, std::string offset, std::string length,
                       std::string link_to_page, std::int32_t type, std::int32_t column,
                       std::string file_name) {
  const std::shared_ptr<Page> page = GetPageByOffset(base::IntVal(id));
  if (!page) return;
  page->AddLink(std::move(offset), std::move(length), std::move(link_to_page), type, column,
                std::move(file_name));
}

}  // namespace quill::content
