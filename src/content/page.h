// A page: title, one to three columns of text, and the links that lie in them,
// in the order of the file. Shared by reference with whoever reads it.
//
// Links are told apart by their offset and length as text: "07" is not "7".
// Indices of the list of links count from 0.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "content/link.h"

namespace quill::content {

// The texts of a page's columns, one to three.
using TextList = std::vector<std::string>;

class Page {
 public:
  // Empty, with 0 columns.
  Page() = default;
  // As many columns as there are texts. No program of ours calls these.
  Page(std::string id, std::string title, std::string text);
  Page(std::string id, std::string title, std::string text1, std::string text2);
  Page(std::string id, std::string title, std::string text1, std::string text2, std::string text3);

  // Decimal text.
  const std::string& GetPageID() const { return PageID; }
  const std::string& GetTitle() const { return Title; }
  std::int32_t GetColumns() const { return columns; }

  // Returns the text of column 1; of that column, where every number but 1 and 2
  // means the third.
  const std::string& GetText() const { return Text1; }
  const std::string& GetText(std::int32_t column) const;

  void SetPageID(std::string id) { PageID = std::move(id); }
  void SetTitle(std::string title) { Title = std::move(title); }

  // Sets as many columns as there are texts. Texts of further columns stay, out
  // of sight.
  void SetText(std::string text);
  void SetText(std::string text1, std::string text2);
  void SetText(std::string text1, std::string text2, std::string text3);

  // Makes `links` a list of the page's links; the same objects, not copies.
  void GetLinks(std::vector<std::shared_ptr<Link>>& links) const { links = Links; }

  // No program of ours calls these.
  bool LinkExists(const std::string& offset, const std::string& length) const;
  bool LinkExists(const std::string& offset, const std::string& length, std::int32_t column) const;

  // Returns the first link with both, null if there is none. No program of ours
  // calls this.
  std::shared_ptr<Link> GetLink(const std::string& offset, const std::string& length) const;

  void AddLink(std::shared_ptr<Link> link) { Links.push_back(std::move(link)); }
  void AddLink(std::string offset, std::string length, std::string link_to_page, std::int32_t type,
               std::int32_t column = 0, std::string file_name = {});

  // Sets four fields of the link at `index`; its column and file name stay. Does
  // nothing if there is none. No program of ours calls this.
  void UpdateLink(std::int32_t index, std::string offset, std::string length, std::string link_to_page,
                  std::int32_t type);

  // Removes the link at `index`; the first link with that offset in whatever
  // column. Does nothing if there is none. No program of ours calls these.
  void DeleteLink(std::int32_t index);
  void DeleteLink(const std::string& offset);

  // Ours, not the domain's:

  // Returns the texts of all its columns.
  TextList Texts() const;

  // `SetText` for a list of one to three; of a longer one the first three count,
  // an empty one is one empty text.
  void SetTexts(TextList texts);

 private:
  // Ours, not the domain's:
  bool HasLink(std::int32_t index) const;

  // The domain's:
  std::string PageID;
  std::string Text1;
  std::string Title;
  std::vector<std::shared_ptr<Link>> Links;
  std::string Text2;
  std::string Text3;
  std::int32_t columns = 0;
};

// Returns all links of `page`, in order.
std::vector<std::shared_ptr<Link>> LinksOf(const Page& page);

}  // namespace quill::content
