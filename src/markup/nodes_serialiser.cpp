// How the leaves of a tree print themselves.
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
#include <string>

#include "base/text.h"
#include "markup/nodes.h"
#include "markup/text_helpers.h"

namespace quill::markup {
std::string zkXMLCDataSection::GetXMLString() const { return "<![CDATA[" + data + "]]>"; }

std::string zkXMLComment::GetXMLString() const { return "<!--" + comment + "-->"; }

std::string zkXMLPInstruction::GetXMLString() const { return "<?" + data + "?>"; }

std::string zkXMLDeclaration::GetXMLString() const { return "<!" + base::Uppercase(type) + " " + data + ">"; }

std::string zkXMLTextSection::GetXMLString() const {
  std::string text = EncodeEntities(EncodeXMLText(data));
  text = base::ReplaceAll(text, "'", "&apos;");
  text = base::ReplaceAll(text, "\"", "&quot;");
  return base::ReplaceAll(text, "\n", zkXMLLineBreak());
}

std::string zkXMLAttribute::GetXMLString() const {
  std::string value = base::ReplaceAll(EncodeXMLText(data), "\r", " ");
  std::erase(value, '^');
  value = EncodeEntities(value);
  // There is no escape that the reader would undo.
  std::erase_if(value, [](char c) { return c == '\'' || c == '"'; });
  std::string written_name = name;
  std::erase(written_name, ' ');
  return written_name + "=\"" + value + "\"";
}

bool zkXMLTextSection::IsLeftOut() const { return zkXMLToolkitGlobals::UseXMLFormatting && IsWhiteSpace(); }

}  // namespace quill::markup
