// All that Find can show, as a reader sees it: the pages and glossary entries of
// every area, links' words in place, in Unicode. Plain values, read once and only
// looked at afterwards.
//
// What a link can't show isn't in it: the opening page, Screen's page 0 (its number
// stands for the notes), a page whose id an earlier one has, and everything of an
// area of whose two files one can't be opened, since nobody can enter that area.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/mode_table.h"

namespace quill::search {

enum class Kind { kPage, kEntry };

// A page or an entry. Text is UTF-8; paragraphs and columns are parted by line feeds.
struct Text {
  std::int32_t mode = 0;
  Kind kind = Kind::kPage;
  std::string page = {};  // its number as decimal text, as `ShowPage` of the viewer and the glossary take it
  std::string title = {};
  std::string body = {};
  bool only_leads_on = false;  // most of it is links to other pages, as of an index
};

// A content file and the hash of its bytes; 0 if it can't be read.
struct Source {
  std::string name;
  std::uint64_t hash = 0;

  bool operator==(const Source&) const = default;
};

struct Library {
  std::vector<std::string> areas;  // names by mode
  std::vector<Source> sources;     // by mode, pages before glossary
  std::vector<Text> texts;         // by mode, pages before entries, in the order of the file
};

// Reads the content files of the bundle on the current desktop. Shows no message,
// whatever is wrong with them.
Library ReadLibrary(app::Modes modes = app::kModes);

}  // namespace quill::search
