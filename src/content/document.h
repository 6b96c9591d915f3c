// What a content file holds, in memory: an ordered list of pages, filled once by
// the loader and then only read. It knows nothing of markup, files or drawing.
//
// A page has an id, decimal text that the file gives it, and an index in the
// list, which counts from 0. In a well-made file the two are the same number.
// `GetPage` goes by the id, `AddLink` and `GetPageByOffset` by the index.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "content/page.h"

namespace quill::content {

class Document {
 public:
  // Returns the first page whose id reads as that number (`base::IntVal`: "07" is
  // 7, "x" is 0), null if there is none.
  std::shared_ptr<Page> GetPage(std::int32_t id) const;

  // Returns the page at that index, null if there is none.
  std::shared_ptr<Page> GetPageByOffset(std::int32_t index) const;

  // Returns the last index, -1 for an empty document.
  std::int32_t GetUbound() const { return static_cast<std::int32_t>(PageList.size()) - 1; }

  // Appends a page of as many columns as there are texts. No program of ours calls
  // these: the loader has a list.
  void AddPage(std::string id, std::string title, std::string text);
  void AddPage(std::string id, std::string title, std::string text1, std::string text2);
  void AddPage(std::string id, std::string title, std::string text1, std::string text2, std::string text3);

  // Adds a link to the page whose index is the number that `id` reads as. Dropped
  // if there is no such page.
  void AddLink(const std::string& id, std::string offset, std::string length, std::string link_to_page,
               std::int32_t type, std::int32_t column = 0, std::string file_name = {});

  // Ours, not the domain's: `AddPage` for a list of texts, one to three.
  void AppendPage(std::string id, std::string title, TextList texts);

 private:
  std::vector<std::shared_ptr<Page>> PageList;
};

}  // namespace quill::content
