#include "content/document_reader.h"

#include <exception>
#include <utility>

#include "content/loader.h"
#include "markup/parser.h"

namespace quill::content {
namespace {

using markup::zkXMLElement;

// A head whose elements have nothing inside keeps a file from being opened: asking for
// their content throws `OutOfBoundsException`.
void RequireHead(const zkXMLElement& app_info) {
  for (const char* const name : {"Application", "Version", "LastPageID"})
    if (const auto element = app_info.GetElement(name)) element->GetContent(1);
}

// Throws what the parser does for malformed markup.
std::shared_ptr<Document> Read(std::string bytes) {
  markup::ParserInput input{.text = std::move(bytes)};
  zkXMLElement whole("", false, false);
  if (markup::Parser(input).parseElementContent(whole)) return nullptr;
  const auto root = whole.GetElement("Root");
  const auto app_info = root ? root->GetElement("AppInfo") : nullptr;
  const auto pages = root ? root->GetElement("Document") : nullptr;
  if (!app_info || !pages) return nullptr;
  RequireHead(*app_info);
  auto document = std::make_shared<Document>();
  LoadPages(*pages, *document);
  return document;
}

}  // namespace

std::shared_ptr<Document> ReadDocument(std::string bytes) {
  try {
    return Read(std::move(bytes));
  } catch (const std::exception&) {
    return nullptr;
  }
}

}  // namespace quill::content
