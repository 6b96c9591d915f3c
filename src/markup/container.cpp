#include "markup/container.h"

#include <algorithm>

#include "host/desktop.h"
#include "host/exceptions.h"
#include "host/text.h"
#include "markup/exceptions.h"

namespace quill::markup {
namespace {

std::string ReadWhole(const std::shared_ptr<host::FolderItem>& file) {
  if (!file) throw host::NilObjectException();
  const std::unique_ptr<host::BinaryStream> stream = file->OpenAsBinaryFile();
  if (!stream) throw host::NilObjectException();
  std::string bytes = stream->Read(stream->Length());
  stream->Close();
  return bytes;
}

bool IsHtml(const std::shared_ptr<host::FolderItem>& file) {
  if (!file) return false;
  const std::string name = file->Name();
  return host::EqualText(host::Right(name, 4), ".htm") || host::EqualText(host::Right(name, 5), ".html");
}

}  // namespace

zkXMLContainer::zkXMLContainer(std::string text, bool relaxed)
    : input_{.text = std::move(text), .syntaxRelaxed = relaxed} {
  try {
    if (parseElementContent(*this)) throw zkXMLParsingException();
    SetComplete();
  } catch (const zkXMLParsingException&) {
    host::MsgBox("An error occurred while parsing the XML/HTML file.");
    host::MsgBox(
        "If the program crashes after this, it doesn't handle the exception raised. Please report to the "
        "author.");
    throw;
  }
}

zkXMLContainer::zkXMLContainer(const std::shared_ptr<host::FolderItem>& file)
    : zkXMLContainer(ReadWhole(file), IsHtml(file)) {}

void zkXMLContainer::ParseIncrementally(const std::string& chunk, bool relaxed) {
  if (IsComplete()) return;
  if (!input_.incremental) {
    input_.incremental = true;
    input_.syntaxRelaxed = relaxed;
  }
  input_.text += chunk;
  input_.position = 0;
  try {
    parseElementContent(*this);
  } catch (const zkXMLIncrementEnd&) {
    input_.text.erase(0, input_.position);
    input_.position = 0;
  } catch (const zkXMLParsingException&) {
    host::MsgBox("An error occurred while parsing the XML file.");
    host::MsgBox(
        "If the program crashes after this, it doesn't handle this exception. Please report to the author.");
    throw;
  }
}

bool zkXMLContainer::IsConsistent() const {
  const std::shared_ptr<zkXMLObject>& last = GetContent(ContentCount());
  const zkXMLElement* const element = last ? last->asElement() : nullptr;
  return element == nullptr || element->IsComplete();
}

}  // namespace quill::markup
