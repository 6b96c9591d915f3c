// Which pages links lead to, and which can be reached at all. What a link opens is
// the reader's own rule, `app::DestinationOf`; how a page looks is no matter here.
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

// The index of the page that a reader finds under that number: the first whose id is
// that number. None if there is none.
std::optional<std::size_t> IndexOfPage(const content::Document& document, std::int32_t number);

// Clicks from the nearest of the pages `starts` to each page of the document, by page
// links alone; -1 where no way leads. `mode` is the index of the document's mode.
std::vector<std::int32_t> ClicksTo(const content::Document& document, app::Modes modes, std::int32_t mode,
                                   const PageIndices& starts);

// Whether anything links to each page of `to`: links of that kind on pages of `from`,
// which is of that mode; a page's links to itself are left out.
std::vector<bool> LinkedPages(const content::Document& from, app::Modes modes, std::int32_t mode,
                              app::Destination::Kind kind, const content::Document& to);

// The numbers of the pages on which links of the opening page enter the area of that
// mode, an index of `modes`; one for each link.
std::vector<std::int32_t> PagesEntered(const content::Document& opening, app::Modes modes, std::int32_t mode);

}  // namespace quill::authoring
