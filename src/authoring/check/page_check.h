// What is wrong with a page as it will stand in the window: links that find no
// word, buttons in each other's way, text that runs out of sight. The layout is
// the viewer's; where a link leads is no matter here.
#pragma once

#include "app/mode_table.h"
#include "authoring/check/report.h"
#include "content/page.h"
#include "host/graphics.h"

namespace quill::authoring {

// Adds what is wrong with a page of that mode. `page_location` is where it lies in
// its file; `metrics` are those of the reader's desktop.
void CheckPage(const content::Page& page, const app::Mode& mode, const Location& page_location,
               host::FontMetrics& metrics, Findings& findings);

// The same for a glossary entry, whose text may run neither out of its window nor
// behind the button that closes it.
void CheckEntry(const content::Page& entry, const Location& page_location, host::FontMetrics& metrics,
                Findings& findings);

}  // namespace quill::authoring
