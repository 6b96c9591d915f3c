// The index behind Find: which pages and entries of the library have the words of a
// query, best first, and the line in which they stand. It shows nothing and enters
// no area; whoever asks does that with a hit's mode, kind and page.
//
// The library's texts are in memory, and an index lies over them. The build of the
// project writes one beside the content files (`kIndexFile`), so that it needn't be
// made; it knows the content that it was made from by a hash of each file. One that
// isn't there, is damaged or belongs to other content is passed over, and the index
// is made in memory. So a hit's page, title and line always come from the content
// that the reader shows. Nothing is ever written.
//
// Whatever is asked, there is an answer: a query that means nothing, and a database
// that fails, have no hits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/mode_table.h"
#include "search/library.h"
#include "search/marks.h"

namespace quill::search {

class Database;
class Vocabulary;

// Beside the content files.
inline constexpr const char* kIndexFile = "index.db";

struct Hit {
  std::int32_t mode = 0;
  Kind kind = Kind::kPage;
  std::string page;   // decimal text, as `ShowPage` of the viewer and of the glossary take it
  std::string title;  // UTF-8
  Excerpt excerpt;    // the line around the words, and what to mark in it and on the page
};

struct Answer {
  std::vector<Hit> hits;
  std::size_t total = 0;  // of hits, those beyond the limit counted
  Query query = {};       // as it was taken, to mark the words on a page (`MarkedIn`)

  // If there are no hits since a word of the query stands nowhere: that word, in lower
  // case and without accents, and the words that are nearest to it, best first.
  std::string unknown;
  std::vector<std::string> nearest;
};

class Index {
 public:
  // An index of `library`: that of the file whose bytes are given if they are whole
  // and were made from the same content, else a new one.
  explicit Index(Library library, std::string_view file = {});
  ~Index();

  // Returns the index of the bundle on the current desktop. To be called when it is
  // first needed: it reads all content files.
  static std::unique_ptr<Index> OfBundle(app::Modes modes = app::kModes);

  // Finds what is typed (UTF-8, see `query.h`), the best `limit` hits. Among those that
  // fit about equally well the ones of `area_on_show`, a mode, stand first.
  Answer Find(std::string_view typed, std::optional<std::int32_t> area_on_show, std::size_t limit) const;

  // Whether it came from the file, and wasn't made.
  bool IsFromFile() const { return from_file_; }

  // Returns what is to be written as the file: for the same content the same
  // bytes. Throws `DatabaseError`.
  std::string FileBytes() const;

 private:
  struct Found;  // a text that has the words
  class Search;  // for one query

  const Library library_;
  std::unique_ptr<Database> database_;
  std::unique_ptr<Vocabulary> vocabulary_;
  bool from_file_ = false;
};

}  // namespace quill::search
