// Whether the links of a page find their words: each names one by column and offset,
// and the reader passes over a link that finds none without a word. How its button
// looks is `page_check.h`'s matter; where it leads is the checker's.
#pragma once

#include <cstddef>
#include <vector>

#include "authoring/check/report.h"
#include "authoring/page_words.h"
#include "content/page.h"

namespace quill::authoring {

// The location of the link with that index in the list of `page`, whose words are
// `words`. `page_location` is the page's own.
Location LocationOfLink(Location page_location, const content::Page& page, const std::vector<PageWord>& words,
                        std::size_t index);

// Adds what is wrong: more links than the reader has buttons, numbers that are none,
// links that start at no word or where another does, or that reach too far.
void CheckLinkWords(const content::Page& page, const std::vector<PageWord>& words,
                    const Location& page_location, Findings& findings);

}  // namespace quill::authoring
