// What is wrong with a page as it will stand in the window: links that find no
// word, buttons in each other's way, text that runs out of sight. The layout is
// the viewer's; where a link leads is no matter here.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/mode_table.h"
#include "authoring/check/report.h"
#include "authoring/page_words.h"
#include "content/page.h"
#include "host/graphics.h"

namespace quill::authoring {

// The location of a link of `page`, whose words are `words`; `at` is the page's own
// and `index` the link's in the page's list.
Location LocationOfLink(Location at, const content::Page& page, const std::vector<PageWord>& words,
                        std::size_t index);

// Adds what is wrong with a page of that mode. `at` is the page's location.
void CheckPage(const content::Page& page, const app::Mode& mode, const Location& at,
               host::FontMetrics& metrics, Findings& findings);

// The same for a glossary entry, whose text may run neither out of its window nor
// behind the button that closes it.
void CheckEntry(const content::Page& entry, const Location& at, host::FontMetrics& metrics,
                Findings& findings);

}  // namespace quill::authoring
