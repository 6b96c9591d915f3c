#include "content/loader.h"

#include <array>

#include "base/numbers.h"

namespace quill::content {
namespace {

using markup::zkXMLElement;

constexpr std::int32_t kMostColumns = 3;

std::string ValueOf(const zkXMLElement& element) {
  return element.ContentCount() == 0 ? std::string() : element.GetContent(1)->GetData();
}

// Takes the value of `element`; leaves what there was if it is null.
void Take(const zkXMLElement* element, std::string& value) {
  if (element != nullptr) value = ValueOf(*element);
}

std::int32_t NumberOf(const zkXMLElement& element, const char* attribute, std::int32_t otherwise) {
  const std::shared_ptr<markup::zkXMLAttribute> found = element.GetAttribute(attribute);
  return found ? base::IntVal(found->GetValue()) : otherwise;
}

// Calls `visit` for each child element, in order.
template <typename Visit>
void ForEachElement(const zkXMLElement& parent, Visit visit) {
  for (std::int32_t i = 1; i <= parent.ContentCount(); ++i) {
    if (const zkXMLElement* const child = parent.GetContent(i)->asElement()) visit(*child);
  }
}

// The children of a page that count, found in one walk: the first of each name,
// and of the texts the first three.
struct PageParts {
  explicit PageParts(const zkXMLElement& page);

  const zkXMLElement* page_id = nullptr;
  const zkXMLElement* title = nullptr;
  std::array<const zkXMLElement*, kMostColumns> texts = {};
  const zkXMLElement* links = nullptr;
};

PageParts::PageParts(const zkXMLElement& page) {
  std::size_t text_count = 0;
  ForEachElement(page, [&](const zkXMLElement& child) {
    if (child.IsNamed("Text")) {
      if (text_count < texts.size()) texts[text_count++] = &child;
    } else if (page_id == nullptr && child.IsNamed("PageID")) {
      page_id = &child;
    } else if (title == nullptr && child.IsNamed("Title")) {
      title = &child;
    } else if (links == nullptr && child.IsNamed("Links")) {
      links = &child;
    }
  });
}

// The same for a link.
struct LinkParts {
  explicit LinkParts(const zkXMLElement& link);

  const zkXMLElement* offset = nullptr;
  const zkXMLElement* length = nullptr;
  const zkXMLElement* target = nullptr;
  const zkXMLElement* type = nullptr;
  const zkXMLElement* file_name = nullptr;
};

LinkParts::LinkParts(const zkXMLElement& link) {
  ForEachElement(link, [&](const zkXMLElement& child) {
    if (offset == nullptr && child.IsNamed("Offset")) {
      offset = &child;
    } else if (length == nullptr && child.IsNamed("Length")) {
      length = &child;
    } else if (target == nullptr && child.IsNamed("LinkToPage")) {
      target = &child;
    } else if (type == nullptr && child.IsNamed("LinkType")) {
      type = &child;
    } else if (file_name == nullptr && child.IsNamed("Filename")) {
      file_name = &child;
    }
  });
}

// One loading. Its values outlive a page and a link on purpose; see the header.
class Loader {
 public:
  explicit Loader(Document& document) : document_(document) {}

  void LoadPage(const zkXMLElement& page);

 private:
  void LoadLink(const zkXMLElement& link);

  Document& document_;
  std::string page_id_;
  std::string title_;
  std::array<std::string, kMostColumns> texts_;
  std::string offset_;
  std::string length_;
  std::string target_;
};

void Loader::LoadPage(const zkXMLElement& page) {
  const std::int32_t columns = NumberOf(page, "Columns", 1);
  const PageParts parts(page);
  Take(parts.page_id, page_id_);
  Take(parts.title, title_);
  for (std::int32_t i = 0; i < columns && i < kMostColumns; ++i) {
    const auto slot = static_cast<std::size_t>(i);
    Take(parts.texts[slot], texts_[slot]);
  }
  // Any number of columns but 1 and 2 makes a page of three.
  const std::ptrdiff_t texts = columns == 1 || columns == 2 ? columns : kMostColumns;
  document_.AppendPage(page_id_, title_, {texts_.begin(), texts_.begin() + texts});
  if (parts.links == nullptr) return;
  ForEachElement(*parts.links, [this](const zkXMLElement& child) {
    if (child.IsNamed("Link")) LoadLink(child);
  });
}

void Loader::LoadLink(const zkXMLElement& link) {
  const LinkParts parts(link);
  if (parts.offset == nullptr) return;
  Take(parts.offset, offset_);
  Take(parts.length, length_);
  Take(parts.target, target_);
  std::string type = "0";
  Take(parts.type, type);
  std::string file_name;
  Take(parts.file_name, file_name);
  document_.AddLink(page_id_, offset_, length_, target_, base::IntVal(type), NumberOf(link, "column", 1),
                    std::move(file_name));
}

}  // namespace

void LoadPages(const zkXMLElement& document_element, Document& document) {
  Loader loader(document);
  ForEachElement(document_element, [&](const zkXMLElement& child) {
    if (child.IsNamed("Page")) loader.LoadPage(child);
  });
}

}  // namespace quill::content
