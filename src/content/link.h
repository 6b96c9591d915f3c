// A link: a span of one column's text, and where it leads. A plain value that a
// page shares with its readers; nothing is checked.
//
// Numbers that are only handed on stay the decimal text of the content file.
// `offset` is the place of the span's first word in its column, in the running
// count of the page layout: each column starts at 0, and it is no index into the
// text. `length` is the length in characters that the span's text must reach.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace quill::content {

class Link {
 public:
  Link() = default;

  // Without a column the link has column 0, which no layout places.
  Link(std::string new_offset, std::string new_length, std::string link_to_page, std::int32_t new_type,
       std::int32_t new_column = 0, std::string file_name = {})
      : offset(std::move(new_offset)),
        length(std::move(new_length)),
        LinkToPage(std::move(link_to_page)),
        type(new_type),
        column(new_column),
        FileName(std::move(file_name)) {}

  const std::string& GetOffset() const { return offset; }
  const std::string& GetLength() const { return length; }
  // The target; what it means depends on the type.
  const std::string& GetLinkToPage() const { return LinkToPage; }
  std::int32_t GetType() const { return type; }
  // From 1.
  std::int32_t GetColumn() const { return column; }
  // Of an external document; empty if the link has none.
  const std::string& GetFilename() const { return FileName; }

  // No program of ours calls these.
  void SetOffset(std::string value) { offset = std::move(value); }
  void SetLength(std::string value) { length = std::move(value); }
  void SetLinkToPage(std::string value) { LinkToPage = std::move(value); }
  void SetType(std::int32_t value) { type = value; }
  void SetColumn(std::int32_t value) { column = value; }
  void SetFilename(std::string value) { FileName = std::move(value); }

  // A place kept for the link, 0, 0 until set. No program of ours calls these.
  void SetCoordinates(std::int32_t x, std::int32_t y) {
    Xpos = x;
    Ypos = y;
  }
  void GetCoordinates(std::int32_t& x, std::int32_t& y) const {
    x = Xpos;
    y = Ypos;
  }

 private:
  std::string offset;
  std::string length;
  std::string LinkToPage;
  std::int32_t Xpos = 0;
  std::int32_t Ypos = 0;
  std::int32_t type = 0;
  std::int32_t column = 0;
  std::string FileName;
};

}  // namespace quill::content
