// A page as it is read, apart from how it is laid out: its columns' paragraphs, parted
// where the look changes or a link begins. For those who don't see the page, and
// for those who take its text elsewhere.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "content/page.h"
#include "render/page_layout.h"

namespace quill::render {

// Words of one look, or of one link. All runs of a paragraph together are its
// text, tabs and blanks included.
struct ReadRun {
  std::string text;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::optional<std::size_t> link = std::nullopt;  // index in the page's list, of a link that can be pushed
};

using ReadParagraph = std::vector<ReadRun>;
using ReadColumn = std::vector<ReadParagraph>;

// `layout` must be that of `page`. Takes time linear in the text and the links.
std::vector<ReadColumn> ReadPage(const content::Page& page, const PageLayout& layout);

}  // namespace quill::render
