// One open content file: finds it in the bundle, has it parsed, reads its head
// and keeps its tree; for authors it also changes the tree and writes it back.
//
//   Root
//     AppInfo
//       Application, Version, LastPageID       text, each may be missing
//     Document
//       Page [Columns]                         1, 2 or 3; one column if missing
//         PageID                               index of the page, from 0
//         Title
//         Text                                 one for each column
//         Links                                may be missing
//           Link [Column]                      from 1; column 1 if missing
//             Offset, Length, LinkToPage
//             LinkType, Filename               type 0 and no file if missing
//
// Names match in any case of letters, and children in any order; only that among
// elements of one name counts. Text is ISO 8859-1 whatever the file may say, and
// nothing of it is trimmed.
//
// The calls come in this order: constructor, `Init`, and when that gave true,
// `GetDocument`, and then all that edits.
//
// Edits change the tree and nothing else: to see them in a `Document`, call
// `GetDocument` with a new one. A page is addressed by its id, of which only the
// number counts (`base::Val`); the page with id n is `Page` element n + 1. What
// isn't there (a page, its `Links`, a `Title` to update) is passed over without a
// word. Every edit throws `NilObjectException` out of the order above.
//
// Text of a new page or link is taken as it would stand in the file: ISO 8859-1,
// escapes and line ends are decoded. Text that replaces another is taken as it
// stands in the program, Mac Roman, and kept to the letter.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "content/document.h"
#include "host/files.h"
#include "markup/container.h"

namespace quill::content {

class zkXMLFileClass {
 public:
  // Takes the file's name inside the bundle's folder `Data`, UTF-8; touches no
  // file.
  explicit zkXMLFileClass(std::string file_name) { SetFilename(std::move(file_name)); }

  void SetFilename(std::string file_name) { TheFilename = std::move(file_name); }

  // Finds and parses the file and reads its head. Returns false if that fails,
  // after a message box where the reader can do something about it. A file that
  // isn't there ends the program besides.
  bool Init();

  // Appends the file's pages to `document`, which the caller has made empty, and
  // keeps it. Returns false, with nothing appended, if the file has no element
  // `Document`. Throws `NilObjectException` without a document or before `Init`.
  bool GetDocument(std::shared_ptr<Document> document);

  // The file's head; empty and 0 where it says nothing. No program of ours calls
  // the first.
  const std::string& GetAppName() const { return AppName; }
  const std::string& GetAppVersion() const { return AppVersion; }
  std::int32_t GetLastPageID() const { return LastPageID; }

  // Appends a page of as many columns as there are texts, with an empty list of
  // links. Its id is the next after the last. Throws `OutOfBoundsException`, and
  // appends nothing, when the last id is the largest there is. No program of ours
  // calls these: ours have lists.
  void AddPage(const std::string& title, const std::string& text);
  void AddPage(const std::string& title, const std::string& text1, const std::string& text2);
  void AddPage(const std::string& title, const std::string& text1, const std::string& text2,
               const std::string& text3);

  // Sets the title and the first texts of a page, of those that it has; the
  // number of columns stays. Gives it a list of links if it has none. No program
  // of ours calls these: ours have lists.
  void UpdatePage(const std::string& page_id, const std::string& title, const std::string& text);
  void UpdatePage(const std::string& page_id, const std::string& title, const std::string& text1,
                  const std::string& text2);
  void UpdatePage(const std::string& page_id, const std::string& title, const std::string& text1,
                  const std::string& text2, const std::string& text3);

  // Appends a link to those of a page, whatever else lies at that offset.
  // Without a column it is for column 1. No program of ours calls the first.
  void AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
               const std::string& link_to_page, std::int32_t type);
  void AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
               const std::string& link_to_page, std::int32_t type, std::int32_t column);
  void AddLink(const std::string& page_id, const std::string& offset, const std::string& length,
               const std::string& link_to_page, std::int32_t type, std::int32_t column,
               const std::string& file_name);

  // Sets four values of a page's link by its number, from 1 and with deleted ones
  // counted; column and file name stay. Says so if the link is a deleted one.
  void UpdateLink(const std::string& page_id, std::int32_t link_number, const std::string& offset,
                  const std::string& length, const std::string& link_to_page, std::int32_t type);

  // Empties the first link with that offset, in whatever column. It keeps its
  // number, and the loader passes over it. No program of ours calls this.
  void DeleteLink(const std::string& page_id, const std::string& offset);

  // Sets the next page id, the version plus 0.1: here and, where the file has such
  // an element with a text, in the tree. Both saturate, the version in single
  // precision.
  void IncrementPageID();
  void IncrementVersion();

  // Returns the `Page` element of that id, null if there is none.
  std::shared_ptr<markup::zkXMLElement> GetPage(const std::string& page_id) const;

  // Ours, not the domain's:

  // `AddPage` and `UpdatePage` for a list of texts, one to three.
  void AppendPage(const std::string& title, const TextList& texts);
  void ReplaceTexts(const std::string& page_id, const std::string& title, const TextList& texts);

  // Writes the tree to its file, all or nothing. Returns false if that can't be
  // done or nothing is open; the old file is then what it was.
  //
  // No indentation is added, whatever `UseXMLFormatting` says: it would make an
  // empty title one of white space. What stood in the file stands there again,
  // with carriage returns for line ends. `serialiser.cpp` tells what can't be
  // written.
  bool Save() const;

 private:
  // Ours, not the domain's:
  bool Open();
  bool Locate();
  void ReadAppInfo();
  std::string ShownName() const;  // the file's name in messages, Mac Roman
  std::shared_ptr<markup::zkXMLElement> LinksOf(const std::string& page_id) const;

  // The domain's:
  std::shared_ptr<host::FolderItem> TheFile;
  std::shared_ptr<markup::zkXMLContainer> TheContainer;
  std::shared_ptr<markup::zkXMLElement> Root;
  std::string TheFilename;
  std::string AppName;
  std::string AppVersion;
  std::shared_ptr<markup::zkXMLElement> TheDocument;
  std::int32_t LastPageID = 0;
  std::shared_ptr<markup::zkXMLElement> AppInfo;
  std::shared_ptr<Document> myDocument;
};

}  // namespace quill::content
