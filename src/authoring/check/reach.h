// Which pages links lead to, and which can be reached at all. How a page looks is
// no matter here.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "app/destination.h"
#include "content/document.h"
#include "content/link.h"

namespace quill::authoring {

// What pushing `link` opens on a page of that mode, an index of `modes`. A run of
// styled words can't be pushed and opens nothing.
app::Destination PushedDestination(app::Modes modes, std::int32_t mode, const content::Link& link);

// Indices of pages in a document.
using PageIndices = std::vector<std::size_t>;

// The index of the page that a reader finds under that number.
std::optional<std::size_t> IndexOfPage(const content::Document& document, std::int32_t number);

// Clicks from the nearest of the pages `starts` to each page of the document; -1
// where no way leads.
std::vector<std::int32_t> ClicksTo(const content::Document& document, app::Modes modes, std::int32_t mode,
                                   const PageIndices& starts);

// Whether anything links to each page of `target`: links of that kind on pages of
// `source`, a page's links to itself left out.
std::vector<bool> LinkedPages(const content::Document& source, app::Modes modes, std::int32_t mode,
                              app::Destination::Kind kind, const content::Document& target);

}  // namespace quill::authoring
