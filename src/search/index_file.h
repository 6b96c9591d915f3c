// The index's database: how it is made from a library, and how it lies in a file.
//
//   database            SQLite's own format
//   8 bytes             hash of these (`base::Hash64`), lowest byte first
//
// So a file that is cut off, or has a wrong byte, is known before SQLite reads it.
// The texts themselves aren't in it, only which words stand where; they come from the
// content files, which must be read anyway to know that the index is theirs.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "search/database.h"
#include "search/library.h"
#include "search/vocabulary.h"

namespace quill::search {

// The tables: `pages` has a row for each text of the library, by its index plus 1.
std::unique_ptr<Database> MakeDatabase(const Library& library);

// Returns the database in the file; null if the file isn't whole, or was made by
// another version of the program or from other content than the library's.
std::unique_ptr<Database> OpenDatabase(std::string_view file, const Library& library);

// The words of the table `words`.
std::vector<Word> ReadWords(const Database& database);

// Returns the bytes of the file, for the same library the same.
std::string FileOf(const Database& database);

}  // namespace quill::search
