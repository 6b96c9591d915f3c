// How an element prints itself and what it holds. A document does it in
// `container.cpp`, by means of this.
//
// Formatting adds its white space to text that has a child element behind it, so
// that such text grows with every round of reading and writing.
#include <cstdint>
#include <string>
#include <vector>

#include "markup/element.h"
#include "markup/nodes.h"
#include "markup/text_helpers.h"

namespace quill::markup {
namespace {

void AppendLineBreakAndIndent(std::string& out, std::int64_t depth) {
  if (!zkXMLToolkitGlobals::UseXMLFormatting) return;
  out += zkXMLLineBreak();
  const std::string& indentation = zkXMLIndentationCharacter();
  for (; depth > 0; --depth) out += indentation;
}

// Writes an element into a text. The elements whose end tags are still to come lie
// on a stack in memory, so that a deep tree can't overflow the program's own.
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
    std::int64_t depth;         // of its children
    std::int32_t entry = 0;     // number of the last one looked at
    bool ends_in_text = false;  // the last thing written
  };

  void Open(const zkXMLElement& element, std::int64_t depth);
  void Advance();
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
    if (text->IsLeftOut()) return;
    frame.ends_in_text = true;
    out_ += text->GetXMLString();
    return;
  }
  frame.ends_in_text = false;
  AppendLineBreakAndIndent(out_, frame.depth);
  if (const zkXMLElement* const child = object.asElement()) {
    // A document inside an element has its line, but nothing to show there.
    if (!child->IsDocument()) Open(*child, frame.depth + 1);
    return;
  }
  out_ += object.GetXMLString();
}

void Writer::Close() {
  const Frame frame = open_.back();
  open_.pop_back();
  if (!frame.ends_in_text) AppendLineBreakAndIndent(out_, frame.depth - 1);
  out_.append("</").append(frame.element->GetName()).append(">");
}

}  // namespace

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

}  // namespace quill::markup
