// From the markup of a content file to a document: one pass in file order, page
// by page and link by link. Nothing is checked beyond what it takes to go on: a
// broken target shows when a reader follows the link.
//
// An element's value is the text of its first content object, as it stands
// between the tags; an element with nothing inside has the empty text. Where a
// page or a link leaves out an element that it should have, it gets the value of
// the one before it.
#pragma once

#include <string>

#include "content/document.h"
#include "markup/element.h"

namespace quill::content {

// Appends all pages of the element `Document` of a content file.
void LoadPages(const markup::zkXMLElement& document_element, Document& document);

}  // namespace quill::content
