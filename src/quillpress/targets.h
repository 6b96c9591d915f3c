// Where links lead: what each of them opens when it is pushed, and which pages
// can be reached at all. How a page looks is no matter here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "content/document.h"
#include "content/link.h"

namespace quill::quillpress {

// What pushing a link does.
struct Lead {
  enum class To { kNothing, kPage, kEntry, kNotes, kDocument, kMode, kBioPage, kUnknown };
  To to = To::kNothing;
  std::int32_t number = 0;  // of the page, entry or mode
};

// `mode` is that of the page which the link lies on. A link of a type that no
// reader knows leads to `kUnknown`.
Lead LeadOf(const content::Link& link, std::int32_t mode);

// Places of pages in a document, from 0.
using Places = std::vector<std::size_t>;

// The place of the page that a reader finds under that number.
std::optional<std::size_t> PlaceOfPage(const content::Document& document, std::int32_t number);

// Clicks from the nearest of the pages `starts` to each page of the document; -1
// where no way leads.
std::vector<std::int32_t> ClicksTo(const content::Document& document, std::int32_t mode,
                                   const Places& starts);

// Whether anything links to each page of `target`: links of that kind on pages of
// `source`, a page's links to itself left out.
std::vector<bool> LinkedPages(const content::Document& source, std::int32_t mode, Lead::To kind,
                              const content::Document& target);

// Whether the document of that name, Mac Roman, lies where the reader looks for it
// from a page of that mode.
bool DocumentExists(const std::string& name, std::int32_t mode);

}  // namespace quill::quillpress
