// The branch of a markup tree: a name, attributes, and an ordered list of
// content objects (elements, text, comments and so on).
//
// Both lists count from 1, and their entry 0 is a null object. Every lookup is a
// linear walk from entry 1 over this element's own children, stops at the first
// hit and gives null when nothing fits. Names are compared by `base::EqualText`,
// so that the case of letters does not count. An element owns its share of its
// children; it must not become its own descendant.
//
// However deep a tree is, its release and its writing take no more of the stack
// than those of a flat one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "markup/nodes.h"
#include "markup/object.h"

namespace quill::markup {

class zkXMLElement : public zkXMLObject {
 public:
  // Reads the inner text of a start tag: "name", or "name" and attributes. With
  // `relaxed`, values may stand without quotes. `complete`: there is no end tag
  // to come. Throws `zkXMLParsingException` for an attribute that can't be read.
  explicit zkXMLElement(std::string_view tag, bool relaxed = false, bool complete_now = true);
  ~zkXMLElement() override;

  // The element as markup; its children stand `i` levels deep, 0 if not told.
  // The depth shows only where `UseXMLFormatting` is set: then every child but
  // text starts a line, and so does the end tag unless text stands before it.
  std::string GetXMLString() const override { return GetXMLString(0); }
  virtual std::string GetXMLString(std::int32_t i) const;

  // What stands before a child `i` levels deep: a line break and as many
  // indentations (none for a depth below 0), or nothing without formatting.
  static std::string getLineBreakAndIndent(std::int32_t i);

  std::string GetName() const override { return name; }
  void SetName(std::string new_name) override { name = std::move(new_name); }

  // An element has no text of its own.
  Variant GetData() const override { return {}; }
  void SetData(Variant /*value*/) override {}
  void SetData(std::nullptr_t) = delete;

  // Entry `i` of a list, null for 0. Throws `OutOfBoundsException` for a number
  // that is none of the list's. The reference holds until the list changes.
  const std::shared_ptr<zkXMLObject>& GetContent(std::int32_t i) const;
  const std::shared_ptr<zkXMLAttribute>& GetAttribute(std::int32_t i) const;

  // Number of the last entry.
  std::int32_t ContentCount() const { return static_cast<std::int32_t>(content.size()); }
  std::int32_t AttributeCount() const { return static_cast<std::int32_t>(att.size()); }

  std::shared_ptr<zkXMLAttribute> GetAttribute(std::string_view attribute) const;

  // Number of child elements: all (which no program of ours asks), those of a name.
  std::int32_t ElementCount() const;
  std::int32_t ElementCount(std::string_view element) const;

  // Child element number `i`, counted from 1 among those that fit: all, those
  // of that name, those that have such an attribute besides, those that have
  // one of that value (decoded, compared as names are). No program of ours counts
  // among all.
  std::shared_ptr<zkXMLElement> GetElement(std::int32_t i) const;
  std::shared_ptr<zkXMLElement> GetElement(std::string_view element) const;
  std::shared_ptr<zkXMLElement> GetElement(std::string_view element, std::int32_t i) const;
  std::shared_ptr<zkXMLElement> GetElement(std::string_view element, std::int32_t i,
                                           std::string_view attribute) const;
  std::shared_ptr<zkXMLElement> GetElement(std::string_view element, std::int32_t i,
                                           std::string_view attribute, std::string_view value) const;

  // The element at the end of a path, null if a step leads nowhere. See
  // `element_path_query.cpp` for what a path may be.
  std::shared_ptr<zkXMLElement> GetDeepElement(std::string_view path) const;

  // The first child element of that name. `i` becomes its entry number in the
  // content, where all kinds of object count; it stays as it was if there is
  // none. No program of ours calls this.
  std::shared_ptr<zkXMLElement> GetElementAndIndex(std::string_view element, std::int32_t& i) const;

  // Text section number `i` from 1. A CDATA section is not a text section.
  std::shared_ptr<zkXMLTextSection> GetTextSection(std::int32_t i = 1) const;

  // Whether the element's end has been reached. Only the parser looks at it.
  bool IsComplete() const { return complete; }
  void SetComplete() { complete = true; }

  // Appends to the attributes if the object is one, else to the content. Throws
  // `NilObjectException` for null.
  void AddObject(std::shared_ptr<zkXMLObject> object);

  // Inserts at entry `i`, 1 to count + 1, of the list that `AddObject` would
  // take; entries from there on move up. Throws `OutOfBoundsException` for any
  // other number. No program of ours calls this.
  void InsertObject(std::shared_ptr<zkXMLObject> object, std::int32_t i);

  // Later entries move down. Throws `OutOfBoundsException` for a number outside
  // 1 to count. No program of ours removes attributes.
  void RemoveContent(std::int32_t i);
  void RemoveAttribute(std::int32_t i);

  // Removes the first attribute of that name, if there is one. No program of ours
  // calls this.
  void RemoveAttribute(std::string_view attribute);

  // Sets the value of the first attribute of that name, or appends one.
  void SetAttribute(std::string_view attribute, Variant value);
  void SetAttribute(std::string_view attribute, std::nullptr_t) = delete;

  // Ours, not the domain's:

  zkXMLElement* asElement() override { return this; }
  bool IsNamed(std::string_view other) const;

  // Whether this is a whole document, of which nothing is written inside another
  // element.
  virtual bool IsDocument() const { return false; }

  // For the parser, which knows that its nodes are no attributes: appends them
  // to the content and leaves null pointers behind.
  void TakeContent(std::shared_ptr<zkXMLObject>* first, std::shared_ptr<zkXMLObject>* last);
  void TakeContentOf(zkXMLElement& other);

 protected:
  // Without a name and not complete.
  zkXMLElement() = default;

 private:
  std::vector<std::shared_ptr<zkXMLObject>> content;
  std::vector<std::shared_ptr<zkXMLAttribute>> att;
  std::string name;
  bool complete = false;

  // Ours, not the domain's:

  void ReadAttributes(std::string_view tag, std::size_t start, bool relaxed);
};

// `object` as the element that it is; null stays null. Throws
// `IllegalCastException` for an object of any other class. No program of ours calls
// this.
std::shared_ptr<zkXMLElement> CastToXMLElement(const std::shared_ptr<zkXMLObject>& object);

}  // namespace quill::markup
