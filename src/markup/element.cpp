#include "markup/element.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/exceptions.h"
#include "base/text.h"

namespace quill::markup {
namespace {

using Content = std::vector<std::shared_ptr<zkXMLObject>>;

template <typename T>
const std::shared_ptr<T>& EntryOf(const std::vector<std::shared_ptr<T>>& list, std::int32_t i) {
  static const std::shared_ptr<T> null_entry;
  if (i == 0) return null_entry;
  if (i < 0 || static_cast<std::size_t>(i) > list.size()) throw base::OutOfBoundsException();
  return list[static_cast<std::size_t>(i) - 1];
}

template <typename T>
void RemoveFrom(std::vector<std::shared_ptr<T>>& list, std::int32_t i) {
  if (i < 1 || static_cast<std::size_t>(i) > list.size()) throw base::OutOfBoundsException();
  list.erase(list.begin() + (i - 1));
}

template <typename T>
void InsertInto(std::vector<std::shared_ptr<T>>& list, std::shared_ptr<T> entry, std::int32_t i) {
  if (i < 1 || static_cast<std::size_t>(i) > list.size() + 1) throw base::OutOfBoundsException();
  list.insert(list.begin() + (i - 1), std::move(entry));
}

// Element number `i` among those of the list for which `fits` holds.
template <typename Test>
std::shared_ptr<zkXMLElement> NthElement(const Content& list, std::int32_t i, Test fits) {
  if (i < 1) return nullptr;
  for (const std::shared_ptr<zkXMLObject>& object : list) {
    zkXMLElement* const element = object->asElement();
    if (element != nullptr && fits(*element) && --i == 0) return {object, element};
  }
  return nullptr;
}

bool HasAttribute(const zkXMLElement& element, std::string_view attribute, std::string_view value) {
  for (std::int32_t i = 1; i <= element.AttributeCount(); ++i) {
    const std::shared_ptr<zkXMLAttribute>& candidate = element.GetAttribute(i);
    if (candidate->IsNamed(attribute) && base::EqualText(candidate->GetValue(), value)) return true;
  }
  return false;
}

}  // namespace

// A default destructor would call itself once for each level of the tree. This one goes
// down the tree in a loop, and needs no memory for its way back: an element whose own
// content is being released holds, in its place, what is still to be released of the
// list that it was taken from, and behind that the element above. There is room for that
// one more, since the element itself has just been taken out.
zkXMLElement::~zkXMLElement() {
  Content at = std::move(content);
  std::shared_ptr<zkXMLObject> above;
  for (;;) {
    if (at.empty()) {
      if (!above) return;
      at = std::move(above->asElement()->content);
      above = std::move(at.back());
      at.pop_back();
      continue;
    }
    std::shared_ptr<zkXMLObject> object = std::move(at.back());
    at.pop_back();
    zkXMLElement* const element = object.use_count() == 1 ? object->asElement() : nullptr;
    if (element == nullptr || element->content.empty()) continue;
    at.swap(element->content);
    element->content.push_back(std::exchange(above, nullptr));
    above = std::move(object);
  }
}

bool zkXMLElement::IsNamed(std::string_view other) const {
  return name == other || base::EqualText(name, other);
}

const std::shared_ptr<zkXMLObject>& zkXMLElement::GetContent(std::int32_t i) const {
  return EntryOf(content, i);
}

const std::shared_ptr<zkXMLAttribute>& zkXMLElement::GetAttribute(std::int32_t i) const {
  return EntryOf(att, i);
}

std::shared_ptr<zkXMLAttribute> zkXMLElement::GetAttribute(std::string_view attribute) const {
  for (const std::shared_ptr<zkXMLAttribute>& candidate : att) {
    if (candidate->IsNamed(attribute)) return candidate;
  }
  return nullptr;
}

std::int32_t zkXMLElement::ElementCount() const {
  return static_cast<std::int32_t>(std::count_if(
      content.begin(), content.end(), [](const auto& object) { return object->asElement() != nullptr; }));
}

std::int32_t zkXMLElement::ElementCount(std::string_view element) const {
  return static_cast<std::int32_t>(std::count_if(content.begin(), content.end(), [&](const auto& object) {
    return object->asElement() != nullptr && object->asElement()->IsNamed(element);
  }));
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElement(std::int32_t i) const {
  return NthElement(content, i, [](const zkXMLElement& /*any*/) { return true; });
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElement(std::string_view element) const {
  return GetElement(element, 1);
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElement(std::string_view element, std::int32_t i) const {
  return NthElement(content, i, [&](const zkXMLElement& child) { return child.IsNamed(element); });
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElement(std::string_view element, std::int32_t i,
                                                       std::string_view attribute) const {
  return NthElement(content, i, [&](const zkXMLElement& child) {
    return child.IsNamed(element) && child.GetAttribute(attribute) != nullptr;
  });
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElement(std::string_view element, std::int32_t i,
                                                       std::string_view attribute,
                                                       std::string_view value) const {
  return NthElement(content, i, [&](const zkXMLElement& child) {
    return child.IsNamed(element) && HasAttribute(child, attribute, value);
  });
}

std::shared_ptr<zkXMLElement> zkXMLElement::GetElementAndIndex(std::string_view element,
                                                               std::int32_t& i) const {
  for (std::size_t entry = 0; entry < content.size(); ++entry) {
    zkXMLElement* const child = content[entry]->asElement();
    if (child == nullptr || !child->IsNamed(element)) continue;
    i = static_cast<std::int32_t>(entry) + 1;
    return {content[entry], child};
  }
  return nullptr;
}

std::shared_ptr<zkXMLTextSection> zkXMLElement::GetTextSection(std::int32_t i) const {
  if (i < 1) return nullptr;
  for (const std::shared_ptr<zkXMLObject>& object : content) {
    auto section = std::dynamic_pointer_cast<zkXMLTextSection>(object);
    if (section && --i == 0) return section;
  }
  return nullptr;
}

void zkXMLElement::AddObject(std::shared_ptr<zkXMLObject> object) {
  if (!object) throw base::NilObjectException();
  if (auto attribute = std::dynamic_pointer_cast<zkXMLAttribute>(object)) {
    att.push_back(std::move(attribute));
  } else {
    content.push_back(std::move(object));
  }
}

void zkXMLElement::InsertObject(std::shared_ptr<zkXMLObject> object, std::int32_t i) {
  if (!object) throw base::NilObjectException();
  if (auto attribute = std::dynamic_pointer_cast<zkXMLAttribute>(object)) {
    InsertInto(att, std::move(attribute), i);
  } else {
    InsertInto(content, std::move(object), i);
  }
}

void zkXMLElement::RemoveContent(std::int32_t i) { RemoveFrom(content, i); }

void zkXMLElement::RemoveAttribute(std::int32_t i) { RemoveFrom(att, i); }

void zkXMLElement::RemoveAttribute(std::string_view attribute) {
  const auto found = std::find_if(att.begin(), att.end(),
                                  [&](const auto& candidate) { return candidate->IsNamed(attribute); });
  if (found != att.end()) att.erase(found);
}

void zkXMLElement::SetAttribute(std::string_view attribute, Variant value) {
  if (const std::shared_ptr<zkXMLAttribute> present = GetAttribute(attribute)) {
    present->SetData(std::move(value));
  } else {
    AddObject(std::make_shared<zkXMLAttribute>(std::string(attribute), std::move(value)));
  }
}

void zkXMLElement::TakeContent(std::shared_ptr<zkXMLObject>* first, std::shared_ptr<zkXMLObject>* last) {
  content.insert(content.end(), std::make_move_iterator(first), std::make_move_iterator(last));
}

void zkXMLElement::TakeContentOf(zkXMLElement& other) {
  TakeContent(other.content.data(), other.content.data() + other.content.size());
  other.content.clear();
}

std::shared_ptr<zkXMLElement> CastToXMLElement(const std::shared_ptr<zkXMLObject>& object) {
  if (!object) return nullptr;
  zkXMLElement* const element = object->asElement();
  if (element == nullptr) throw base::IllegalCastException();
  return {object, element};
}

}  // namespace quill::markup
