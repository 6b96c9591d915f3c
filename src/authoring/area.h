// One area's pair of content files, opened as the reader opens them: through
// `content::zkXMLFileClass` on the current desktop. An area is only read.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "content/document.h"
#include "content/xml_file.h"

namespace quill::authoring {

struct OpenedFile {
  std::string name;
  std::string bytes;  // as they lie on the disk
  std::unique_ptr<content::zkXMLFileClass> file;
  std::shared_ptr<content::Document> document;
};

struct Area {
  std::int32_t mode = 0;
  OpenedFile pages;
  OpenedFile glossary;
};

// Opens a file of the bundle's folder `Data`. Without a value if it can't be
// opened or holds no document, after message boxes that say why; `CannotOpen` is
// the sentence that ends the list.
std::optional<OpenedFile> OpenFile(const std::string& name);
std::string CannotOpen(const std::string& name);

// The same for one that a command can't do without. Throws `FileComplaint` if it
// isn't there, else `Complaint`; both say `CannotOpen`.
OpenedFile RequireFile(const std::string& name);

// All pages of a document, in order.
std::vector<std::shared_ptr<content::Page>> PagesOf(const content::Document& document);

// Whether a text of the file reads as a number of digits and nothing else.
bool IsWholeNumber(const std::string& text);

}  // namespace quill::authoring
