// A markup tree as one line of text, for expectations:
//
//   a{b=1}["x" Comment"y" c]     element a, attribute b, text, comment, element
//   a..["x"]                     an element that isn't complete
//   !DOCTYPE"x y"                a declaration
//
// Control characters show as \n, \r, \t, others outside ASCII as \xE9.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "markup/element.h"
#include "markup/exceptions.h"

namespace quill::tests {

inline std::string Quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    const std::size_t named = std::string_view("\n\r\t").find(c);
    if (named < 3) {
      result += std::string("\\") + "nrt"[named];
    } else if (code < 32 || code > 126) {
      char hex[8];
      std::snprintf(hex, sizeof hex, "\\x%02X", code);
      result += hex;
    } else {
      result += c;
    }
  }
  return result + "\"";
}

inline std::string DumpContent(const markup::zkXMLElement& element);

inline std::string DumpTree(markup::zkXMLObject& object) {
  const markup::zkXMLElement* const element = object.asElement();
  if (element == nullptr) {
    const bool is_text = dynamic_cast<markup::zkXMLTextSection*>(&object) != nullptr;
    const bool is_declaration = dynamic_cast<markup::zkXMLDeclaration*>(&object) != nullptr;
    return (is_declaration ? "!" : "") + (is_text ? "" : object.GetName()) + Quoted(object.GetData());
  }
  std::string dump = element->GetName() + (element->IsComplete() ? "" : "..");
  for (std::int32_t i = 1; i <= element->AttributeCount(); ++i) {
    dump += (i == 1 ? "{" : " ") + element->GetAttribute(i)->GetName() + "=" +
            element->GetAttribute(i)->GetValue();
  }
  if (element->AttributeCount() > 0) dump += "}";
  return element->ContentCount() == 0 ? dump : dump + "[" + DumpContent(*element) + "]";
}

// What an element or a document holds, without itself.
inline std::string DumpContent(const markup::zkXMLElement& element) {
  std::string dump;
  for (std::int32_t i = 1; i <= element.ContentCount(); ++i)
    dump += (i == 1 ? "" : " ") + DumpTree(*element.GetContent(i));
  return dump;
}

constexpr const char* kRefused = "refused";

// What `dump` gives, `kRefused` if the text of it can't be parsed.
template <typename Dump>
std::string DumpOrRefused(const Dump& dump) {
  try {
    return dump();
  } catch (const markup::zkXMLParsingException&) {
    return kRefused;
  }
}

}  // namespace quill::tests
