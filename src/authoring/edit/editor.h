// An author's changes to one content file: finds what a command names, makes the
// change by the content store's own operations, and saves. Nothing is on the disk
// before `Save`. The file's folder must be the bundle of the current desktop
// (`BundleView`).
//
// Whatever can't be done throws a `Complaint`. Text is Mac Roman.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "authoring/area.h"
#include "authoring/page_words.h"
#include "markup/element.h"

namespace quill::authoring {

// Where a link starts: at words, or at an offset that the author has counted.
struct Anchor {
  std::string on;        // empty: by `offset`
  std::int32_t nth = 1;  // occurrence of the words
  std::int32_t offset = -1;
  std::int32_t column = 0;  // 0: any for words, the first for an offset
};

struct NewLink {
  std::int32_t length = 0;  // for an anchor by offset; words bring their own
  std::string target;
  std::int32_t type = 0;
  std::string file_name;
};

// What becomes of a link; what has no value stays.
struct LinkChange {
  std::optional<std::string> on;  // other words, in the same column
  std::optional<std::int32_t> length;
  std::optional<std::string> target;
  std::optional<std::int32_t> type;
};

class Editor {
 public:
  explicit Editor(std::filesystem::path path);

  // Appends a page of as many columns as there are texts, 1 to 3; gives its id.
  std::int32_t AddPage(const std::string& title, const content::TextList& texts);

  // Replaces the title, if one is given, and the texts of the first columns.
  void UpdatePage(std::int32_t id, const std::optional<std::string>& title, const content::TextList& texts);

  void AddLink(std::int32_t id, const Anchor& anchor, const NewLink& link);
  void UpdateLink(std::int32_t id, const Anchor& anchor, const LinkChange& change);
  void DeleteLink(std::int32_t id, const Anchor& anchor);

  // Raises the version by 0.1; gives the new one.
  std::string BumpVersion();

  // Writes the file, all or nothing.
  void Save();

 private:
  [[noreturn]] void Complain(const std::string& what) const;
  [[noreturn]] void ComplainOf(std::int32_t id, const std::string& what) const;

  // The page of that id, which must lie in its place.
  const content::Page& PageOf(std::int32_t id) const;
  std::shared_ptr<markup::zkXMLElement> LinksOf(std::int32_t id) const;

  const PageWord& WordFor(std::int32_t id, const std::vector<PageWord>& words, const Anchor& anchor) const;

  // The number, from 1, of the first link that starts there; 0 if none does.
  std::int32_t LinkNumber(std::int32_t id, std::int32_t column, std::int32_t offset) const;

  // The same for the one that an anchor names, which must be there.
  std::int32_t LinkNumber(std::int32_t id, const Anchor& anchor) const;

  std::filesystem::path path_;
  OpenedFile file_;
};

}  // namespace quill::authoring
