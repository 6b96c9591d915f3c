// What every object of a markup tree answers: elements, attributes, text and
// the rest. Objects are shared by reference and know no parent, so a part of a
// tree may be kept, or hung up elsewhere, when its tree is gone.
#pragma once

#include <cstddef>
#include <string>

namespace quill::markup {

class zkXMLElement;

// A carrier of text.
using Variant = std::string;

class zkXMLObject {
 public:
  virtual ~zkXMLObject() = default;
  zkXMLObject(const zkXMLObject&) = delete;
  zkXMLObject& operator=(const zkXMLObject&) = delete;

  // The object as markup, as it stands in a file. Throws only what the text
  // converters throw (`EncodeXMLText`).
  virtual std::string GetXMLString() const = 0;

  // The object's name, or the word for its kind where it has none.
  virtual std::string GetName() const = 0;

  // The object's text in plain form; empty where it has none of its own.
  virtual Variant GetData() const = 0;

  // Replaces the text. No effect where there is none. A literal 0 would pass for a
  // null pointer to text, and so here and wherever a value is set that overload is
  // deleted.
  virtual void SetData(Variant value) = 0;
  void SetData(std::nullptr_t) = delete;

  // Renames the object. No effect where there is no name. No program of ours calls
  // this.
  virtual void SetName(std::string name) = 0;

  // Ours, not the domain's:

  // This object if it is an element, else null: the class test of walks, which
  // ask it of every entry.
  virtual zkXMLElement* asElement() { return nullptr; }

 protected:
  zkXMLObject() = default;
};

}  // namespace quill::markup
