#include "content/page.h"

#include <algorithm>

#include "base/text.h"

namespace quill::content {
namespace {

bool Matches(const Link& link, const std::string& offset, const std::string& length) {
  return base::EqualText(link.GetLength(), length) && base::EqualText(link.GetOffset(), offset);
}

}  // namespace

Page::Page(std::string id, std::string title, std::string text)
    : PageID(std::move(id)), Text1(std::move(text)), Title(std::move(title)), columns(1) {}

Page::Page(std::string id, std::string title, std::string text1, std::string text2)
    : Page(std::move(id), std::move(title), std::move(text1)) {
  Text2 = std::move(text2);
  columns = 2;
}

Page::Page(std::string id, std::string title, std::string text1, std::string text2, std::string text3)
    : Page(std::move(id), std::move(title), std::move(text1), std::move(text2)) {
  Text3 = std::move(text3);
  columns = 3;
}

const std::string& Page::GetText(std::int32_t column) const {
  if (column == 1) return Text1;
  return column == 2 ? Text2 : Text3;
}

void Page::SetText(std::string text) {
  Text1 = std::move(text);
  columns = 1;
}

void Page::SetText(std::string text1, std::string text2) {
  SetText(std::move(text1));
  Text2 = std::move(text2);
  columns = 2;
}

void Page::SetText(std::string text1, std::string text2, std::string text3) {
  SetText(std::move(text1), std::move(text2));
  Text3 = std::move(text3);
  columns = 3;
}

void Page::SetTexts(TextList texts) {
  const std::size_t count = texts.size();
  texts.resize(3);
  if (count <= 1) {
    SetText(std::move(texts[0]));
  } else if (count == 2) {
    SetText(std::move(texts[0]), std::move(texts[1]));
  } else {
    SetText(std::move(texts[0]), std::move(texts[1]), std::move(texts[2]));
  }
}

TextList Page::Texts() const {
  TextList texts;
  for (std::int32_t column = 1; column <= columns; ++column) texts.push_back(GetText(column));
  return texts;
}

bool Page::LinkExists(const std::string& offset, const std::string& length) const {
  return GetLink(offset, length) != nullptr;
}

bool Page::LinkExists(const std::string& offset, const std::string& length, std::int32_t column) const {
  return std::any_of(Links.begin(), Links.end(), [&](const std::shared_ptr<Link>& link) {
    return Matches(*link, offset, length) && link->GetColumn() == column;
  });
}

std::shared_ptr<Link> Page::GetLink(const std::string& offset, const std::string& length) const {
  for (const std::shared_ptr<Link>& link : Links) {
    if (Matches(*link, offset, length)) return link;
  }
  return nullptr;
}

void Page::AddLink(std::string offset, std::string length, std::string link_to_page, std::int32_t type,
                   std::int32_t column, std::string file_name) {
  AddLink(std::make_shared<Link>(std::move(offset), std::move(length), std::move(link_to_page), type, column,
                                 std::move(file_name)));
}

void Page::UpdateLink(std::int32_t index, std::string offset, std::string length, std::string link_to_page,
                      std::int32_t type) {
  if (!HasLink(index)) return;
  Link& link = *Links[static_cast<std::size_t>(index)];
  link.SetOffset(std::move(offset));
  link.SetLength(std::move(length));
  link.SetLinkToPage(std::move(link_to_page));
  link.SetType(type);
}

void Page::DeleteLink(std::int32_t index) {
  if (HasLink(index)) Links.erase(Links.begin() + index);
}

void Page::DeleteLink(const std::string& offset) {
  const auto found = std::find_if(Links.begin(), Links.end(), [&](const std::shared_ptr<Link>& link) {
    return base::EqualText(link->GetOffset(), offset);
  });
  if (found != Links.end()) Links.erase(found);
}

bool Page::HasLink(std::int32_t index) const {
  return index >= 0 && static_cast<std::size_t>(index) < Links.size();
}

std::vector<std::shared_ptr<Link>> LinksOf(const Page& page) {
  std::vector<std::shared_ptr<Link>> links;
  page.GetLinks(links);
  return links;
}

}  // namespace quill::content
