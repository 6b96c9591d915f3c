// A content document as text, for expectations: a line for each page with id,
// title and quoted texts, and behind them each link as column, offset, length,
// target, type and file name:
//
//   0 Start "See it" "second column" 1:4+2>1:0 2:0+6>0:9a.pdf
#pragma once

#include <string>

#include "base/numbers.h"
#include "content/document.h"
#include "support/tree_dump.h"

namespace quill::tests {

inline std::string DumpPage(const content::Page& page) {
  std::string dump = page.GetPageID() + " " + page.GetTitle();
  for (const std::string& text : page.Texts()) dump += " " + Quoted(text);
  for (const auto& link : LinksOf(page)) {
    dump += " " + base::Str(link->GetColumn()) + ":" + link->GetOffset() + "+" + link->GetLength() + ">" +
            link->GetLinkToPage() + ":" + base::Str(link->GetType()) + link->GetFilename();
  }
  return dump + "\n";
}

inline std::string DumpDocument(const content::Document& document) {
  std::string dump;
  for (std::int32_t i = 0; i <= document.GetUbound(); ++i) dump += DumpPage(*document.GetPageByOffset(i));
  return dump;
}

}  // namespace quill::tests
