// The words of a page as its layout counts them: what a link's offset names, and
// how far a link that starts there may reach. The count is the layout's own; it
// isn't run a second time here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "content/page.h"
#include "host/graphics.h"
#include "render/page_layout.h"

namespace quill::authoring {

struct PageWord {
  std::int32_t column = 0;  // from 1
  std::int32_t offset = 0;  // in the layout's count
  std::string text;         // without the tab that indents
  std::string_view rest;    // of the paragraph from the word's first character on
};

// The words of `page`, by column and offset; a tab that stands alone is an empty one.
// `page` must outlive what is returned.
std::vector<PageWord> WordsOf(const content::Page& page, host::FontMetrics& metrics);

// The word that stands at that offset, null if none starts there.
const PageWord* WordAt(const std::vector<PageWord>& words, std::int32_t column, std::int32_t offset);

// The word at which the occurrence with number `nth`, from 1, of `phrase` starts. An
// occurrence begins at a word, doesn't end in the midst of one and lies in one
// paragraph. `column` 0 stands for all. Null if there are fewer.
const PageWord* FindPhrase(const std::vector<PageWord>& words, std::string_view phrase, std::int32_t nth,
                           std::int32_t column);

}  // namespace quill::authoring
