#include "markup/container.h"

#include <optional>
#include <utility>

#include "base/exceptions.h"
#include "base/text.h"
#include "host/desktop.h"
#include "markup/exceptions.h"

namespace quill::markup {
namespace {

std::string TextOf(const std::shared_ptr<host::FolderItem>& file) {
  std::optional<std::string> text = file ? host::ReadWhole(*file) : std::nullopt;
  if (!text) throw base::NilObjectException();
  return std::move(*text);
}

bool IsHtml(const std::shared_ptr<host::FolderItem>& file) {
  if (!file) return false;
  const std::string name = file->Name();
  return base::EqualText(base::Right(name, 4), ".htm") || base::EqualText(base::Right(name, 5), ".html");
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
    : zkXMLContainer(TextOf(file), IsHtml(file)) {}

std::string zkXMLContainer::GetXMLString() const {
  std::string document;
  for (std::int32_t i = 1; i <= ContentCount(); ++i) {
    zkXMLObject& object = *GetContent(i);
    if (const auto* const text = dynamic_cast<const zkXMLTextSection*>(&object)) {
      if (!text->IsLeftOut()) document += text->GetXMLString();
      continue;
    }
    const zkXMLElement* const element = object.asElement();
    document += element != nullptr ? element->GetXMLString(1) : object.GetXMLString();
    document += getLineBreakAndIndent(0);
  }
  return document;
}

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
