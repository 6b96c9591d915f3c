// An author's changes to one content file: finds what a command names, makes the
// change by the content store's own operations, and saves. Nothing is on the disk
// before `Save`. The file's folder must be the folder `Data` of the current desktop's
// bundle. An editor is good for one change, or for several whose words don't move each
// other: the words it goes by are those of the file as it was opened.
//
// It refuses what would leave a file that the reader shows otherwise than its author
// meant; what is merely ugly is for the check to find. Whatever can't be done throws a
// `Complaint`. Text is Mac Roman.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "authoring/area.h"
#include "authoring/page_words.h"
#include "content/page.h"
#include "markup/element.h"

namespace quill::authoring {

// Where a link starts: at words, or at an offset that the author has counted.
struct Anchor {
  std::string on;        // the words; empty: by `offset`
  std::int32_t nth = 1;  // number of the words' occurrence, from 1
  std::int32_t offset = -1;
  std::int32_t column = 0;  // 0: any for words, the first for an offset
};

struct NewLink {
  std::int32_t length = 0;  // in characters, for an anchor by offset; words bring their own
  std::string target;       // decimal text: page, entry, or on the opening page an area
  std::int32_t type = 0;    // one of `content::kLinkTypes`
  std::string file_name;    // of the document; empty for none
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
  // Opens the file. Throws `FileComplaint` if it can't be read, `Complaint` if it is no
  // content file.
  explicit Editor(std::filesystem::path path);

  // Appends a page of as many columns as there are texts, 1 to 3; returns its id.
  std::int32_t AddPage(const std::string& title, const content::TextList& texts);

  // Replaces the title, if one is given, and the texts of the first columns. The
  // page's links stay; whether they still find their words isn't looked at.
  void UpdatePage(std::int32_t id, const std::optional<std::string>& title, const content::TextList& texts);

  // Lays a link on words of the page with that id, changes where or on which words one
  // lies, or deletes one; the words stay.
  void AddLink(std::int32_t id, const Anchor& anchor, const NewLink& link);
  void UpdateLink(std::int32_t id, const Anchor& anchor, const LinkChange& change);
  void DeleteLink(std::int32_t id, const Anchor& anchor);

  // Raises the version by 0.1; returns the new one.
  std::string BumpVersion();

  // Writes the file, all or nothing. Throws `FileComplaint` if that can't be done, `Complaint` if another
  // page than those that were changed would change with them.
  void Save();

 private:
  [[noreturn]] void Complain(const std::string& what) const;
  [[noreturn]] void ComplainOf(std::int32_t id, const std::string& what) const;

  // The page of that id, which must be its index, too.
  const content::Page& PageOf(std::int32_t id) const;

  // Its list of links, which must be there.
  std::shared_ptr<markup::zkXMLElement> LinksOf(std::int32_t id) const;

  // The one of `words`, the page's own, at which the anchor starts.
  const PageWord& WordFor(std::int32_t id, const std::vector<PageWord>& words, const Anchor& anchor) const;

  // The number, from 1, of the first link that starts there; 0 if none does.
  std::int32_t LinkNumber(std::int32_t id, std::int32_t column, std::int32_t offset) const;

  // The same for the one that an anchor names, which must be there.
  std::int32_t LinkNumber(std::int32_t id, const Anchor& anchor) const;

  void RequireOthersAsBefore() const;

  std::filesystem::path path_;
  OpenedFile file_;                 // its document as it was opened
  std::set<std::int32_t> changed_;  // ids of pages
};

}  // namespace quill::authoring
