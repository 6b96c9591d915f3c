// The leaves of a markup tree. Each guards its own text: what may not stand
// inside its construct is changed when the text goes in and, where that can be,
// changed back when it comes out. So what is stored can always be written as it
// stands (`nodes_serialiser.cpp`).
//
// Names and texts are otherwise taken as they come; no operation here fails but
// through the text converters (`DecodeXMLText`).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "markup/object.h"

namespace quill::markup {

// Name and value. The value is held decoded.
class zkXMLAttribute final : public zkXMLObject {
 public:
  zkXMLAttribute(std::string name, Variant value);
  zkXMLAttribute(std::string name, std::nullptr_t) = delete;

  std::string GetXMLString() const override;
  std::string GetName() const override { return name; }
  void SetName(std::string new_name) override { name = std::move(new_name); }

  // Decodes every value, also one that never was in a file: a value with
  // "&amp;" in it is kept with "&".
  void SetData(Variant value) override;
  void SetData(std::nullptr_t) = delete;
  Variant GetData() const override { return data; }
  const std::string& GetValue() const { return data; }

  // Ours, not the domain's:

  // Whether its name is that one; the case of letters does not count.
  bool IsNamed(std::string_view other) const;

 private:
  std::string name;
  std::string data;
};

// One run of text between two constructs.
class zkXMLTextSection final : public zkXMLObject {
 public:
  // Takes the raw text from between two tags of a file: it is decoded, two
  // layers deep, and every line end becomes one line feed.
  explicit zkXMLTextSection(std::string_view raw);

  std::string GetXMLString() const override;
  std::string GetName() const override { return "Text"; }
  Variant GetData() const override;

  // Takes plain text: no decoding, line ends stay as they are.
  void SetData(Variant value) override;
  void SetData(std::nullptr_t) = delete;
  void SetName(std::string /*name*/) override {}

  // True for an empty section too.
  bool IsWhiteSpace() const;
  std::string GetText() const { return GetData(); }

  // Ours, not the domain's:

  // Whether it is not written: white space, where `UseXMLFormatting` is set.
  bool IsLeftOut() const;

 private:
  std::string data;  // never holds "]]>"
};

// Its text stays in the bytes of the file, neither decoded nor converted.
class zkXMLCDataSection final : public zkXMLObject {
 public:
  explicit zkXMLCDataSection(std::string_view text) { zkXMLCDataSection::SetData(Variant(text)); }

  std::string GetXMLString() const override;
  std::string GetName() const override { return "CDATA"; }
  void SetData(Variant value) override;
  void SetData(std::nullptr_t) = delete;
  Variant GetData() const override;
  void SetName(std::string /*name*/) override {}

 private:
  std::string data;  // never holds "]]>"
};

// Loses what a comment can't hold: runs of dashes shrink to one, and a dash at
// the end goes.
class zkXMLComment final : public zkXMLObject {
 public:
  explicit zkXMLComment(std::string_view text) { zkXMLComment::SetData(Variant(text)); }

  std::string GetXMLString() const override;
  std::string GetName() const override { return "Comment"; }
  Variant GetData() const override { return comment; }
  void SetData(Variant value) override;
  void SetData(std::nullptr_t) = delete;
  void SetName(std::string /*name*/) override {}

 private:
  std::string comment;  // never holds "--", never ends in "-"
};

// A processing instruction; the XML declaration at the head of a file is one.
class zkXMLPInstruction final : public zkXMLObject {
 public:
  explicit zkXMLPInstruction(std::string_view text) { zkXMLPInstruction::SetData(Variant(text)); }

  std::string GetXMLString() const override;
  std::string GetName() const override { return "Processing Instruction"; }
  void SetData(Variant value) override;
  void SetData(std::nullptr_t) = delete;
  Variant GetData() const override;
  void SetName(std::string /*name*/) override {}

 private:
  std::string data;  // never holds "?>" behind its first word
};

// A doctype or the like, without any guard.
class zkXMLDeclaration final : public zkXMLObject {
 public:
  // Takes what stood between "<!" and ">".
  explicit zkXMLDeclaration(std::string_view text);

  // Takes both as they are. No program of ours calls this.
  zkXMLDeclaration(std::string type_word, std::string text)
      : type(std::move(type_word)), data(std::move(text)) {}

  std::string GetXMLString() const override;
  std::string GetName() const override { return type; }
  Variant GetData() const override { return data; }
  void SetData(Variant value) override { data = std::move(value); }
  void SetData(std::nullptr_t) = delete;
  void SetName(std::string name) override { type = std::move(name); }

 private:
  std::string type;
  std::string data;
};

}  // namespace quill::markup
