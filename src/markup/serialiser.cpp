// How nodes print themselves. `zkXMLContainer::GetXMLString` is the toolkit's one
// way out; what becomes of the text is the caller's business.
//
// Text carries two layers of escapes, and the parser takes both off again:
//
//   in the program    a&b         a<b         a'b         \x8E (e acute)
//   EncodeXMLText     a&amp;b     a&lt;b      a'b         &#233;
//   in the file       a&amp;amp;b a&amp;lt;b  a&apos;b    &amp;#233;
//
// What does not come back: in a text the four characters "&lt;" and the like
// (they return as "<"), a carriage return (as a line feed, also before one), a NUL
// beside a character outside ASCII, and characters that ISO 8859-1 lacks; in an
// attribute both kinds of quote and "^", and a carriage return (as a blank).
// Formatting adds its white space to text that has a child element behind it.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "markup/container.h"
#include "markup/element.h"
#include "markup/nodes.h"
#include "markup/text_helpers.h"

namespace quill::markup {
namespace {

std::string WithEntities(std::string_view text) {
  std::string escaped = base::ReplaceAll(text, "&", "&amp;");
  escaped = base::ReplaceAll(escaped, "<", "&lt;");
  return base::ReplaceAll(escaped, ">", "&gt;");
}

void AppendLineBreakAndIndent(std::string& out, std::int64_t depth) {
  if (!zkXMLToolkitGlobals::UseXMLFormatting) return;
  out += zkXMLLineBreak();
  const std::string& indentation = zkXMLIndentationCharacter();
  for (; depth > 0; --depth) out += indentation;
}

bool IsLeftOut(const zkXMLTextSection& text) {
  return zkXMLToolkitGlobals::UseXMLFormatting && text.IsWhiteSpace();
}

// Writes elements into one text that only grows. The open ones lie on a stack of
// their own, so that the depth of a tree is no matter of the program's stack.
class Writer {
 public:
  explicit Writer(std::string& out) : out_(out) {}

  void Write(const zkXMLElement& element, std::int32_t depth) {
    Open(element, depth);
    while (!open_.empty()) Advance();
  }

 private:
  // An element whose start tag is written.
  struct Frame {
    const zkXMLElement* element;
    std::int64_t depth;      // of its children
    std::int32_t entry = 0;  // number of the last one looked at
    bool ends_in_text = false;
  };

  void Open(const zkXMLElement& element, std::int64_t depth);
  void Advance();
  void Child(const zkXMLElement& child, std::int64_t depth);
  void Close();

  std::string& out_;
  std::vector<Frame> open_;
};

void Writer::Open(const zkXMLElement& element, std::int64_t depth) {
  out_.append("<").append(element.GetName());
  for (std::int32_t i = 1; i <= element.AttributeCount(); ++i) {
    out_.append(" ").append(element.GetAttribute(i)->GetXMLString());
  }
  if (element.ContentCount() == 0) {
    out_ += "/>";
    return;
  }
  out_ += ">";
  open_.push_back({.element = &element, .depth = depth});
}

void Writer::Advance() {
  Frame& frame = open_.back();
  if (frame.entry == frame.element->ContentCount()) return Close();
  zkXMLObject& object = *frame.element->GetContent(++frame.entry);
  if (const auto* const text = dynamic_cast<const zkXMLTextSection*>(&object)) {
    if (IsLeftOut(*text)) return;
    frame.ends_in_text = true;
    out_ += text->GetXMLString();
    return;
  }
  frame.ends_in_text = false;
  AppendLineBreakAndIndent(out_, frame.depth);
  if (const zkXMLElement* const child = object.asElement()) return Child(*child, frame.depth + 1);
  out_ += object.GetXMLString();
}

void Writer::Child(const zkXMLElement& child, std::int64_t depth) {
  // A document inside an element has its place, but nothing to show there.
  if (dynamic_cast<const zkXMLContainer*>(&child) == nullptr) Open(child, depth);
}

void Writer::Close() {
  const Frame frame = open_.back();
  open_.pop_back();
  if (!frame.ends_in_text) AppendLineBreakAndIndent(out_, frame.depth - 1);
  out_.append("</").append(frame.element->GetName()).append(">");
}

}  // namespace

std::string zkXMLCDataSection::GetXMLString() const { return "<![CDATA[" + data + "]]>"; }

std::string zkXMLComment::GetXMLString() const { return "<!--" + comment + "-->"; }

std::string zkXMLPInstruction::GetXMLString() const { return "<?" + data + "?>"; }

std::string zkXMLDeclaration::GetXMLString() const { return "<!" + base::Uppercase(type) + " " + data + ">"; }

std::string zkXMLTextSection::GetXMLString() const {
  std::string text = WithEntities(EncodeXMLText(data));
  text = base::ReplaceAll(text, "'", "&apos;");
  text = base::ReplaceAll(text, "\"", "&quot;");
  return base::ReplaceAll(text, "\n", zkXMLLineBreak());
}

std::string zkXMLAttribute::GetXMLString() const {
  std::string value = base::ReplaceAll(EncodeXMLText(data), "\r", " ");
  std::erase(value, '^');
  value = WithEntities(value);
  // There is no escape that the reader would undo.
  std::erase_if(value, [](char c) { return c == '\'' || c == '"'; });
  std::string written_name = name;
  std::erase(written_name, ' ');
  return written_name + "=\"" + value + "\"";
}

std::string zkXMLElement::getLineBreakAndIndent(std::int32_t i) {
  std::string text;
  AppendLineBreakAndIndent(text, i);
  return text;
}

std::string zkXMLElement::GetXMLString(std::int32_t i) const {
  std::string text;
  Writer(text).Write(*this, i);
  return text;
}

std::string zkXMLContainer::GetXMLString() const {
  std::string document;
  for (std::int32_t i = 1; i <= ContentCount(); ++i) {
    zkXMLObject& object = *GetContent(i);
    if (const auto* const text = dynamic_cast<const zkXMLTextSection*>(&object)) {
      if (!IsLeftOut(*text)) document += text->GetXMLString();
      continue;
    }
    const zkXMLElement* const element = object.asElement();
    document += element != nullptr ? element->GetXMLString(1) : object.GetXMLString();
    AppendLineBreakAndIndent(document, 0);
  }
  return document;
}

}  // namespace quill::markup
