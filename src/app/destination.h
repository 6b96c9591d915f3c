// What pushing a link opens: the one rule behind the viewer, which carries it
// out, and the authors' check, which looks whether it is there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/mode_table.h"

namespace quill::app {

struct Destination {
  enum class Kind { kNothing, kPage, kEntry, kNotes, kDocument, kMode };

  Kind kind = Kind::kNothing;

  // Number of a page or a glossary entry as the link has it, decimal text; name
  // of a document, Mac Roman.
  std::string name = {};

  std::int32_t mode = 0;                            // may be none of the table
  std::optional<std::int32_t> page = std::nullopt;  // of that mode, where the link chooses it
};

// Returns what a button of link type `type` opens on a page of `from`, a row of
// `modes`.
// `target` is the link's `LinkToPage`, `file_name` its file, Mac Roman.
Destination DestinationOf(Modes modes, const Mode& from, std::int32_t type, const std::string& target,
                          const std::string& file_name);

}  // namespace quill::app
