// The document of a content file without a window to say what is wrong with it: for
// who looks through all areas while a reader is in one of them. What this reads,
// `zkXMLFileClass` opens, and the other way round.
#pragma once

#include <memory>
#include <string>

#include "content/document.h"

namespace quill::content {

// Returns the pages that a file of those bytes holds; null, without a message, if it
// can't be opened as a content file.
std::shared_ptr<Document> ReadDocument(std::string bytes);

}  // namespace quill::content
