// One area's pair of content files, opened as the reader opens them: through
// `content::zkXMLFileClass` on the current desktop. An area is only read; who opened
// a file owns its tree and its document.
//
// Names of files are UTF-8, as the disk has them.
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
  std::string bytes;  // as they lie on the disk, since the tree no longer tells
  std::unique_ptr<content::zkXMLFileClass> file;
  std::shared_ptr<content::Document> document;
};

struct Area {
  std::int32_t mode = 0;  // index in the table of modes
  OpenedFile pages;
  OpenedFile glossary;
};

// Opens a file of the bundle's folder `Data`. Without a value if it can't be
// opened or holds no document, after message boxes that say why; `CannotOpen` is
// the sentence that ends the list, without its point.
std::optional<OpenedFile> OpenFile(const std::string& name);
std::string CannotOpen(const std::string& name);

// Whether the file is there and can be read. One that can, and is still not opened, is
// no content file.
bool IsReadable(const std::string& name);

// Throws for a file that can't be opened: `FileComplaint` if it isn't readable, else
// `Complaint`, each with that sentence.
[[noreturn]] void ComplainOfFile(const std::string& name, const std::string& sentence);

// `OpenFile` for one that a command can't do without. Throws what `ComplainOfFile`
// does, with `CannotOpen`.
OpenedFile RequireFile(const std::string& name);

// All pages of a document, in order.
std::vector<std::shared_ptr<content::Page>> PagesOf(const content::Document& document);

// Whether a text of the file is digits and nothing else. The reader takes any text for
// a number, which hides slips: "1O" is 1.
bool IsWholeNumber(const std::string& text);

}  // namespace quill::authoring
